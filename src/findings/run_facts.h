#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "report/message.h"
#include "report/message_log.h"
#include "run/check_file.h"

namespace quorvane {

/// How data names what a run was: the same words in every format.

/// A moment as "2026-01-31T23:59:58Z": ISO 8601, in UTC, to the second.
std::string UtcText(std::chrono::system_clock::time_point moment);

/// "clean", "errors", or "not-done" for a run that ended early.
std::string_view StatusWord(CheckStatus status);

/// The listings wanted, by the names that the option has for them.
std::vector<std::string_view> ListingNames(const ListingChoice& listings);

/// "3" or "4".
std::string_view AgsVersionDigit(AgsFormat format);

}  // namespace quorvane
