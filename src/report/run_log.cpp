#include "report/run_log.h"

#include <algorithm>

#include "text/large_block.h"
#include "text/text.h"

namespace quorvane {

void RunLog::AppendProgress(std::span<const std::string_view> parts) {
  const std::size_t start = fullText_.size();
  std::size_t length = LineBreak.size();
  for (const std::string_view part : parts)
    length += part.size();
  MakeRoomFor(length);
  for (const std::string_view part : parts)
    fullText_.append(part);
  fullText_.append(LineBreak);
  progressBox_.Insert(std::string_view(fullText_).substr(start));
  if (fullText_.size() <= DisplayLimit) return;
  progressBox_.Clear();
  progressBox_.ProcessPendingMessages();
  hasOverflowed_ = true;
}

/// The listing of a file's findings comes at once and may be very large: the text is moved before
/// memory is taken into use for it, and what follows finds room behind it.
void RunLog::MakeRoomFor(std::size_t length) {
  const std::size_t needed = fullText_.size() + length;
  if (needed <= fullText_.capacity()) return;
  std::string larger;
  larger.reserve(std::max(needed + needed / 8, 2 * fullText_.capacity()));
  PreferLargePages(larger.data(), larger.capacity());
  larger.append(fullText_);
  fullText_.swap(larger);
}

}  // namespace quorvane
