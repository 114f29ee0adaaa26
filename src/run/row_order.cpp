#include "run/row_order.h"

#include <algorithm>
#include <array>
#include <string>

#include "parse/row_label.h"
#include "run/intake_messages.h"
#include "text/text.h"

namespace quorvane {
namespace {

/// What is expected next in an AGS 4 group.
enum class RowState { Group, Heading, Unit, Type, Data };

/// A row label as CheckRowLabels knows it: the states in which it is in order, and the one behind
/// it.
struct LabelOrder {
  std::string_view label;
  RowState expectedIn;
  RowState next;
};

constexpr std::array<LabelOrder, 5> LabelOrders{{{"DATA", RowState::Data, RowState::Data},
                                                 {"GROUP", RowState::Group, RowState::Heading},
                                                 {"HEADING", RowState::Heading, RowState::Unit},
                                                 {"UNIT", RowState::Unit, RowState::Type},
                                                 {"TYPE", RowState::Type, RowState::Data}}};

/// Whether anything but commas, double quotes and blanks stands in a line.
bool IsBlankRow(std::string_view line) {
  return line.find_first_not_of(",\" ") == std::string_view::npos;
}

class RowLabelCheck {
 public:
  void CheckLine(const FileText& file, std::int32_t number) {
    // Nearly all lines are data rows in their place.
    if (state_ == RowState::Data && file.HasDataLabel(number)) return;
    const std::string_view line = file.Line(number);
    if (IsBlankRow(line)) return;
    const std::string label = Without(line.substr(0, line.find(',')), '"');
    const auto order = std::find_if(LabelOrders.begin(), LabelOrders.end(),
                                    [&](const LabelOrder& known) { return known.label == label; });
    if (order == LabelOrders.end()) {
      AddProblem("Unknown row label (" + label + "), line " + std::to_string(number) + " (Rule 3)");
      return;
    }
    const bool opensNextGroup = order->expectedIn == RowState::Group && state_ == RowState::Data;
    if (state_ != order->expectedIn && !opensNextGroup) {
      AddProblem("Row label '" + label + "' out of order, line " + std::to_string(number) +
                 " (Rule 2b)");
    }
    state_ = order->next;
  }

  const std::string& Problems() const { return problems_; }

 private:
  void AddProblem(std::string_view problem) { problems_.append(LineBreak).append(problem); }

  RowState state_ = RowState::Group;
  std::string problems_;
};

/// The text with something inserted behind its first character.
std::string InsertBehindFirst(std::string_view text, std::string_view inserted) {
  std::string result(text.substr(0, 1));
  result.append(inserted);
  result.append(text.substr(std::min<std::size_t>(1, text.size())));
  return result;
}

class RowConversion {
 public:
  RowConversion(FileText& file, MessageLog& log) : file_(file), log_(log) {}

  /// Takes away what stands before the first group row and reports it; returns the line of that
  /// row, or the one behind the last line.
  std::int32_t ReadHeader() {
    std::string header;
    std::int32_t number = 1;
    for (; number <= file_.LineCount() && !IsGroupRow(file_.Line(number)); ++number) {
      const std::string_view line = file_.Line(number);
      if (!TrimRight(line).empty()) header.append(LineBreak).append(line);
      file_.Clear(number);
    }
    if (!header.empty()) log_.AddMessage(0, UnknownFileHeader, {header});
    return number;
  }

  void ConvertLine(std::int32_t number) {
    if (state_ == RowState::Data && file_.HasDataLabel(number)) {
      return file_.DropDataLabel(number);
    }
    const std::string_view line = TrimRight(file_.Line(number));
    if (line.empty()) {
      state_ = RowState::Group;
      return;
    }
    switch (state_) {
      case RowState::Group:
        Expect(line, GroupLabel);
        file_.Rewrite(number, InsertBehindFirst(WithoutLabel(line, GroupLabel), "**"));
        state_ = RowState::Heading;
        break;
      case RowState::Heading:
        Expect(line, HeadingLabel);
        file_.Rewrite(number,
                      InsertBehindFirst(
                          ReplaceAll(WithoutLabel(line, HeadingLabel), "\",\"", "\",\"*"), "*"));
        state_ = RowState::Unit;
        break;
      case RowState::Unit:
        DropLabel(number, line, UnitLabel);
        state_ = RowState::Type;
        break;
      case RowState::Type:
        DropLabel(number, line, TypeLabel);
        state_ = RowState::Data;
        break;
      case RowState::Data:
        DropLabel(number, line, DataLabel);
        break;
    }
  }

