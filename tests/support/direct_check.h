#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "rules/checked_file.h"
#include "support/check_text.h"

namespace quorvane::test {

/// Calls a check on a file whose table the caller fills, for what no whole file leads to. The
/// dictionary is empty unless the caller fills it.
CheckResult CheckDirectly(AgsFormat format, const std::function<void(CheckedFile&)>& check);

/// The same for a file with a text, whose lines the caller puts into the table.
CheckResult CheckDirectly(AgsFormat format, std::string_view text,
                          const std::function<void(CheckedFile&)>& check);

}  // namespace quorvane::test
