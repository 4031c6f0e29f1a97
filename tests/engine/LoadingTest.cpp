// SPDX-License-Identifier: GPL-3.0-or-later
// Pages of every name, size and content come up, with their pictures and styles.
#include "platform/EditingCommands.h"
#include "platform/RuntimeError.h"
#include "tests/engine/ComponentFixture.h"
#include "tests/support/MappedDrives.h"

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QTimer>
#include <QWebEngineView>

#include <gmock/gmock.h>

namespace velor {

namespace {

class Loading : public WebEditorTest {
 protected:
  void WritePicture(const QString &name) {
    QImage picture(3, 2, QImage::Format_RGB32);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(Native(name), "PNG"));
  }
  int PictureWidth() { return Evaluate(QStringLiteral("document.images[0].naturalWidth")).toInt(); }
  QString ParagraphColour() {
    return Evaluate(QStringLiteral("getComputedStyle(document.querySelector('p')).color"))
        .toString();
  }
};

TEST_F(Loading, PicturesAndStyleSheetsBesideThePageShow) {
  ASSERT_TRUE(QDir(folder_.path()).mkdir(QStringLiteral("images")));
  WritePicture(QStringLiteral("images/a b.png"));
  Write(QStringLiteral("style.css"), "p { color: rgb(1, 2, 3); }");
  editor_->LoadDocument(Write(QStringLiteral("page.htm"),
                              "<link rel=stylesheet href=style.css><p>x</p>"
                              "<img src=\"images/a b.png\">"));
  EXPECT_EQ(PictureWidth(), 3);
  EXPECT_EQ(ParagraphColour(), QStringLiteral("rgb(1, 2, 3)"));
}

TEST_F(Loading, LinksToFilesIgnoreCaseAndTakeEitherSlash) {
  ASSERT_TRUE(QDir(folder_.path()).mkdir(QStringLiteral("Images")));
  WritePicture(QStringLiteral("Images/Logo.PNG"));
  Write(QStringLiteral("Style.CSS"), "p { color: rgb(1, 2, 3); }");
  editor_->LoadDocument(Write(QStringLiteral("page.htm"),
                              "<link rel=stylesheet href=STYLE.css><p>x</p>"
                              "<img src=\"images\\logo.png\">"));
  EXPECT_EQ(PictureWidth(), 3);
  EXPECT_EQ(ParagraphColour(), QStringLiteral("rgb(1, 2, 3)"));
}

TEST_F(Loading, AnExactNameWinsOverOneThatDiffersInCase) {
  Write(QStringLiteral("style.css"), "p { color: rgb(1, 1, 1); }");
  Write(QStringLiteral("STYLE.css"), "p { color: rgb(2, 2, 2); }");
  editor_->LoadDocument(
      Write(QStringLiteral("page.htm"), "<link rel=stylesheet href=STYLE.css><p>x</p>"));
  EXPECT_EQ(ParagraphColour(), QStringLiteral("rgb(2, 2, 2)"));
}

TEST_F(Loading, APictureGivenByItsFileAddressShows) {
  WritePicture(QStringLiteral("a.png"));
  editor_->LoadDocument(Write(
      QStringLiteral("page.htm"),
      "<img src=\"" + QUrl::fromLocalFile(Native(QStringLiteral("a.png"))).toEncoded() + "\">"));
  EXPECT_EQ(PictureWidth(), 3);
}

TEST_F(Loading, APictureOnAMappedDriveShows) {
  WritePicture(QStringLiteral("a b.png"));
  const MappedDrives drives(QStringLiteral("C: ") + folder_.path());
  editor_->LoadDocument(
      Write(QStringLiteral("page.htm"), "<p>x</p><img src=\"file:///C:/a%20b.png\">"));
  EXPECT_EQ(PictureWidth(), 3);
}

TEST_F(Loading, LinksOfADocumentThatWasSetLeadToTheProgramFolder) {
  WritePicture(QStringLiteral("a.png"));
  editor_->SetDocumentHTML(QStringLiteral("<img src=\"a.png\">"));
  EXPECT_EQ(PictureWidth(), 3);
}

TEST_F(Loading, AFileWhoseLinkHasAQueryIsThatFile) {
  WritePicture(QStringLiteral("a.png"));
  QByteArray page;
  for (int number = 1; number < 300; ++number)
    page += "<img src=\"a.png?page=" + QByteArray::number(number) + "\">";
  editor_->LoadDocument(Write(QStringLiteral("page.htm"), page));
  EXPECT_TRUE(
      Evaluate(QStringLiteral("[...document.images].every(each => each.naturalWidth === 3)"))
          .toBool());
}

TEST_F(Loading, AFolderOrMissingFileAsPictureIsNoHarm) {
  editor_->LoadDocument(Write(QStringLiteral("page.htm"),
                              "<body background=\"\"><img src=\".\"><img src=\"none.gif\">"
                              "<img src=\"/dev/zero\"><p>x</p>"));
  EXPECT_TRUE(DocumentHolds(QStringLiteral("none.gif")));
}

class LoadingNames : public Loading, public ::testing::WithParamInterface<const char16_t *> {};

TEST_P(LoadingNames, APageOfAnyNameComesUpWithItsPictureAndIsSaved) {
  const QString name = QString::fromUtf16(GetParam());
  ASSERT_TRUE(QDir(folder_.path()).mkdir(name));
  WritePicture(name + QStringLiteral("/p.png"));
  const QString page = name + u'/' + name + QStringLiteral(".htm");
  editor_->LoadDocument(
      Write(page, "<html><head></head><body><p>x</p><img src=\"p.png\"></body></html>"));
  EXPECT_EQ(PictureWidth(), 3);
  editor_->Document().Selection().CreateRange()->PasteHTML(QStringLiteral("<b>new</b>"));
  editor_->SaveDocument(Logic(page));
  EXPECT_TRUE(Bytes(page).contains("<b>new</b>"));
}

INSTANTIATE_TEST_SUITE_P(Names, LoadingNames,
                         ::testing::Values(u"with blanks", u"a#b", u"100%", u"50%41", u"why?x=1",
                                           u"\"double\" 'single'", u"\u4e2d\u6587\u9801",
                                           u"back\\slash", u"semi;colon&amp", u"a.b.c", u"[x]{y}"));

class LoadingContents : public Loading, public ::testing::WithParamInterface<QByteArray> {};

TEST_P(LoadingContents, AnyContentMakesAPageAndIsSavedUnchanged) {
  editor_->LoadDocument(Write(QStringLiteral("page.htm"), GetParam()));
  EXPECT_TRUE(DocumentHolds(QStringLiteral("<body")) || DocumentHolds(QStringLiteral("<frameset")));
  editor_->SaveDocument(Logic(QStringLiteral("page.htm")));
  EXPECT_EQ(Bytes(QStringLiteral("page.htm")), GetParam());
  ASSERT_TRUE(WaitFor([&] { return listener_.completions == 1; }));
}

QByteArray EveryByte() {
  QByteArray bytes;
  for (int round = 0; round < 64; ++round)
    for (int value = 0; value < 256; ++value) bytes += static_cast<char>(value * 7 + round);
  return bytes;
}

INSTANTIATE_TEST_SUITE_P(
    Contents, LoadingContents,
    ::testing::Values(QByteArray(), QByteArray("\0", 1), EveryByte(), QByteArray("just text"),
                      QByteArray("\xef\xbb\xbf<p>marked"), QByteArray("\xff\xfe<\0p\0>\0x\0", 10),
                      QByteArray("<meta charset=no-such-charset><p>\x80\xff"),
                      QByteArray("<meta charset=big5><p>\xa4\xa4\xa4\xe5\xff\xff"),
                      QByteArray("<frameset cols='*,*'><frame src=a.htm><frame src=b.htm>"
                                 "</frameset>"),
                      QByteArray("<?xml version='1.0'?><!DOCTYPE html SYSTEM 'x'><p>x</p>"),
                      QByteArray("<plaintext>\r\n<p>x"), QByteArray("<script>never closed"),
                      QByteArray("<!-- only a comment -->"),
                      QByteArray("<meta http-equiv=Content-Security-Policy "
                                 "content=\"default-src 'none'\"><p>x")));

TEST_F(Loading, FiveMegabytesComeUp) {
  QByteArray page("<html><head></head><body>");
  while (page.size() < 5'000'000) page += "<p>One more <b>paragraph</b> of a very long page.</p>\n";
  editor_->LoadDocument(Write(QStringLiteral("long.htm"), page + "<p>The end</p></body></html>"));
  const QString html = editor_->DocumentHTML();
  EXPECT_GT(html.size(), 5'000'000);
  EXPECT_TRUE(html.contains(QStringLiteral("The end")));
}

TEST_F(Loading, TwentyMegabytesComeUpAndAreSavedUnchanged) {
  QByteArray page("<html><head></head><body><pre>");
  while (page.size() < 20'000'000) page += "a long line of a very long listing, without an end\r\n";
  editor_->LoadDocument(Write(QStringLiteral("long.htm"), page));
  editor_->SaveDocument(Logic(QStringLiteral("copy.htm")));
  EXPECT_EQ(Bytes(QStringLiteral("copy.htm")), page);
}

TEST_F(Loading, AComponentNeverUsedMakesNoView) {
  EXPECT_EQ(editor_->Widget()->findChild<QWebEngineView *>(), nullptr);
  EXPECT_EQ(editor_->QueryStatus(EditingCommand::Bold), CommandStatus::NotSupported);
  editor_->ExecCommand(EditingCommand::Bold, ExecOption::Default, {});
  EXPECT_EQ(editor_->Widget()->findChild<QWebEngineView *>(), nullptr);
}

TEST_F(Loading, AComponentShownWithoutADocumentShowsAnEmptyPage) {
  Show();
  ASSERT_TRUE(WaitFor([&] { return editor_->Widget()->findChild<QWebEngineView *>() != nullptr; }));
  EXPECT_EQ(editor_->DocumentHTML(), QStringLiteral("<html><head></head><body></body></html>"));
  EXPECT_EQ(listener_.completions, 0);
}

TEST_F(Loading, APageLoadedFromWithinAnotherLoadTakesItsPlace) {
  // The timer fires inside the first load's wait.
  const QString second = Write(QStringLiteral("second.htm"), "<p>second</p>");
  QTimer::singleShot(0, editor_->Widget(), [&] { editor_->LoadDocument(second); });
  editor_->LoadDocument(Write(QStringLiteral("first.htm"), "<p>first</p>"));
  EXPECT_TRUE(DocumentHolds(QStringLiteral("second")));
  ASSERT_TRUE(WaitFor([&] { return listener_.completions > 0; }));
  EXPECT_TRUE(DocumentHolds(QStringLiteral("second")));
}

TEST_F(Loading, APageClosedWhileItLoadsIsNoHarm) {
  const QString path = Write(QStringLiteral("page.htm"), "<p>x</p>");
  QTimer::singleShot(0, qApp, [&] { editor_.reset(); });
  editor_->LoadDocument(path);
  EXPECT_EQ(editor_, nullptr);
}

TEST_F(Loading, TheLoadedPageStealsNoFocus) {
  window_->show();
  window_->setFocusPolicy(Qt::StrongFocus);
  window_->setFocus();
  editor_->LoadDocument(Write(QStringLiteral("page.htm"), "<input autofocus><p>x</p>"));
  EXPECT_FALSE(Input()->hasFocus());
}

}  // namespace

}  // namespace velor
