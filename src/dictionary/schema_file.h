#pragma once

#include <string>
#include <string_view>

#include "dictionary/dictionary_stream.h"
#include "report/disk.h"

namespace quorvane {

/// Reads a schema file and returns its dictionary stream, and its lists through the argument.
/// Throws DictionaryError when the file is missing, is no schema file or does not hold together.
std::string LoadAgsDataDictionaryFnS(Disk& disk, const std::string& path,
                                     std::string_view separator, DictionaryLists& lists);

}  // namespace quorvane
