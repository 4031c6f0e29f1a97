// SPDX-License-Identifier: GPL-3.0-or-later
// A page that was journalled by one run and restored by the next is saved as faithfully as if
// nothing had happened.
#include "editor/PageSlots.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "editor/modWorkFlow.h"
#include "files/ReplacedFiles.h"
#include "files/StateFolder.h"
#include "recovery/JournalFiles.h"
#include "recovery/offers/RecoveryBar.h"
#include "tests/app/window/RealWindowFixture.h"
#include "tests/engine/ComponentFixture.h"
#include "tests/pictures/PictureFiles.h"
#include "tests/support/Waiting.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QPushButton>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <optional>
#include <vector>

namespace velor {
namespace {

/// Tells of each time that a file is brought to the disk.
class SyncCalls : public FileCalls {
 public:
  int Sync(int file) override {
    if (onSync) onSync();
    return FileCalls::Sync(file);
  }

  std::function<void()> onSync;
};

class RealRecovery : public RealWindow {
 protected:
  RealRecovery() {
    qputenv("XDG_STATE_HOME", state_.path().toLocal8Bit());
    platform.journals = &journals_.emplace(calls_);
    for (const char *place : {"site", "far"})
      QDir(folder.FilePath({})).mkdir(QString::fromLatin1(place));
  }
  ~RealRecovery() override { qputenv("XDG_STATE_HOME", stateHome_); }

  frmMain &LastOpened() {
    PageSlots &pages = window.Context().pages;
    return *pages.Page(pages.PageCount());
  }
  /// What another run finds after this one's end, once it holds the text.
  JournalledPage Left(frmMain &page, const QString &text) {
    EXPECT_TRUE(WaitFor([&] { return page.DHTML1().Memory().document.contains(text); }));
    EXPECT_TRUE(page.Journal().Flush());
    // The process would have ended here; this one goes on, and the page stays.
    const JournalledPage kept{window.Context().pages.Record(page.Number()).Path,
                              page.GetPageRecord().Caption, JournalledPage::Saving::ToItsFile,
                              page.DHTML1().Memory(), QDateTime::currentDateTime()};
    return kept;
  }

  static QStringList JournalsThere() {
    QStringList found;
    const QDir root(StateFolder() + QStringLiteral("/recovery"));
    for (const QString &run : root.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
      found += QDir(root.filePath(run)).entryList({QStringLiteral("*.page")});
    return found;
  }

  /// The page's window goes, and the next look for journals finds its own as a crash leaves it.
  void Crash(frmMain &page) {
    EXPECT_TRUE(page.Journal().Flush());
    const QString root = StateFolder() + QStringLiteral("/recovery/");
    const QString run = QDir(root).entryList(QDir::Dirs | QDir::NoDotAndDotDot).constFirst();
    const QString journal = QDir(root + run).entryList({QStringLiteral("*.page")}).constFirst();
    QDir(root).mkdir(QStringLiteral("1-1"));
    QFile(root + run + u'/' + journal).copy(root + QStringLiteral("1-1/1.page"));
    page.MarkKill();
    page.close();
  }
  void Answer(const char *button) {
    auto *bar = Find<RecoveryBar>("picRecovery");
    bar->Offer();
    bar->findChild<QPushButton *>(QString::fromLatin1(button))->click();
  }
  bool PastePicture(frmMain &page, const char *address) {
    QGuiApplication::clipboard()->setImage(RedAndBlue(30, 20));
    page.DHTML1().SetFocus();
    Choose("mnuPaste");
    return WaitFor([&] { return Holds(page, QString::fromLatin1(address)); });
  }
  /// A run ends unforeseen whose page site/page.htm has got the picture site/page-1.png.
  void CrashWithPicture() {
    frmMain &page = Open(QStringLiteral("site/page.htm"), "<!DOCTYPE html><p>one</p>");
    ASSERT_TRUE(PastePicture(page, "page-1.png"));
    Crash(page);
  }
  QStringList PicturesIn(const char *place) const {
    return QDir(folder.FilePath(QString::fromLatin1(place))).entryList({QStringLiteral("*.png")});
  }

  /// The run's locks go, as at its process's end; its windows must have gone before.
  void EndRun() { journals_.reset(); }

  SyncCalls calls_;

 private:
  const QByteArray stateHome_ = qgetenv("XDG_STATE_HOME");
  QTemporaryDir state_;
  std::optional<JournalFiles> journals_;
};

/// A page whose picture was turned, and has a file turned with it.
class CutPictures : public RealRecovery {
 protected:
  CutPictures() {
    platform.replaced = &replaced_;
    Write(PictureFile, whole);
    Open(PageFile, PageSource);
  }
  frmMain &CutPicture() {
    frmMain &page = LastOpened();
    const QByteArray before = Bytes(PictureFile);
    SelectPicture(page, 60);
    dialogs.ExpectModal([](QWidget &dialog) {
      dialog.show();
      dialog.findChild<QPushButton *>(QStringLiteral("cmdCropTurnRight"))->click();
      dialog.findChild<QPushButton *>(QStringLiteral("cmdOK"))->click();
    });
    Choose("mnuCropPicture");
    EXPECT_NE(Bytes(PictureFile), before);
    return page;
  }
  bool IsCut() const { return QImage::fromData(Bytes(PictureFile)).size() == QSize(40, 60); }

