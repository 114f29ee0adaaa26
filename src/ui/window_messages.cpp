#include "ui/window_messages.h"

#include <QApplication>
#include <QMessageBox>

#include "ui/byte_text.h"
#include "ui/pointer_shape.h"

namespace quorvane {
namespace {

QMessageBox::Icon IconOf(BoxKind kind) {
  return kind == BoxKind::Critical ? QMessageBox::Critical : QMessageBox::Information;
}

}  // namespace

void WindowMessages::ShowBox(std::string_view title, std::string_view text, BoxKind kind) {
  if (place_ != BoxPlace::Screen) errorStream_.ShowBox(title, text, kind);
  if (place_ == BoxPlace::ErrorStream) return;
  const PointerShape pointer(Qt::ArrowCursor);  // a run may have set another
  QMessageBox box(IconOf(kind), ShownText(title), ShownText(text), QMessageBox::Ok,
                  QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

void WindowMessages::Note(std::string_view text) {
  errorStream_.Note(text);
}

}  // namespace quorvane
