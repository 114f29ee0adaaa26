#include "ui/window_messages.h"

#include <QApplication>
#include <QMessageBox>
#include <QTest>

#include "ui/pointer_shape.h"
#include "ui/window_fixture.h"

namespace quorvane::test {

class WindowMessagesTest : public QObject {
  Q_OBJECT

 private slots:
  void BoxShowsTitleTextAndKind_data();
  void BoxShowsTitleTextAndKind();
  void BoxHasTheNormalPointerDuringARun();
  void NobodyIsAskedWhereTheErrorStreamIsThePlace();
};

void WindowMessagesTest::BoxShowsTitleTextAndKind_data() {
  QTest::addColumn<BoxKind>("kind");
  QTest::addColumn<QMessageBox::Icon>("icon");
  QTest::newRow("information") << BoxKind::Information << QMessageBox::Information;
  QTest::newRow("critical") << BoxKind::Critical << QMessageBox::Critical;
}

void WindowMessagesTest::BoxShowsTitleTextAndKind() {
  QFETCH(BoxKind, kind);
  QFETCH(QMessageBox::Icon, icon);
  QString seen;
  WhenDialogShows([&](QDialog& dialog) {
    const auto& box = dynamic_cast<QMessageBox&>(dialog);
    seen = box.windowTitle() + " / " + box.text();
    QCOMPARE(box.icon(), icon);
    QCOMPARE(box.textFormat(), Qt::PlainText);
    dialog.accept();
  });
  WindowMessages messages(BoxPlace::Screen);
  messages.ShowBox("Check Files", "<b>two</b>\r\nlines \xB0", kind);
  QCOMPARE(seen.remove('\r'), QStringLiteral(u"Check Files / <b>two</b>\nlines \u00B0"));
}

void WindowMessagesTest::BoxHasTheNormalPointerDuringARun() {
  const PointerShape wait(Qt::WaitCursor);
  Qt::CursorShape seen = Qt::WaitCursor;
  WhenDialogShows([&seen](QDialog& dialog) {
    seen = QApplication::overrideCursor()->shape();
    dialog.accept();
  });
  WindowMessages(BoxPlace::Screen).ShowBox("Quorvane", "text", BoxKind::Critical);
  QCOMPARE(seen, Qt::ArrowCursor);
  QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
}

void WindowMessagesTest::NobodyIsAskedWhereTheErrorStreamIsThePlace() {
  // A box on the screen would wait for ever: nobody closes it.
  WindowMessages messages(BoxPlace::Screen);
  messages.SetPlace(BoxPlace::ErrorStream);
  messages.ShowBox("Quorvane", "text", BoxKind::Critical);
  messages.Note("note");
  QCOMPARE(QApplication::activeModalWidget(), nullptr);
}

}  // namespace quorvane::test

QTEST_MAIN(quorvane::test::WindowMessagesTest)
#include "window_messages_test.moc"
