#include "dictionary/schema_edition.h"

#include <algorithm>

#include "text/text.h"

namespace quorvane {
namespace {

constexpr std::string_view FormatName = "AGS";
constexpr std::string_view ZeroPart = ".0";

/// Whether a version is that of a number, or of an issue of it ("4.1.0", "4.1 (2020)"): what is
/// behind the number must not be one of its digits.
bool BeginsWithNumber(std::string_view version, std::string_view number) {
  const std::string_view rest = version.substr(std::min(number.size(), version.size()));
  return version.starts_with(number) && (rest.empty() || !IsDigit(rest.front()));
}

std::string_view WithoutFormatName(std::string_view version) {
  version = Trim(version);
  if (StartsWithIgnoringCase(version, FormatName)) version.remove_prefix(FormatName.size());
  return Trim(version);
}

std::string_view WithoutZeroParts(std::string_view version) {
  while (version.ends_with(ZeroPart))
    version.remove_suffix(ZeroPart.size());
  return version;
}

}  // namespace

const SchemaEdition* FindSchemaEdition(std::string_view number) {
  const auto* const found =
      std::find_if(SchemaEditions.begin(), SchemaEditions.end(),
                   [number](const SchemaEdition& known) { return known.edition == number; });
  return found == SchemaEditions.end() ? nullptr : found;
}

const SchemaEdition* FindStatedEdition(std::string_view version) {
  version = WithoutFormatName(version);
  const SchemaEdition* found = nullptr;
  for (const SchemaEdition& known : SchemaEditions) {
    if (!BeginsWithNumber(version, known.edition)) continue;
    if (found == nullptr || known.edition.size() > found->edition.size()) found = &known;
  }
  if (found == nullptr && WithoutZeroParts(version) == "4") found = &SchemaEditions.front();
  return found;
}

std::string_view EditionOfSchema(std::string_view path) {
  const std::string_view fileName = path.substr(path.find_last_of("\\/") + 1);
  for (const SchemaEdition& edition : SchemaEditions) {
    if (EqualsIgnoringCase(fileName, edition.fileName)) return edition.edition;
  }
  return {};
}

}  // namespace quorvane
