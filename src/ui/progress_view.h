#pragma once

#include <string>

#include <QPlainTextEdit>
#include <QTimer>

#include "report/user_interface.h"

namespace quorvane {

/// The progress box of the window. Text that is inserted waits until the window takes its pending
/// messages, so that a line which is cleared at once costs next to nothing.
class ProgressView : public QPlainTextEdit, public ProgressBox {
 public:
  explicit ProgressView(QWidget* parent = nullptr);

  void Insert(std::string_view text) override;
  void Clear() override;
  void ProcessPendingMessages() override;

  /// Shows what waits.
  void Flush();

  /// Shows the top: the caret stands there and nothing is selected.
  void ShowTop();

 private:
  std::string waiting_;
  QTimer flushTimer_;  // runs as soon as any event loop does, that of a message box included
};

}  // namespace quorvane
