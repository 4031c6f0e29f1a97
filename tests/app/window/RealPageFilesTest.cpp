// SPDX-License-Identifier: GPL-3.0-or-later
// A person at the whole window: pages saved, previewed and closed, and what then lies on the disk.
#include "app/settings/modSettingManager.h"
#include "app/window/PageTabs.h"
#include "editor/PageSlots.h"
#include "editor/frmBrowser.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "editor/modWorkFlow.h"
#include "tests/app/window/RealWindowFixture.h"
#include "tests/engine/ComponentFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QWebEnginePage>

#include <unistd.h>

namespace velor {
namespace {

const QByteArray Plain = "<html><head></head><body>\r\n<p>One</p>\r\n</body></html>";
const QString PageFile = QStringLiteral("page.htm");
const QString PageCopy = QStringLiteral("pageTMP.htm");
const QString SaveQuestion =
    QStringLiteral("You have made changes to this document. Do you want to save it?");

class RealPageFiles : public RealWindow {
 protected:
  PageRecord &Record(int number) { return window.Context().pages.Record(number); }
  /// What the preview shows, once it shows `text`.
  bool PreviewShows(const QString &text) {
    return WaitFor([&] {
      return Evaluate(EngineOf(*window.Context().preview),
                      QStringLiteral("document.body ? document.body.innerText : ''"))
          .toString()
          .contains(text);
    });
  }
};

TEST_F(RealPageFiles, TypedTextIsSavedByTheKeyPressedInThePage) {
  frmMain &page = Open(PageFile, Plain);
  PutCaret(page, QStringLiteral("p"));
  Type(page, QStringLiteral("xy"));
  Key(page, Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(Bytes(PageFile), "<html><head></head><body>\r\n<p>Oxyne</p>\r\n</body></html>");
  EXPECT_TRUE(page.close());
}

TEST_F(RealPageFiles, TypedTextIsSavedWhenTheKeyboardHasJustLeftThePage) {
  frmMain &page = Open(PageFile, Plain);
  PutCaret(page, QStringLiteral("p"));
  Type(page, QStringLiteral("xy"));
  Tabs().setFocus();
  ASSERT_FALSE(InputOf(page)->hasFocus());
  Choose("mnuSave");
  EXPECT_TRUE(Bytes(PageFile).contains("<p>Oxyne</p>")) << Bytes(PageFile).constData();
}

TEST_F(RealPageFiles, AFormattedPageIsSavedAndOpenedAgainAsItWas) {
  frmMain &page = Open(PageFile, Plain);
  Choose("mnuSelectAll");
  Button("tbrEdit_bold").click();
  Button("tbrGeneral_save").click();
  EXPECT_TRUE(Bytes(PageFile).contains("<p><b>One</b></p>")) << Bytes(PageFile).constData();
  EXPECT_TRUE(page.close());
  EXPECT_TRUE(Holds(Open(PageFile), QStringLiteral("<p><b>One</b></p>")));
}

TEST_F(RealPageFiles, ANewPageIsSavedInItsCharsetAndClosesUnasked) {
  frmMain &page = NewPage();
  EXPECT_EQ(page.windowTitle(), QStringLiteral("Untitled 1"));
  QApplication::clipboard()->setText(QStringLiteral("\u4e2d\u6587"));
  Choose("mnuPaste");
  ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("\u4e2d\u6587")); }));
  SharedDialog().ExpectSave(Logic(QStringLiteral("new.htm")));
  Choose("mnuSave");
  EXPECT_TRUE(Bytes(QStringLiteral("new.htm")).contains("\xa4\xa4\xa4\xe5"));
  EXPECT_TRUE(Bytes(QStringLiteral("new.htm")).contains("charset=big5"));
  EXPECT_EQ(page.windowTitle(), QStringLiteral("new.htm"));
  EXPECT_EQ(Tabs().tabText(0), QStringLiteral("new.htm"));
  EXPECT_TRUE(page.close());
}

TEST_F(RealPageFiles, AnUntouchedNewPageIsTheTemplateToTheByte) {
  NewPage();
  SharedDialog().ExpectSave(Logic(QStringLiteral("new.htm")));
  Choose("mnuSave");
  EXPECT_EQ(Bytes(QStringLiteral("new.htm")), modWorkFlow::NewPageTemplate().toLatin1());
}

