#include "ui/progress_view.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QTextCursor>

#include "ui/byte_text.h"

namespace quorvane {

ProgressView::ProgressView(QWidget* parent) : QPlainTextEdit(parent) {
  setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  setReadOnly(true);
  setUndoRedoEnabled(false);
  setLineWrapMode(QPlainTextEdit::NoWrap);
  // The caret is seen, and the text can be read and copied from the keyboard.
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  flushTimer_.setSingleShot(true);
  flushTimer_.setInterval(0);
  connect(&flushTimer_, &QTimer::timeout, this, &ProgressView::Flush);
}

void ProgressView::Insert(std::string_view text) {
  waiting_.append(text);
  if (!flushTimer_.isActive()) flushTimer_.start();
}

void ProgressView::Clear() {
  waiting_ = {};
  if (!document()->isEmpty()) clear();
}

void ProgressView::ProcessPendingMessages() {
  Flush();
  QCoreApplication::processEvents();
}

void ProgressView::Flush() {
  if (waiting_.empty()) return;
  QTextCursor end(document());
  end.movePosition(QTextCursor::End);
  end.insertText(ShownText(waiting_));
  waiting_ = {};
  moveCursor(QTextCursor::End);
}

void ProgressView::ShowTop() {
  Flush();
  moveCursor(QTextCursor::Start);
}

}  // namespace quorvane
