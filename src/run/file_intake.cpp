#include "run/file_intake.h"

#include <utility>

#include "run/intake_messages.h"
#include "run/row_order.h"
#include "text/number.h"
#include "text/text.h"

namespace quorvane {
namespace {

/// A file must be shorter than this, in bytes.
constexpr std::uint64_t SizeLimit = 2147483647;

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
    facts_ = services_.disk.Examine(file_.path);
    if (!facts_.exists) return RefuseMissing("File not found");
    if (facts_.obstacle) return RefuseMissing(facts_.obstacle->description);
    if (facts_.size >= SizeLimit) return Refuse("File is too large for free Quorvane ( > 2GB ).");
    Disk::Reading reading = services_.disk.Read(file_.path);
    if (reading.failure) return RefuseMissing(reading.failure->description);
    size_ = reading.content.Size();
    intake_.text = FileText(std::move(reading.content));
    intake_.wasRead = true;
    return true;
  }

  bool DecideVersion() {
    intake_.version = DetectVersion(intake_.text);
    return intake_.version || Refuse("File is not an AGS 3 or 4 format file");
  }

  void WriteHeaderBlock() {
    std::string block = FileLine(file_);
    block.append(LineBreak).append("Date:  ");
    block.append(services_.environment.FormatDateTime(facts_.lastChange));
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
  FileFacts facts_;
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

DictionaryChoice ChooseDictionary(const DetectedVersion& version, const CheckSettings& settings) {
  return {version.format, version.isAgs404,
          settings.useCustomDictionary ? settings.customDictionary : std::string()};
}

void CheckFileFailedFnB(const Services& services, DictionaryStore& dictionaries, RunLog& runLog,
                        MessageLog& log, const FileToCheck& file, FileIntake& intake) {
  Intake reader(services, runLog, file, intake);
  if (!reader.Read() || !reader.DecideVersion()) return;

  const AgsFormat format = intake.version->format;
  log.SetFormat(format);
  if (intake.text.HadByteOrderMark()) log.AddMessage(1, ByteOrderMarkIgnored);
  bool isFatal = format == AgsFormat::Ags4 && CheckRowLabels(intake.text, log);

  const DictionaryChoice choice = ChooseDictionary(*intake.version, services.window.Settings());
  intake.schemaPath = SchemaPath(choice, dictionaries.ProgramFolder());
  dictionaries.Get(choice);

  reader.WriteHeaderBlock();
  CheckFileName(log, file.path);
  if (format == AgsFormat::Ags4 && !isFatal) isFatal = ConvertAgs4Rows(intake.text, log);
  log.CloseCheckSection("File Name Check");
  intake.hasFailed = isFatal;
  intake.reason = isFatal ? "row labels or their order are wrong" : "";
}

}  // namespace quorvane