TEST_F(RealPageFiles, APageFromTheTemplateIsWrittenAsItBeganAndBecomesATemplateItself) {
  dialogs.ExpectModal([](QWidget &dialog) {
    dialog.show();
    dialog.findChild<QLineEdit *>(QStringLiteral("txtLanguage"))->setText(QStringLiteral("de"));
    QTest::keyClicks(dialog.findChild<QWidget *>(QStringLiteral("txtTitle")),
                     QStringLiteral("Prices & more"));
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  Choose("mnuNewFromTemplate");
  frmMain &page = LastPage();
  Type(page, QStringLiteral("Words"));
  ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("Words")); })) << Seen(page);
  SharedDialog().ExpectSave(Logic(QStringLiteral("new.html")));
  Choose("mnuSave");
  const QByteArray written =
      "<!DOCTYPE html>\n<html lang=\"de\">\n<head>\n<meta charset=\"utf-8\">\n"
      "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
      "<title>Prices &amp; more</title>\n</head>\n<body>\n<p>Words</p>\n</body>\n</html>\n";
  EXPECT_EQ(Bytes(QStringLiteral("new.html")).toStdString(), written.toStdString());

  dialogs.ExpectQuestion(QStringLiteral("Name of the template:"), QStringLiteral("mine"));
  Choose("mnuSaveAsTemplate");
  EXPECT_EQ(Bytes(QStringLiteral("templates/mine.html")).toStdString(), written.toStdString());
  // A second one of the name only if the person wants it.
  Type(page, QStringLiteral("X"));
  dialogs.ExpectQuestion(QStringLiteral("Name of the template:"), QStringLiteral("mine"));
  dialogs.ExpectMessage(QStringLiteral("There is a template mine already. Replace it?"),
                        MessageAnswer::No);
  Choose("mnuSaveAsTemplate");
  EXPECT_EQ(Bytes(QStringLiteral("templates/mine.html")).toStdString(), written.toStdString());

  dialogs.ExpectModal([](QWidget &dialog) {
    auto *templates = dialog.findChild<QComboBox *>(QStringLiteral("cobTemplate"));
    templates->setCurrentText(QStringLiteral("mine"));
    EXPECT_FALSE(dialog.findChild<QWidget *>(QStringLiteral("txtTitle"))->isEnabled());
    QMetaObject::invokeMethod(&dialog, "accept");
  });
  Choose("mnuNewFromTemplate");
  SharedDialog().ExpectSave(Logic(QStringLiteral("second.html")));
  Choose("mnuSave");
  EXPECT_EQ(Bytes(QStringLiteral("second.html")).toStdString(), written.toStdString());

  modSettingManager::SetOption(registry, QStringLiteral("NewPageTemplate"),
                               folder.FilePath(QStringLiteral("templates/mine.html")));
  NewPage();
  SharedDialog().ExpectSave(Logic(QStringLiteral("third.html")));
  Choose("mnuSave");
  EXPECT_EQ(Bytes(QStringLiteral("third.html")).toStdString(), written.toStdString());
}

TEST_F(RealPageFiles, ANewNameLeavesTheOldFileAlone) {
  frmMain &page = Open(PageFile, Plain);
  PutCaret(page, QStringLiteral("p"));
  Type(page, QStringLiteral("x"));
  SharedDialog().ExpectSave(Logic(QStringLiteral("other.htm")));
  Key(page, Qt::Key_F12);
  EXPECT_EQ(Bytes(PageFile), Plain);
  EXPECT_TRUE(Bytes(QStringLiteral("other.htm")).contains("<p>Oxne</p>"));
  EXPECT_TRUE(page.close());
}

TEST_F(RealPageFiles, AChangedPageIsSavedOnYesAndKeptOnCancel) {
  frmMain &page = Open(PageFile, Plain);
  page.CreatorHTML();
  PutCaret(page, QStringLiteral("p"));
  Type(page, QStringLiteral("x"));
  dialogs.ExpectMessage(SaveQuestion, MessageAnswer::Cancel);
  EXPECT_FALSE(page.close());
  EXPECT_EQ(Tabs().count(), 1);
  EXPECT_TRUE(Exists(PageCopy));
  dialogs.ExpectMessage(SaveQuestion, MessageAnswer::Yes);
  EXPECT_TRUE(page.close());
  EXPECT_EQ(Tabs().count(), 0);
  EXPECT_FALSE(Exists(PageCopy));
  EXPECT_TRUE(Bytes(PageFile).contains("<p>Oxne</p>"));
}

