#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quorvane {

/// Takes the text from a 1-based position up to the next delimiter and moves the position behind
/// that delimiter; the position becomes 0 when the text is used up. The result is a view into the
/// text. A position of 0 gives an empty text.
std::string_view TakeToken(std::size_t& position, std::string_view text,
                           std::string_view delimiter);

/// Tells whether an item is one of a comma list's members: whole items, exact letter case. An
/// empty item is never a member.
bool ListContains(std::string_view list, std::string_view item);

/// The pieces of a text between delimiters, as views into it; an empty text has one empty piece.
std::vector<std::string_view> Split(std::string_view text, std::string_view delimiter);

/// The items joined with a delimiter between each two.
template <typename Items>
std::string Join(const Items& items, std::string_view delimiter) {
  std::string joined;
  bool first = true;
  for (const auto& item : items) {
    if (!first) joined.append(delimiter);
    joined.append(item);
    first = false;
  }
  return joined;
}

/// The lines of a text that may end with CR LF, LF or CR, as views into it. A line end at the end
/// of the text opens no further line.
std::vector<std::string_view> SplitLines(std::string_view text);

/// Truth value of a setting's text: after trimming and in any letter case "TRUE", "T", "YES",
/// "Y", "ON" and every number other than 0 are true; everything else is false.
bool TextToTruth(std::string_view text);

}  // namespace quorvane