  bool IsFatal() const { return isFatal_; }

 private:
  void Expect(std::string_view line, std::string_view label) {
    if (!IsRowLabel(line, label)) isFatal_ = ReportLineOrder(log_, line, label);
  }

  /// The line without its label and the comma behind it, whatever the line begins with.
  static std::string_view WithoutLabel(std::string_view line, std::string_view label) {
    return line.substr(std::min(label.size() + 1, line.size()));
  }

  void DropLabel(std::int32_t number, std::string_view line, std::string_view label) {
    Expect(line, label);
    file_.DropPrefix(number, label.size() + 1);
  }

  FileText& file_;
  MessageLog& log_;
  RowState state_ = RowState::Group;
  bool isFatal_ = false;
};

constexpr int MostCharacterMessages = 20;
constexpr std::size_t LongestAgs3Line = 240;

bool IsPlainAscii(char character) {
  const auto code = static_cast<unsigned char>(character);
  return code >= 32 && code < 128;
}

/// Looks at the whole text without stopping at a find, so that the compiler takes many characters
/// at a time: most lines have nothing to find.
bool IsAllPlainAscii(std::string_view text) {
  unsigned char found = 0;
  for (const char character : text) {
    found |= static_cast<unsigned char>(!IsPlainAscii(character));
  }
  return found == 0;
}

}  // namespace

bool CheckRowLabels(const FileText& file, MessageLog& log) {
  RowLabelCheck check;
  for (std::int32_t number = 1; number <= file.LineCount(); ++number) {
    check.CheckLine(file, number);
  }
  if (check.Problems().empty()) return false;
  log.AddMessage(0, RowLabelProblems, {check.Problems()});
  log.CloseCheckSection("Row Label Check");
  return true;
}

bool ConvertAgs4Rows(FileText& file, MessageLog& log) {
  RowConversion conversion(file, log);
  for (std::int32_t number = conversion.ReadHeader(); number <= file.LineCount(); ++number) {
    conversion.ConvertLine(number);
  }
  return conversion.IsFatal();
}

bool ReportLineOrder(MessageLog& log, std::string_view line, std::string_view expectedLabel) {
  log.AddMessage(0, LineOutOfOrder, {line, expectedLabel});
  return true;
}

void CheckLowHighAscii(const FileText& file, MessageLog& log) {
  int found = 0;
  for (std::int32_t number = 1; number <= file.LineCount() && found < MostCharacterMessages;
       ++number) {
    const std::string_view line = file.Line(number);
    if (IsAllPlainAscii(line)) continue;
    auto at = std::find_if_not(line.begin(), line.end(), IsPlainAscii);
    for (; at != line.end() && found < MostCharacterMessages;
         at = std::find_if_not(at + 1, line.end(), IsPlainAscii)) {
      log.AddMessage(number, CharacterNotAllowed, {at - line.begin() + 1});
      ++found;
    }
  }
  if (found == MostCharacterMessages) log.AddMessage(0, NoFurtherCharacterChecks);
  log.CloseCheckSection("Low/high bit ASCII characters (Rule 1)");
}

void CheckLineLengths(const FileText& file, MessageLog& log) {
  for (std::int32_t number = 1; number <= file.LineCount(); ++number) {
    const std::size_t length = file.Line(number).size();
    if (length > LongestAgs3Line) log.AddMessage(number, LineTooLong, {length});
  }
  log.CloseCheckSection("Scanning Line Lengths (must be <=240 characters; Rules 12, 13, 18a)");
}

}  // namespace quorvane
