#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace quorvane::test {

/// One line of a facts file (data/ags4): a heading of an AGS 4 edition. The texts are the bytes of
/// the file, which is UTF-8.
struct FactsHeading {
  std::string group;
  std::string parent;
  std::string heading;
  std::string status;
  std::string type;
  std::string unit;
};

/// Reads a facts file whole, in file order. A field may stand in double quotes, each double quote
/// inside it doubled; it may then hold commas and line ends. Lines end with LF or CRLF.
///
/// Throws std::runtime_error, with the path and the number of the record, when the file cannot be
/// read, when its first record is not the expected column names, when it holds no heading, or when
/// a record is not six well-formed fields: a test must not go on with half the facts.
std::vector<FactsHeading> ReadFacts(const std::filesystem::path& path);

/// Turns the UTF-8 of the facts into the single-byte text of schema files and AGS files (the micro
/// sign becomes the byte B5). Throws std::runtime_error for what is not one byte there.
std::string ToSingleByte(std::string_view utf8);

}  // namespace quorvane::test
