// SPDX-License-Identifier: GPL-3.0-or-later
// Pages on paper, read by an independent reader of PDF files (pdftotext).
#include "editor/frmBrowser.h"
#include "editor/frmMain.h"
#include "tests/app/window/RealWindowFixture.h"
#include "tests/engine/ComponentFixture.h"
#include "tests/support/FakePrinters.h"

#include <QElapsedTimer>
#include <QImage>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <QWebEnginePage>

#include <algorithm>
#include <chrono>

namespace velor {
namespace {

const QByteArray Page =
    "<!DOCTYPE html>\n<html><head><title>T</title><link rel=stylesheet href=\"paper.css\"></head>\n"
    "<body><p>First</p><p class=screen>Not on paper</p><!-- note -->\n"
    "<p><a href=\"other page.htm\">Other</a> <a href=\"#end\">Down</a></p>\n"
    "<img src=\"dot.png\" loading=lazy><p class=far id=end>Last</p>\n"
    "<script>document.body.append('Made by script')</script></body></html>\n";
const QByteArray Sheet =
    "@page { size: 100mm 100mm; margin: 25.4mm }\n@media print { .screen { display: none } }\n"
    "body { margin: 0 } .far { page-break-before: always }\n";

class RealPrint : public RealWindow {
 protected:
  /// The page with a sheet and a picture beside it, opened.
  frmMain &OpenPage() {
    Write(QStringLiteral("paper.css"), Sheet);
    QImage dot(8, 8, QImage::Format_RGB32);
    dot.fill(Qt::red);
    dot.save(folder.FilePath(QStringLiteral("dot.png")));
    return Open(QStringLiteral("page.htm"), Page);
  }
  void BeginExport() {
    components.onFileDialog = [this](FakeFileDialog &person) {
      EXPECT_EQ(person.FileName, QString());
      person.ExpectSave(Logic(QStringLiteral("page.pdf")));
    };
    Choose("mnuExportPdf");
  }
  /// Exports what is in front and waits for the file.
  void Export() {
    BeginExport();
    ASSERT_TRUE(WaitFor([this] { return Exists(QStringLiteral("page.pdf")); }));
  }
  /// Somebody who waits for the pages and prints them.
  void ExpectPrinting() {
    dialogs.ExpectModal([](QWidget &dialog) {
      dialog.show();
      auto *print = dialog.findChild<QPushButton *>(QStringLiteral("cmdPrint"));
      ASSERT_TRUE(WaitFor([&] { return print->isEnabled(); }));
      print->click();
      EXPECT_TRUE(WaitFor([&] { return dialog.isHidden(); }));
    });
  }
  QString Read(const char *program, const QStringList &arguments) const {
    QProcess reader;
    reader.start(QString::fromLatin1(program), arguments);
    EXPECT_TRUE(reader.waitForFinished()) << program << " is not installed";
    return QString::fromUtf8(reader.readAllStandardOutput());
  }
  /// The values of an attribute, in whole points.
  static QList<int> Numbers(const QString &text, const char *attribute) {
    QList<int> numbers;
    const QRegularExpression pattern(QString::fromLatin1(attribute) +
                                     QStringLiteral("=\"([^\"]+)"));
    for (const auto &match : pattern.globalMatch(text))
      numbers << qRound(match.captured(1).toDouble());
    return numbers;
  }
  /// The words of the exported pages.
  QStringList Words() const {
    return Read("pdftotext", {folder.FilePath(QStringLiteral("page.pdf")), QStringLiteral("-")})
        .split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
  }
};

TEST_F(RealPrint, UnsavedEditsAreOnPaperAndTheRulesForPaperAreObeyed) {
  frmMain &page = OpenPage();
  PutCaret(page, QStringLiteral("p"));
  Type(page, QStringLiteral("new"));
  Export();
  EXPECT_EQ(Words(), QStringList({"Fnewirst", "Other", "Down", "Last"}));
  const QString file = folder.FilePath(QStringLiteral("page.pdf"));
  const QString places = Read("pdftotext", {QStringLiteral("-bbox"), file, QStringLiteral("-")});
  EXPECT_EQ(Numbers(places, "<page width"), QList<int>({283, 283})) << places.toStdString();
  EXPECT_EQ(Numbers(places, "<word xMin"), QList<int>({72, 72, 111, 72})) << places.toStdString();
  EXPECT_TRUE(
      Read("pdfimages", {QStringLiteral("-list"), file}).contains(QStringLiteral(" image ")));
  EXPECT_EQ(Bytes(QStringLiteral("page.htm")), Page);
}

TEST_F(RealPrint, TheFirstSheetHasTheWiderUpperMarginThatThePageGivesIt) {
  Open(QStringLiteral("page.htm"),
       "<!DOCTYPE html>\n<html><head><style>@page { size: 100mm 100mm; margin: 1in }\n"
       "@page :first { margin-top: 2in } p { margin: 0 } body { margin: 0 }</style></head>\n"
       "<body><p>First<p style=\"page-break-before: always\">Second</body></html>\n");
  Export();
  const QString places = Read(
      "pdftotext",
      {QStringLiteral("-bbox"), folder.FilePath(QStringLiteral("page.pdf")), QStringLiteral("-")});
  const QList<int> tops = Numbers(places, "yMin");
  ASSERT_EQ(tops.size(), 2) << places.toStdString();
  EXPECT_NEAR(tops[0] - tops[1], 72, 1) << places.toStdString();
}

TEST_F(RealPrint, LinksLeadToFilesByTheirFullAddressesAndWithinThePdf) {
  OpenPage();
  Export();
  const QByteArray pdf = Bytes(QStringLiteral("page.pdf"));
  const QByteArray other =
      QUrl::fromLocalFile(folder.FilePath(QStringLiteral("other page.htm"))).toEncoded();
  EXPECT_TRUE(pdf.contains("/URI (" + other + ")"));
  EXPECT_FALSE(pdf.contains("velor-page"));
  EXPECT_TRUE(pdf.contains("/Dest /end"));
}

TEST_F(RealPrint, ThePreviewIsPrintedAsItsScriptsMadeIt) {
  frmMain &page = OpenPage();
  PutCaret(page, QStringLiteral("p"));
  Type(page, QStringLiteral("new"));
  page.ChangeMode(4);
  QWebEnginePage &preview = EngineOf(*window.Context().preview);
  ASSERT_TRUE(WaitFor([&] {
    return Evaluate(preview, QStringLiteral("document.body.innerText.includes('by script')"))
        .toBool();
  }));
  Export();
  EXPECT_EQ(Words(), QStringList({"Fnewirst", "Other", "Down", "Last", "Made", "by", "script"}));
  EXPECT_FALSE(Bytes(QStringLiteral("page.pdf")).contains("velor-site"));
  BeginExport();
  QTest::keyClick(window.Context().preview->focusProxy()->focusProxy(), Qt::Key_Escape);
  EXPECT_EQ(Find<QStatusBar>("Sta")->currentMessage(),
            QStringLiteral("The PDF was stopped. No file was written"));
}

TEST_F(RealPrint, CtrlPShowsThePagesAndPrintsThem) {
  FakePrinters printers;
  window.SetPrinters(printers);
  frmMain &page = OpenPage();
  ExpectPrinting();
  Key(page, Qt::Key_P, Qt::ControlModifier);
  ASSERT_TRUE(WaitFor([&] { return printers.ended == 1; }));
  ASSERT_EQ(printers.sheets.size(), 2U);
  EXPECT_EQ(printers.sheets[0].size(), QSize(283, 283));
  bool hasPicture = false;
  for (int y = 0; y < 283; ++y)
    for (int x = 0; x < 283; ++x)
      hasPicture = hasPicture || printers.sheets[0].pixel(x, y) == qRgb(255, 0, 0);
  EXPECT_TRUE(hasPicture);
}

TEST_F(RealPrint, ThePreviewIsPrintedWithTheSheetsThatItsScriptsMade) {
  FakePrinters printers;
  window.SetPrinters(printers);
  frmMain &page = Open(QStringLiteral("page.htm"),
                       "<!DOCTYPE html>\n<html><body><p>One</p><script>document.body.innerHTML +="
                       "'<p style=\"break-before: page\">Two'</script></body></html>\n");
  page.ChangeMode(4);
  QWebEnginePage &preview = EngineOf(*window.Context().preview);
  ASSERT_TRUE(WaitFor([&] {
    return Evaluate(preview, QStringLiteral("document.readyState === 'complete' &&"
                                            "document.querySelectorAll('p').length === 2"))
        .toBool();
  }));
  ExpectPrinting();
  QTest::keyClick(window.Context().preview->focusProxy()->focusProxy(), Qt::Key_P,
                  Qt::ControlModifier);
  ASSERT_TRUE(WaitFor([&] { return printers.ended == 1; }));
  EXPECT_EQ(printers.sheets.size(), 2U);
}

TEST_F(RealPrint, ZoomIsEachWindowsOwnStaysOverLoadsAndIsNotInThePage) {
  const auto zoom = [](QWidget &shown, double factor) {
    return WaitFor([&] {
      return qAbs(Evaluate(EngineOf(shown), QStringLiteral("devicePixelRatio")).toDouble() -
                  factor * shown.devicePixelRatioF()) < 0.01;
    });
  };
  frmMain &page = OpenPage();
  frmMain &other = Open(QStringLiteral("other.htm"), Page);
  Key(other, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_TRUE(zoom(other, 1.1));
  EXPECT_TRUE(zoom(page, 1));
  other.DHTML1().LoadDocument(Logic(QStringLiteral("page.htm")));
  EXPECT_TRUE(zoom(other, 1.1));
  other.ChangeMode(4);
  frmBrowser &preview = *window.Context().preview;
  EXPECT_TRUE(zoom(preview, 1));
  Choose("mnuZoomOut");
  EXPECT_TRUE(zoom(preview, 0.9));
  Parts().windows.Activate(&other);
  other.ChangeMode(4);
  EXPECT_TRUE(WaitFor([&] { return !EngineOf(preview).isLoading(); }));
  EXPECT_TRUE(zoom(preview, 0.9));
  Parts().windows.Activate(&page);
  Key(page, Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_TRUE(zoom(page, 0.9));
  Choose("mnuSave");
  EXPECT_EQ(Bytes(QStringLiteral("page.htm")), Page);
}

TEST_F(RealPrint, EscapeInThePageLeavesTheOldFileAndTheNextExportGoesWell) {
  frmMain &page = OpenPage();
  Write(QStringLiteral("page.pdf"), "old");
  BeginExport();
  Key(page, Qt::Key_Escape);
  EXPECT_EQ(Find<QStatusBar>("Sta")->currentMessage(),
            QStringLiteral("The PDF was stopped. No file was written"));
  Type(page, QStringLiteral("still "));
  EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("still ")); }));
  EXPECT_EQ(Bytes(QStringLiteral("page.pdf")), QByteArray("old"));
  BeginExport();
  EXPECT_TRUE(WaitFor([&] { return Bytes(QStringLiteral("page.pdf")) != QByteArray("old"); }));
  EXPECT_TRUE(Words().contains(QStringLiteral("Last")));
}

