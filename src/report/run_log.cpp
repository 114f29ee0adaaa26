#include "report/run_log.h"

#include "text/text.h"

namespace quorvane {

void RunLog::AppendProgress(std::string_view text) {
  const std::size_t start = fullText_.size();
  fullText_.append(text).append(LineBreak);
  progressBox_.Insert(std::string_view(fullText_).substr(start));
  if (fullText_.size() <= DisplayLimit) return;
  progressBox_.Clear();
  progressBox_.ProcessPendingMessages();
  hasOverflowed_ = true;
}

}  // namespace quorvane
