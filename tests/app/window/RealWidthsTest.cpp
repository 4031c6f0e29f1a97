// SPDX-License-Identifier: GPL-3.0-or-later
// The widths of pages in the real engine: what the page's own rules make of them, and that nothing
// of it is in the file.
#include "editor/frmBrowser.h"
#include "editor/frmMain.h"
#include "tests/app/window/RealWindowFixture.h"
#include "tests/app/window/WidthGrip.h"
#include "tests/engine/ComponentFixture.h"

#include <QApplication>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QTest>
#include <QWebEnginePage>

#include <cmath>
#include <functional>

namespace velor {
namespace {

const QByteArray Page =
    "<!DOCTYPE html>\r\n<HTML><HEAD>\r\n<META CHARSET=utf-8>\r\n  <TITLE>T</TITLE>\r\n"
    "<LINK REL=stylesheet HREF=\"wide.css\">\r\n"
    "<STYLE>@media (max-width: 37.5em) { p { color: red } }\r\n"
    "@supports (color: red) { @media print { @media (min-width: 601px) { p { top: 0 } } } }"
    "</STYLE>\r\n</HEAD>\r\n<BODY><P>one</P>\r\n</BODY></HTML>\r\n";
const QByteArray Sheet =
    "@import url(\"more.css\") screen and (min-width: 900px);\n"
    "@media (min-width: 768px) and (max-width: 1023px) { p { margin: 0 } }\n";

class RealWidths : public RealWindow {
 protected:
  frmMain &OpenPage() {
    Write(QStringLiteral("wide.css"), Sheet);
    Write(QStringLiteral("more.css"), "@media (min-width: 1400px) { p { margin: 0 } }\n");
    return Open(QStringLiteral("page.htm"), Page);
  }
  static bool IsSoWide(QWidget &shown, int width) {
    const QString asked =
        QStringLiteral("innerWidth === %1 && matchMedia('(width: %1px)').matches").arg(width);
    return WaitFor([&] { return Evaluate(EngineOf(shown), asked).toBool(); });
  }
  /// Pixels of the screen between the view's upper edge and the caret; -1 where the caret's line is
  /// not all in sight.
  static double CaretHeight(frmMain &page) {
    return Evaluate(EngineOf(page), QStringLiteral("{ const box = getSelection().getRangeAt(0)"
                                                   ".getBoundingClientRect();"
                                                   "box.top >= 0 && box.bottom <= innerHeight"
                                                   " ? box.top * devicePixelRatio : -1 }"))
        .toDouble();
  }
  /// Puts the caret into the element "here", in the middle of the view.
  static void CaretInTheMiddle(frmMain &page) {
    PutCaret(page, QStringLiteral("#here"));
    Evaluate(EngineOf(page),
             QStringLiteral("here.scrollIntoView({ block: 'center' }); var drawn = 0;"
                            "requestAnimationFrame(() => requestAnimationFrame(() => drawn = 2))"));
    // The page learns of the scrolling with the next frame.
    EXPECT_TRUE(
        WaitFor([&] { return Evaluate(EngineOf(page), QStringLiteral("drawn === 2")).toBool(); }));
  }
  /// Whether the page has another width than before and the caret is where it was in the view.
  void ExpectCaretStays(frmMain &page, const std::function<void()> &change) {
    const QString layout = QStringLiteral("innerWidth + ' ' + devicePixelRatio");
    const QVariant before = Evaluate(EngineOf(page), layout);
    const double height = CaretHeight(page);
    ASSERT_GT(height, 0);
    change();
    EXPECT_TRUE(WaitFor([&] { return Evaluate(EngineOf(page), layout) != before; }));
    // A line that was broken anew can begin anywhere in the old one.
    EXPECT_TRUE(WaitFor([&] { return std::abs(CaretHeight(page) - height) < 3; }))
        << CaretHeight(page) << " instead of " << height;
  }
  template <typename Widget>
  static Widget &In(QWidget &shown, const char *name) {
    return *shown.findChild<Widget *>(QString::fromLatin1(name));
  }
};

TEST_F(RealWidths, TheRulesOfThePageAnswerToTheWidthAtEveryZoomAndTypingGoesOn) {
  frmMain &page = OpenPage();
  PutCaret(page, QStringLiteral("p"));
  Key(page, Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(In<QWidget>(page, "picRuler").accessibleName(),
            QStringLiteral("Widths at which the page changes: 600, 601, 768, 900, 1023, 1400"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  for (const double zoom : {1.0, 0.67, 1.1, 1.75, 0.25, 0.33}) {
    SCOPED_TRACE(zoom);
    page.SetZoom(zoom);
    for (const char *width : {"cmdWidth360", "cmdWidth412", "cmdWidth1280"}) {
      QTest::mouseClick(&In<QToolButton>(page, width), Qt::LeftButton);
      EXPECT_TRUE(IsSoWide(page, QByteArray(width).mid(8).toInt())) << width;
    }
    In<QSpinBox>(page, "numWidth").setValue(601);
    EXPECT_TRUE(IsSoWide(page, 601));
    EXPECT_EQ(Evaluate(EngineOf(page), QStringLiteral("matchMedia('(max-width: 600px)').matches")),
              QVariant(false));
  }
  page.SetZoom(1);
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("qz"));
  EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("<p>oqzne</p>")); })) << Seen(page);
  Choose("mnuSave");
  EXPECT_EQ(Bytes(QStringLiteral("page.htm")), QByteArray(Page).replace(">one<", ">oqzne<"));
}

