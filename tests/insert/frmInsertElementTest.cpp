// SPDX-License-Identifier: GPL-3.0-or-later
// The element dialog as it comes up: which controls there are, how they start and react.
#include "tests/insert/ElementDialogFixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>

#include <tuple>

namespace velor {
namespace {

TEST_F(ElementDialogTest, ShowsItsPagesAndButtons) {
  EXPECT_EQ(dialog.windowTitle(), U("Element Information..."));
  EXPECT_TRUE(dialog.isModal());
  const struct {
    const char *tabs;
    QStringList pages;
  } strips[] = {{"SSTab1", {U("Image"), U("Hyperlink"), U("Target"), U("Video")}},
                {"SSTab2", {U("General"), U("Appearance")}},
                {"SSTab3", {U("General"), U("Appearance")}}};
  for (const auto &strip : strips) {
    auto *tabs = Get<QTabWidget>(strip.tabs);
    QStringList pages;
    for (int i = 0; i < tabs->count(); ++i) pages.append(tabs->tabText(i));
    EXPECT_EQ(pages, strip.pages);
  }
  EXPECT_TRUE(Get<QTabWidget>("SSTab1")->widget(0)->isAncestorOf(Get<QTabWidget>("SSTab2")));
  EXPECT_TRUE(Get<QTabWidget>("SSTab1")->widget(3)->isAncestorOf(Get<QTabWidget>("SSTab3")));
  EXPECT_EQ(Get<QPushButton>("cmdOK")->text(), U("OK"));
  EXPECT_EQ(Get<QPushButton>("cmdCancel")->text(), U("Cancel"));
}

struct BoxCase {
  const char *name;
  const char *label;
  const char *value;
};

constexpr BoxCase Boxes[] = {
    {"txtImgSource", "Image Source:", ""},       {"txtLowRes", "Low Resolution:", ""},
    {"txtAlt", "Alternative Text:", ""},         {"txtIMGBorder", "Border thickness:", "0"},
    {"txtIMGHSpac", "Horizontal Spacing:", "0"}, {"txtIMGVspac", "Vertical Spacing:", "0"},
    {"txtIMGHeight", "Height:", "32"},           {"txtIMGWidth", "Width:", "32"},
    {"txtHref", "Anchor Element Href:", ""},     {"txtBookmarkName", "Bookmark Name: ", ""},
    {"txtVidSource", "Video Source:", ""},       {"txtVidLoop", "&Loop:", "1"},
    {"txtVidLoopDelay", "Loop &delay:", "0"},    {"txtVIDBorder", "Border thickness:", "1"},
    {"txtVIDHSpac", "Horizontal Spacing:", "0"}, {"txtVIDVspac", "Vertical Spacing:", "0"},
    {"txtVIDHeight", "Height:", "32"},           {"txtVIDWidth", "Width:", "32"}};

TEST_F(ElementDialogTest, LabelsAndFillsItsEighteenTextBoxes) {
  EXPECT_EQ(std::size(Boxes), 18U);
  for (const BoxCase &box : Boxes) {
    auto *control = Get<QLineEdit>(box.name);
    EXPECT_EQ(LabelOf(dialog, control), U(box.label));
    EXPECT_EQ(control->accessibleName(), U(box.label).remove(u'&'));
    EXPECT_EQ(control->text(), U(box.value));
  }
  EXPECT_TRUE(HasLabel(dialog, U("Milliseconds")));
}

TEST_F(ElementDialogTest, EnablesTheVideoSizeAtStartButNotTheImageSize) {
  EXPECT_FALSE(Get<QLineEdit>("txtIMGHeight")->isEnabled());
  EXPECT_FALSE(Get<QLineEdit>("txtIMGWidth")->isEnabled());
  Show("video");
  EXPECT_TRUE(Get<QLineEdit>("txtVIDHeight")->isEnabled());
  EXPECT_TRUE(Get<QLineEdit>("txtVIDWidth")->isEnabled());
}

TEST_F(ElementDialogTest, ShowsItsCheckBoxesUnchecked) {
  const struct {
    const char *name, *caption;
  } checks[] = {{"chkIMGSize", "Use &Specific Size"},
                {"chkShowControl", "&Show controls in Browser"},
                {"chkForever", "Forever"},
                {"chkVidOnOpen", "On file open"},
                {"chkVidMouseOver", "On mouse over"},
                {"chkMouseOver", "Start on &Mouse Over"},
                {"chkVIDSize", "Use &Specific Size"}};
  for (const auto &check : checks) {
    EXPECT_EQ(Get<QCheckBox>(check.name)->text(), U(check.caption));
    EXPECT_FALSE(Get<QCheckBox>(check.name)->isChecked()) << check.name;
  }
}

TEST_F(ElementDialogTest, ShowsItsFramesAndButtons) {
  QStringList frames;
  for (const QGroupBox *frame : dialog.findChildren<QGroupBox *>()) frames.append(frame->title());
  for (const char *title : {"Alternative", "Layout", "Size", "Special Links:", "Repeat", "Start"}) {
    EXPECT_TRUE(frames.contains(U(title))) << title;
  }
  const struct {
    const char *name, *caption;
  } buttons[] = {{"cmdBrowseIMG", "&Browse..."},
                 {"cmdBrowseLowRes", "&Browse..."},
                 {"Command1", "&Browse..."},
                 {"cmdRefreshA", "&Refresh"},
                 {"cmdRefreshOther", "&Refresh"}};
  for (const auto &button : buttons) {
    EXPECT_EQ(Get<QPushButton>(button.name)->text(), U(button.caption));
  }
  EXPECT_EQ(Get<QPushButton>("cmdABrowse")->toolTip(),
            U("Browse from your computer and Link to a file"));
  EXPECT_EQ(Get<QPushButton>("cmdAEmail")->toolTip(), U("Link to a E-mail Address"));
  EXPECT_EQ(LabelOf(dialog, Get<QListWidget>("lstABookMark")), U("Link to a Bookmark (Target):"));
  EXPECT_EQ(LabelOf(dialog, Get<QListWidget>("lstOtherBookmark")),
            U("Other bookmarks in this page:"));
}

TEST_F(ElementDialogTest, OffersElevenAlignmentsAndFiveFrames) {
  const QStringList alignments = {U("Default"), U("Left"),      U("Right"),     U("Top"),
                                  U("Texttop"), U("Middle"),    U("Absmiddle"), U("Baseline"),
                                  U("Botton"),  U("Absbottom"), U("Center")};
  const QStringList frames = {U("None"), U("_self"), U("_top"), U("_blank"), U("_parent")};
  const struct {
    const char *name, *label;
    QStringList items;
  } lists[] = {{"cobIMGAlign", "Alignment:", alignments},
               {"cobVIDAlign", "Alignment:", alignments},
               {"cobATarget", "Target Frame:", frames}};
  for (const auto &list : lists) {
    auto *box = Get<QComboBox>(list.name);
    QStringList items;
    for (int i = 0; i < box->count(); ++i) items.append(box->itemText(i));
    EXPECT_EQ(items, list.items);
    EXPECT_EQ(LabelOf(dialog, box), U(list.label));
    EXPECT_EQ(box->currentIndex(), 0);
  }
}

TEST_F(ElementDialogTest, IsStyledOnceWhenItLoads) {
  const CallLog once = {U("ThinEdgeByType(frmInsertElement, commandbutton)"),
                        U("ThinEdgeByType(frmInsertElement, textbox)"),
                        U("ThinEdgeByType(frmInsertElement, listbox)"),
                        U("FlatComboSweep(frmInsertElement)")};
  Show("image");
  dialog.hide();
  Show("video");
  EXPECT_EQ(log, once);
}

TEST_F(ElementDialogTest, SwitchesOffTheTargetAndVideoPagesWhenItLoads) {
  auto *pages = Get<QTabWidget>("SSTab1");
  EXPECT_TRUE(pages->isTabEnabled(0));
  EXPECT_TRUE(pages->isTabEnabled(1));
  EXPECT_FALSE(pages->isTabEnabled(2));
  EXPECT_FALSE(pages->isTabEnabled(3));
}

TEST_F(ElementDialogTest, BringsUpThePageOfTheKindAlone) {
  auto *pages = Get<QTabWidget>("SSTab1");
  for (const char *mode : {"video", "image", "target", "hyperlink", "image"}) {
    dialog.PrepareInsert(U(mode), component.Document(), {});
    const int page = static_cast<int>(Kinds.indexOf(U(mode)));
    EXPECT_EQ(pages->currentIndex(), page);
    for (int i = 0; i < pages->count(); ++i) EXPECT_EQ(pages->isTabEnabled(i), i == page);
  }
}

TEST_F(ElementDialogTest, TellsSavedPagesFromUnsavedOnes) {
  dialog.PrepareInsert(U("hyperlink"), component.Document(), U("\\site\\page.htm"));
  EXPECT_EQ(dialog.SavedMode, U("true"));
  EXPECT_EQ(dialog.FilePath, U("\\site\\page.htm"));
  EXPECT_EQ(dialog.InsertMode, U("true"));
  EXPECT_EQ(dialog.ElementMode, U("hyperlink"));
  EXPECT_TRUE(dialog.IsCreator);
  EXPECT_EQ(dialog.TheDOM, &component.Document());

  dialog.PrepareInsert(U("image"), component.Document(), {});
  EXPECT_EQ(dialog.SavedMode, U("false"));
  EXPECT_EQ(dialog.FilePath, U("\\site\\page.htm"));
}

TEST_F(ElementDialogTest, LetsTypingStartInThePagesFirstBox) {
  Show("image");
  EXPECT_EQ(dialog.focusWidget(), Get<QLineEdit>("txtImgSource"));
  dialog.hide();
  Show("target");
  EXPECT_EQ(dialog.focusWidget(), Get<QLineEdit>("txtBookmarkName"));
}

TEST_F(ElementDialogTest, LetsTypingStartInTheHalfInWhichAPageWasLeft) {
  for (const auto &[kind, halves, first] : {std::tuple{"image", "SSTab2", "cobIMGAlign"},
                                            std::tuple{"video", "SSTab3", "cobVIDAlign"}}) {
    Show(kind);
    Get<QTabWidget>(halves)->setCurrentIndex(1);
    dialog.hide();
    Show(kind);
    EXPECT_EQ(dialog.focusWidget(), Get<QComboBox>(first));
    dialog.hide();
  }
}

TEST_F(ElementDialogTest, RepairsTheSevenBoxesThatAreRepairedAndNoOthers) {
  const std::map<std::string, QString> repaired = {
      {"txtIMGBorder", U("0")},  {"txtIMGHSpac", U("0")},  {"txtIMGVspac", U("0")},
      {"txtIMGHeight", U("32")}, {"txtIMGWidth", U("32")}, {"txtVIDHeight", U("32")},
      {"txtVIDWidth", U("32")}};
  for (const BoxCase &box : Boxes) {
    auto *control = Get<QLineEdit>(box.name);
    const auto found = repaired.find(box.name);
    for (const char *typed : {"abc", ""}) {
      ShowBox(*control);
      control->setFocus();
      control->setText(U(typed));
      QTest::keyClick(control, Qt::Key_Tab);
      ASSERT_FALSE(control->hasFocus()) << box.name;
      EXPECT_EQ(control->text(), found == repaired.end() ? U(typed) : found->second) << box.name;
    }
  }
}

TEST_F(ElementDialogTest, LeavesEveryNumberAsItWasTyped) {
  for (const char *name : {"txtIMGBorder", "txtIMGHSpac", "txtIMGVspac", "txtIMGHeight",
                           "txtIMGWidth", "txtVIDHeight", "txtVIDWidth"}) {
    auto *control = Get<QLineEdit>(name);
    ShowBox(*control);
    for (const char *typed : {"2.5", "-5", " 7 ", "1e20", "+3"}) {
      control->setFocus();
      control->setText(U(typed));
      QTest::keyClick(control, Qt::Key_Tab);
      EXPECT_EQ(control->text(), U(typed)) << name;
    }
  }
}

TEST_F(ElementDialogTest, SelectsTheWholeTextOfEveryBoxThatIsReachedByTab) {
  for (const BoxCase &box : Boxes) {
    auto *control = Get<QLineEdit>(box.name);
    ShowBox(*control);
    control->setText(U("some text"));
    control->previousInFocusChain()->setFocus();
    for (int step = 0; step < 60 && !control->hasFocus(); ++step) {
      QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    }
    ASSERT_TRUE(control->hasFocus()) << box.name;
    EXPECT_EQ(control->selectedText(), U("some text")) << box.name;
  }
}

TEST_F(ElementDialogTest, SelectsTheWholeTextOfEveryBoxThatIsClicked) {
  for (const BoxCase &box : Boxes) {
    auto *control = Get<QLineEdit>(box.name);
    ShowBox(*control);
    Get<QAbstractButton>("cmdOK")->setFocus();
    control->setText(U("some text"));
    QTest::mouseClick(control, Qt::LeftButton, {}, QPoint(15, control->height() / 2));
    ASSERT_TRUE(control->hasFocus()) << box.name;
    EXPECT_EQ(control->selectedText(), U("some text")) << box.name;
  }
}

TEST_F(ElementDialogTest, EnablesTheSizeBoxesExactlyWhenChecked) {
  const struct {
    const char *mode, *check, *height, *width;
  } sizes[] = {{"image", "chkIMGSize", "txtIMGHeight", "txtIMGWidth"},
               {"video", "chkVIDSize", "txtVIDHeight", "txtVIDWidth"}};
  for (const auto &size : sizes) {
    Show(size.mode);
    for (bool checked : {true, false}) {
      Click(size.check);
      EXPECT_EQ(Get<QCheckBox>(size.check)->isChecked(), checked);
      EXPECT_EQ(Get<QLineEdit>(size.height)->isEnabled(), checked);
      EXPECT_EQ(Get<QLineEdit>(size.width)->isEnabled(), checked);
    }
  }
}

TEST_F(ElementDialogTest, DisablesTheLoopCountWhileForever) {
  Show("video");
  Click("chkForever");
  EXPECT_FALSE(Get<QLineEdit>("txtVidLoop")->isEnabled());
  Click("chkForever");
  EXPECT_TRUE(Get<QLineEdit>("txtVidLoop")->isEnabled());
}

}  // namespace
}  // namespace velor
