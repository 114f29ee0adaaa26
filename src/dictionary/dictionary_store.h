#pragma once

#include <map>
#include <string>
#include <string_view>

#include "dictionary/ags_dictionary.h"
#include "dictionary/schema_edition.h"
#include "report/disk.h"

namespace quorvane {

/// Which dictionary a file is checked against.
struct DictionaryChoice {
  AgsFormat format = AgsFormat::Ags3;
  bool isAgs404 = false;
  std::string customSchema;  // a path; blank for the dictionary that comes with the program
  /// One of SchemaEditions, for AGS 4; null for the usual one: 4.0.4 for its files, else 4.0.3.
  const SchemaEdition* edition = nullptr;
};

/// The schema file of a choice; empty for the AGS 3 dictionary that the program carries itself.
std::string SchemaPath(const DictionaryChoice& choice, std::string_view programFolder);

/// The dictionary of a choice, newly built. Throws DictionaryError.
AgsDictionary BuildAgsDictionary(Disk& disk, const DictionaryChoice& choice,
                                 std::string_view programFolder);

/// The dictionaries of a run: each is built when it is first needed and kept for the run.
class DictionaryStore {
 public:
  /// The disk must outlive the store.
  DictionaryStore(Disk& disk, std::string programFolder)
      : disk_(disk), programFolder_(std::move(programFolder)) {}

  /// Throws DictionaryError.
  const AgsDictionary& Get(const DictionaryChoice& choice);

  const std::string& ProgramFolder() const { return programFolder_; }

 private:
  Disk& disk_;
  std::string programFolder_;
  std::map<std::pair<AgsFormat, std::string>, AgsDictionary> dictionaries_;
};

}  // namespace quorvane
