#include "text/text.h"

#include <algorithm>

namespace quorvane {

std::string UpperCase(std::string_view text) {
  std::string upper(text);
  std::transform(upper.begin(), upper.end(), upper.begin(), ToUpper);
  return upper;
}

std::string LowerCase(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), ToLower);
  return lower;
}

bool IsUpperCase(std::string_view text) {
  return std::none_of(text.begin(), text.end(), [](char c) { return c >= 'a' && c <= 'z'; });
}

bool EqualsIgnoringCase(std::string_view left, std::string_view right) {
  return left.size() == right.size() &&
         std::equal(left.begin(), left.end(), right.begin(),
                    [](char a, char b) { return ToUpper(a) == ToUpper(b); });
}

bool StartsWithIgnoringCase(std::string_view text, std::string_view prefix) {
  return text.size() >= prefix.size() && EqualsIgnoringCase(text.substr(0, prefix.size()), prefix);
}

std::size_t FindIgnoringCase(std::string_view text, std::string_view needle, std::size_t start) {
  for (std::size_t at = start; at + needle.size() <= text.size(); ++at) {
    if (EqualsIgnoringCase(text.substr(at, needle.size()), needle)) return at;
  }
  return std::string_view::npos;
}

std::string Without(std::string_view text, char unwanted) {
  std::string kept;
  kept.reserve(text.size());
  std::copy_if(text.begin(), text.end(), std::back_inserter(kept),
               [unwanted](char c) { return c != unwanted; });
  return kept;
}

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
  std::string replaced;
  replaced.reserve(text.size());
  std::size_t position = 0;
  for (std::size_t found = text.find(from); found != std::string_view::npos;
       found = text.find(from, position)) {
    replaced.append(text, position, found - position).append(to);
    position = found + from.size();
  }
  replaced.append(text, position);
  return replaced;
}

}  // namespace quorvane