TEST_F(RealWidths, AViewportIsAddedOnALineOfItsOwnAsOneStepAndNothingElseChanges) {
  frmMain &page = OpenPage();
  Choose("mnuWidths");
  auto &add = In<QPushButton>(page, "cmdAddViewport");
  ASSERT_TRUE(add.isVisible());
  add.click();
  EXPECT_TRUE(WaitFor([&] { return add.isHidden(); }));
  Choose("mnuSave");
  EXPECT_EQ(Bytes(QStringLiteral("page.htm")).toStdString(),
            QByteArray(Page)
                .replace("  <TITLE>T</TITLE>",
                         "  <TITLE>T</TITLE>\r\n"
                         "  <META NAME=viewport CONTENT=\"width=device-width, "
                         "initial-scale=1\">")
                .toStdString());
  page.DHTML1().ExecCommand(EditingCommand::Undo);
  EXPECT_TRUE(WaitFor([&] { return add.isVisible(); }));
  Choose("mnuSave");
  EXPECT_EQ(Bytes(QStringLiteral("page.htm")), Page);
}

TEST_F(RealWidths, TheCaretStaysAtItsHeightWhenLinesBreakAnew) {
  const QByteArray lines = QByteArray("long lines that break anew at another width ").repeated(40);
  frmMain &page =
      Open(QStringLiteral("long.htm"), "<p>" + QByteArray(lines + "</p>\n<p>").repeated(20) +
                                           "<b id=here>one</b> " +
                                           QByteArray(lines + "</p>\n<p>").repeated(20) + "</p>");
  Choose("mnuWidths");
  CaretInTheMiddle(page);
  ExpectCaretStays(page, [&] { In<QToolButton>(page, "cmdWidth360").click(); });
  ExpectCaretStays(page, [&] { In<QToolButton>(page, "cmdWidth768").click(); });
  WidthGrip grip(page);
  for (const int step : {-50, -100, -150}) ExpectCaretStays(page, [&] { grip.DragBy(step); });
  grip.Release();
  ExpectCaretStays(page, [&] { page.SetZoom(1.5); });
  ExpectCaretStays(page, [&] { page.SetZoom(0.67); });
  ExpectCaretStays(page, [&] { In<QToolButton>(page, "cmdWidth0").click(); });
  ExpectCaretStays(page, [&] { page.SetZoom(1.25); });
  ExpectCaretStays(page, [&] { Choose("mnuWidths"); });
}

TEST_F(RealWidths, TheCaretComesBackToItsHeightBehindAViewThatWasTooLow) {
  frmMain &page = Open(QStringLiteral("long.htm"), QByteArray("<p>long</p>\n").repeated(40) +
                                                       "<p id=here>one</p>\n" +
                                                       QByteArray("<p>long</p>\n").repeated(40));
  CaretInTheMiddle(page);
  const double height = CaretHeight(page);
  ASSERT_GT(height, 0);
  const auto isHigh = [&](const char *compared) {
    return Evaluate(EngineOf(page), QStringLiteral("innerHeight ") + QLatin1String(compared))
        .toBool();
  };
  window.resize(1180, 330);
  ASSERT_TRUE(WaitFor([&] { return isHigh("< 200"); }));
  EXPECT_TRUE(WaitFor([&] { return CaretHeight(page) > 0 && CaretHeight(page) < height - 50; }));
  window.resize(1180, 800);
  ASSERT_TRUE(WaitFor([&] { return isHigh("> 400"); }));
  EXPECT_TRUE(WaitFor([&] { return std::abs(CaretHeight(page) - height) < 3; }))
      << CaretHeight(page) << " instead of " << height;
}

TEST_F(RealWidths, APageThatIsWiderThanTheWindowScrollsSidewaysToTheCaret) {
  frmMain &page = Open(QStringLiteral("wide.htm"), "<p style=\"padding-left: 2000px\">end</p>");
  Choose("mnuWidths");
  PutCaret(page, QStringLiteral("p"));
  In<QSpinBox>(page, "numWidth").setValue(3000);
  EXPECT_TRUE(IsSoWide(page, 3000));
  page.DHTML1().SetFocus();
  Type(page, QStringLiteral("x"));
  const auto *frame = page.findChild<QScrollArea *>(QStringLiteral("picPage"));
  EXPECT_TRUE(WaitFor([&] { return frame->horizontalScrollBar()->value() > 0; }));
}