TEST_F(RealPageFiles, APageWhoseChangesWereAllTakenBackClosesUnasked) {
  frmMain &page = Open(PageFile, Plain);
  PutCaret(page, QStringLiteral("p"));
  Type(page, QStringLiteral(" two three"));
  Choose("mnuSelectAll");
  Button("tbrEdit_bold").click();
  Button("tbrEdit_center").click();
  ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("center")); })) << Seen(page);
  for (int step = 0; step < 8; ++step) Choose("mnuUndo");
  EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("<p>One</p>")); })) << Seen(page);
  EXPECT_TRUE(page.close());
  EXPECT_EQ(Bytes(PageFile), Plain);
}

TEST_F(RealPageFiles, LetterCaseAloneIsNotAskedAbout) {
  frmMain &page = Open(PageFile, Plain);
  Select(page, QStringLiteral("p"));
  Type(page, QStringLiteral("ONE"));
  ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("ONE")); })) << Seen(page);
  EXPECT_TRUE(page.close());
  EXPECT_EQ(Bytes(PageFile), Plain);
}

TEST_F(RealPageFiles, AFileThatIsOpenComesToTheFrontByWhateverNameItIsOpenedAgain) {
  frmMain &page = Open(PageFile, Plain);
  NewPage();
  const QString name = folder.FilePath(PageFile);
  ASSERT_TRUE(QFile::link(name, folder.FilePath(QStringLiteral("link.htm"))));
  ASSERT_EQ(link(QFile::encodeName(name).constData(),
                 QFile::encodeName(folder.FilePath(QStringLiteral("second.htm"))).constData()),
            0);
  for (const char *other : {"page.htm", "link.htm", "second.htm", "./page.htm"}) {
    window.Opener().ActivatePage(2);
    ASSERT_EQ(Tabs().currentIndex(), 1);
    SharedDialog().ExpectOpen(Logic(QString::fromLatin1(other)));
    Choose("mnuOpen");
    EXPECT_EQ(Tabs().count(), 2) << other;
    EXPECT_EQ(Tabs().currentIndex(), 0) << other;
  }
  PutCaret(page, QStringLiteral("p"));
  Type(page, QStringLiteral("x"));
  Choose("mnuSave");
  EXPECT_TRUE(Bytes(QStringLiteral("second.htm")).contains("<p>Oxne</p>"));
}

TEST_F(RealPageFiles, EverySaveOfADroppedPageGoesToItsOwnFile) {
  const QString other = QStringLiteral("other.htm");
  Open(other, Plain);
  Write(PageFile, Plain);
  window.Opener().OpenDroppedFiles({Logic(PageFile)}, nullptr);
  frmMain &page = *window.Context().pages.Page(2);
  ASSERT_TRUE(WaitFor([&] { return page.PendingAction.isEmpty(); }));
  PutCaret(page, QStringLiteral("p"));
  for (const char *text : {"x", "y"}) {
    Type(page, QString::fromLatin1(text));
    Choose("mnuSave");
  }
  EXPECT_TRUE(Bytes(PageFile).contains("<p>Oxyne</p>")) << Bytes(PageFile).constData();
  EXPECT_EQ(Bytes(other), Plain);
}

TEST_F(RealPageFiles, EverySaveGoesToThePagesOwnFileThoughAnotherOneWasOpenedOrRefusedLast) {
  const QString other = QStringLiteral("other.htm");
  frmMain &page = Open(PageFile, Plain);
  Open(other, Plain);
  Write(QStringLiteral("big.htm"), QByteArray(33'000'000, ' '));
  SharedDialog().ExpectOpen(Logic(QStringLiteral("big.htm")));
  Choose("mnuOpen");
  window.Opener().ActivatePage(1);
  PutCaret(page, QStringLiteral("p"));
  for (const char *text : {"x", "y"}) {
    Type(page, QString::fromLatin1(text));
    Choose("mnuSave");
  }
  EXPECT_TRUE(Bytes(PageFile).contains("<p>Oxyne</p>")) << Bytes(PageFile).constData();
  EXPECT_EQ(Bytes(other), Plain);
  EXPECT_EQ(Bytes(QStringLiteral("big.htm")).size(), 33'000'000);
}

