#include "rules/record_links.h"

#include "rules/type_messages.h"
#include "text/text.h"

namespace quorvane {

void RecordLinks::CheckRecordLink(std::string_view value, std::int32_t line,
                                  const MessagePlace& place) {
  if (value.empty()) return;
  const std::string& concatenator = file_.concatenator;
  std::size_t start = 0;
  for (std::size_t end = FindIgnoringCase(value, concatenator); end != std::string_view::npos;
       end = FindIgnoringCase(value, concatenator, start)) {
    CheckLink(value.substr(start, end - start), line, place);
    start = end + concatenator.size();
  }
  CheckLink(value.substr(start), line, place);
}

void RecordLinks::CheckLink(std::string_view link, std::int32_t line, const MessagePlace& place) {
  const std::size_t end = link.find(file_.delimiter);
  const std::string_view groupName = link.substr(0, end);
  const int group = file_.table.FindGroup(groupName);
  if (group == 0) {
    file_.log.AddMessage(line, RecordLinkGroupMissing, {groupName}, place);
    return;
  }
  wantedKey_.clear();
  if (end != std::string_view::npos) TakeKey(link.substr(end + file_.delimiter.size()));
  if (KeysOf(group).Find(wantedKey_)) return;
  file_.log.AddMessage(line, RecordLinkRecordMissing, {link}, place);
}

/// The key that a link names, in the form of a row's key text.
void RecordLinks::TakeKey(std::string_view parts) {
  const std::string& delimiter = file_.delimiter;
  std::size_t start = 0;
  for (std::size_t end = parts.find(delimiter); end != std::string_view::npos;
       end = parts.find(delimiter, start)) {
    wantedKey_.append(TrimRight(parts.substr(start, end - start))).append(",");
    start = end + delimiter.size();
  }
  wantedKey_.append(TrimRight(parts.substr(start)));
}

RecordLinks::KeyIndex& RecordLinks::KeysOf(int group) {
  std::unique_ptr<KeyIndex>& keys = keys_[group];
  if (!keys) {
    const std::int32_t rowCount = file_.table.At(group).rowCount;
    keys = std::make_unique<KeyIndex>(static_cast<std::size_t>(rowCount), KeyTextOf{file_.table});
    for (std::int32_t row = 1; row <= rowCount; ++row)
      keys->Insert({group, row});
  }
  return *keys;
}

}  // namespace quorvane