TEST_F(RealPrint, AHundredSheetsLeaveTheWindowToThePersonAndCanBeStopped) {
  QByteArray sheets = "<!DOCTYPE html>\n<html><body>\n";
  for (int sheet = 0; sheet < 100; ++sheet)
    sheets += "<p style=\"height: 20cm; break-after: page\">A sheet of many.</p>\n";
  frmMain &page = Open(QStringLiteral("page.htm"), sheets);
  Write(QStringLiteral("page.pdf"), "old");
  // How long the window answered nobody.
  std::chrono::milliseconds longest{0};
  QElapsedTimer sinceTurn;
  sinceTurn.start();
  QTimer turns;
  QObject::connect(&turns, &QTimer::timeout, &turns, [&] {
    longest = std::max(longest, std::chrono::milliseconds(sinceTurn.restart()));
  });
  turns.start(std::chrono::milliseconds(5));
  BeginExport();
  PutCaret(page, QStringLiteral("p"));
  Type(page, QStringLiteral("still"));
  EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("still")); })) << Seen(page);
  EXPECT_TRUE(WaitFor([&] { return Bytes(QStringLiteral("page.pdf")) != QByteArray("old"); }));
  EXPECT_LT(longest, std::chrono::seconds(2));
  const QString file = folder.FilePath(QStringLiteral("page.pdf"));
  EXPECT_TRUE(Read("pdfinfo", {file}).contains(QRegularExpression(QStringLiteral("Pages: +100"))));

  Write(QStringLiteral("page.pdf"), "old");
  BeginExport();
  Find<QPushButton>("cmdStopPdf")->click();
  EXPECT_FALSE(Find<QWidget>("picPdf")->isVisible());
  Type(page, QStringLiteral("there"));
  EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("stillthere")); })) << Seen(page);
  EXPECT_EQ(Bytes(QStringLiteral("page.pdf")), QByteArray("old"));
}

}  // namespace
}  // namespace velor
