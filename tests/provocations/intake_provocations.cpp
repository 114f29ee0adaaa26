#include <string>
#include <utility>

#include "run/intake_messages.h"
#include "run/row_order.h"
#include "support/fake_services.h"
#include "support/provocation.h"

namespace quorvane::test {
namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

std::string MinimalText(AgsFormat format) {
  return format == AgsFormat::Ags4 ? MinimalAgs4().Text() : MinimalAgs3().Text();
}

/// The check of a minimal file with something before its text, under a file name.
Provocation InMinimalFile(const MessageDefinition& definition, AgsFormat format,
                          std::string finding, std::string before, std::string path) {
  return {&definition, format, std::move(finding),
          [format, before = std::move(before), path = std::move(path)] {
            return CheckText(before + MinimalText(format), {}, path);
          }};
}

Provocation InText(const MessageDefinition& definition, AgsFormat format, std::string finding,
                   std::string text) {
  return {&definition, format, std::move(finding),
          [text = std::move(text)] { return CheckText(text); }};
}

/// No row of an AGS 3 file has a label: the form for that format is raised by the routine alone.
CheckResult ReportAgs3LineOrder() {
  RecordingProgressBox progressBox;
  RunLog runLog(progressBox);
  MessageLog log(runLog, false);
  log.SetFormat(AgsFormat::Ags3);
  ReportLineOrder(log, "\"DATA\",\"BH1\"", "\"HEADING\"");
  log.CloseCheckSection("File Name Check");
  CheckResult result;
  for (std::size_t index = 0; index < log.ClosedCount(); ++index) {
    const Finding finding = log.ClosedFinding(index);
    result.findings.push_back(FormatMessage(finding.line, finding.severity, finding.text));
  }
  return result;
}

/// An AGS 3 file whose line 4 has 6 characters before and one behind the project's name.
std::string Ags3WithProjectName(const std::string& name) {
  return Ags3File().Group("PROJ", {"PROJ_ID", "PROJ_NAME"}, {"", ""}, {{"P1", name}}).Text();
}

}  // namespace

Provocations IntakeProvocations() {
  Provocations all;
  for (const AgsFormat format : {AgsFormat::Ags3, AgsFormat::Ags4}) {
    all.push_back(InMinimalFile(
        ByteOrderMarkIgnored, format,
        "WARNING: Line 1 - File begins with a UTF-8 byte order mark.  It was ignored.",
        std::string(ByteOrderMark), "test.ags"));
    all.push_back(InMinimalFile(WrongFileExtension, format,
                                "ERROR: File Name must have the extension \".AGS\".", "",
                                "folder/test.txt"));
    all.push_back(InMinimalFile(NoFileExtension, format,
                                "ERROR: File Name has no extension.  It must be \".AGS\".", "",
                                "folder.ags/test"));
  }
  all.push_back(InText(RowLabelProblems, AgsFormat::Ags4,
                       "ERROR: \r\nUnknown row label (Remark), line 1 (Rule 3)"
                       "\r\nRow label 'UNIT' out of order, line 3 (Rule 2b)",
                       "Remark\n\"GROUP\",\"PROJ\"\n\"UNIT\",\"\"\n\"TYPE\",\"ID\"\n"));
  // The labels stand in order; without quotes their lines are no rows all the same.
  all.push_back(
      InText(UnknownFileHeader, AgsFormat::Ags4,
             "ERROR: Unknown data in file header:\r\nGROUP,PROJ\r\nHEADING,PROJ_ID"
             "\r\nUNIT,\r\nTYPE,ID\r\nDATA,1",
             "GROUP,PROJ\nHEADING,PROJ_ID\nUNIT,\nTYPE,ID\nDATA,1\n\n" + MinimalAgs4().Text()));
  all.push_back(
      InText(LineOutOfOrder, AgsFormat::Ags4,
             "ERROR: \"GROUP\",\"TRAN\"\r\n    Line out of order. Expected \"DATA\",\"...",
             "\"GROUP\",\"PROJ\"\n\"HEADING\",\"PROJ_ID\"\n\"UNIT\",\"\"\n"
             "\"TYPE\",\"ID\"\n\"DATA\",\"1\"\n\"GROUP\",\"TRAN\"\n"));
  all.push_back({&LineOutOfOrder, AgsFormat::Ags3,
                 "ERROR: \"DATA\",\"BH1\"\r\n    Line out of order (Rules 2b and 3) . Expected "
                 "\"HEADING\",\"...",
                 ReportAgs3LineOrder});
  all.push_back(InText(CharacterNotAllowed, AgsFormat::Ags3,
                       "ERROR: Line 4 - character position 10", Ags3WithProjectName("M11\xB0")));
  all.push_back(InText(NoFurtherCharacterChecks, AgsFormat::Ags3,
                       "No further checks for high or low bit ASCII characters made.",
                       Ags3WithProjectName(std::string(20, '\t'))));
  all.push_back(InText(LineTooLong, AgsFormat::Ags3, "ERROR: Line 4 - 241 characters",
                       Ags3WithProjectName(std::string(241 - 7, 'x'))));
  return all;
}

}  // namespace quorvane::test
