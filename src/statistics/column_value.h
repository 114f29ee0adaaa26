#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "text/text.h"

namespace quorvane {

/// Values of a column as they are tallied, made without an allocation for each.
class UpperCaseValue {
 public:
  /// The value without blanks at both ends and in upper case: a view that the next call ends.
  std::string_view Trimmed(std::string_view value) {
    const std::string_view trimmed = Trim(value);
    text_.resize(trimmed.size());
    std::transform(trimmed.begin(), trimmed.end(), text_.begin(), ToUpper);
    return text_;
  }

 private:
  std::string text_;
};

}  // namespace quorvane
