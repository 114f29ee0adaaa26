#include "ui/row_view.h"

#include <algorithm>

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTextBlock>

#include "support/check_text.h"
#include "text/text.h"
#include "ui/line_view.h"
#include "ui/window_fixture.h"

namespace quorvane::test {
namespace {

const QString Arrow = QStringLiteral(u"\u25BA ");

std::string WithCrLf(const std::string& text) {
  return ReplaceAll(text, "\n", LineBreak);
}

/// A file whose row in the last line has a depth that is no number.
std::string Ags4WithABadNumber() {
  return WithCrLf(MinimalAgs4()
                      .Group("LOCA", {"LOCA_ID", "LOCA_GL", "LOCA_REM"}, {"", "m", ""},
                             {"ID", "2DP", "X"}, {{"BH1", "1.00", "a & b"}, {"BH2", "deep", ""}})
                      .Text());
}

/// A file whose last row goes on in a second line, with the same sort of mistake.
std::string Ags3WithAContinuation() {
  return WithCrLf(
      MinimalAgs3()
          .Group("HOLE", {"HOLE_ID", "HOLE_TYPE", "HOLE_REM"}, {}, {{"BH1", "CP", "begins "}})
          .Line(R"("<CONT>","","ends")")
          .Line(R"("BH1","CP","again")")
          .Text());
}

/// A run over a file, and the view of one of its findings.
class ViewFixture {
 public:
  explicit ViewFixture(const std::string& content, const std::string& path = "/data/test.ags")
      : report_(CollectFindings({{path, content}})) {
    disk.files[path] = content;
  }

  const FileRecord& File() const { return report_.files.front(); }

  /// Opens the view of the first finding whose text holds the words.
  void Open(std::string_view words) {
    const auto& findings = File().findings;
    const auto found =
        std::find_if(findings.begin(), findings.end(), [words](const FindingRecord& finding) {
          return finding.text.find(words) != std::string_view::npos;
        });
    if (found == findings.end()) qFatal("There is no such finding.");
    OpenAt(*found);
  }

  void OpenAt(const FindingRecord& finding) {
    const SourceState state = source_.Open(File());
    view_ = std::make_unique<RowView>(PlacedFinding{File(), finding}, state, source_.Text());
    view_->show();
  }

  RowView& View() { return *view_; }

  template <typename Control>
  Control* Find(const char* name) {
    return view_->findChild<Control*>(QString::fromLatin1(name));
  }

  QString State() {
    const auto* label = Find<QLabel>("lblRowState");
    return label == nullptr ? QString() : label->text();
  }

  /// The cells of a column of the row; empty when no row is shown.
  QStringList Cells(int column) {
    QStringList texts;
    if (const auto* table = Find<QTableView>("tblRow")) {
      for (int row = 0; row < table->model()->rowCount(); ++row)
        texts.append(table->model()->index(row, column).data().toString());
    }
    return texts;
  }

  MemoryDisk disk;

 private:
  FindingsReport report_;
  SourceFile source_{disk};
  std::unique_ptr<RowView> view_;
};

}  // namespace

class RowViewTest : public QObject {
  Q_OBJECT

