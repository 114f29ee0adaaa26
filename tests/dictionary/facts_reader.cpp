#include "facts_reader.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <fstream>
#include <stdexcept>
#include <utility>

namespace quorvane::test {
namespace {

using Record = std::vector<std::string>;

constexpr std::array<std::string_view, 6> kColumns = {"group",  "parent", "heading",
                                                      "status", "type",   "unit"};

std::string ReadBytes(const std::filesystem::path& path) {
  std::ifstream stream(path, std::ios::binary);
  if (!stream) throw std::runtime_error(path.string() + ": cannot be opened");
  // Throws for a folder too; std::filesystem::filesystem_error is a std::runtime_error.
  std::string bytes(static_cast<std::size_t>(std::filesystem::file_size(path)), '\0');
  stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!stream) throw std::runtime_error(path.string() + ": cannot be read");
  return bytes;
}

/// Takes the records of a CSV text one after the other.
class CsvReader {
 public:
  explicit CsvReader(std::string_view text) : text_(text) {}

  bool AtEnd() const { return position_ == text_.size(); }

  /// Takes the next record with its line end. Throws std::runtime_error when it is malformed.
  Record TakeRecord() {
    Record record;
    do {
      record.push_back(TakeField());
    } while (Skip(","));
    if (!AtEnd() && !Skip("\n") && !Skip("\r\n")) Fail("text after a closing quote, or a stray CR");
    return record;
  }

 private:
  [[noreturn]] static void Fail(const char* what) { throw std::runtime_error(what); }

  bool Skip(std::string_view expected) {
    if (text_.substr(position_, expected.size()) != expected) return false;
    position_ += expected.size();
    return true;
  }

  std::string TakeField() { return Skip("\"") ? TakeQuoted() : TakePlain(); }

  std::string TakePlain() {
    const std::size_t end = std::min(text_.find_first_of(",\r\n", position_), text_.size());
    std::string field(text_.substr(position_, end - position_));
    if (field.find('"') != std::string::npos) Fail("a double quote inside an unquoted field");
    position_ = end;
    return field;
  }

  std::string TakeQuoted() {
    std::string field;
    for (;;) {
      const std::size_t quote = text_.find('"', position_);
      if (quote == std::string_view::npos) Fail("a quoted field without an end");
      field += text_.substr(position_, quote - position_);
      position_ = quote + 1;
      if (!Skip("\"")) return field;
      field += '"';
    }
  }

  std::string_view text_;
  std::size_t position_ = 0;
};

FactsHeading ToHeading(Record record) {
  if (record.size() != kColumns.size()) throw std::runtime_error("not six fields");
  return {std::move(record[0]), std::move(record[1]), std::move(record[2]),
          std::move(record[3]), std::move(record[4]), std::move(record[5])};
}

void RequireColumnNames(const Record& record) {
  if (!std::equal(record.begin(), record.end(), kColumns.begin(), kColumns.end())) {
    throw std::runtime_error("not the columns of a facts file");
  }
}

}  // namespace

std::vector<FactsHeading> ReadFacts(const std::filesystem::path& path) {
  const std::string bytes = ReadBytes(path);
  CsvReader reader(bytes);
  std::vector<FactsHeading> headings;
  std::size_t number = 1;
  try {
    RequireColumnNames(reader.TakeRecord());
    for (++number; !reader.AtEnd(); ++number) {
      headings.push_back(ToHeading(reader.TakeRecord()));
    }
    if (headings.empty()) throw std::runtime_error("no heading");
  } catch (const std::runtime_error& error) {
    throw std::runtime_error(path.string() + ": record " + std::to_string(number) + ": " +
                             error.what());
  }
  return headings;
}

std::string ToSingleByte(std::string_view utf8) {
  std::string bytes;
  bytes.reserve(utf8.size());
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    const auto lead = static_cast<unsigned char>(utf8[i]);
    if (lead < 0x80) {
      bytes += utf8[i];
      continue;
    }
    const auto trail = i + 1 < utf8.size() ? static_cast<unsigned char>(utf8[i + 1]) : 0U;
    // C2 A0 to C3 BF: the characters that have the same number in the single-byte code page.
    const unsigned code = ((lead & 0x1FU) << 6U) | (trail & 0x3FU);
    if ((lead != 0xC2 && lead != 0xC3) || (trail & 0xC0U) != 0x80 || code < 0xA0) {
      throw std::runtime_error("not single-byte text: " + std::string(utf8));
    }
    bytes += static_cast<char>(code);
    ++i;
  }
  return bytes;
}

}  // namespace quorvane::test