TEST_F(RealWidths, ThePreviewHasTheWidthOfItsPage) {
  frmMain &page = OpenPage();
  Choose("mnuWidths");
  In<QToolButton>(page, "cmdWidth360").click();
  page.ChangeMode(4);
  frmBrowser &preview = *window.Context().preview;
  EXPECT_TRUE(IsSoWide(preview, 360));
  Choose("mnuZoomOut");
  EXPECT_TRUE(IsSoWide(preview, 360));
  EXPECT_EQ(Bytes(QStringLiteral("page.htm")), Page);
}

TEST_F(RealWidths, ThePreviewsRulerIsThatOfThePageThatALinkLedTo) {
  Write(QStringLiteral("other.htm"),
        "<!DOCTYPE html><style>@media (min-width: 700px) { p { margin: 0 } }</style><p>two</p>");
  Write(QStringLiteral("page.htm"),
        QByteArray(Page).replace(">one<", "><A HREF=other.htm>one two three</A><"));
  Write(QStringLiteral("wide.css"), Sheet);
  frmMain &page = Open(QStringLiteral("page.htm"));
  Choose("mnuWidths");
  page.ChangeMode(4);
  frmBrowser &preview = *window.Context().preview;
  const auto hasRuler = [&](const char *widths) {
    return In<QWidget>(preview, "picRuler").accessibleName().endsWith(QLatin1String(widths));
  };
  const auto &add = In<QPushButton>(preview, "cmdAddViewport");
  EXPECT_TRUE(WaitFor([&] { return hasRuler(": 600, 601, 768, 900, 1023"); }));
  EXPECT_TRUE(add.isVisible());
  // By a key: what a script leads away from is not gone back to.
  const QString link = QStringLiteral("document.querySelector('a')");
  ASSERT_TRUE(WaitFor([&] {
    return Evaluate(EngineOf(preview), link + QStringLiteral("?.matches(':any-link')")).toBool();
  }));
  Evaluate(EngineOf(preview), link + QStringLiteral(".focus()"));
  QTest::keyClick(preview.focusProxy()->focusProxy(), Qt::Key_Return);
  EXPECT_TRUE(WaitFor([&] { return hasRuler(": 700"); }));
  EXPECT_FALSE(add.isVisible()) << "it would be put into another page";
  window.Context().preview->ButtonClicked(QStringLiteral("Back"));
  EXPECT_TRUE(WaitFor([&] { return hasRuler(": 600, 601, 768, 900, 1023"); }));
  EXPECT_TRUE(add.isVisible());
}

TEST_F(RealWidths, APreviewAsAPhoneHasAPhonesScreenTouchAndNameAndTheEditedPageHasNot) {
  Write(
      QStringLiteral("phone.htm"),
      QByteArray(Page).replace(
          "</STYLE>",
          "</STYLE>\r\n<META NAME=viewport CONTENT=\"width=device-width\">\r\n<SCRIPT>"
          "const seen = document.documentElement.dataset; seen.points = navigator.maxTouchPoints;"
          "for (const type of ['touchend', 'click'])"
          " addEventListener(type, () => { seen.log = (seen.log ?? '') + type + ' ' })</SCRIPT>"));
  frmMain &page = Open(QStringLiteral("phone.htm"));
  page.ChangeMode(4);
  frmBrowser &preview = *window.Context().preview;
  Choose("mnuWidths");
  In<QToolButton>(preview, "cmdPhone").click();
  const QString phone = QStringLiteral(
      "document.documentElement.dataset.points === '5' && devicePixelRatio === 3 && 'ontouchstart' "
      "in window &&"
      "matchMedia('(pointer: coarse) and (hover: none)').matches &&"
      "navigator.userAgent.includes('Mobile')");
  EXPECT_TRUE(WaitFor([&] { return Evaluate(EngineOf(preview), phone).toBool(); }));
  EXPECT_TRUE(IsSoWide(preview, 412));
  EXPECT_EQ(Evaluate(EngineOf(preview), QStringLiteral("document.documentElement.clientWidth")),
            QVariant(412))
      << "a phone's scroll bars take no room";
  QTest::mouseClick(preview.focusProxy()->focusProxy(), Qt::LeftButton, {}, QPoint(100, 100));
  EXPECT_TRUE(WaitFor([&] {
    return Evaluate(EngineOf(preview), QStringLiteral("document.documentElement.dataset.log")) ==
           QStringLiteral("touchend click ");
  }));
  EXPECT_EQ(Evaluate(EngineOf(page), phone), QVariant(false));
  // Without a declaration a phone lays a page out as for a large screen.
  frmMain &other = Open(QStringLiteral("page.htm"), Page);
  other.ChangeMode(4);
  EXPECT_TRUE(WaitFor([&] {
    return Evaluate(EngineOf(preview), QStringLiteral("Math.abs(innerWidth - 980) < 2")).toBool();
  }));
  In<QToolButton>(preview, "cmdPhone").click();
  EXPECT_TRUE(WaitFor([&] {
    return Evaluate(EngineOf(preview),
                    QStringLiteral("navigator.maxTouchPoints === 0 && devicePixelRatio < 3 &&"
                                   "!navigator.userAgent.includes('Mobile')"))
        .toBool();
  }));
  EXPECT_EQ(Bytes(QStringLiteral("page.htm")), Page);
}

}  // namespace
}  // namespace velor