 private slots:
  void ShowsFindingLinesAndRowOfAnAgs4File();
  void TheMarkedCellIsSeenWithoutColour();
  void TheLinesAroundAreShownWithTheirNumbers();
  void OnlyALimitedNumberOfLinesIsShown();
  void ShowsAnAgs3RowWithItsContinuation();
  void ShowsAHeadingLine();
  void AChangedFileIsSaidToBeChanged();
  void AMissingFileIsSaidToBeMissing();
  void AFindingWithoutALineSaysSo();
  void ALineThatIsNoRowIsShownWithoutCells();
  void LongLinesAndOddCharactersStayOneLine();
  void TabGoesThroughItAndEscapeClosesIt();
  void NothingCanBeChanged();
  void FitsASmallScreen();
};

void RowViewTest::ShowsFindingLinesAndRowOfAnAgs4File() {
  ViewFixture fixture(Ags4WithABadNumber());
  fixture.Open("deep");
  const QString number = QString::number(fixture.File().lines.back().line);
  QCOMPARE(fixture.View().windowTitle(), "test.ags, line " + number);
  const QString finding = fixture.Find<QPlainTextEdit>("txtRowFinding")->toPlainText();
  QVERIFY2(finding.startsWith("Error: ") && finding.contains("deep"), qPrintable(finding));
  QCOMPARE(fixture.State(), QString());
  QCOMPARE(fixture.Cells(0), (QStringList{"LOCA_ID", Arrow + "LOCA_GL", "LOCA_REM"}));
  QCOMPARE(fixture.Cells(1), (QStringList{"", "m", ""}));
  QCOMPARE(fixture.Cells(2), (QStringList{"ID", "2DP", "X"}));
  QCOMPARE(fixture.Cells(3), (QStringList{"BH2", "deep", ""}));
  QVERIFY(!fixture.Find<QTableView>("tblRow")->isColumnHidden(2));
  QCOMPARE(fixture.Find<QLabel>("lblRowCells")->text(), QString("&Row of group LOCA:"));
}

void RowViewTest::TheMarkedCellIsSeenWithoutColour() {
  ViewFixture fixture(Ags4WithABadNumber());
  fixture.Open("deep");
  const auto* table = fixture.Find<QTableView>("tblRow");
  QCOMPARE(table->currentIndex().row(), 1);
  for (int row = 0; row < 3; ++row) {
    const auto font = table->model()->index(row, 3).data(Qt::FontRole).value<QFont>();
    QCOMPARE(font.bold(), row == 1);
  }
  const auto spoken = table->model()->index(1, 0).data(Qt::AccessibleTextRole).toString();
  QCOMPARE(spoken, QString("LOCA_GL, what the finding is about"));

  auto* lines = fixture.Find<QPlainTextEdit>("txtRowLines");
  QTextCursor cursor = lines->textCursor();  // in front of the cell
  cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor, 6);
  QCOMPARE(cursor.selectedText(), QString("\"deep\""));
  QVERIFY(cursor.charFormat().fontUnderline());
  QCOMPARE(cursor.charFormat().fontWeight(), static_cast<int>(QFont::Bold));
  cursor.movePosition(QTextCursor::StartOfBlock);
  cursor.movePosition(QTextCursor::NextCharacter);
  QVERIFY(!cursor.charFormat().fontUnderline());
}

void RowViewTest::TheLinesAroundAreShownWithTheirNumbers() {
  ViewFixture fixture(Ags4WithABadNumber());
  fixture.Open("deep");
  auto* lines = dynamic_cast<LineView*>(fixture.Find<QPlainTextEdit>("txtRowLines"));
  QVERIFY(lines != nullptr);
  const QStringList shown = lines->toPlainText().split('\n');
  QCOMPARE(shown.last(), QString(R"("DATA","BH2","deep","")"));
  QCOMPARE(shown.value(shown.size() - 2), QString(R"("DATA","BH1","1.00","a & b")"));
  const int marked = lines->textCursor().blockNumber();
  QCOMPARE(marked, shown.size() - 1);
  const int number = fixture.File().lines.back().line;
  QCOMPARE(lines->SideText(marked), Arrow + QString::number(number));
  QCOMPARE(lines->SideText(marked - 1), QString::number(number - 1));
}

void RowViewTest::OnlyALimitedNumberOfLinesIsShown() {
  std::string content = FileWithFindings(100);
  ViewFixture fixture(content);
  const auto& findings = fixture.File().findings;
  fixture.OpenAt(findings[50]);
  const auto* lines = fixture.Find<QPlainTextEdit>("txtRowLines");
  QCOMPARE(lines->blockCount(), 41);
  QCOMPARE(lines->textCursor().blockNumber(), 20);
}

void RowViewTest::ShowsAnAgs3RowWithItsContinuation() {
  ViewFixture fixture(Ags3WithAContinuation());
  fixture.Open("'BH1' is repeated");
  QCOMPARE(fixture.Cells(0), (QStringList{"HOLE_ID", "HOLE_TYPE", "HOLE_REM"}));
  QCOMPARE(fixture.Cells(3), (QStringList{"BH1", "CP", "begins ends"}));
  const auto* table = fixture.Find<QTableView>("tblRow");
  QVERIFY(table->isColumnHidden(2));                  // it has no types
  QVERIFY(!table->selectionModel()->hasSelection());  // no cell is meant
  const QString caption = fixture.Find<QLabel>("lblRowCells")->text();
  QVERIFY2(caption.contains("lines ") && caption.contains(" to "), qPrintable(caption));
}

void RowViewTest::ShowsAHeadingLine() {
  ViewFixture fixture(WithCrLf(
      MinimalAgs4().Group("LOCA", {"LOCA_ID", "LOCA_gl"}, {"", "m"}, {"ID", "2DP"}, {}).Text()));
  fixture.Open("LOCA_gl");
  QCOMPARE(fixture.Cells(3), (QStringList{"LOCA_ID", "LOCA_gl"}));
  QCOMPARE(fixture.Cells(0), (QStringList{"LOCA_ID", Arrow + "LOCA_GL"}));
}

