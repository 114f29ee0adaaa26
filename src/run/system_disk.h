#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "report/disk.h"

namespace quorvane {

/// The disk of this computer.
class SystemDisk : public Disk {
 public:
  FileFacts Examine(const std::string& path) override;
  Reading Read(const std::string& path) override;
  Listing List(const std::string& folder) override;
  std::optional<FileFailure> Write(const std::string& path, std::string_view text,
                                   std::string_view ending) override;
};

}  // namespace quorvane
