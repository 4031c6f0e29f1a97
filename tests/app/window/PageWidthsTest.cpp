// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/PageFrame.h"
#include "editor/frmBrowser.h"
#include "editor/frmMain.h"
#include "tests/app/window/WidthGrip.h"
#include "tests/app/window/WindowFixture.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStatusBar>
#include <QTest>

namespace velor {
namespace {

TEST(FitPageTest, AViewOfWholePixelsShowsExactlyTheWidth) {
  for (const double zoom : {0.25, 0.33, 0.67, 0.9, 1.0, 1.1, 1.75, 5.0})
    for (const double ratio : {1.0, 1.25, 1.5, 2.0})
      for (const int width : {160, 360, 411, 1280}) {
        const PageFit fit = FitPage(width, zoom, ratio);
        SCOPED_TRACE(testing::Message() << width << " at " << zoom << " and " << ratio);
        EXPECT_DOUBLE_EQ(fit.pixels / fit.zoom, width);
        EXPECT_DOUBLE_EQ(fit.pixels * ratio, qRound(fit.pixels * ratio));
        EXPECT_NEAR(fit.zoom, zoom, 0.02);
        EXPECT_GE(fit.zoom, 0.25);
        EXPECT_LE(fit.zoom, 5);
      }
}

class PageWidthsTest : public WindowFixture {
 protected:
  explicit PageWidthsTest(Additions wanted = Additions::On) : WindowFixture(wanted) {
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }
  frmMain &OpenFile(const QString &path) {
    WriteFile(path);
    SharedDialog().ExpectOpen(path);
    Choose("mnuOpen");
    frmMain &page = *window.Context().pages.Page(window.Context().pages.PageCount());
    Component(page).CompleteDocument();
    QCoreApplication::processEvents();
    return page;
  }
  template <typename Widget>
  static Widget &In(QWidget &shown, const char *name) {
    return *shown.findChild<Widget *>(QString::fromLatin1(name));
  }
  static bool IsBarOpen(QWidget &shown) { return In<QWidget>(shown, "picWidths").isVisible(); }
  static QString Told(QWidget &shown) { return In<QLabel>(shown, "lblWidth").text(); }
  static int WidthOf(frmMain &page) { return page.DHTML1().Widget()->width(); }
  static void Say(frmMain &page, const PropertyValues &values) {
    Component(page).properties[PropertySubject::Page] = values;
  }
  void PressKey() { QTest::keyClick(&window, Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier); }
  static bool HasKeyboard(const QWidget &part) {
    return part.isAncestorOf(QApplication::focusWidget()) || QApplication::focusWidget() == &part;
  }
};

TEST_F(PageWidthsTest, TheKeyOpensTheBarAndAChoiceGivesTheKeyboardBackToThePage) {
  frmMain &page = NewPage();
  page.DHTML1().SetFocus();
  const int whole = WidthOf(page);
  EXPECT_FALSE(IsBarOpen(page));
  PressKey();
  EXPECT_TRUE(IsBarOpen(page));
  EXPECT_TRUE(HasKeyboard(In<QToolButton>(page, "cmdWidth0")));
  In<QToolButton>(page, "cmdWidth360").setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(WidthOf(page), 360);
  EXPECT_TRUE(HasKeyboard(*page.DHTML1().Widget()));
  EXPECT_EQ(Told(page), QStringLiteral("360 pixels wide"));
  EXPECT_TRUE(In<QToolButton>(page, "cmdWidth360").isChecked());
  EXPECT_FALSE(In<QToolButton>(page, "cmdWidth0").isChecked());
  QTest::mouseClick(&In<QToolButton>(page, "cmdWidth360"), Qt::LeftButton);
  EXPECT_TRUE(In<QToolButton>(page, "cmdWidth360").isChecked());
  EXPECT_TRUE(HasKeyboard(*page.DHTML1().Widget()));
  PressKey();
  EXPECT_FALSE(IsBarOpen(page));
  EXPECT_EQ(WidthOf(page), whole);
  EXPECT_TRUE(HasKeyboard(*page.DHTML1().Widget()));
}

TEST_F(PageWidthsTest, ABoxAndAGripChooseAnyWidth) {
  frmMain &page = NewPage();
  Choose("mnuWidths");
  auto &box = In<QSpinBox>(page, "numWidth");
  box.setFocus();
  box.selectAll();
  QTest::keyClicks(&box, QStringLiteral("500"));
  EXPECT_NE(WidthOf(page), 500) << "not before it is entered";
  QTest::keyClick(&box, Qt::Key_Return);
  EXPECT_EQ(WidthOf(page), 500);
  EXPECT_TRUE(HasKeyboard(*page.DHTML1().Widget()));
  WidthGrip(page).DragBy(20);
  EXPECT_EQ(WidthOf(page), 540) << "the edge stays under the pointer";
  EXPECT_EQ(box.value(), 540);
  box.setFocus();
  QTest::keyClick(&box, Qt::Key_Escape);
  EXPECT_TRUE(HasKeyboard(*page.DHTML1().Widget()));
  EXPECT_TRUE(IsBarOpen(page));
}

TEST_F(PageWidthsTest, ADragIsKeptOnceAtItsEnd) {
  frmMain &page = OpenFile(QStringLiteral("\\site\\a.htm"));
  Choose("mnuWidths");
  In<QSpinBox>(page, "numWidth").setValue(500);
  const qsizetype before = registry.Writes().size();
  WidthGrip grip(page);
  for (int step = 0; step < 3; ++step) grip.DragBy(10);
  EXPECT_EQ(WidthOf(page), 560);
  EXPECT_EQ(registry.Writes().size(), before);
  grip.Release();
  EXPECT_EQ(registry.Writes().mid(before),
            QStringList(QStringLiteral("Software\\Company\\VelorCDMaker\\widths\\%5Csite=560")));
  WidthGrip(page).Release();
  EXPECT_EQ(registry.Writes().size(), before + 1) << "nothing was dragged";
}

TEST_F(PageWidthsTest, TheRulerGoesToTheWidthsAtWhichThePageChanges) {
  frmMain &page = NewPage();
  Say(page, {{QStringLiteral("breakpoints"), QStringLiteral("480 601 9000")},
             {QStringLiteral("viewport"), QStringLiteral("width=device-width")}});
  Choose("mnuWidths");
  auto &ruler = In<QWidget>(page, "picRuler");
  ASSERT_TRUE(ruler.isVisible());
  EXPECT_EQ(ruler.accessibleName(),
            QStringLiteral("Widths at which the page changes: 480, 601, 9000"));
  const int middle = ruler.width() / 2;
  QTest::mouseClick(&ruler, Qt::LeftButton, {}, QPoint(middle + 300, 5));
  EXPECT_EQ(WidthOf(page), 601);
  QTest::mouseClick(&ruler, Qt::LeftButton, {}, QPoint(middle - 240, 5));
  EXPECT_EQ(WidthOf(page), 480);
  QTest::mouseClick(&ruler, Qt::LeftButton, {}, QPoint(middle, 5));
  EXPECT_EQ(WidthOf(page), 480);
  ruler.setFocus();
  QTest::keyClick(&ruler, Qt::Key_Right);
  EXPECT_EQ(WidthOf(page), 601);
  QTest::keyClick(&ruler, Qt::Key_Left);
  QTest::keyClick(&ruler, Qt::Key_Left);
  EXPECT_EQ(WidthOf(page), 480);
  EXPECT_TRUE(ruler.hasFocus());
  QTest::keyClick(&ruler, Qt::Key_Escape);
  EXPECT_TRUE(HasKeyboard(*page.DHTML1().Widget()));
}

TEST_F(PageWidthsTest, TheWidthStaysTrueWhenThePageIsZoomed) {
  frmMain &page = NewPage();
  Choose("mnuWidths");
  In<QToolButton>(page, "cmdWidth412").click();
  Choose("mnuZoomOut");
  Choose("mnuZoomOut");
  Choose("mnuZoomOut");
  Choose("mnuZoomOut");
  EXPECT_EQ(WidthOf(page), 276);
  EXPECT_DOUBLE_EQ(WidthOf(page) / Component(page).zoom, 412);
  EXPECT_TRUE(Find<QLabel>("Sta_2")->text().endsWith(QStringLiteral("67 %")));
  EXPECT_EQ(Told(page), QStringLiteral("412 pixels wide"));
}

TEST_F(PageWidthsTest, TheChoiceIsOfTheSiteAndComesBack) {
  frmMain &first = OpenFile(QStringLiteral("\\site\\a.htm"));
  Choose("mnuWidths");
  In<QToolButton>(first, "cmdWidth768").click();
  frmMain &second = OpenFile(QStringLiteral("\\site\\b.htm"));
  EXPECT_TRUE(IsBarOpen(second));
  EXPECT_EQ(WidthOf(second), 768);
  files.AddFolder(QStringLiteral("\\other"));
  frmMain &other = OpenFile(QStringLiteral("\\other\\c.htm"));
  EXPECT_FALSE(IsBarOpen(other));
  Parts().windows.Activate(&second);
  In<QToolButton>(second, "cmdWidth0").click();
  Parts().windows.Activate(&first);
  EXPECT_TRUE(IsBarOpen(first));
  EXPECT_GT(WidthOf(first), 768);
  In<QPushButton>(first, "cmdCloseWidths").click();
  Parts().windows.Activate(&second);
  EXPECT_FALSE(IsBarOpen(second));
}

TEST_F(PageWidthsTest, ThePreviewHasTheSameBarAndASourceHasNone) {
  frmMain &page = OpenFile(QStringLiteral("\\site\\a.htm"));
  Choose("mnuWidths");
  In<QToolButton>(page, "cmdWidth360").click();
  page.ChangeMode(2);
  EXPECT_FALSE(IsBarOpen(page));
  Choose("mnuWidths");
  EXPECT_EQ(Find<QStatusBar>("Sta")->currentMessage(),
            QStringLiteral("Pages in design view and previews have a width"));
  page.ChangeMode(1);
  EXPECT_TRUE(IsBarOpen(page));
  page.ChangeMode(4);
  frmBrowser &preview = *window.Context().preview;
  EXPECT_TRUE(IsBarOpen(preview));
  QWidget &shown = *preview.WebBrowser().Widget();
  EXPECT_EQ(shown.width(), 360);
  QCoreApplication::processEvents();
  const auto &bar = In<QWidget>(preview, "picWidths");
  EXPECT_EQ(shown.mapTo(&preview, QPoint()).y(), bar.geometry().bottom() + 1);
  Choose("mnuWidths");
  EXPECT_GT(shown.width(), 360);
}

TEST_F(PageWidthsTest, AMissingViewportIsToldOnlyOfPagesForPhonesAndAddedAsAProperty) {
  frmMain &page = NewPage();
  Say(page, {{QStringLiteral("dialect"), QStringLiteral("old")}});
  Choose("mnuWidths");
  auto &add = In<QPushButton>(page, "cmdAddViewport");
  EXPECT_FALSE(add.isVisible());
  Choose("mnuWidths");
  Say(page, {{QStringLiteral("dialect"), QStringLiteral("old")},
             {QStringLiteral("breakpoints"), QStringLiteral("600")}});
  Choose("mnuWidths");
  EXPECT_TRUE(add.isVisible());
  EXPECT_EQ(Told(page),
            QStringLiteral("Phones show this page small: it has no viewport declaration"));
  log.clear();
  add.click();
  EXPECT_TRUE(std::any_of(log.begin(), log.end(), [](const QString &call) {
    return call.contains(QStringLiteral("width=device-width, initial-scale=1"));
  }));
  Say(page, {{QStringLiteral("breakpoints"), QStringLiteral("600")},
             {QStringLiteral("viewport"), QStringLiteral("width=device-width")}});
  Component(page).Edit(QStringLiteral("<head><meta name=viewport></head><body></body>"));
  EXPECT_FALSE(add.isVisible()) << "the page has it now";
  EXPECT_TRUE(Told(page).endsWith(QStringLiteral("pixels wide")));
}

TEST_F(PageWidthsTest, APreviewBecomesAPhonesAndTheSiteKeepsIt) {
  frmMain &page = OpenFile(QStringLiteral("\\site\\a.htm"));
  Choose("mnuWidths");
  EXPECT_TRUE(In<QToolButton>(page, "cmdPhone").isHidden()) << "nothing is told to an edited page";
  page.ChangeMode(4);
  frmBrowser &preview = *window.Context().preview;
  FakeBrowser &browser = *components.browsers.at(0);
  EXPECT_EQ(browser.device, Browser::Device::Desktop);
  In<QToolButton>(preview, "cmdPhone").click();
  EXPECT_EQ(browser.device, Browser::Device::Phone);
  EXPECT_EQ(preview.WebBrowser().Widget()->width(), 412);
  Parts().windows.Activate(&page);
  In<QToolButton>(page, "cmdWidth360").click();
  Parts().windows.Activate(&preview);
  EXPECT_EQ(browser.device, Browser::Device::Phone);
  EXPECT_EQ(preview.WebBrowser().Widget()->width(), 360);
  Choose("mnuWidths");
  EXPECT_EQ(browser.device, Browser::Device::Desktop);
}

class PublishedWidthsTest : public PageWidthsTest {
 protected:
  PublishedWidthsTest() : PageWidthsTest(Additions::Off) {}
};

TEST_F(PublishedWidthsTest, AKeptWidthIsNotShownWithThePublishedBehaviourOnly) {
  registry.SetText(QStringLiteral("Software\\Company\\VelorCDMaker\\widths"),
                   QStringLiteral("%5Csite"), QStringLiteral("360"));
  frmMain &page = OpenFile(QStringLiteral("\\site\\a.htm"));
  EXPECT_FALSE(IsBarOpen(page));
  EXPECT_GT(WidthOf(page), 360);
}

}  // namespace
}  // namespace velor
