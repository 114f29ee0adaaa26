#include "plain_reading.h"

#include <optional>

#include "text/text.h"

namespace quorvane::test {
namespace {

/// 1-based position of a text from a 1-based position on; 0 when it is not there.
std::size_t Find(std::size_t from, const std::string& text, const std::string& wanted) {
  for (std::size_t at = from; at + wanted.size() <= text.size() + 1; ++at) {
    if (text.substr(at - 1, wanted.size()) == wanted) return at;
  }
  return 0;
}

/// The letter at a 1-based position; empty behind the end.
std::string LetterAt(const std::string& text, std::size_t position) {
  return position <= text.size() ? text.substr(position - 1, 1) : std::string();
}

bool IsBlank(const std::string& value) {
  return !value.empty() && value.find_first_not_of(' ') == std::string::npos;
}

constexpr const char* NullFieldText =
    "null field are to be included as \"\" with no internal spaces (Rule 15)";

/// The values when every field is enclosed in double quotes, each double quote inside doubled, and
/// single commas stand between.
std::optional<std::vector<std::string>> WellFormedFields(const std::string& line) {
  enum class Expected { OpeningQuote, Value, CommaOrQuote };
  Expected expected = Expected::OpeningQuote;
  std::vector<std::string> values;
  for (const char letter : line) {
    if (expected == Expected::OpeningQuote) {
      if (letter != '"') return std::nullopt;
      values.emplace_back();
      expected = Expected::Value;
    } else if (expected == Expected::Value) {
      if (letter == '"') {
        expected = Expected::CommaOrQuote;
      } else {
        values.back() += letter;
      }
    } else if (letter == '"') {
      values.back() += "\"\"";
      expected = Expected::Value;
    } else if (letter == ',') {
      expected = Expected::OpeningQuote;
    } else {
      return std::nullopt;
    }
  }
  if (expected != Expected::CommaOrQuote) return std::nullopt;
  return values;
}

}  // namespace

PlainField ReadFieldPlainly(const std::string& line, std::size_t position, bool restore) {
  std::size_t start = position;
  std::size_t end = 0;
  std::size_t closingLength = 0;
  bool missingQuote = false;
  bool internalQuote = false;
  if (LetterAt(line, position) == "\"") {
    ++start;
    const std::size_t quote = Find(start, line, "\"");
    if (quote == 0) {
      missingQuote = true;
    } else if (quote == line.size() || LetterAt(line, quote + 1) == ",") {
      end = quote;
      closingLength = 1;
    } else {
      const std::size_t comma = Find(quote, line, ",");
      if (comma != 0 && LetterAt(line, comma - 1) == "\"") {
        end = comma - 1;
        closingLength = 1;
        internalQuote = true;
      } else {
        missingQuote = true;
      }
    }
  } else {
    missingQuote = true;
    end = Find(position, line, ",");
  }

  PlainField field;
  if (end != 0) {
    field.value = line.substr(start - 1, end - start);
    const std::size_t comma = Find(end + closingLength, line, ",");
    field.next = comma == 0 ? 0 : comma + 1;
  } else {
    field.value = line.substr(start - 1);
  }
  if (restore) field.value = ReplaceAll(field.value, "#`~#", "\"\"");
  if (IsBlank(field.value)) {
    field.faults.emplace_back(NullFieldText);
    field.value.clear();
  }
  if (missingQuote) {
    field.faults.push_back("'" + field.value + "' - missing surrounding quotes (Rule 8).");
  }
  if (internalQuote) {
    field.faults.push_back("'" + field.value + "' - has internal quotes (Rule 8).");
  }
  return field;
}

void PlainRows::Report(int lineNumber, const std::string& text) {
  const std::string finding = "ERROR: Line " + std::to_string(lineNumber) + " - " + text;
  if (findings_.empty() || findings_.back() != finding) findings_.push_back(finding);
}

std::vector<std::string> PlainRows::ReadBySteps(int lineNumber, const std::string& line,
                                                bool& hasMore) {
  std::string text = line;
  if (format_ == AgsFormat::Ags4) {
    text = ReplaceAll(text, "\"\",", "!@#$,");
    if (text.size() >= 3 && text.substr(text.size() - 3) == ",\"\"") {
      text = text.substr(0, text.size() - 3) + ",%^&*";
    }
    text = ReplaceAll(text, "\"\"", "#`~#");
    text = ReplaceAll(text, "!@#$,", "\"\",");
    text = ReplaceAll(text, "%^&*", "\"\"");
  }
  const bool restore = text != line;
  std::vector<std::string> values;
  std::size_t position = 1;
  for (std::size_t count = 1; count <= headingCount_ && position != 0; ++count) {
    const PlainField field = ReadFieldPlainly(text, position, restore);
    for (const std::string& fault : field.faults) {
      Report(lineNumber, fault);
    }
    values.push_back(field.value);
    position = field.next;
  }
  hasMore = position != 0;
  return values;
}

std::vector<std::string> PlainRows::ReadFields(int lineNumber, const std::string& line,
                                               bool& hasMore) {
  std::optional<std::vector<std::string>> values = WellFormedFields(line);
  if (format_ != AgsFormat::Ags4 || !values) return ReadBySteps(lineNumber, line, hasMore);
  hasMore = values->size() > headingCount_;
  if (hasMore) values->resize(headingCount_);
  for (std::string& value : *values) {
    if (!IsBlank(value)) continue;
    Report(lineNumber, NullFieldText);
    value.clear();
  }
  return *values;
}

void PlainRows::AddLine(int lineNumber, const std::string& line) {
  bool hasMore = false;
  std::vector<std::string> values = ReadFields(lineNumber, line, hasMore);
  const bool differs = hasMore || values.size() < headingCount_;
  const bool isContinuation = !values.empty() && UpperCase(values.front()) == "<CONT>";
  if (isContinuation) values.front().clear();
  if (!isContinuation || rows_.empty()) {
    rows_.push_back({lineNumber, std::vector<std::string>(headingCount_)});
  }
  for (std::size_t column = 0; column < values.size(); ++column) {
    rows_.back().values[column] += values[column];
  }
  if (differs) {
    Report(lineNumber, "does not have the same number of fields as the number of headers ");
  }
}

}  // namespace quorvane::test
