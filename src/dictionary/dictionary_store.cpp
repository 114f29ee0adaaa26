#include "dictionary/dictionary_store.h"

#include "dictionary/ags3_dictionary.h"
#include "dictionary/schema_file.h"
#include "text/text.h"

namespace quorvane {
namespace {

#if defined(_WIN32)
constexpr char FolderSeparator = '\\';
#else
constexpr char FolderSeparator = '/';
#endif

}  // namespace

std::string SchemaPath(const DictionaryChoice& choice, std::string_view programFolder) {
  if (!Trim(choice.customSchema).empty()) return std::string(Trim(choice.customSchema));
  if (choice.format == AgsFormat::Ags3) return {};
  const SchemaEdition& usual = SchemaEditions[choice.isAgs404 ? 1 : 0];
  const SchemaEdition& edition = choice.edition == nullptr ? usual : *choice.edition;
  return std::string(programFolder) + FolderSeparator + std::string(edition.fileName);
}

AgsDictionary BuildAgsDictionary(Disk& disk, const DictionaryChoice& choice,
                                 std::string_view programFolder) {
  const std::string schemaPath = SchemaPath(choice, programFolder);
  DictionaryLists lists;
  const std::string stream =
      schemaPath.empty() ? BuildAgs3Dictionary(StreamSeparator, lists)
                         : LoadAgsDataDictionaryFnS(disk, schemaPath, StreamSeparator, lists);
  return ParseDictionaryStream(choice.format, stream, StreamSeparator, lists);
}

const AgsDictionary& DictionaryStore::Get(const DictionaryChoice& choice) {
  const std::pair key(choice.format, SchemaPath(choice, programFolder_));
  auto found = dictionaries_.find(key);
  if (found == dictionaries_.end()) {
    found = dictionaries_.emplace(key, BuildAgsDictionary(disk_, choice, programFolder_)).first;
  }
  return found->second;
}

}  // namespace quorvane