  const QString PageFile = QStringLiteral("site/page.htm");
  const QByteArray PageSource = "<!DOCTYPE html><p>x<img src=a.png width=120 height=80></p>";
  const QString PictureFile = QStringLiteral("site/a.png");
  const QByteArray whole = CodedAs("PNG", RedAndBlue(60, 40));

 private:
  ReplacedFiles replaced_;
};

TEST_F(RealRecovery, TheJournalGoesToTheDiskBetweenTheKeysOfWhoeverTypesOn) {
  constexpr int Keys = 100;
  constexpr int Pace = 50;  // milliseconds between two keys
  // From one sync to the next: about a second, and the wait for an idle moment on a busy machine.
  constexpr qint64 Longest = 4000;
  frmMain &page = Open(QStringLiteral("page.htm"), "<p>one</p>");
  PutCaret(page, QStringLiteral("p"));
  QElapsedTimer clock;
  std::vector<qint64> syncs;
  int late = 0;
  calls_.onSync = [&] {
    syncs.push_back(clock.elapsed());
    if (!page.DHTML1().IsIdle()) ++late;
  };
  clock.start();
  for (int key = 1; key <= Keys; ++key) {
    Type(page, QStringLiteral("x"));
    (void)WaitFor([&] { return clock.elapsed() >= key * Pace; });
  }
  const qint64 end = clock.elapsed();
  calls_.onSync = {};
  EXPECT_EQ(late, 0);
  qint64 before = 0;
  syncs.push_back(end);
  for (const qint64 sync : syncs) {
    EXPECT_LE(sync - before, Longest);
    before = sync;
  }
}

TEST_F(RealRecovery, ARestoredPageIsSavedFaithfully) {
  const QByteArray source =
      "<HTML>\r\n<Head><META charset=big5></HEAD>\r\n<BODY bgColor=#ffffff>\r\n"
      "<P Align=center>\xA4\xA4\xA4\xE5 one</p>\r\n<% server code %>\r\n<img SRC=a.gif>\r\n"
      "<p>two\r\n</BODY>\r\n<!-- end -->\r\n";
  frmMain &page = Open(QStringLiteral("page.htm"), source);
  PutCaret(page, QStringLiteral("p"));
  Type(page, QStringLiteral("X"));
  const JournalledPage left = Left(page, QStringLiteral("X"));

  ASSERT_TRUE(modWorkFlow::RestorePage(window.Context(), left));
  frmMain &restored = LastOpened();
  EXPECT_TRUE(Holds(restored, QStringLiteral("中X文 one")));
  EXPECT_EQ(restored.DHTML1().Charset(), QStringLiteral("big5"));
  EXPECT_TRUE(modWorkFlow::HasUnsavedChanges(restored.GetPageRecord().SavedHTML,
                                             restored.DHTML1().DocumentHTML()));
  Choose("mnuSave");
  EXPECT_EQ(Bytes(QStringLiteral("page.htm")),
            QByteArray(source).replace("\xA4\xA4\xA4\xE5", "\xA4\xA4X\xA4\xE5"));
}

TEST_F(RealRecovery, ARestoredPageIsEditedAndSavedOn) {
  frmMain &page = Open(QStringLiteral("page.htm"), "<p>one</p>");
  PutCaret(page, QStringLiteral("p"));
  Type(page, QStringLiteral("X"));
  const JournalledPage left = Left(page, QStringLiteral("oXne"));
  modWorkFlow::RestorePage(window.Context(), left);
  frmMain &restored = LastOpened();
  PutCaret(restored, QStringLiteral("p"));
  Type(restored, QStringLiteral("Y"));
  EXPECT_TRUE(WaitFor([&] { return Holds(restored, QStringLiteral("oYXne")); }));
  Choose("mnuSave");
  EXPECT_EQ(Bytes(QStringLiteral("page.htm")), "<p>oYXne</p>");
}

TEST_F(RealRecovery, ANewPageComesBackWithoutAFile) {
  frmMain &page = NewPage();
  Type(page, QStringLiteral("typed"));
  JournalledPage left = Left(page, QStringLiteral("typed"));
  left.saving = JournalledPage::Saving::AsksForAName;
  modWorkFlow::RestorePage(window.Context(), left);
  frmMain &restored = LastOpened();
  EXPECT_TRUE(Holds(restored, QStringLiteral("typed")));
  EXPECT_EQ(restored.windowTitle(), QStringLiteral("Untitled 2"));
  SharedDialog().ExpectSave(Logic(QStringLiteral("new.htm")));
  Choose("mnuSave");
  EXPECT_TRUE(Bytes(QStringLiteral("new.htm")).contains("typed"));
}

TEST_F(RealRecovery, AnAppliedSourceIsJournalledWithItsText) {
  frmMain &page = Open(QStringLiteral("page.htm"), "<p>one</p>");
  page.DHTML1().LoadText(QStringLiteral("<P>applied</P>"), Logic(QStringLiteral("page.htm")));
  const JournalledPage left = Left(page, QStringLiteral("applied"));
  EXPECT_EQ(left.page.original, "<P>applied</P>");
  modWorkFlow::RestorePage(window.Context(), left);
  Choose("mnuSave");
  EXPECT_EQ(Bytes(QStringLiteral("page.htm")), "<P>applied</P>");
}

TEST_F(RealRecovery, ASourceThatWasNotAppliedIsInItsEditorAgainAndIsAppliedFaithfully) {
  const QByteArray source = "<HTML>\r\n<body>\r\n<P>one</P>\r\n</body></HTML>\r\n";
  frmMain &page = Open(QStringLiteral("page.htm"), source);
  page.ChangeMode(3);
  frmCodeEditor *editor = window.Context().pages.CodeEditor(page.Number());
  SourceControl &code = editor->Code();
  const qsizetype word = code.Text().indexOf(QStringLiteral("one"));
  code.Select({word, word + 3});
  QTest::keyClicks(code.Widget(), QStringLiteral("typed"));
  ASSERT_TRUE(WaitFor([] { return !JournalsThere().isEmpty(); }));
  JournalledPage kept = Left(page, QStringLiteral("one"));
  kept.source = editor->UnappliedText();
  ASSERT_EQ(kept.source, QString::fromUtf8(source).replace("one", "typed"));

  modWorkFlow::RestorePage(window.Context(), kept);
  frmMain &restored = LastOpened();
  EXPECT_TRUE(Holds(restored, QStringLiteral("one")));
  editor = window.Context().pages.CodeEditor(restored.Number());
  EXPECT_EQ(editor->Code().Text(), kept.source);
  EXPECT_EQ(editor->ApplyCode(), 0);
  EXPECT_TRUE(Holds(restored, QStringLiteral("typed")));
  editor->close();
  Choose("mnuSave");
  EXPECT_EQ(Bytes(QStringLiteral("page.htm")), QByteArray(source).replace("one", "typed"));
}

TEST_F(RealRecovery, AnExitKeepsTheLastKeyAndTheSourceThatWasNotApplied) {
  Open(QStringLiteral("unchanged.htm"), "<p>zero</p>");
  frmMain &page = Open(QStringLiteral("page.htm"), "<p>one</p>");
  frmMain &source = NewPage();
  source.ChangeMode(3);
  window.Context().pages.CodeEditor(source.Number())->Code().SetText(QStringLiteral("<p>x</p>"));
  PutCaret(page, QStringLiteral("p"));
  Type(page, QStringLiteral("X"));
  Choose("mnuExit");
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(dialogs.messages.empty());
  EndRun();
  JournalFiles next;
  const std::vector<AbandonedPage> kept = next.Abandoned();
  ASSERT_EQ(kept.size(), 2);
  for (const AbandonedPage &abandoned : kept) {
    EXPECT_EQ(abandoned.end, RunEnd::Exit);
    const JournalledPage left = next.Read(abandoned.id).page;
    if (abandoned.hasSource) {
      EXPECT_EQ(left.source, QStringLiteral("<p>x</p>"));
    } else {
      EXPECT_TRUE(left.page.document.contains(QStringLiteral("oXne")));
    }
  }
}

TEST_F(RealRecovery, AnExitWithNothingUnsavedLeavesNothingBehind) {
  frmMain &page = Open(QStringLiteral("page.htm"), "<p>one</p>");
  PutCaret(page, QStringLiteral("p"));
  Type(page, QStringLiteral("X"));
  Choose("mnuSave");
  Choose("mnuExit");
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(JournalsThere(), QStringList());
}

TEST_F(RealRecovery, ANewPagesPicturesMoveIntoTheSiteAtTheFirstSaveAfterACrash) {
  Write(QStringLiteral("far/rose.png"), CodedAs("PNG", PlainPicture(60, 40)));
  frmMain &page = NewPage();
  ASSERT_TRUE(PastePicture(page, "src=\"file:///"));
  DropFiles(ViewOf(page), {folder.FilePath(QStringLiteral("far/rose.png"))}, {20, 20});
  ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("far/rose.png")); }));
  Crash(page);
  ASSERT_EQ(PicturesIn("").size(), 1);
  Answer("cmdRestore");
  ASSERT_TRUE(Holds(LastOpened(), QStringLiteral("file:///")));
  SharedDialog().ExpectSave(Logic(QStringLiteral("site/garden.htm")));
  Choose("mnuSave");
  const QByteArray saved = Bytes(QStringLiteral("site/garden.htm"));
  EXPECT_TRUE(saved.contains("garden-1.png")) << saved.constData();
  EXPECT_FALSE(saved.contains("file:")) << saved.constData();
  EXPECT_EQ(PicturesIn("site"),
            QStringList({QStringLiteral("garden-1.png"), QStringLiteral("rose.png")}));
  EXPECT_TRUE(WaitFor([&] { return PicturesIn("").isEmpty(); }));
}

