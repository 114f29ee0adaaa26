#include "run/file_intake.h"

#include <utility>

#include "run/data_file.h"
#include "run/intake_messages.h"
#include "run/row_order.h"
#include "run/stated_version.h"
#include "text/number.h"
#include "text/text.h"

namespace quorvane {
namespace {

const std::string ClosingLine = std::string(39, '*') + "\r\n";

std::string FileLine(const FileToCheck& file) {
  return "File:  " + file.path + " (" + std::to_string(file.number) + " of " +
         std::to_string(file.count) + ")";
}

class Intake {
 public:
  Intake(const Services& services, RunLog& runLog, const FileToCheck& file, FileIntake& intake)
      : services_(services), runLog_(runLog), file_(file), intake_(intake) {}

  /// Reads the file and splits it into lines; false when it cannot be read.
  bool Read() {
    DataFile read = ReadDataFile(services_.disk, file_.path);
    lastChange_ = read.lastChange;
    size_ = read.size;
    intake_.text = std::move(read.text);
    intake_.wasRead = read.refusal.empty();
    if (read.isTooLarge) return Refuse(read.refusal);
    return read.refusal.empty() || RefuseMissing(read.refusal);
  }

  bool DecideVersion() {
    intake_.version = DetectVersion(intake_.text);
    return intake_.version || Refuse(std::string(NotAnAgsFile));
  }

  void WriteHeaderBlock() {
    std::string block = FileLine(file_);
    block.append(LineBreak).append("Date:  ");
    block.append(services_.environment.FormatDateTime(lastChange_));
    block.append(LineBreak).append("Size:  ").append(GroupedCount(size_)).append(" bytes");
    block.append(LineBreak).append("Number of Lines:  ");
    block.append(GroupedCount(static_cast<std::uint64_t>(intake_.text.LineCount())));
    runLog_.AppendProgress(block.append(LineBreak));
  }

 private:
  bool RefuseMissing(const std::string& reason) {
    runLog_.AppendProgress(FileLine(file_).append(LineBreak).append(reason));
    intake_.reason = reason;
    return false;
  }

  bool Refuse(const std::string& reason) {
    runLog_.AppendProgress(reason);
    runLog_.AppendProgress(ClosingLine);
    intake_.reason = reason;
    return false;
  }

  const Services& services_;
  RunLog& runLog_;
  const FileToCheck& file_;
  FileIntake& intake_;
  FileTime lastChange_;
  std::uint64_t size_ = 0;
};

}  // namespace

void CheckFileName(MessageLog& log, std::string_view path) {
  const std::string_view name = path.substr(path.find_last_of("\\/") + 1);
  const std::size_t dot = name.rfind('.');
  if (dot == std::string_view::npos) {
    log.AddMessage(0, NoFileExtension);
  } else if (!EqualsIgnoringCase(name.substr(dot + 1), "AGS")) {
    log.AddMessage(0, WrongFileExtension);
  }
}

DictionaryChoice ChooseDictionary(const FileText& file, const DetectedVersion& version,
                                  const CheckSettings& settings) {
  DictionaryChoice choice{version.format, version.isAgs404, {}};
  if (settings.useCustomDictionary) choice.customSchema = settings.customDictionary;
  const bool hasWish = !settings.edition.empty() && Trim(choice.customSchema).empty();
  if (version.format == AgsFormat::Ags3 || !hasWish) return choice;
  choice.edition = settings.edition == StatedEdition ? FindStatedEdition(StatedVersion(file))
                                                     : FindSchemaEdition(settings.edition);
  return choice;
}

void CheckFileFailedFnB(const Services& services, DictionaryStore& dictionaries, RunLog& runLog,
                        MessageLog& log, const FileToCheck& file, FileIntake& intake) {
  Intake reader(services, runLog, file, intake);
  if (!reader.Read() || !reader.DecideVersion()) return;

  const AgsFormat format = intake.version->format;
  log.SetFormat(format);
  intake.dictionary = ChooseDictionary(intake.text, *intake.version, services.window.Settings());
  if (intake.text.HadByteOrderMark()) log.AddMessage(1, ByteOrderMarkIgnored);
  bool isFatal = format == AgsFormat::Ags4 && CheckRowLabels(intake.text, log);

  intake.schemaPath = SchemaPath(intake.dictionary, dictionaries.ProgramFolder());
  dictionaries.Get(intake.dictionary);

  reader.WriteHeaderBlock();
  CheckFileName(log, file.path);
  if (format == AgsFormat::Ags4 && !isFatal) isFatal = ConvertAgs4Rows(intake.text, log);
  log.CloseCheckSection("File Name Check");
  intake.hasFailed = isFatal;
  intake.reason = isFatal ? "row labels or their order are wrong" : "";
}

}  // namespace quorvane