TEST_F(RealPageFiles, ThePreviewShowsUnsavedEditsFromATemporaryCopy) {
  frmMain &page = Open(PageFile, Plain);
  PutCaret(page, QStringLiteral("p"));
  Type(page, QStringLiteral("x"));
  Button("tbrGeneral_preview").click();
  EXPECT_TRUE(PreviewShows(QStringLiteral("Oxne")));
  EXPECT_TRUE(Bytes(PageCopy).endsWith("</html>\r\n"));
  EXPECT_EQ(Bytes(PageFile), Plain);
}

TEST_F(RealPageFiles, APageThatDeclaresNoCharsetIsPreviewedInItsOwn) {
  frmMain &page = Open(PageFile, "<html><head></head><body>\r\n<p>Caf\xe9</p>\r\n</body></html>");
  PutCaret(page, QStringLiteral("p"));
  Type(page, QStringLiteral("x"));
  Button("tbrGeneral_preview").click();
  EXPECT_TRUE(PreviewShows(QStringLiteral("Cxaf\u00e9")));
  EXPECT_TRUE(Bytes(PageCopy).contains("<p>Cxaf\xe9</p>")) << Bytes(PageCopy).constData();
}

TEST_F(RealPageFiles, ASecondPreviewOfThePageShowsWhatWasTypedSince) {
  frmMain &page = Open(PageFile, Plain);
  page.ChangeMode(4);
  ASSERT_TRUE(PreviewShows(QStringLiteral("One")));
  const QPointer<frmBrowser> preview = window.Context().preview;
  preview->close();
  EXPECT_FALSE(preview->isVisible());
  Parts().windows.Activate(&page);
  PutCaret(page, QStringLiteral("p"));
  Type(page, QStringLiteral("x"));
  page.ChangeMode(4);
  EXPECT_TRUE(preview->isVisible());
  EXPECT_TRUE(PreviewShows(QStringLiteral("Oxne")));
  EXPECT_EQ(window.Context().preview, preview);
}

TEST_F(RealPageFiles, APageWhoseTemporaryCopyHasNoPlaceIsPreviewedWithItsOwnFolderAsBase) {
  QDir().mkpath(folder.FilePath(QStringLiteral("example.com")));
  Write(QStringLiteral("example.com/after.css"), "p::after { content: ' styled' }");
  frmMain &page = Open(QStringLiteral("example.com/page.htm"),
                       "<html><head><link rel=stylesheet href=after.css></head><body><p>One</p>"
                       "<a href=#end>down</a><p id=end>End</p></body></html>");
  PutCaret(page, QStringLiteral("p"));
  Type(page, QStringLiteral("x"));
  page.ChangeMode(4);
  ASSERT_TRUE(PreviewShows(QStringLiteral("Oxne")));
  EXPECT_TRUE(WaitFor([&] {
    return Evaluate(EngineOf(*window.Context().preview),
                    QStringLiteral("getComputedStyle(document.querySelector('p'), '::after')"
                                   ".content")) == QStringLiteral("\" styled\"");
  }));
  // A link within the page leads there, and stops nothing.
  frmBrowser &preview = *window.Context().preview;
  const auto *status = preview.findChild<QLabel *>(QStringLiteral("Sta_1"));
  QStringList told;
  Evaluate(EngineOf(preview), QStringLiteral("document.querySelector('a').click()"));
  EXPECT_TRUE(WaitFor([&] {
    told.append(status->text());
    return Evaluate(EngineOf(preview), QStringLiteral("location.hash")) == QStringLiteral("#end");
  }));
  QCoreApplication::processEvents();
  told.append(status->text());
  EXPECT_FALSE(told.contains(QStringLiteral("Stopped")));
  EXPECT_TRUE(PreviewShows(QStringLiteral("Oxne")));
  EXPECT_EQ(QDir(folder.FilePath(QStringLiteral("example.com"))).entryList(QDir::Files),
            QStringList({QStringLiteral("after.css"), QStringLiteral("page.htm")}));
}

