// SPDX-License-Identifier: GPL-3.0-or-later
// What the element dialog does beyond the published behaviour.
#include "tests/insert/ElementDialogFixture.h"
#include "tests/support/Waiting.h"

#include <QCheckBox>
#include <QComboBox>
#include <QKeySequence>
#include <QLabel>
#include <QListWidget>
#include <QTabWidget>

namespace velor {
namespace {

TEST_F(ExtendedElementDialogTest, SaysThatTheAddressIsEmptyAndStays) {
  const QString before = component.DocumentHTML();
  const auto *refusal = Get<QLabel>("lblRefusal");
  const struct {
    const char *kind, *box, *words;
  } pages[] = {{"image", "txtImgSource", "Image Source is empty."},
               {"hyperlink", "txtHref", "Anchor Element Href is empty."},
               {"target", "txtBookmarkName", "Bookmark Name is empty."},
               {"video", "txtVidSource", "Video Source is empty."}};
  for (const auto &page : pages) {
    Show(page.kind);
    EXPECT_FALSE(refusal->isVisible());
    for (const char *halves : {"SSTab2", "SSTab3"}) Get<QTabWidget>(halves)->setCurrentIndex(1);
    Click("cmdOK");
    ASSERT_TRUE(dialog.isVisible()) << page.kind;
    EXPECT_EQ(refusal->text(), U(page.words));
    EXPECT_TRUE(refusal->isVisible());
    EXPECT_EQ(dialog.focusWidget(), Get<QLineEdit>(page.box));
    QTest::keyClicks(Get<QLineEdit>(page.box), U("x"));
    EXPECT_FALSE(refusal->isVisible());
    EXPECT_EQ(component.DocumentHTML(), before);
    Click("cmdCancel");
  }
}

TEST_F(ExtendedElementDialogTest, LinksPicturesOfUnusualNamesSoThatTheyAreFound) {
  const QString page = ToLogic(folder.filePath(U("page.htm")));
  const struct {
    const char *name, *link;
  } pictures[] = {{"a b'&50%.png", "a b'&50%.png"},     {"\u732b.png", "\u732b.png"},
                  {"pic #1.png", "pic %231.png"},       {"what?.png", "what%3F.png"},
                  {"50%25 off.png", "50%2525 off.png"}, {"\"a\".png", "%22a%22.png"}};
  for (const auto &picture : pictures) {
    dialog.PrepareInsert(U("image"), component.Document(), page);
    components.dialog->ExpectOpen(SavePicture(U(picture.name), {4, 2}));
    Click("cmdBrowseIMG");
    EXPECT_EQ(Text("txtImgSource"), U(picture.link));
  }
  EXPECT_TRUE(dialog.FullAddresses.empty());
}

TEST_F(ExtendedElementDialogTest, KnowsTheFullAddressesThatItHasWrittenIntoAPageWithoutAPath) {
  dialog.PrepareInsert(U("hyperlink"), component.Document(), {});
  components.dialog->ExpectOpen(U("\\site\\a #1.pdf"));
  Click("cmdABrowse");
  EXPECT_EQ(Text("txtHref"), U("file:////site/a %231.pdf"));
  ASSERT_EQ(dialog.FullAddresses.size(), 1U);
  EXPECT_EQ(dialog.FullAddresses[0].address, Text("txtHref"));
  EXPECT_EQ(dialog.FullAddresses[0].target, U("\\site\\a #1.pdf"));
  dialog.PrepareInsert(U("hyperlink"), component.Document(), {});
  EXPECT_TRUE(dialog.FullAddresses.empty());
}

TEST_F(ExtendedElementDialogTest, LeavesTheAddressWhereBrowseIsCancelled) {
  dialog.PrepareInsert(U("image"), component.Document(), {});
  components.dialog->ExpectOpen(SavePicture(U("a.png"), {30, 40}));
  components.dialog->ExpectCancelledOpen();
  Click("cmdBrowseIMG");
  const QString address = Text("txtImgSource");
  Click("cmdBrowseIMG");
  EXPECT_EQ(Text("txtImgSource"), address);
  EXPECT_EQ(Get<QLabel>("lblPreviewSize")->text(), U("30 × 40 pixels"));

  dialog.PrepareInsert(U("hyperlink"), component.Document(), {});
  Type("txtHref", "there.htm");
  components.dialog->ExpectCancelledOpen();
  Click("cmdABrowse");
  EXPECT_EQ(Text("txtHref"), U("there.htm"));
  Type("txtHref", "");
  components.dialog->ExpectCancelledOpen();
  Click("cmdABrowse");
  EXPECT_EQ(Text("txtHref"), U("file:///"));
}

/// A picture that is selected in the page.
HtmlElement SelectedPicture(const QString &source, const QString &width, const QString &height) {
  return {U("IMG"),
          {{U("src"), source}, {U("alt"), U("old")}, {U("width"), width}, {U("height"), height}}};
}

TEST_F(ExtendedElementDialogTest, BeginsAnewAtEachOpeningWithTheKeyboardInTheFirstBox) {
  for (const QString &kind : Kinds) {
    Show(kind.toUtf8().constData());
    for (auto *box : dialog.findChildren<QLineEdit *>()) {
      if (box->isVisible()) box->setText(U("9"));
    }
    for (auto *halves : dialog.findChildren<QTabWidget *>())
      if (halves->objectName() != u"SSTab1") halves->setCurrentIndex(1);
    Click("cmdCancel");
    Show(kind.toUtf8().constData());
    auto *first = qobject_cast<QLineEdit *>(dialog.focusWidget());
    ASSERT_NE(first, nullptr) << kind.toStdString();
    EXPECT_TRUE(first->isVisible()) << kind.toStdString();
    EXPECT_EQ(first->text(), QString()) << kind.toStdString();
    EXPECT_EQ(first->accessibleName().isEmpty(), false);
    Click("cmdCancel");
  }
}

TEST_F(ExtendedElementDialogTest, WritesAPictureWithItsTrueSizeInThePagesDialect) {
  Show("image", ToLogic(folder.filePath(U("page.htm"))).toUtf8().constData());
  components.dialog->ExpectOpen(SavePicture(U("a.png"), {60, 40}));
  Click("cmdBrowseIMG");
  EXPECT_EQ(Text("txtIMGHeight"), U("40"));
  EXPECT_EQ(Text("txtIMGWidth"), U("60"));
  Get<QComboBox>("cobIMGAlign")->setCurrentText(U("Left"));
  Click("cmdOK");
  EXPECT_TRUE(component.DocumentHTML().contains(
      U("one <IMG src=a.png align=Left height=40 width=60></BODY>")))
      << component.DocumentHTML().toStdString();
}

TEST_F(ExtendedElementDialogTest, LoadsThePreviewOfATypedAddressAfterAPause) {
  SavePicture(U("a #1.png"), {30, 20});
  Show("image", ToLogic(folder.filePath(U("page.htm"))).toUtf8().constData());
  QTest::keyClicks(Get<QLineEdit>("txtImgSource"), U("a %231.png"));
  const auto *size = Get<QLabel>("lblPreviewSize");
  EXPECT_EQ(size->text(), QString());
  EXPECT_TRUE(WaitFor([&] { return size->text() == U("30 × 20 pixels"); }));
  QTest::keyClicks(Get<QLineEdit>("txtImgSource"), U("x"));
  EXPECT_TRUE(WaitFor([&] { return size->text().isEmpty(); }));
  EXPECT_EQ(Get<QLabel>("picPreview")->text(), U("a #1.pngx cannot be shown as a picture."));
}

TEST_F(ExtendedElementDialogTest, KnowsTheSizeOfATypedPictureAtOnceWhereOkComesBeforeThePause) {
  SavePicture(U("a.png"), {30, 20});
  Show("image", ToLogic(folder.filePath(U("page.htm"))).toUtf8().constData());
  QTest::keyClicks(Get<QLineEdit>("txtImgSource"), U("a.png"));
  QTest::keyClick(Get<QLineEdit>("txtImgSource"), Qt::Key_Return);
  EXPECT_TRUE(component.DocumentHTML().contains(U("one <IMG src=a.png height=20 width=30></BODY>")))
      << component.DocumentHTML().toStdString();
}

TEST_F(ExtendedElementDialogTest, ShowsTheSelectedPictureAndChangesIt) {
  SavePicture(U("a.png"), {60, 40});
  const QString page = ToLogic(folder.filePath(U("page.htm")));
  dialog.PrepareInsert(U("image"), component.Document(), page);
  dialog.FillFrom({.picture = SelectedPicture(U("a.png"), U("30"), U("20"))});
  dialog.show();
  EXPECT_EQ(Text("txtImgSource"), U("a.png"));
  EXPECT_EQ(Text("txtAlt"), U("old"));
  EXPECT_TRUE(Get<QCheckBox>("chkIMGSize")->isChecked());
  EXPECT_EQ(Text("txtIMGWidth"), U("30"));
  EXPECT_EQ(Get<QLabel>("lblPreviewSize")->text(), U("60 × 40 pixels"));
  component.ForgetCalls();
  Click("cmdOK");
  EXPECT_TRUE(component.Calls().empty()) << component.Calls().front().toStdString();

  dialog.PrepareInsert(U("image"), component.Document(), page);
  dialog.FillFrom({.picture = SelectedPicture(U("a.png"), U("30"), U("20"))});
  dialog.show();
  Type("txtAlt", "new");
  Click("chkIMGSize");
  Click("cmdOK");
  ASSERT_EQ(component.Calls().size(), 1U);
  EXPECT_EQ(component.Calls()[0], U("ChangeObject(alt=new height=40 width=60, 0)"));
}

TEST_F(ExtendedElementDialogTest, CentresASelectedPictureOfAnOldPageByItsParagraph) {
  dialog.PrepareInsert(U("image"), component.Document(), {});
  dialog.FillFrom({.picture = SelectedPicture(U("a.png"), {}, {})});
  Get<QComboBox>("cobIMGAlign")->setCurrentText(U("Center"));
  Click("cmdOK");
  ASSERT_EQ(component.Calls().size(), 1U);
  EXPECT_EQ(component.Calls()[0], U("ChangeObject(, 2)"));
}

TEST_F(ExtendedElementDialogTest, MakesALinkWithFrameTitleAndBookmark) {
  Show("hyperlink");
  dialog.FillFrom({.bookmarks = [](const QString &address) {
    return address.isEmpty() ? QStringList{U("top"), U("end")} : QStringList{U("there")};
  }});
  auto *list = Get<QListWidget>("lstABookMark");
  ASSERT_EQ(list->count(), 2);
  list->setFocus(Qt::TabFocusReason);
  EXPECT_EQ(Text("txtHref"), QString()) << "the keyboard alone chooses nothing";
  list->setCurrentRow(1);
  EXPECT_EQ(Text("txtHref"), U("#end"));
  Type("txtHref", "other.htm");
  Click("cmdRefreshA");
  ASSERT_EQ(list->count(), 1);
  list->setCurrentRow(0);
  EXPECT_EQ(Text("txtHref"), U("other.htm#there"));
  Type("txtATitle", "A hint");
  Get<QComboBox>("cobATarget")->setCurrentText(U("_blank"));
  component.ForgetCalls();
  Click("cmdOK");
  ASSERT_EQ(component.Calls().size(), 1U);
  EXPECT_EQ(component.Calls()[0],
            U("SetLink(href=other.htm#there target=_blank title=A hint, other.htm#there)"));
}

TEST_F(ExtendedElementDialogTest, ShowsTheLinkThatIsThereAndTakesItOffWithoutAnAddress) {
  Show("hyperlink");
  dialog.FillFrom(
      {.link = {U("A"),
                {{U("href"), U("a.htm")}, {U("target"), U("main")}, {U("title"), U("t")}}}});
  EXPECT_EQ(Text("txtHref"), U("a.htm"));
  EXPECT_EQ(Text("txtATitle"), U("t"));
  EXPECT_EQ(Get<QComboBox>("cobATarget")->currentText(), U("main"));
  Type("txtHref", "");
  component.ForgetCalls();
  Click("cmdOK");
  ASSERT_EQ(component.Calls().size(), 1U);
  EXPECT_EQ(component.Calls()[0], U("SetLink(href= target=main title=t, )"));
}

TEST_F(ExtendedElementDialogTest, PutsAMailAddressInAsTheTextOfItsLink) {
  Show("hyperlink");
  Type("txtHref", "mailto:a@b.org");
  component.ForgetCalls();
  Click("cmdOK");
  ASSERT_EQ(component.Calls().size(), 1U);
  EXPECT_EQ(component.Calls()[0], U("SetLink(href=mailto:a@b.org target= title=, a@b.org)"));
}

TEST_F(ExtendedElementDialogTest, NamesAPlaceOnceOnly) {
  Show("target");
  dialog.FillFrom({.bookmarks = [](const QString &) { return QStringList{U("top")}; }});
  EXPECT_EQ(Get<QListWidget>("lstOtherBookmark")->count(), 1);
  const auto *refusal = Get<QLabel>("lblRefusal");
  component.ForgetCalls();
  Type("txtBookmarkName", "top");
  Click("cmdOK");
  EXPECT_EQ(refusal->text(), U("The page has a bookmark of this name already."));
  Type("txtBookmarkName", "two words");
  Click("cmdOK");
  EXPECT_EQ(refusal->text(), U("A bookmark's name has no blanks."));
  EXPECT_TRUE(component.Calls().empty());
  Type("txtBookmarkName", "end");
  Click("cmdOK");
  EXPECT_FALSE(dialog.isVisible());
  ASSERT_EQ(component.Calls().size(), 1U);
  EXPECT_EQ(component.Calls()[0], U("SetBookmark(end)"));
}

TEST_F(ExtendedElementDialogTest, WritesAVideoIntoHtml5PagesOnly) {
  Show("video", "\\site\\page.htm");
  components.dialog->ExpectOpen(U("\\site\\film #1.mp4"));
  components.dialog->ExpectOpen(U("\\site\\film.jpg"));
  Click("Command1");
  Click("cmdBrowsePoster");
  EXPECT_EQ(Text("txtVidSource"), U("film %231.mp4"));
  EXPECT_EQ(Text("txtVidPoster"), U("film.jpg"));
  Click("cmdOK");
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(Get<QLabel>("lblRefusal")->text(),
            U("Only pages that begin with <!DOCTYPE html> can hold a video."));
  Show("video");
  dialog.FillFrom({.dialect = Dialect::Styles});
  Type("txtVidSource", "film.mp4");
  Type("txtVidPoster", "film.jpg");
  Click("chkForever");
  Click("cmdOK");
  EXPECT_TRUE(component.DocumentHTML().contains(
      U("one <VIDEO src=film.mp4 poster=film.jpg controls loop></VIDEO></BODY>")))
      << component.DocumentHTML().toStdString();
}

TEST_F(ExtendedElementDialogTest, EachControlHasANameAndEachVisibleMnemonicLeadsToOneControl) {
  for (const char *name : {"txtATitle", "txtVidPoster", "cmdBrowsePoster"})
    EXPECT_FALSE(Get<QWidget>(name)->accessibleName().isEmpty()) << name;
  for (const QString &kind : Kinds) {
    Show(kind.toUtf8().constData());
    QStringList keys;
    for (const QWidget *control : dialog.findChildren<QWidget *>()) {
      const auto *button = qobject_cast<const QAbstractButton *>(control);
      const auto *label = qobject_cast<const QLabel *>(control);
      if (!control->isVisible() || (button == nullptr && label == nullptr)) continue;
      const QString key =
          QKeySequence::mnemonic(button != nullptr ? button->text() : label->text()).toString();
      if (!key.isEmpty()) keys << key;
    }
    // Both Browse buttons of the picture's page have the published caption.
    if (kind == u"image") keys.removeOne(U("Alt+B"));
    EXPECT_EQ(keys.removeDuplicates(), 0) << kind.toStdString();
  }
}

}  // namespace
}  // namespace velor