TEST_F(RealRecovery, ARestoredPageThatIsNotSavedLeavesNoPictureInTheSite) {
  CrashWithPicture();
  Answer("cmdRestore");
  ASSERT_TRUE(Holds(LastOpened(), QStringLiteral("page-1.png")));
  EXPECT_EQ(PicturesIn("site").size(), 1);
  CloseUnsaved(LastOpened());
  EXPECT_EQ(PicturesIn("site"), QStringList());
}

TEST_F(RealRecovery, AnOfferThatIsTurnedDownTakesThePicturesOfItsPageAway) {
  CrashWithPicture();
  Write(QStringLiteral("site/pageTMP.htm"), "The page's temporary copy. <img src=page-1.png>");
  Answer("cmdDiscard");
  EXPECT_EQ(PicturesIn("site"), QStringList());
  EXPECT_EQ(Bytes(QStringLiteral("site/page.htm")), "<!DOCTYPE html><p>one</p>");
}

TEST_F(RealRecovery, AnOfferThatIsTurnedDownLeavesPicturesThatTheSavedPageNames) {
  CrashWithPicture();
  Write(QStringLiteral("site/page.htm"), "<!DOCTYPE html><img src=page-1.png>");
  Answer("cmdDiscard");
  EXPECT_EQ(PicturesIn("site").size(), 1);
}

