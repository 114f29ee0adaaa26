#include "findings/run_facts.h"

#include <algorithm>
#include <cstddef>

namespace quorvane {
namespace {

/// A number with zeros in front of it, up to a width.
template <typename Number>
std::string Padded(Number number, std::size_t width) {
  const std::string digits = std::to_string(number);
  return std::string(width - std::min(width, digits.size()), '0') + digits;
}

}  // namespace

std::string UtcText(std::chrono::system_clock::time_point moment) {
  const auto second = std::chrono::floor<std::chrono::seconds>(moment);
  const auto day = std::chrono::floor<std::chrono::days>(second);
  const std::chrono::year_month_day date(day);
  const std::chrono::hh_mm_ss time(second - day);
  return Padded(int{date.year()}, 4) + "-" + Padded(unsigned{date.month()}, 2) + "-" +
         Padded(unsigned{date.day()}, 2) + "T" + Padded(time.hours().count(), 2) + ":" +
         Padded(time.minutes().count(), 2) + ":" + Padded(time.seconds().count(), 2) + "Z";
}

std::string_view StatusWord(CheckStatus status) {
  switch (status) {
    case CheckStatus::Clean:
      return "clean";
    case CheckStatus::HasErrors:
      return "errors";
    case CheckStatus::NotDone:
      break;
  }
  return "not-done";
}

std::vector<std::string_view> ListingNames(const ListingChoice& listings) {
  std::vector<std::string_view> names;
  if (listings.scanGroupings) names.emplace_back("groups");
  if (listings.lineNumberInFile) names.emplace_back("lines");
  if (listings.severity) names.emplace_back("severity");
  return names;
}

std::string_view AgsVersionDigit(AgsFormat format) {
  return format == AgsFormat::Ags4 ? "4" : "3";
}

}  // namespace quorvane
