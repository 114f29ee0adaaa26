#include "ui/byte_text.h"

#include <QTest>

namespace quorvane {

class ByteTextTest : public QObject {
  Q_OBJECT

 private slots:
  void ShowsBytes_data();
  void ShowsBytes();
  void PathsComeBackAsTheyWere_data();
  void PathsComeBackAsTheyWere();
  void PathIsShownInItsLetters();
};

void ByteTextTest::ShowsBytes_data() {
  QTest::addColumn<QByteArray>("bytes");
  QTest::addColumn<QString>("shown");
  QTest::newRow("nothing") << QByteArray() << QString();
  QTest::newRow("ascii") << QByteArray("plain, \"text\"") << QString("plain, \"text\"");
  QTest::newRow("utf-8") << QByteArray("\xC3\xA4 \xE2\x82\xAC \xF0\x9F\x98\x80")
                         << QStringLiteral(u"\u00E4 \u20AC \U0001F600");
  QTest::newRow("latin letter") << QByteArray(
                                       "25 \xB0"
                                       "C")
                                << QStringLiteral(u"25 \u00B0C");
  QTest::newRow("windows-1252 letter")
      << QByteArray("\x80 \x96") << QStringLiteral(u"\u20AC \u2013");
  QTest::newRow("byte without a letter") << QByteArray("\x81") << QStringLiteral(u"\uFFFD");
  QTest::newRow("both in one text")
      << QByteArray("\xC3\xA4\xE4") << QStringLiteral(u"\u00E4\u00E4");
  QTest::newRow("cut sequence") << QByteArray("\xE2\x82") << QStringLiteral(u"\u00E2\u201A");
  QTest::newRow("overlong form") << QByteArray("\xC0\xAF") << QStringLiteral(u"\u00C0\u00AF");
  QTest::newRow("overlong in three")
      << QByteArray("\xE0\x82\xAF") << QStringLiteral(u"\u00E0\u201A\u00AF");
  QTest::newRow("surrogate") << QByteArray("\xED\xA0\xB0") << QStringLiteral(u"\u00ED\u00A0\u00B0");
  QTest::newRow("beyond the last")
      << QByteArray("\xF4\xA0\xB0\xB0") << QStringLiteral(u"\u00F4\u00A0\u00B0\u00B0");
  QTest::newRow("tab and line ends stay") << QByteArray("a\tb\r\nc") << QString("a\tb\r\nc");
  QTest::newRow("escape") << QByteArray("\x1B[31m") << QStringLiteral(u"\u241B[31m");
  QTest::newRow("zero") << QByteArray("a\0b", 3) << QStringLiteral(u"a\u2400b");
  QTest::newRow("delete") << QByteArray("\x7F") << QStringLiteral(u"\u2421");
  QTest::newRow("turned writing") << QByteArray("\xE2\x80\xAE") << QStringLiteral(u"\uFFFD");
  QTest::newRow("line separator") << QByteArray("\xE2\x80\xA8") << QStringLiteral(u"\uFFFD");
  QTest::newRow("control of a document") << QByteArray("\xEF\xB7\x90") << QStringLiteral(u"\uFFFD");
}

void ByteTextTest::ShowsBytes() {
  QFETCH(QByteArray, bytes);
  QTEST(ShownText(bytes.toStdString()), "shown");
}

void ByteTextTest::PathsComeBackAsTheyWere_data() {
  QTest::addColumn<QByteArray>("path");
  QTest::newRow("ascii") << QByteArray("/a b/c.ags");
  QTest::newRow("utf-8") << QByteArray("/\xC3\xA4/\xF0\x9F\x98\x80.ags");
  QTest::newRow("bytes that are no text") << QByteArray("/\xE4\xFF/\x80.ags");
  QTest::newRow("bytes behind a letter of four") << QByteArray("\xF0\x9F\x98\x80\xE4");
  QByteArray all;
  for (int byte = 1; byte < 256; ++byte)
    all.append(static_cast<char>(byte));
  QTest::newRow("every byte") << all;
}

void ByteTextTest::PathsComeBackAsTheyWere() {
  QFETCH(QByteArray, path);
  QCOMPARE(QByteArray::fromStdString(PathBytes(PathText(path.toStdString()))), path);
}

void ByteTextTest::PathIsShownInItsLetters() {
  QCOMPARE(PathText("/\xC3\xA4.ags"), QStringLiteral(u"/\u00E4.ags"));
}

}  // namespace quorvane

QTEST_GUILESS_MAIN(quorvane::ByteTextTest)
#include "byte_text_test.moc"
