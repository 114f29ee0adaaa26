#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "parse/row_text_index.h"
#include "rules/checked_file.h"

namespace quorvane {

/// The check of RecordLink values (Rule 11c). A value is one link, or several joined with the
/// file's concatenator; a link is a group's name and, behind delimiters, the key of one of its
/// rows. The rows of a group are indexed when it is first named.
class RecordLinks {
 public:
  /// The file must outlive the object; its delimiter and concatenator must not be empty.
  explicit RecordLinks(CheckedFile& file) : file_(file) {}

  RecordLinks(const RecordLinks&) = delete;
  RecordLinks& operator=(const RecordLinks&) = delete;

  /// Reports each link of a value that names no group or no row.
  void CheckRecordLink(std::string_view value, std::int32_t line, const MessagePlace& place);

 private:
  struct KeyTextOf {
    const GroupTable& table;

    void operator()(const RowPlace& place, std::string& text) const {
      text = table.KeyText(place.group, place.row);
    }
  };
  using KeyIndex = RowTextIndex<KeyTextOf>;

  void CheckLink(std::string_view link, std::int32_t line, const MessagePlace& place);
  void TakeKey(std::string_view parts);
  KeyIndex& KeysOf(int group);

  CheckedFile& file_;
  std::unordered_map<int, std::unique_ptr<KeyIndex>> keys_;
  std::string wantedKey_;  // kept so that a link needs no allocation
};

}  // namespace quorvane
