#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "dictionary/dictionary_store.h"
#include "support/fake_services.h"

namespace quorvane::fuzz {

/// Ends the process with a message where something that must hold does not.
void Require(bool holds, const char* what);

inline std::string_view AsText(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// The whole check of one data file after another, with all listings and the statistics. The
/// dictionaries are loaded once. The remainder of an input's length decides the options, so that
/// inputs are plain data files.
class WholeCheck {
 public:
  WholeCheck();

  WholeCheck(const WholeCheck&) = delete;
  WholeCheck& operator=(const WholeCheck&) = delete;

  /// Checks a file; ends the process when a routine fails or the report is not whole.
  void Run(std::string_view content);

 private:
  test::FakeServices fakes_;
  DictionaryStore dictionaries_;
};

}  // namespace quorvane::fuzz
