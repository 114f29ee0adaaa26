#pragma once

#include <optional>
#include <string>

#include "dictionary/dictionary_store.h"
#include "parse/file_text.h"
#include "report/message_log.h"
#include "run/services.h"
#include "run/version_detection.h"

namespace quorvane {

/// One file of a run.
struct FileToCheck {
  std::string path;
  int number = 1;  // from 1
  int count = 1;
};

/// A file that was taken in: its lines, in the form that the structure parser reads.
struct FileIntake {
  FileText text;
  std::optional<DetectedVersion> version;  // nothing when it was not decided
  DictionaryChoice dictionary;             // when the version was decided
  std::string schemaPath;                  // of the dictionary; empty for the AGS 3 one
  bool wasRead = false;                    // the text is that of the file
  bool hasFailed = true;
  std::string reason = "unexpected failure";  // why the file cannot be checked
};

/// Reads a file, decides its version, checks its row labels, loads its dictionary into the store,
/// writes its header block and checks its name; AGS 4 rows are brought into the common form. The
/// intake has failed when the file cannot be checked further. Throws DictionaryError.
void CheckFileFailedFnB(const Services& services, DictionaryStore& dictionaries, RunLog& runLog,
                        MessageLog& log, const FileToCheck& file, FileIntake& intake);

/// The dictionary that a file is checked against. The rows of an AGS 4 file must still bear their
/// labels: they are looked at where the edition that the file states is wanted.
DictionaryChoice ChooseDictionary(const FileText& file, const DetectedVersion& version,
                                  const CheckSettings& settings);

/// Checks that a path's file name ends in ".AGS", in any letter case.
void CheckFileName(MessageLog& log, std::string_view path);

}  // namespace quorvane
