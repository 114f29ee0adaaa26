// Writes a large AGS file for benchmarks: deterministic for its options, either free of any finding
// or with a stated share of spoilt rows.

#include <charconv>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "generate_file.h"
#include "generate_output.h"

namespace {

using quorvane::generate::FaultMaker;
using quorvane::generate::FileOptions;
using quorvane::generate::FileTotals;
using quorvane::generate::Output;

constexpr const char* kUsage =
    "usage: generate_ags --ags 3|4 --bytes N [--noise PER_MILLE] [--seed S] [--eol crlf|lf] "
    "OUTPUT\n"
    "\n"
    "  --ags    version of the file\n"
    "  --bytes  size of the file, reached within 1 %\n"
    "  --noise  share of the data rows that have a fault, per thousand (default 0: none)\n"
    "  --seed   number that the contents depend on (default 1)\n"
    "  --eol    line ends (default crlf)\n"
    "  OUTPUT   file to write; a checker expects the extension .ags\n";

// A file is read into memory whole; sizes stop short of 2 GiB.
constexpr std::uint64_t kMaxBytes = 1'900'000'000;

struct Arguments {
  FileOptions file;
  std::string output;
};

std::optional<std::uint64_t> ReadNumber(std::string_view text) {
  std::uint64_t number = 0;
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
  return number;
}

bool ReadOption(std::string_view name, std::string_view value, FileOptions& file) {
  if (name == "--eol") {
    file.lineEnd = value == "lf" ? "\n" : "\r\n";
    return value == "lf" || value == "crlf";
  }
  const std::optional<std::uint64_t> number = ReadNumber(value);
  if (!number) return false;
  if (name == "--ags") {
    file.version = *number == 3 ? 3 : 4;
    return *number == 3 || *number == 4;
  }
  if (name == "--bytes") {
    file.bytes = *number;
    return *number > 0 && *number <= kMaxBytes;
  }
  if (name == "--noise") {
    file.noisePerMille = static_cast<int>(*number);
    return *number <= 1000;
  }
  file.seed = *number;
  return name == "--seed";
}

std::optional<Arguments> ReadArguments(std::span<char* const> words) {
  Arguments arguments;
  bool versionGiven = false;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string_view word = words[i];
    if (!word.starts_with("--")) {
      if (!arguments.output.empty()) return std::nullopt;
      arguments.output = word;
      continue;
    }
    if (i + 1 == words.size() || !ReadOption(word, words[i + 1], arguments.file)) {
      return std::nullopt;
    }
    versionGiven = versionGiven || word == "--ags";
    ++i;
  }
  if (!versionGiven || arguments.file.bytes == 0 || arguments.output.empty()) return std::nullopt;
  return arguments;
}

void PrintTotals(const FileTotals& totals) {
  const auto number = [](std::uint64_t value) { return static_cast<unsigned long long>(value); };
  std::fprintf(stderr, "%llu bytes, %llu locations, %llu groups, %llu lines\n",
               number(totals.bytes), number(totals.locations), number(totals.groups),
               number(totals.lines));
  std::fprintf(stderr, "%llu data rows, %llu cells, %.2f bytes per cell\n", number(totals.rows),
               number(totals.cells),
               static_cast<double>(totals.bytes) / static_cast<double>(totals.cells));
  std::uint64_t faults = 0;
  for (const FaultMaker::Count& count : totals.faults)
    faults += count.faults;
  std::fprintf(stderr, "%llu faults\n", number(faults));
  for (const FaultMaker::Count& count : totals.faults) {
    std::fprintf(stderr, "  %llu %s\n", number(count.faults), std::string(count.kind).c_str());
  }
}

int Run(const Arguments& arguments) {
  const std::uint64_t smallest = quorvane::generate::SmallestFile(arguments.file);
  if (arguments.file.bytes < smallest) {
    std::fprintf(stderr, "generate_ags: the smallest file with these options has %llu bytes\n",
                 static_cast<unsigned long long>(smallest));
    return 2;
  }
  std::FILE* file = std::fopen(arguments.output.c_str(), "wb");
  if (file == nullptr) {
    std::perror(arguments.output.c_str());
    return 1;
  }
  Output output(file);
  const FileTotals totals = quorvane::generate::WriteFile(arguments.file, output);
  const bool written = output.Flush();
  if (std::fclose(file) != 0 || !written) {
    std::fprintf(stderr, "generate_ags: could not write %s\n", arguments.output.c_str());
    return 1;
  }
  PrintTotals(totals);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    const std::optional<Arguments> arguments =
        ReadArguments(std::span<char* const>(argv, static_cast<std::size_t>(argc)).subspan(1));
    if (!arguments) {
      std::fputs(kUsage, stderr);
      return 2;
    }
    return Run(*arguments);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "generate_ags: %s\n", failure.what());
    return 1;
  }
}
