#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace quorvane {

/// Gives the pointer a shape for as long as the object lives.
class PointerShape {
 public:
  explicit PointerShape(Qt::CursorShape shape) { QGuiApplication::setOverrideCursor(shape); }
  ~PointerShape() { QGuiApplication::restoreOverrideCursor(); }

  PointerShape(const PointerShape&) = delete;
  PointerShape& operator=(const PointerShape&) = delete;
};

}  // namespace quorvane
