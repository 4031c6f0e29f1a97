// SPDX-License-Identifier: GPL-3.0-or-later
// What a window of 480 pixels still offers.
#include "app/window/ChoiceBox.h"
#include "app/window/GeneralToolbar.h"
#include "app/window/PageChooser.h"
#include "app/window/PageTabs.h"
#include "chrome/ColorPicker.h"
#include "chrome/FontPicker.h"
#include "editor/EditCommands.h"
#include "editor/frmBrowser.h"
#include "editor/frmMain.h"
#include "tests/app/window/WindowFixture.h"
#include "tests/support/FakeRegistry.h"

#include <QTest>
#include <QToolBar>

#include <algorithm>

namespace velor {
namespace {

constexpr int Narrow = 480;
/// Room for the picture and some letters.
constexpr int ReadableTab = 72;

class NarrowWindow : public WindowFixture {
 protected:
  NarrowWindow() {
    window.resize(Narrow, 600);
    QCoreApplication::processEvents();
  }

  bool IsSeen(const QWidget *widget) const {
    const QRect place(widget->mapTo(&window, QPoint()), widget->size());
    return widget->isVisible() && window.rect().contains(place);
  }
  /// What a bar's overflow menu holds now.
  QMenu &Overflow(const char *bar) {
    auto *more =
        Find<QToolBar>(bar)->findChild<QToolButton *>(QStringLiteral("qt_toolbar_ext_button"));
    EXPECT_TRUE(IsSeen(more)) << bar;
    EXPECT_NE(more->menu(), nullptr) << bar;
    return *more->menu();
  }
};

TEST_F(NarrowWindow, TheWindowGetsAsNarrowAsThat) {
  EXPECT_EQ(window.width(), Narrow);
}

TEST_F(NarrowWindow, EveryButtonStandsInItsBarOrInTheBarsOverflowMenu) {
  const auto isThere = [this](const char *bar, const QByteArray &key) {
    const QString name = QString::fromLatin1(bar) + u'_' + QString::fromLatin1(key);
    const QWidget *button = window.findChild<QToolButton *>(name);
    if (button != nullptr && IsSeen(button)) return true;
    const QList<QAction *> more = Overflow(bar).actions();
    return std::any_of(more.begin(), more.end(),
                       [&name](const QAction *action) { return action->objectName() == name; });
  };
  for (const GeneralButton &row : GeneralButtons)
    EXPECT_TRUE(isThere("tbrGeneral", row.key)) << row.key;
  for (const EditCommand &row : EditCommands)
    EXPECT_TRUE(isThere("tbrEdit", row.key.toLatin1())) << row.key.toLatin1().constData();
}

TEST_F(NarrowWindow, TheBoxesAreSeenAndTheColoursStandInTheOverflowMenu) {
  for (const char *box : {"cobFormat", "Font1", "cobSize"})
    EXPECT_TRUE(IsSeen(Find<QWidget>(box))) << box;
  NewPage();
  EXPECT_FALSE(IsSeen(Find<ColorPicker>("cpFore")));
  QMenu &more = Overflow("tbrEdit");
  more.popup(QPoint());
  const QList<ColorPicker *> colours = more.findChildren<ColorPicker *>();
  ASSERT_EQ(colours.size(), 2);
  EXPECT_EQ(colours.at(0)->accessibleName(), QStringLiteral("Text Color"));
  EXPECT_EQ(colours.at(1)->accessibleName(), QStringLiteral("Background Color"));
  log.clear();
  Q_EMIT colours.at(0)->ColorChosen(0x0000FF);
  EXPECT_EQ(Commands().size(), 1) << "the page has the colour";
  EXPECT_FALSE(more.isVisible());
}

TEST_F(NarrowWindow, ThePageChooserIsAButtonAndATabIsReadable) {
  NewPage();
  NewPage();
  QCoreApplication::processEvents();
  EXPECT_LE(Find<PageChooser>("CmbPages")->width(), Tabs().height());
  EXPECT_GE(Tabs().tabRect(0).width(), ReadableTab);
  EXPECT_TRUE(IsSeen(&Tabs()));
  window.resize(1180, 600);
  QCoreApplication::processEvents();
  EXPECT_GE(Find<PageChooser>("CmbPages")->width(), 200);
}

TEST_F(NarrowWindow, TheWidthsBarCutsNoControlAndIsOneRowAgainWhereThereIsRoom) {
  frmMain &page = NewPage();
  Component(page).properties[PropertySubject::Page] = {
      {QStringLiteral("dialect"), QStringLiteral("html5")}};
  page.ChangeMode(4);
  Choose("mnuWidths");
  QWidget &preview = *window.Context().preview;
  const auto &bar = *preview.findChild<QWidget *>(QStringLiteral("picWidths"));
  const auto part = [&](const char *name) {
    return bar.findChild<QWidget *>(QString::fromLatin1(name));
  };
  const auto middle = [&](const char *name) {
    return part(name)->mapTo(&bar, part(name)->rect().center()).y();
  };
  QCoreApplication::processEvents();
  for (const char *name :
       {"cmdAddViewport", "cmdWidth0", "cmdWidth1280", "numWidth", "cmdPhone", "cmdCloseWidths"}) {
    EXPECT_TRUE(IsSeen(part(name))) << name;
    EXPECT_GE(part(name)->width(), part(name)->minimumSizeHint().width()) << name;
  }
  EXPECT_GT(part("lblWidth")->width(), 100);
  window.resize(1600, 600);
  QCoreApplication::processEvents();
  EXPECT_NEAR(middle("cmdWidth0"), middle("cmdCloseWidths"), 1);
  EXPECT_GE(part("lblWidth")->width(), part("lblWidth")->sizeHint().width());
}

}  // namespace
}  // namespace velor
