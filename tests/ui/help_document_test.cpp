#include "ui/help_document.h"

#include <QTest>

namespace quorvane {

class HelpDocumentTest : public QObject {
  Q_OBJECT

 private slots:
  void FollowsFromTheProgramFolder_data();
  void FollowsFromTheProgramFolder();
};

void HelpDocumentTest::FollowsFromTheProgramFolder_data() {
  QTest::addColumn<QString>("programFolder");
  QTest::addColumn<QString>("document");
  const auto row = [](const char* name, const char* folder, const char* document) {
    QTest::newRow(name) << QString::fromLatin1(folder) << QString::fromLatin1(document);
  };
  row("bin", R"(C:\Quorvane\bin)", R"(C:\Quorvane\docs\vexo_quorvane.pdf)");
  row("bin with slashes", "/opt/quorvane/bin", "/opt/quorvane/docs/vexo_quorvane.pdf");
  row("bin in capitals", R"(C:\QUORVANE\BIN)", R"(C:\QUORVANE\docs\vexo_quorvane.pdf)");
  row("agsbin", R"(C:\Vexo\AgsBin)", R"(C:\Vexo\docs\vexo_quorvane.pdf)");
  row("utilities", R"(C:\Vexo\ags_utilities\quorvane)", R"(C:\Vexo\docs\vexo_quorvane.pdf)");
  row("utilities in capitals", R"(C:\Vexo\AGS_Utilities\Quorvane)",
      R"(C:\Vexo\docs\vexo_quorvane.pdf)");
  row("utilities with slashes", "/vexo/ags_utilities/quorvane", "/vexo/docs/vexo_quorvane.pdf");
  row("both separators", R"(C:\Vexo/ags_utilities\quorvane)", R"(C:\Vexo\docs\vexo_quorvane.pdf)");
  row("below the utilities", R"(C:\Vexo\ags_utilities\quorvane\v10)",
      R"(C:\Vexo\v10\docs\vexo_quorvane.pdf)");
  row("another folder that begins so", R"(C:\Vexo\ags_utilities\quorvane2\bin)",
      R"(C:\Vexo\ags_utilities\quorvane2\docs\vexo_quorvane.pdf)");
  row("the second of two", R"(C:\ags_utilities\quorvane2\ags_utilities\quorvane)",
      R"(C:\ags_utilities\quorvane2\docs\vexo_quorvane.pdf)");
  row("bin elsewhere", R"(C:\bin\quorvane)", R"(C:\bin\quorvane\docs\vexo_quorvane.pdf)");
  row("a name that ends so", "/opt/robin", "/opt/robin/docs/vexo_quorvane.pdf");
  row("bin of the whole disk", "/bin", "/docs/vexo_quorvane.pdf");
  row("nothing", "", "/docs/vexo_quorvane.pdf");
}

void HelpDocumentTest::FollowsFromTheProgramFolder() {
  QFETCH(QString, programFolder);
  QTEST(QString::fromStdString(HelpDocument(programFolder.toStdString())), "document");
}

}  // namespace quorvane

QTEST_GUILESS_MAIN(quorvane::HelpDocumentTest)
#include "help_document_test.moc"
