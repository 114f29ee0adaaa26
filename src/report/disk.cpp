#include "report/disk.h"

#include <algorithm>

namespace quorvane {

ByteBuffer::ByteBuffer(std::string_view bytes) : ByteBuffer(WithRoomFor(bytes.size())) {
  std::copy(bytes.begin(), bytes.end(), bytes_.get());
}

ByteBuffer ByteBuffer::WithRoomFor(std::size_t size) {
  ByteBuffer buffer;
  buffer.bytes_ = MakeLargeBlock<char>(size + Padding);
  buffer.ShrinkTo(size);
  return buffer;
}

void ByteBuffer::ShrinkTo(std::size_t size) {
  size_ = size;
  std::fill_n(bytes_.get() + size, Padding, '\0');
}

}  // namespace quorvane