TEST_F(RealPageFiles, ThePreviewOfAReadOnlyPageShowsTheFile) {
  Write(PageFile, Plain);
  QFile::setPermissions(folder.FilePath(PageFile), QFile::ReadOwner);
  frmMain &page = Open(PageFile);
  EXPECT_EQ(Tabs().tabText(0), QStringLiteral("page.htm (Read-Only)"));
  EXPECT_EQ(page.windowTitle(), QStringLiteral("page.htm"));
  PutCaret(page, QStringLiteral("p"));
  Type(page, QStringLiteral("x"));
  ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("Oxne")); }));
  page.ChangeMode(4);
  EXPECT_TRUE(PreviewShows(QStringLiteral("One")));
  dialogs.ExpectMessage(SaveQuestion, MessageAnswer::No);
  EXPECT_TRUE(page.close());
  EXPECT_EQ(Bytes(PageFile), Plain);
  EXPECT_FALSE(Exists(PageCopy));
}

TEST_F(RealPageFiles, AReadOnlyPageSaysOnItsTabAtTheFirstKeyHowChangesAreKept) {
  const QString note = QStringLiteral("Save As keeps your changes");
  Write(PageFile, Plain);
  QFile::setPermissions(folder.FilePath(PageFile), QFile::ReadOwner);
  frmMain &page = Open(PageFile);
  EXPECT_FALSE(Tabs().tabToolTip(0).contains(note));
  const int before = Tabs().tabRect(0).width();
  PutCaret(page, QStringLiteral("p"));
  Type(page, QStringLiteral("x"));
  EXPECT_TRUE(WaitFor([&] { return Tabs().tabToolTip(0).contains(note); }));
  EXPECT_EQ(Tabs().tabText(0), QStringLiteral("page.htm (Read-Only)"));
  EXPECT_GT(Tabs().tabRect(0).width(), before) << "the note stands on the tab";
  dialogs.ExpectMessage(
      QStringLiteral("page.htm is read-only. Do you want to save your changes under another name?"),
      MessageAnswer::Yes);
  SharedDialog().ExpectSave(Logic(QStringLiteral("other.htm")));
  Choose("mnuSave");
  EXPECT_EQ(Bytes(PageFile), Plain);
  EXPECT_TRUE(Bytes(QStringLiteral("other.htm")).contains("Oxne"));
  EXPECT_FALSE(Tabs().tabToolTip(0).contains(note));
}

TEST_F(RealPageFiles, AnOwnFileOfTheTemporaryCopysNameIsLeftAloneWhateverIsDoneWithThePage) {
  Write(PageCopy, "<p>mine</p>");
  Open(PageFile, Plain).close();
  EXPECT_EQ(Bytes(PageCopy), "<p>mine</p>");
  frmMain &page = Open(PageFile);
  page.ChangeMode(2);
  EXPECT_EQ(page.Code1().Text().toUtf8(), Plain);
  page.ChangeMode(4);
  EXPECT_TRUE(PreviewShows(QStringLiteral("One")));
  page.ChangeMode(3);
  frmCodeEditor &editor = *window.Context().pages.CodeEditor(2);
  editor.Code().SetText(QStringLiteral("<p>applied</p>"));
  EXPECT_EQ(editor.ApplyCode(), 0);
  EXPECT_TRUE(Holds(page, QStringLiteral("<p>applied</p>")));
  EXPECT_TRUE(editor.close());
  dialogs.ExpectMessage(SaveQuestion, MessageAnswer::No);
  EXPECT_TRUE(page.close());
  EXPECT_EQ(Bytes(PageCopy), "<p>mine</p>");
}

TEST_F(RealPageFiles, AFileInAnotherFolderThatTheCopysRuleNamesIsLeftAlone) {
  for (const char *name : {"my.site", "myTMP.site"})
    QDir().mkpath(folder.FilePath(QString::fromLatin1(name)));
  Write(QStringLiteral("myTMP.site/pageTMP.htm"), "mine");
  frmMain &page = Open(QStringLiteral("my.site/page.htm"), Plain);
  page.ChangeMode(2);
  EXPECT_TRUE(page.close());
  EXPECT_EQ(Bytes(QStringLiteral("myTMP.site/pageTMP.htm")), "mine");
}

