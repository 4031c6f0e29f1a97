// SPDX-License-Identifier: GPL-3.0-or-later
// Where the element dialog's controls stand, and how keys and the window's size reach them.
#include "tests/insert/ElementDialogFixture.h"

#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QTabWidget>

namespace velor {
namespace {

/// Page, half and frame that hold a control, as "Image/General/Alternative".
QString PlaceOf(const QWidget *control) {
  QString place;
  QString frame;
  for (const QWidget *at = control; at; at = at->parentWidget()) {
    if (const auto *group = qobject_cast<const QGroupBox *>(at)) frame = group->title();
    if (const auto *tabs = qobject_cast<const QTabWidget *>(at)) {
      for (int i = 0; i < tabs->count(); ++i) {
        if (tabs->widget(i)->isAncestorOf(control)) place = tabs->tabText(i) + u'/' + place;
      }
    }
  }
  return place + frame;
}

TEST_F(ElementDialogTest, PutsEachControlOnItsPageAndInItsFrame) {
  const struct {
    const char *control, *place;
  } rows[] = {{"txtImgSource", "Image/General/"},
              {"cmdBrowseIMG", "Image/General/"},
              {"txtLowRes", "Image/General/Alternative"},
              {"cmdBrowseLowRes", "Image/General/Alternative"},
              {"txtAlt", "Image/General/Alternative"},
              {"picPreview", "Image/General/"},
              {"cobIMGAlign", "Image/Appearance/Layout"},
              {"txtIMGBorder", "Image/Appearance/Layout"},
              {"txtIMGHSpac", "Image/Appearance/Layout"},
              {"txtIMGVspac", "Image/Appearance/Layout"},
              {"chkIMGSize", "Image/Appearance/Size"},
              {"txtIMGHeight", "Image/Appearance/Size"},
              {"txtIMGWidth", "Image/Appearance/Size"},
              {"txtHref", "Hyperlink/"},
              {"cobATarget", "Hyperlink/"},
              {"cmdABrowse", "Hyperlink/"},
              {"cmdAEmail", "Hyperlink/Special Links:"},
              {"lstABookMark", "Hyperlink/Special Links:"},
              {"cmdRefreshA", "Hyperlink/Special Links:"},
              {"txtBookmarkName", "Target/"},
              {"lstOtherBookmark", "Target/"},
              {"cmdRefreshOther", "Target/"},
              {"txtVidSource", "Video/General/"},
              {"Command1", "Video/General/"},
              {"chkShowControl", "Video/General/"},
              {"txtVidLoop", "Video/General/Repeat"},
              {"chkForever", "Video/General/Repeat"},
              {"txtVidLoopDelay", "Video/General/Repeat"},
              {"chkVidOnOpen", "Video/General/Start"},
              {"chkVidMouseOver", "Video/General/Start"},
              {"chkMouseOver", "Video/General/"},
              {"cobVIDAlign", "Video/Appearance/Layout"},
              {"txtVIDBorder", "Video/Appearance/Layout"},
              {"txtVIDHSpac", "Video/Appearance/Layout"},
              {"txtVIDVspac", "Video/Appearance/Layout"},
              {"chkVIDSize", "Video/Appearance/Size"},
              {"txtVIDHeight", "Video/Appearance/Size"},
              {"txtVIDWidth", "Video/Appearance/Size"},
              {"cmdOK", ""},
              {"cmdCancel", ""}};
  for (const auto &row : rows) {
    EXPECT_EQ(PlaceOf(Get<QWidget>(row.control)), U(row.place)) << row.control;
  }
}

TEST_F(ElementDialogTest, EachVisibleMnemonicLeadsToOneControl) {
  for (const QString &kind : Kinds) {
    Show(kind.toUtf8().constData());
    for (int half : {0, 1}) {
      for (const char *halves : {"SSTab2", "SSTab3"})
        Get<QTabWidget>(halves)->setCurrentIndex(half);
      QStringList texts;
      for (const QAbstractButton *button : dialog.findChildren<QAbstractButton *>()) {
        if (button->isVisible()) texts.append(button->text());
      }
      for (const QLabel *label : dialog.findChildren<QLabel *>()) {
        if (label->isVisible()) texts.append(label->text());
      }
      QStringList keys;
      for (const QString &text : texts) {
        const QString key = QKeySequence::mnemonic(text).toString();
        if (!key.isEmpty()) keys.append(key);
      }
      // Both Browse buttons of the picture's page have the same caption.
      if (kind == u"image" && half == 0) {
        EXPECT_EQ(keys.count(U("Alt+B")), 2);
      }
      keys.removeAll(U("Alt+B"));
      EXPECT_EQ(keys.removeDuplicates(), 0) << kind.toStdString() << half;
    }
  }
}

TEST_F(ElementDialogTest, GoesThroughItsControlsInTheOrderOfTheEye) {
  const QStringList order = {
      U("SSTab1"),          U("SSTab2"),           U("txtImgSource"),    U("cmdBrowseIMG"),
      U("txtLowRes"),       U("cmdBrowseLowRes"),  U("txtAlt"),          U("cobIMGAlign"),
      U("txtIMGBorder"),    U("txtIMGHSpac"),      U("txtIMGVspac"),     U("chkIMGSize"),
      U("txtIMGHeight"),    U("txtIMGWidth"),      U("txtHref"),         U("cmdABrowse"),
      U("cobATarget"),      U("cmdAEmail"),        U("lstABookMark"),    U("cmdRefreshA"),
      U("txtBookmarkName"), U("lstOtherBookmark"), U("cmdRefreshOther"), U("SSTab3"),
      U("txtVidSource"),    U("Command1"),         U("chkShowControl"),  U("txtVidLoop"),
      U("chkForever"),      U("txtVidLoopDelay"),  U("chkVidOnOpen"),    U("chkVidMouseOver"),
      U("chkMouseOver"),    U("cobVIDAlign"),      U("txtVIDBorder"),    U("txtVIDHSpac"),
      U("txtVIDVspac"),     U("chkVIDSize"),       U("txtVIDHeight"),    U("txtVIDWidth"),
      U("cmdOK"),           U("cmdCancel")};
  EXPECT_EQ(TabOrder(dialog), order) << TabOrder(dialog).join(u' ').toStdString();
}

TEST_F(ElementDialogTest, GivesItsListsAndThePreviewTheRoomOfALargerWindow) {
  const struct {
    const char *mode, *grows;
  } rows[] = {
      {"image", "picPreview"}, {"hyperlink", "lstABookMark"}, {"target", "lstOtherBookmark"}};
  for (const auto &row : rows) {
    Show(row.mode);
    dialog.resize(dialog.minimumSizeHint().expandedTo(dialog.minimumSize()));
    QCoreApplication::sendPostedEvents();
    const QSize before = Get<QWidget>(row.grows)->size();
    dialog.resize(dialog.size() + QSize(200, 150));
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(Get<QWidget>(row.grows)->size(), before + QSize(200, 150)) << row.grows;
  }
}

TEST_F(ElementDialogTest, HoldsEveryPageWithoutCuttingItAtItsSmallest) {
  for (const QString &kind : Kinds) {
    Show(kind.toUtf8().constData());
    dialog.resize(1, 1);
    QCoreApplication::sendPostedEvents();
    for (const QWidget *control : dialog.findChildren<QWidget *>()) {
      if (!control->isVisible() || !qobject_cast<const QAbstractButton *>(control)) continue;
      EXPECT_GE(control->width(), control->minimumSizeHint().width())
          << control->objectName().toStdString();
    }
  }
}

}  // namespace
}  // namespace velor
