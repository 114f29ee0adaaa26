#include "run/data_file.h"

#include <utility>

namespace quorvane {
namespace {

/// A file must be shorter than this, in bytes.
constexpr std::uint64_t SizeLimit = 2147483647;

}  // namespace

DataFile ReadDataFile(Disk& disk, const std::string& path) {
  DataFile file;
  const FileFacts facts = disk.Examine(path);
  file.lastChange = facts.lastChange;
  file.isTooLarge = facts.exists && !facts.obstacle && facts.size >= SizeLimit;
  if (!facts.exists) {
    file.refusal = "File not found";
  } else if (facts.obstacle) {
    file.refusal = facts.obstacle->description;
  } else if (file.isTooLarge) {
    file.refusal = "File is too large for free Quorvane ( > 2GB ).";
  }
  if (!file.refusal.empty()) return file;

  Disk::Reading reading = disk.Read(path);
  if (reading.failure) {
    file.refusal = reading.failure->description;
    return file;
  }
  file.size = reading.content.Size();
  file.text = FileText(std::move(reading.content));
  return file;
}

}  // namespace quorvane