void RowViewTest::AChangedFileIsSaidToBeChanged() {
  ViewFixture fixture(Ags4WithABadNumber());
  fixture.disk.files["/data/test.ags"] += "\"DATA\",\"BH3\",\"1.00\",\"\"\r\n";
  fixture.Open("deep");
  QCOMPARE(fixture.State(), QString("The file has changed since the check. The line is shown as it "
                                    "was when it was checked."));
  QCOMPARE(fixture.Find<QPlainTextEdit>("txtRowLines")->toPlainText(),
           QString(R"("DATA","BH2","deep","")"));
  QCOMPARE(fixture.Cells(3), (QStringList{"BH2", "deep", ""}));
}

void RowViewTest::AMissingFileIsSaidToBeMissing() {
  ViewFixture fixture(Ags4WithABadNumber());
  fixture.disk.files.clear();
  fixture.Open("deep");
  QVERIFY(fixture.State().startsWith("The file cannot be read any more. The line is shown"));
  QCOMPARE(fixture.Cells(3), (QStringList{"BH2", "deep", ""}));
}

void RowViewTest::AFindingWithoutALineSaysSo() {
  ViewFixture fixture(WithCrLf(MinimalAgs4().Text()), "/data/test.txt");
  fixture.OpenAt(fixture.File().findings.front());
  QCOMPARE(fixture.View().windowTitle(), QString("test.txt"));
  QCOMPARE(fixture.State(), QString("The finding belongs to no line of the file."));
  QVERIFY(fixture.Find<QPlainTextEdit>("txtRowLines") == nullptr);
  QVERIFY(fixture.Cells(0).isEmpty());
}

void RowViewTest::ALineThatIsNoRowIsShownWithoutCells() {
  ViewFixture fixture(WithCrLf("stray\n" + MinimalAgs4().Text()));
  FindingRecord finding;
  finding.definition =
      fixture.File().findings.empty() ? nullptr : fixture.File().findings.front().definition;
  finding.line = 1;
  fixture.OpenAt(finding);
  QVERIFY(fixture.Find<QPlainTextEdit>("txtRowLines") != nullptr);
  QVERIFY(fixture.Cells(0).isEmpty());
}

void RowViewTest::LongLinesAndOddCharactersStayOneLine() {
  ViewFixture fixture(Ags4WithABadNumber() + "\"DATA\",\"BH3\",\"low\",\"a\rb\xE2\x80\xA8" +
                      std::string(100'000, 'x') + "\"\r\n");
  fixture.Open("low");
  const auto* lines = fixture.Find<QPlainTextEdit>("txtRowLines");
  const QString last = lines->document()->lastBlock().text();
  QVERIFY2(last.startsWith(QStringLiteral(u"\"DATA\",\"BH3\",\"low\",\"a\u240Db\uFFFDx")),
           qPrintable(last.left(60)));
  QVERIFY(last.size() < 5000);
  QVERIFY(last.endsWith(QChar(0x2026)));
}

void RowViewTest::TabGoesThroughItAndEscapeClosesIt() {
  ViewFixture fixture(Ags4WithABadNumber());
  fixture.Open("deep");
  QVERIFY(QTest::qWaitForWindowActive(&fixture.View()));
  QStringList order;
  for (int step = 0; step < 5; ++step) {
    order.append(QApplication::focusWidget()->objectName());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  QCOMPARE(order, (QStringList{"tblRow", "cmdRowClose", "txtRowFinding", "txtRowLines", "tblRow"}));
  QTest::keyClick(&fixture.View(), Qt::Key_Escape);
  QVERIFY(!fixture.View().isVisible());
}

void RowViewTest::NothingCanBeChanged() {
  ViewFixture fixture(Ags4WithABadNumber());
  fixture.Open("deep");
  QVERIFY(fixture.Find<QPlainTextEdit>("txtRowFinding")->isReadOnly());
  QVERIFY(fixture.Find<QPlainTextEdit>("txtRowLines")->isReadOnly());
  const auto* model = fixture.Find<QTableView>("tblRow")->model();
  QVERIFY(!(model->flags(model->index(0, 3)) & Qt::ItemIsEditable));
}

void RowViewTest::FitsASmallScreen() {
  ViewFixture fixture(Ags4WithABadNumber());
  fixture.Open("deep");
  const QSize least = fixture.View().minimumSizeHint();
  QVERIFY2(least.width() <= 640 && least.height() <= 480,
           qPrintable(QStringLiteral("%1x%2").arg(least.width()).arg(least.height())));
}

}  // namespace quorvane::test

QTEST_MAIN(quorvane::test::RowViewTest)
#include "row_view_test.moc"
