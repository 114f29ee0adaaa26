#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>

#include "dictionary/dictionary_store.h"
#include "parse/file_text.h"

namespace quorvane {

/// The names that an AGS 4 file uses: its groups, each with its headings, in upper case. A group
/// that stands in the file more than once is one group with all its headings.
using UsedNames = std::map<std::string, std::set<std::string>>;

/// Reads the names from a file's group and heading rows, which must still bear their labels.
UsedNames CollectNames(const FileText& file);

/// A number of groups, and of headings over all of them.
struct NameCount {
  std::size_t groups = 0;
  std::size_t headings = 0;

  std::size_t Total() const { return groups + headings; }
};

NameCount CountNames(const UsedNames& names);

/// The names that a dictionary knows. A heading is known where the dictionary has it in its own
/// group, as when names are checked; what a file's DICT group defines does not count.
NameCount CountKnownNames(const UsedNames& names, const AgsDictionary& dictionary);

/// A table with a line for each edition of AGS 4 that comes with the program: how many of a file's
/// names it knows. The editions that know most of them are marked; none is where none knows any.
/// Throws DictionaryError.
std::string EditionTable(const FileText& file, DictionaryStore& dictionaries);

}  // namespace quorvane
