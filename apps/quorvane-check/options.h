#pragma once

#include <string>
#include <vector>

#include "findings/delivery_closing.h"

namespace CLI {
class App;
}

namespace quorvane {

/// The format that is not one of findings as data.
inline constexpr const char* TextFormat = "text";

/// What the options on the command line say, as they stand there.
struct Options {
  std::vector<std::string> files;
  std::string dictionary;
  std::string edition;
  bool whichEdition = false;
  std::vector<std::string> listings;
  bool noFyi = false;
  bool statistics = false;
  std::string settingsFile;
  std::string logFile;
  std::string format = TextFormat;
  std::string outputFile;
  DeliveryOptions delivery;

  /// Whether the report in its format goes to a file.
  bool NamesOutputFile() const;
};

/// Tells the parser of the command line all options, and where they go. The options must outlive
/// the parser.
void DescribeOptions(CLI::App& app, Options& options);

/// Throws the parser's error where options stand together that cannot all be followed.
void RefuseContradictions(const CLI::App& app, const Options& options);

}  // namespace quorvane