TEST_F(RealRecovery, AnOfferThatIsTurnedDownLeavesPicturesThatAnotherPageOfTheFolderNames) {
  CrashWithPicture();
  Write(QStringLiteral("site/other.htm"), "<!DOCTYPE html><img src=page-1.png>");
  Answer("cmdDiscard");
  EXPECT_EQ(PicturesIn("site").size(), 1);
}

TEST_F(RealRecovery, ARestoredPageThatIsNotSavedLeavesPicturesThatAnotherPageOfTheSiteNames) {
  CrashWithPicture();
  QDir(folder.FilePath(QStringLiteral("site"))).mkdir(QStringLiteral("more"));
  Write(QStringLiteral("site/more/other.htm"), "<!DOCTYPE html><img src=../page-1.png>");
  Answer("cmdRestore");
  CloseUnsaved(LastOpened());
  EXPECT_EQ(PicturesIn("site").size(), 1);
}

TEST_F(CutPictures, ComeBackWhenTheOfferOfTheirPageIsTurnedDown) {
  Crash(CutPicture());
  ASSERT_TRUE(IsCut());
  Answer("cmdDiscard");
  EXPECT_EQ(Bytes(PictureFile), whole);
  EXPECT_EQ(PicturesIn("site"), QStringList(QStringLiteral("a.png")));
  EXPECT_EQ(Bytes(PageFile), PageSource);
}

TEST_F(CutPictures, ComeBackWhenTheRestoredPageIsNotSaved) {
  Crash(CutPicture());
  Answer("cmdRestore");
  ASSERT_TRUE(Holds(LastOpened(), QStringLiteral("width=\"80\" height=\"120\"")))
      << Seen(LastOpened());
  ASSERT_TRUE(IsCut());
  CloseUnsaved(LastOpened());
  EXPECT_EQ(Bytes(PictureFile), whole);
  EXPECT_EQ(PicturesIn("site"), QStringList(QStringLiteral("a.png")));
}

