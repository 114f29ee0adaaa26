// Lists of waivers, written by hand.

#include "findings/waivers.h"
#include "text/comma_list.h"
#include "whole_check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = quorvane::fuzz::AsText(data, size);
  quorvane::WaiverReading reading = quorvane::ReadWaivers(text);
  quorvane::fuzz::Require(
      reading.waivers.size() + reading.mistakes.size() <= quorvane::SplitLines(text).size(),
      "a line is one waiver, one mistake or none");
  for (const quorvane::WaiverRecord& waiver : reading.waivers)
    quorvane::fuzz::Require(!waiver.reason.empty(), "every waiver has its reason");

  quorvane::FindingsReport report;
  quorvane::ApplyWaivers(report, std::move(reading.waivers), "waivers.txt");
  for (const quorvane::WaiverRecord& waiver : report.waivers)
    quorvane::fuzz::Require(waiver.matches == 0, "without findings no waiver is used");
  return 0;
}
