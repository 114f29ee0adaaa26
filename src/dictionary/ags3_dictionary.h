#pragma once

#include <string>
#include <string_view>

#include "dictionary/dictionary_stream.h"

namespace quorvane {

/// The AGS 3.1 dictionary that the program carries itself, as a dictionary stream, and its lists.
std::string BuildAgs3Dictionary(std::string_view separator, DictionaryLists& lists);

}  // namespace quorvane
