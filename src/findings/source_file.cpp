#include "findings/source_file.h"

#include <utility>

#include "findings/sha256.h"

namespace quorvane {

SourceState SourceFile::Open(const FileRecord& file) {
  const FileFacts facts = disk_.Examine(file.diskPath);
  const bool isInMemory = !path_.empty() && path_ == file.diskPath && sha256_ == file.sha256 &&
                          lastChange_ == facts.lastChange;
  const bool canBeRead = facts.exists && !facts.obstacle;
  // A size that differs is enough to know: a file that has grown is not read in vain.
  if (canBeRead && facts.size == file.size && isInMemory) return SourceState::AsChecked;
  Forget();
  if (!canBeRead) return SourceState::Unreadable;
  if (!file.wasRead || facts.size != file.size) return SourceState::Changed;
  const SourceState state = Read(file);
  lastChange_ = facts.lastChange;
  return state;
}

void SourceFile::Forget() {
  text_ = FileText();
  path_.clear();
}

SourceState SourceFile::Read(const FileRecord& file) {
  Disk::Reading reading = disk_.Read(file.diskPath);
  if (reading.failure) return SourceState::Unreadable;
  const bool isSame =
      reading.content.Size() == file.size && Sha256(reading.content.View()) == file.sha256;
  if (!isSame) return SourceState::Changed;
  text_ = FileText(std::move(reading.content));
  path_ = file.diskPath;
  sha256_ = file.sha256;
  return SourceState::AsChecked;
}

}  // namespace quorvane
