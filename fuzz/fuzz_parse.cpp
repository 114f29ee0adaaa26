// From a file's bytes to its group table, in either version, without the rules.

#include <array>
#include <string>

#include "parse/structure_parser.h"
#include "run/row_order.h"
#include "run/version_detection.h"
#include "whole_check.h"

namespace quorvane::fuzz {
namespace {

/// Takes everything as it is read.
class NoRules : public StructureListener {
 public:
  std::string ReadGroupName(int, std::int32_t, std::string_view line) override {
    return std::string(line.substr(0, 8));
  }
  void GroupOpened(int) override {}
  std::string ReadHeading(const MessagePlace&, std::int32_t, std::string heading) override {
    return heading;
  }
  void HeadersRead(int, bool) override {}
  void GroupEnded(int) override {}
  void FileEnded() override {}
};

/// Touches every cell, so that a view that points astray is noticed.
void ReadTable(const FileText& file, const GroupTable& table) {
  std::size_t size = 0;
  for (int group = 1; group <= table.GroupCount(); ++group) {
    for (std::int32_t row = 1; row <= table.At(group).rowCount; ++row) {
      const std::int32_t line = table.RowLine(group, row);
      Require(line >= 1 && line <= file.LineCount(), "a row's line is a line of the file");
      for (int column = 1; column <= table.At(group).HeadingCount(); ++column) {
        size += std::string(table.Value(group, row, column)).size();
      }
    }
  }
  // Rewriting adds three characters to a line at most, a restored doubled quote none.
  Require(size <= file.Whole().size() + 4 * static_cast<std::size_t>(file.LineCount()),
          "the table holds no more than the file");
}

void Parse(std::string_view content, AgsFormat format) {
  test::RecordingProgressBox box;
  RunLog runLog(box);
  MessageLog log(runLog, false);
  log.SetFormat(format);
  FileText file{ByteBuffer(content)};
  static_cast<void>(DetectVersion(file));
  if (format == AgsFormat::Ags4) {
    if (CheckRowLabels(file, log) || ConvertAgs4Rows(file, log)) return;
  } else {
    CheckLowHighAscii(file, log);
    CheckLineLengths(file, log);
  }
  GroupTable table(file);
  NoRules listener;
  const std::array<std::string, 1> groupsWithoutUnits{"ABBR"};
  StructureParser parser(file, format, groupsWithoutUnits, table, listener, log);
  parser.ParseStructure({1, file.LineCount()});
  ReadTable(file, table);
}

}  // namespace
}  // namespace quorvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view content = quorvane::fuzz::AsText(data, size);
  quorvane::fuzz::Parse(content, quorvane::AgsFormat::Ags3);
  quorvane::fuzz::Parse(content, quorvane::AgsFormat::Ags4);
  return 0;
}
