#include "ui/findings_model.h"

#include <QAbstractItemModelTester>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

#include "support/made_report.h"

namespace quorvane::test {
namespace {

FindingsReport SmallReport() {
  std::vector<FileRecord> files;
  files.push_back(MadeFile("/data/\xC3\xA4.ags", {"Keys <check>", "Units check"},
                           {{"<b>one</b>\r\ntwo\tthree", 12, Severity::Error, 0, "6b"},
                            {"four", 0, Severity::Plain, 1, ""},
                            {"five", 7, Severity::Fyi, 1, "10"}}));
  files.push_back(
      MadeFile("C:\\data\\b.ags", {"Units check"}, {{"six", 3, Severity::Warning, 0, "7"}}));
  return MadeReport(std::move(files));
}

QString Text(const FindingsModel& model, int row, FindingsColumn column,
             int role = Qt::DisplayRole) {
  return model.data(model.index(row, static_cast<int>(column)), role).toString();
}

QStringList Column(const FindingsModel& model, FindingsColumn column) {
  QStringList texts;
  for (int row = 0; row < model.rowCount(); ++row)
    texts.append(Text(model, row, column));
  return texts;
}

}  // namespace

class FindingsModelTest : public QObject {
  Q_OBJECT

 private slots:
  void KeepsTheRulesOfModels();
  void ShowsEveryColumn();
  void ShowsTheWholeInToolTipsToTheLetter();
  void RowsAreCopiedAsOneLineEach();
  void SortsByEveryColumn_data();
  void SortsByEveryColumn();
  void SortingByNoColumnIsTheOrderOfTheReport();
  void OrderAndFilterHoldForTheNextReport();
  void FindingsAreFoundAgain();
  void AMillionRowsCauseNoDelay();
};

void FindingsModelTest::KeepsTheRulesOfModels() {
  FindingsModel model;
  const QAbstractItemModelTester tester(&model,
                                        QAbstractItemModelTester::FailureReportingMode::Fatal);
  model.Show(SmallReport());
  model.sort(0, Qt::DescendingOrder);
  model.SetFilter({"six"});
  QCOMPARE(model.rowCount(), 1);
  QCOMPARE(model.rowCount(model.index(0, 0)), 0);
  model.Show({});
  QCOMPARE(model.rowCount(), 0);
}

void FindingsModelTest::ShowsEveryColumn() {
  FindingsModel model;
  model.Show(SmallReport());
  QCOMPARE(Column(model, FindingsColumn::File),
           (QStringList{QStringLiteral(u"\u00E4.ags"), QStringLiteral(u"\u00E4.ags"),
                        QStringLiteral(u"\u00E4.ags"), "b.ags"}));
  QCOMPARE(Column(model, FindingsColumn::Line), (QStringList{"12", "", "7", "3"}));
  QCOMPARE(Column(model, FindingsColumn::Severity),
           (QStringList{"Error", "Remark", "FYI", "Warning"}));
  QCOMPARE(Column(model, FindingsColumn::Section),
           (QStringList{"Keys <check>", "Units check", "Units check", "Units check"}));
  QCOMPARE(Column(model, FindingsColumn::Rule), (QStringList{"6b", "", "10", "7"}));
  QCOMPARE(Column(model, FindingsColumn::Message),
           (QStringList{"<b>one</b> two three", "four", "five", "six"}));
  QStringList captions;
  for (int column = 0; column < model.columnCount(); ++column)
    captions.append(model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
  QCOMPARE(captions, (QStringList{"File", "Line", "Severity", "Section", "Rule", "Message"}));
}

void FindingsModelTest::ShowsTheWholeInToolTipsToTheLetter() {
  FindingsModel model;
  model.Show(SmallReport());
  QCOMPARE(Text(model, 3, FindingsColumn::File, Qt::ToolTipRole), "<qt>C:\\data\\b.ags</qt>");
  QVERIFY(Text(model, 0, FindingsColumn::Message, Qt::ToolTipRole)
              .startsWith("<qt>&lt;b&gt;one&lt;/b&gt;"));
}

void FindingsModelTest::RowsAreCopiedAsOneLineEach() {
  FindingsModel model;
  model.Show(SmallReport());
  QCOMPARE(model.RowText(0),
           QStringLiteral(u"\u00E4.ags\t12\tError\tKeys <check>\t6b\t<b>one</b> two three\n"));
}

void FindingsModelTest::SortsByEveryColumn_data() {
  QTest::addColumn<int>("column");
  QTest::addColumn<QStringList>("lines");
  QTest::addColumn<QStringList>("downwards");
  const auto row = [](const char* name, FindingsColumn column, const QStringList& lines,
                      const QStringList& downwards) {
    QTest::newRow(name) << static_cast<int>(column) << lines << downwards;
  };
  // What is equal stands in the order of the report.
  row("file", FindingsColumn::File, {"3", "12", "", "7"}, {"12", "", "7", "3"});
  row("line", FindingsColumn::Line, {"", "3", "7", "12"}, {"12", "7", "3", ""});
  row("severity", FindingsColumn::Severity, {"12", "3", "7", ""}, {"", "7", "3", "12"});
  row("section", FindingsColumn::Section, {"12", "", "7", "3"}, {"", "7", "3", "12"});
  row("rule", FindingsColumn::Rule, {"", "12", "3", "7"}, {"7", "3", "12", ""});
  row("message", FindingsColumn::Message, {"12", "7", "", "3"}, {"3", "", "7", "12"});
}

void FindingsModelTest::SortsByEveryColumn() {
  QFETCH(int, column);
  FindingsModel model;
  model.Show(SmallReport());
  model.sort(column, Qt::AscendingOrder);
  QTEST(Column(model, FindingsColumn::Line), "lines");
  model.sort(column, Qt::DescendingOrder);
  QTEST(Column(model, FindingsColumn::Line), "downwards");
}

void FindingsModelTest::SortingByNoColumnIsTheOrderOfTheReport() {
  FindingsModel model;
  model.Show(SmallReport());
  model.sort(1, Qt::AscendingOrder);
  model.sort(-1, Qt::AscendingOrder);
  QCOMPARE(Column(model, FindingsColumn::Line), (QStringList{"12", "", "7", "3"}));
}

void FindingsModelTest::OrderAndFilterHoldForTheNextReport() {
  FindingsModel model;
  model.sort(1, Qt::DescendingOrder);
  model.SetFilter({"units"});
  model.Show(SmallReport());
  QCOMPARE(Column(model, FindingsColumn::Line), (QStringList{"7", "3", ""}));
  QCOMPARE(model.Count(), std::size_t{4});
}

void FindingsModelTest::FindingsAreFoundAgain() {
  FindingsModel model;
  model.Show(SmallReport());
  const std::uint32_t six = model.NumberAt(3);
  model.sort(0, Qt::AscendingOrder);
  QCOMPARE(model.RowOf(six), std::optional<int>(0));
  model.SetFilter({"four"});
  QCOMPARE(model.RowOf(six), std::nullopt);
  QCOMPARE(model.FindingAt(0).finding.text, std::string_view("four"));
}

/// The limits are far above what a usual computer needs; what was measured is printed.
void FindingsModelTest::AMillionRowsCauseNoDelay() {
  constexpr qint64 limit = 10'000;  // milliseconds
  QTableView view;
  FindingsModel model;
  view.setModel(&model);
  view.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  view.show();
  FindingsReport report = ReportOfAMillion();
  const auto measure = [&](const QString& what, const auto& work) {
    QElapsedTimer timer;
    timer.start();
    work();
    QCoreApplication::processEvents();  // what is seen is painted
    qInfo("%s: %lld ms", qPrintable(what), timer.elapsed());
    QVERIFY2(timer.elapsed() < limit, qPrintable(what));
  };
  measure("show", [&] { model.Show(std::move(report)); });
  QCOMPARE(model.rowCount(), 1'000'000);
  for (int column = 0; column < model.columnCount(); ++column)
    measure(QStringLiteral("sort by column %1").arg(column),
            [&] { model.sort(column, Qt::DescendingOrder); });
  measure("filter", [&] { model.SetFilter({"geol_top"}); });
  QCOMPARE(model.rowCount(), 333'334);
  measure("no filter", [&] { model.SetFilter({}); });
  measure("to the end", [&] { view.scrollToBottom(); });
  measure("all selected", [&] { view.selectAll(); });
}

}  // namespace quorvane::test

QTEST_MAIN(quorvane::test::FindingsModelTest)
#include "findings_model_test.moc"