TEST_F(CutPictures, StayAsTheLastSaveHasThemWhenTheOfferIsTurnedDown) {
  CutPicture();
  Choose("mnuSave");
  const QByteArray saved = Bytes(PictureFile);
  Crash(CutPicture());
  ASSERT_NE(Bytes(PictureFile), saved);
  Answer("cmdDiscard");
  EXPECT_EQ(Bytes(PictureFile), saved);
  EXPECT_EQ(Bytes(QStringLiteral("site/a-original.png")), whole);
}

TEST_F(CutPictures, StayWithAPageThatWasSavedWithThemBeforeTheCrash) {
  Crash(CutPicture());
  Write(PageFile, QByteArray(PageSource).replace("width=120 height=80", "width=80 height=120"));
  Answer("cmdDiscard");
  EXPECT_TRUE(IsCut());
  EXPECT_EQ(Bytes(QStringLiteral("site/a-original.png")), whole);
}

TEST_F(CutPictures, ThatAnotherProgramWroteStayAndTheCopyIsTold) {
  Crash(CutPicture());
  Write(PictureFile, "theirs");
  Answer("cmdDiscard");
  EXPECT_EQ(Bytes(PictureFile), "theirs");
  EXPECT_EQ(Bytes(QStringLiteral("site/a-original.png")), whole);
  EXPECT_EQ(Find<QStatusBar>("Sta")->currentMessage(),
            QStringLiteral("a.png stays as it is. What the saved page shows is kept as %1.")
                .arg(folder.FilePath(QStringLiteral("site/a-original.png"))));
}

TEST_F(RealRecovery, ThePageInTheKeyboardsFocusIsLeftForTheOfferByAltG) {
  JournalledPage abandoned;
  abandoned.caption = QStringLiteral("Untitled 7");
  abandoned.page = {"<p>", QStringLiteral("/"), QStringLiteral("<html><body><p>back</p></body>")};
  abandoned.time = QDateTime::currentDateTime();
  JournalFiles().Begin()->Write(abandoned);
  frmMain &page = Open(QStringLiteral("page.htm"), "<p>one</p>");
  Find<RecoveryBar>("picRecovery")->Offer();
  PutCaret(page, QStringLiteral("p"));
  ASSERT_TRUE(WaitFor([&] { return InputOf(page)->hasFocus(); }));
  Key(page, Qt::Key_G, Qt::AltModifier);
  ASSERT_EQ(QApplication::focusWidget()->accessibleName(), QStringLiteral("Restore Untitled 7"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  EXPECT_TRUE(WaitFor([&] { return window.Context().pages.PageCount() == 2; }));
  EXPECT_TRUE(Holds(LastOpened(), QStringLiteral("back")));
  EXPECT_FALSE(Holds(page, QStringLiteral("o ne")));
}

TEST_F(RealRecovery, AnOfferThatIsTurnedDownByKeyLeavesTheCaretWhereItWas) {
  for (const char *button : {"cmdDiscard", "cmdDiscardAll"}) {
    JournalledPage abandoned;
    abandoned.caption = QStringLiteral("Untitled 7");
    abandoned.page = {"<p>", QStringLiteral("/"), QStringLiteral("<html><body><p>back</p></body>")};
    abandoned.time = QDateTime::currentDateTime();
    JournalFiles().Begin()->Write(abandoned);
    frmMain &page = Open(QString::fromLatin1(button) + QStringLiteral(".htm"), "<p>one</p>");
    auto *bar = Find<RecoveryBar>("picRecovery");
    bar->Offer();
    PutCaret(page, QStringLiteral("p"));
    ASSERT_TRUE(WaitFor([&] { return InputOf(page)->hasFocus(); }));
    auto *discard = bar->findChild<QPushButton *>(QString::fromLatin1(button));
    discard->setFocus(Qt::TabFocusReason);
    if (discard->objectName() == u"cmdDiscardAll") {
      dialogs.ExpectMessage(
          QStringLiteral("Discard the unsaved changes of all pages listed here (1)? They cannot be "
                         "brought back."),
          MessageAnswer::Yes);
    }
    QTest::keyClick(discard, Qt::Key_Space);
    EXPECT_TRUE(WaitFor([&] { return !bar->isVisible(); })) << button;
    EXPECT_TRUE(InputOf(page)->hasFocus()) << button;
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("X"));
    EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("oXne")); })) << Seen(page);
  }
}

}  // namespace
}  // namespace velor