TEST_F(RealPageFiles, APageSavedUnderTheNameOfAnothersCopyOutlivesThatPage) {
  frmMain &page = Open(PageFile, Plain);
  page.ChangeMode(2);
  ASSERT_TRUE(Exists(PageCopy));
  frmMain &other = NewPage();
  Type(other, QStringLiteral("new work"));
  SharedDialog().ExpectSave(Logic(PageCopy));
  Choose("mnuSave");
  ASSERT_TRUE(Bytes(PageCopy).contains("new work"));
  EXPECT_TRUE(page.close());
  EXPECT_TRUE(Bytes(PageCopy).contains("new work"));
}

TEST_F(RealPageFiles, ALinkOfTheTemporaryCopysNameIsNotFollowed) {
  Write(QStringLiteral("victim.txt"), "victim");
  ASSERT_TRUE(
      QFile::link(folder.FilePath(QStringLiteral("victim.txt")), folder.FilePath(PageCopy)));
  frmMain &page = Open(PageFile, Plain);
  page.ChangeMode(2);
  page.ChangeMode(4);
  EXPECT_TRUE(PreviewShows(QStringLiteral("One")));
  EXPECT_TRUE(page.close());
  EXPECT_EQ(Bytes(QStringLiteral("victim.txt")), "victim");
  EXPECT_TRUE(QFileInfo(folder.FilePath(PageCopy)).isSymLink());
}

TEST_F(RealPageFiles, AnUnchangedSourceAppliedFourTimesChangesNoByteOfThePage) {
  const QList<QByteArray> pages = {
      "<html><head></head><body>\n<p>One</p>\n</body></html>\n",
      "<html><head></head><body>\r\n<p>One</p></body></html>",
      "<p>One\r<p>Two\n<p>Three\r\n\r\n",
      "<html><head><meta charset=big5></head><body><p>\xa4\xa4\xff \xe9</body></html>\n\n",
      "\xef\xbb\xbf<!doctype html>\n<title>x</title><p>Caf\xc3\xa9\n",
      QByteArray("\xff\xfe<\0p\0>\0O\0n\0e\0\n\0", 16),
  };
  for (const QByteArray &bytes : pages) {
    frmMain &page = Open(PageFile, bytes);
    page.ChangeMode(3);
    frmCodeEditor &editor = *window.Context().pages.CodeEditor(page.Number());
    for (int times = 0; times < 4; ++times) EXPECT_EQ(editor.ApplyCode(), 0);
    EXPECT_TRUE(editor.close());
    Choose("mnuSave");
    EXPECT_EQ(Bytes(PageFile), bytes) << bytes.toStdString();
    EXPECT_TRUE(page.close());
  }
}

TEST_F(RealPageFiles, FivePagesAreOpenAtOnceEachWithItsOwnText) {
  for (int number = 1; number <= 5; ++number) {
    Type(NewPage(), QStringLiteral("page%1").arg(number));
  }
  for (int number = 1; number <= 5; ++number) {
    frmMain &page = *window.Context().pages.Page(number);
    EXPECT_TRUE(Holds(page, QStringLiteral("page%1").arg(number))) << Seen(page);
  }
  EXPECT_EQ(Tabs().count(), 5);
}

TEST_F(RealPageFiles, ExitAsksNothingAndLeavesFilesAsTheyWere) {
  QSignalSpy unloaded(&window, &MfrmProgram::Unloaded);
  Type(NewPage(), QStringLiteral("never saved"));
  const QPointer<frmMain> page = &Open(PageFile, Plain);
  PutCaret(*page, QStringLiteral("p"));
  Type(*page, QStringLiteral("x"));
  page->ChangeMode(4);
  page->ChangeMode(3);
  ASSERT_TRUE(Exists(PageCopy));
  const QPointer<frmBrowser> preview = window.Context().preview;
  const QPointer<frmCodeEditor> editor = window.Context().pages.CodeEditor(2);
  preview->close();
  Choose("mnuExit");
  EXPECT_EQ(unloaded.count(), 1);
  EXPECT_FALSE(window.isVisible());
  EXPECT_TRUE(dialogs.messages.empty());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(page.isNull());
  EXPECT_TRUE(preview.isNull());
  EXPECT_TRUE(editor.isNull());
  EXPECT_EQ(Bytes(PageFile), Plain);
  EXPECT_FALSE(Exists(PageCopy));
}

}  // namespace
}  // namespace velor
