#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "parse/structure_parser.h"
#include "rules/checked_file.h"

namespace quorvane {

/// Runs the rules on names, keys and empty groups while the parser reads a file's structure.
class StructureRules : public StructureListener {
 public:
  explicit StructureRules(CheckedFile& file) : file_(file) {}

  std::string ReadGroupName(int group, std::int32_t lineNumber, std::string_view line) override;
  void GroupOpened(int group) override;
  std::string ReadHeading(const MessagePlace& place, std::int32_t lineNumber,
                          std::string heading) override;
  void HeadersRead(int group, bool hasData) override;
  void GroupEnded(int group) override;
  void FileEnded() override;

 private:
  CheckedFile& file_;
};

/// Reads the file's lines into its group table under these rules.
void ParseStructure(CheckedFile& file);

}  // namespace quorvane
