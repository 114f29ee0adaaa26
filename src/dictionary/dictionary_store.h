#pragma once

#include <array>
#include <map>
#include <string>
#include <string_view>

#include "dictionary/ags_dictionary.h"
#include "report/disk.h"

namespace quorvane {

/// A published edition of AGS 4 whose schema file comes with the program.
struct SchemaEdition {
  std::string_view edition;
  std::string_view fileName;
};

inline constexpr std::array<SchemaEdition, 5> SchemaEditions{{{"4.0.3", "ags4 dict.gas"},
                                                              {"4.0.4", "ags404 dict.gas"},
                                                              {"4.1", "ags41 dict.gas"},
                                                              {"4.1.1", "ags411 dict.gas"},
                                                              {"4.2", "ags42 dict.gas"}}};

/// Which dictionary a file is checked against.
struct DictionaryChoice {
  AgsFormat format = AgsFormat::Ags3;
  bool isAgs404 = false;
  std::string customSchema;  // a path; blank for the dictionary that comes with the program
};

/// The schema file of a choice; empty for the AGS 3 dictionary that the program carries itself.
std::string SchemaPath(const DictionaryChoice& choice, std::string_view programFolder);

/// The edition of a schema file that comes with the program, told by its name; else empty.
std::string_view EditionOfSchema(std::string_view path);

/// The dictionary of a choice, newly built. Throws DictionaryError.
AgsDictionary BuildAgsDictionary(Disk& disk, const DictionaryChoice& choice,
                                 std::string_view programFolder);

/// The dictionaries of a run: each is built when it is first needed and kept for the run.
class DictionaryStore {
 public:
  /// The disk must outlive the store.
  DictionaryStore(Disk& disk, std::string programFolder)
      : disk_(disk), programFolder_(std::move(programFolder)) {}

  /// Throws DictionaryError.
  const AgsDictionary& Get(const DictionaryChoice& choice);

  const std::string& ProgramFolder() const { return programFolder_; }

 private:
  Disk& disk_;
  std::string programFolder_;
  std::map<std::pair<AgsFormat, std::string>, AgsDictionary> dictionaries_;
};

}  // namespace quorvane
