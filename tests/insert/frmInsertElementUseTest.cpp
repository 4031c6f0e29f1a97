// SPDX-License-Identifier: GPL-3.0-or-later
// What the element dialog does: links to files and addresses, and markup for the page.
#include "tests/insert/ElementDialogFixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>

namespace velor {
namespace {

TEST_F(ElementDialogTest, LinksAPictureRelativeToTheSavedPage) {
  const QString picture = SavePicture(U("a b.png"), {640, 480});
  const QString page = ToLogic(folder.filePath(U("page.htm")));
  dialog.PrepareInsert(U("image"), component.Document(), page);
  components.dialog->ExpectOpen(picture);
  Click("cmdBrowseIMG");
  EXPECT_EQ(Text("txtImgSource"), U("a b.png"));
  EXPECT_EQ(components.dialog->shownFilter,
            U("All Image Files (*.jpg, *.gif, *.bmp, *.png, *.tif, *.wmf, *.tga)|"
              "*.jpg;*.jpeg;*.gif;*.bmp;*.png;*.tif;*.tiff;*.wmf;*.tga;*.ras;*.pcd;*.pcx;*.eps"));
  EXPECT_FALSE(Get<QLabel>("picPreview")->pixmap(Qt::ReturnByValue).isNull());
  EXPECT_EQ(Get<QLabel>("lblPreviewSize")->text(), U("640 × 480 pixels"));
}

TEST_F(ElementDialogTest, KeepsThePreviewOfThePictureInStepWithTheSource) {
  dialog.PrepareInsert(U("image"), component.Document(), {});
  const QString small = SavePicture(U("a.png"), {20, 10});
  const QString large = SavePicture(U("b.png"), {2000, 1000});
  for (const QString &picture : {large, small}) {
    components.dialog->ExpectOpen(picture);
    Click("cmdBrowseIMG");
    const QSize shown = Get<QLabel>("picPreview")->pixmap(Qt::ReturnByValue).size();
    EXPECT_EQ(shown.width(), 2 * shown.height());
    EXPECT_LE(shown.width(), Get<QLabel>("picPreview")->width());
  }
  EXPECT_EQ(Get<QLabel>("lblPreviewSize")->text(), U("20 × 10 pixels"));
}

TEST_F(ElementDialogTest, LinksPicturesOfUnusualNamesByTheirNames) {
  const QString page = ToLogic(folder.filePath(U("page.htm")));
  for (const char *name : {"a b.png", "a'b\".png", "50%.png", "a#b&c.png", "\u732b.png"}) {
    dialog.PrepareInsert(U("image"), component.Document(), page);
    components.dialog->ExpectOpen(SavePicture(U(name), {4, 2}));
    Click("cmdBrowseIMG");
    EXPECT_EQ(Text("txtImgSource"), U(name));
    EXPECT_EQ(Get<QLabel>("lblPreviewSize")->text(), U("4 \u00d7 2 pixels"));
  }
}

TEST_F(ElementDialogTest, LinksToAnotherDriveAbsolutelyWithoutAPicture) {
  dialog.PrepareInsert(U("hyperlink"), component.Document(), U("C:\\site\\page.htm"));
  components.dialog->ExpectOpen(U("D:\\docs\\a.pdf"));
  Click("cmdABrowse");
  EXPECT_EQ(Text("txtHref"), U("file:///D:/docs/a.pdf"));
}

TEST_F(ElementDialogTest, LinksAPictureAbsolutelyFromAnUnsavedPage) {
  const QString picture = SavePicture(U("a.png"), {10, 10});
  dialog.PrepareInsert(U("image"), component.Document(), {});
  components.dialog->ExpectOpen(picture);
  Click("cmdBrowseIMG");
  EXPECT_EQ(Text("txtImgSource"), U("file:///") + folder.filePath(U("a.png")));
}

TEST_F(ElementDialogTest, LoadsThePictureButFillsNothingForAnUnknownSavedMode) {
  const QString picture = SavePicture(U("a.png"), {10, 20});
  dialog.SavedMode = U("maybe");
  Type("txtImgSource", "before");
  components.dialog->ExpectOpen(picture);
  Click("cmdBrowseIMG");
  EXPECT_EQ(Text("txtImgSource"), U("before"));
  EXPECT_EQ(Get<QLabel>("lblPreviewSize")->text(), U("10 × 20 pixels"));
}

TEST_F(ElementDialogTest, SaysWhereThePictureWasThatAPictureCannotBeShown) {
  QFile file(folder.filePath(U("bad.png")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("no picture");
  file.close();
  dialog.PrepareInsert(U("image"), component.Document(), {});
  Type("txtImgSource", "before");
  QSignalSpy reports(&dialog, &frmInsertElement::Reported);
  QFile drawing(folder.filePath(U("drawing.wmf")));
  ASSERT_TRUE(drawing.open(QIODevice::WriteOnly));
  drawing.write(QByteArray::fromHex("d7cdc69a0000000000000000640064006000000000000000"));
  drawing.close();
  for (const char *name : {"bad.png", "missing.png", "drawing.wmf"}) {
    components.dialog->ExpectOpen(SavePicture(U("good.png"), {20, 10}));
    Click("cmdBrowseIMG");
    Type("txtImgSource", "before");
    components.dialog->ExpectOpen(ToLogic(folder.filePath(U(name))));
    Click("cmdBrowseIMG");
    EXPECT_EQ(Text("txtImgSource"), U("before"));
    EXPECT_EQ(Get<QLabel>("picPreview")->text(), U(name) + U(" cannot be shown as a picture."));
    EXPECT_TRUE(Get<QLabel>("picPreview")->pixmap(Qt::ReturnByValue).isNull());
    EXPECT_EQ(Get<QLabel>("lblPreviewSize")->text(), QString());
    EXPECT_TRUE(reports.last().first().toString().contains(U(name))) << name;
  }
  EXPECT_EQ(reports.count(), 3);
}

TEST_F(ElementDialogTest, TakesACancelledDialogAsTheEmptyName) {
  const QString picture = SavePicture(U("a.png"), {100, 100});
  for (const char *saved : {"\\site\\page.htm", ""}) {
    dialog.PrepareInsert(U("image"), component.Document(), U(saved));
    components.dialog->ExpectOpen(picture);
    components.dialog->ExpectCancelledOpen();
    Click("cmdBrowseIMG");
    Click("cmdBrowseIMG");
    EXPECT_EQ(Text("txtImgSource"), U("file:///"));
    EXPECT_TRUE(Get<QLabel>("picPreview")->pixmap(Qt::ReturnByValue).isNull());
    EXPECT_EQ(Get<QLabel>("lblPreviewSize")->text(), QString());
    std::int32_t image = 1;
    EXPECT_TRUE(dialog.GenerateCode(image).endsWith(U(" height=0 width=0>")));
  }
  EXPECT_EQ(components.made, 1);
}

TEST_F(ElementDialogTest, LinksToAnyFileWithoutLoadingIt) {
  dialog.PrepareInsert(U("hyperlink"), component.Document(), U("\\site\\page.htm"));
  components.dialog->ExpectOpen(U(R"(\site\docs\a.pdf)"));
  Click("cmdABrowse");
  EXPECT_EQ(Text("txtHref"), U("docs/a.pdf"));
  EXPECT_EQ(components.dialog->shownFilter, U("All Files *.*|*.*"));
  EXPECT_EQ(Text("txtImgSource"), QString());

  dialog.PrepareInsert(U("hyperlink"), component.Document(), {});
  components.dialog->ExpectCancelledOpen();
  Click("cmdABrowse");
  EXPECT_EQ(Text("txtHref"), U("file:///"));
}

TEST_F(ElementDialogTest, DoesNothingForItsInertButtons) {
  const struct {
    const char *mode, *name;
  } buttons[] = {{"image", "cmdBrowseLowRes"},
                 {"video", "Command1"},
                 {"hyperlink", "cmdRefreshA"},
                 {"target", "cmdRefreshOther"}};
  for (const auto &button : buttons) {
    Show(button.mode);
    EXPECT_TRUE(Get<QPushButton>(button.name)->isEnabled()) << button.name;
    Click(button.name);
  }
  EXPECT_EQ(Text("txtLowRes"), QString());
  EXPECT_EQ(Text("txtVidSource"), QString());
  EXPECT_EQ(Get<QListWidget>("lstABookMark")->count(), 0);
  EXPECT_EQ(Get<QListWidget>("lstOtherBookmark")->count(), 0);
  EXPECT_TRUE(dialog.isVisible());
}

TEST_F(ElementDialogTest, LinksToAMailAddressUnlessTheAnswerIsEmpty) {
  Show("hyperlink");
  dialogs.ExpectQuestion(U("Please enter the E-mail Address."), U("x"));
  dialogs.ExpectQuestion(U("Please enter the E-mail Address."), QString());
  log.clear();
  Click("cmdAEmail");
  EXPECT_EQ(log, CallLog{U("AskText(Please enter the E-mail Address., Link to a E-mail Address, "
                           "someone@example.com)")});
  EXPECT_EQ(Text("txtHref"), U("mailto:x"));
  Click("cmdAEmail");
  EXPECT_EQ(Text("txtHref"), U("mailto:x"));
}

TEST_F(ElementDialogTest, GeneratesThePictureFromItsBoxes) {
  Show("image");
  Type("txtImgSource", "a.gif");
  Type("txtAlt", "A picture");
  Type("txtLowRes", "low.gif");
  Get<QComboBox>("cobIMGAlign")->setCurrentText(U("Botton"));
  Type("txtIMGBorder", "1");
  Type("txtIMGHSpac", "2");
  Type("txtIMGVspac", "3");
  Click("chkIMGSize");
  Type("txtIMGHeight", "4");
  Type("txtIMGWidth", "5");
  std::int32_t image = 1;
  EXPECT_EQ(dialog.GenerateCode(image),
            U("<IMG src=a.gif alt=\"A picture\" lowsrc=low.gif align=Botton border=1 hspace=2 "
              "vspace=3 height=4 width=5>"));
}

TEST_F(ElementDialogTest, SizesThePictureByTheOneLoadedUnlessTheBoxesAreUsed) {
  const QString picture = SavePicture(U("a.png"), {200, 100});
  dialog.PrepareInsert(U("image"), component.Document(), {});
  components.dialog->ExpectOpen(picture);
  Click("cmdBrowseIMG");
  std::int32_t image = 1;
  EXPECT_TRUE(dialog.GenerateCode(image).endsWith(U(" height=88 width=176>")));
}

TEST_F(ElementDialogTest, MakesFreshElementsForTheOtherKinds) {
  Type("txtImgSource", "a.gif");
  for (std::int32_t kind : {0, 2, 3, 4, 5, -1}) EXPECT_EQ(dialog.GenerateCode(kind), QString());
  EXPECT_EQ(dialog.inHyperlink.tagName, U("A"));
  EXPECT_EQ(dialog.inTarget.tagName, U("A"));
  EXPECT_EQ(dialog.inVideo.tagName, U("IMG"));
  EXPECT_TRUE(dialog.inImage.IsNull());
}

TEST_F(ElementDialogTest, PutsThePictureInPlaceOfTheSelectionAndHides) {
  Show("image");
  Type("txtImgSource", "a.gif");
  Click("cmdOK");
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_TRUE(component.DocumentHTML().contains(U(
      "one <IMG src=a.gif alt=\"\" lowsrc=\"\" border=0 hspace=0 vspace=0 height=0 width=0></B")));
}

TEST_F(ElementDialogTest, RemovesTheSelectionWithoutASource) {
  Show("image");
  Click("cmdOK");
  EXPECT_TRUE(component.DocumentHTML().contains(U("one </B")));
}

TEST_F(ElementDialogTest, LeavesThePageAloneForEverythingElse) {
  const QString before = component.DocumentHTML();
  for (const QString &mode : Kinds) {
    dialog.PrepareInsert(mode, component.Document(), {});
    if (mode == u"image") dialog.InsertMode = U("false");
    dialog.show();
    Type("txtImgSource", "a.gif");
    Click("cmdOK");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(component.DocumentHTML(), before);
  }
}

TEST_F(ElementDialogTest, HidesWithoutAChangeWhenCancelled) {
  const QString before = component.DocumentHTML();
  Show("image");
  Type("txtImgSource", "a.gif");
  Click("cmdCancel");
  EXPECT_FALSE(dialog.isVisible());
  Show("image");
  QTest::keyClick(&dialog, Qt::Key_Escape);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(component.DocumentHTML(), before);
}

TEST_F(ElementDialogTest, IsFoundAsItWasLeft) {
  Show("image");
  components.dialog->ExpectOpen(SavePicture(U("a.png"), {30, 40}));
  Click("cmdBrowseIMG");
  Type("txtAlt", "left here");
  Type("txtIMGBorder", "abc");
  Click("chkIMGSize");
  Get<QComboBox>("cobIMGAlign")->setCurrentIndex(3);
  Get<QTabWidget>("SSTab2")->setCurrentIndex(1);
  Click("cmdOK");
  Show("image");
  EXPECT_EQ(Text("txtAlt"), U("left here"));
  EXPECT_EQ(Text("txtIMGBorder"), U("abc"));
  EXPECT_TRUE(Get<QCheckBox>("chkIMGSize")->isChecked());
  EXPECT_EQ(Get<QComboBox>("cobIMGAlign")->currentText(), U("Top"));
  EXPECT_EQ(Get<QLabel>("lblPreviewSize")->text(), U("30 × 40 pixels"));
  EXPECT_EQ(Get<QTabWidget>("SSTab2")->currentIndex(), 1);
}

TEST_F(ElementDialogTest, SaysWhatFailedWhenThePageCannotTakeThePicture) {
  Show("image");
  dialog.TheDOM = nullptr;
  QSignalSpy reports(&dialog, &frmInsertElement::Reported);
  Click("cmdOK");
  EXPECT_EQ(reports.count(), 1);
  EXPECT_FALSE(dialog.isVisible());
}

}  // namespace
}  // namespace velor
