// Field splitting beside its plain twins. The first byte of an input says how many headings there
// are and which version the lines belong to; the rest is lines.

#include <algorithm>
#include <vector>

#include "parse/field_scan.h"
#include "plain_reading.h"
#include "read_rows.h"
#include "text/comma_list.h"
#include "whole_check.h"

namespace quorvane::fuzz {
namespace {

/// Behind the line may stand anything: the scan must not depend on it.
void CompareScans(const std::string& line) {
  const std::string padded = line + std::string(ByteBuffer::Padding, '"');
  const std::string_view inPlace(padded.data(), line.size());
  std::vector<FieldOffset> offsets(MostFieldOffsets(line.size()));
  std::vector<FieldOffset> plainOffsets(offsets.size());
  const std::size_t count = ScanRegularFields(inPlace, offsets.data());
  Require(count == ScanRegularFieldsPlainly(inPlace, plainOffsets.data()),
          "both scans find as many fields");
  if (count == 0) return;
  Require(std::equal(offsets.begin(), offsets.begin() + static_cast<std::ptrdiff_t>(count) + 1,
                     plainOffsets.begin()),
          "both scans find the same fields");
}

void CompareRows(AgsFormat format, std::size_t headingCount,
                 const std::vector<std::string>& lines) {
  test::ReadRows rows(format, headingCount, lines);
  test::PlainRows plain(format, headingCount);
  for (std::size_t line = 0; line < lines.size(); ++line) {
    plain.AddLine(static_cast<int>(line) + 1, lines[line]);
  }
  Require(rows.Findings() == plain.Findings(), "findings are those of the plain reading");
  Require(static_cast<std::size_t>(rows.RowCount()) == plain.Rows().size(),
          "there are as many rows as in the plain reading");
  std::int32_t number = 0;
  for (const test::PlainRows::Row& expected : plain.Rows()) {
    ++number;
    Require(rows.LineOf(number) == expected.line, "rows stand at the lines of the plain reading");
    Require(rows.Row(number) == expected.values, "values are those of the plain reading");
  }
}

void Check(std::string_view input) {
  if (input.empty()) return;
  const auto choice = static_cast<unsigned char>(input.front());
  const AgsFormat format = (choice & 8U) != 0 ? AgsFormat::Ags4 : AgsFormat::Ags3;
  const std::size_t headingCount = 1 + (choice & 7U);
  std::vector<std::string> lines;
  for (const std::string_view line : Split(input.substr(1), "\n")) {
    // Lines come from a file's text: no CR, and none that is empty or would be a byte-order mark.
    std::string text(line);
    std::replace(text.begin(), text.end(), '\r', ' ');
    if (text.empty() || text.starts_with('\xEF')) continue;
    CompareScans(text);
    lines.push_back(std::move(text));
  }
  if (!lines.empty()) CompareRows(format, headingCount, lines);
}

}  // namespace
}  // namespace quorvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  quorvane::fuzz::Check(quorvane::fuzz::AsText(data, size));
  return 0;
}
