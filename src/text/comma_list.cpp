#include "text/comma_list.h"

#include <algorithm>
#include <array>

#include "text/number.h"
#include "text/text.h"

namespace quorvane {

std::string_view TakeToken(std::size_t& position, std::string_view text,
                           std::string_view delimiter) {
  if (position == 0 || position > text.size()) {
    position = 0;
    return {};
  }
  const std::size_t start = position - 1;
  const std::size_t end = text.find(delimiter, start);
  if (end == std::string_view::npos) {
    position = 0;
    return text.substr(start);
  }
  position = end + delimiter.size() + 1;
  return text.substr(start, end - start);
}

bool ListContains(std::string_view list, std::string_view item) {
  if (item.empty() || item.find(',') != std::string_view::npos) return false;
  for (std::size_t found = list.find(item); found != std::string_view::npos;
       found = list.find(item, found + 1)) {
    const std::size_t end = found + item.size();
    const bool startsItem = found == 0 || list[found - 1] == ',';
    const bool endsItem = end == list.size() || list[end] == ',';
    if (startsItem && endsItem) return true;
  }
  return false;
}

std::vector<std::string_view> Split(std::string_view text, std::string_view delimiter) {
  std::vector<std::string_view> pieces;
  std::size_t start = 0;
  for (std::size_t end = text.find(delimiter); end != std::string_view::npos;
       end = text.find(delimiter, start)) {
    pieces.push_back(text.substr(start, end - start));
    start = end + delimiter.size();
  }
  pieces.push_back(text.substr(start));
  return pieces;
}

std::vector<std::string_view> SplitLines(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    lines.push_back(text.substr(0, end));
    const std::size_t breakLength = text.substr(end).starts_with(LineBreak) ? 2 : 1;
    text.remove_prefix(std::min(end + breakLength, text.size()));
  }
  return lines;
}

bool TextToTruth(std::string_view text) {
  static constexpr std::array<std::string_view, 5> trueWords{"TRUE", "T", "YES", "Y", "ON"};
  const std::string_view word = Trim(text);
  const bool isTrueWord =
      std::any_of(trueWords.begin(), trueWords.end(),
                  [word](std::string_view trueWord) { return EqualsIgnoringCase(word, trueWord); });
  return isTrueWord || NumericValue(word).value_or(0.0) != 0.0;
}

}  // namespace quorvane
