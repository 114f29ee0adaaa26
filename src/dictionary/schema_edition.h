#pragma once

#include <array>
#include <string_view>

namespace quorvane {

/// A published edition of AGS 4 whose schema file comes with the program.
struct SchemaEdition {
  std::string_view edition;
  std::string_view fileName;
};

/// The editions from the oldest to the newest.
inline constexpr std::array<SchemaEdition, 5> SchemaEditions{{{"4.0.3", "ags4 dict.gas"},
                                                              {"4.0.4", "ags404 dict.gas"},
                                                              {"4.1", "ags41 dict.gas"},
                                                              {"4.1.1", "ags411 dict.gas"},
                                                              {"4.2", "ags42 dict.gas"}}};

/// The edition of a number as it stands in SchemaEditions; null when there is none.
const SchemaEdition* FindSchemaEdition(std::string_view number);

/// The edition that a file means by the version that it states, with or without "AGS" before it:
/// the edition of the longest number with which the version begins ("4.1.0" is 4.1), and the oldest
/// for "4" and "4.0". Null where none of the editions is meant.
const SchemaEdition* FindStatedEdition(std::string_view version);

/// The edition of a schema file that comes with the program, told by its name; else empty.
std::string_view EditionOfSchema(std::string_view path);

}  // namespace quorvane
