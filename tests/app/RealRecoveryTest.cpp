// SPDX-License-Identifier: GPL-3.0-or-later
// A page that was journalled by one run and restored by the next is saved as faithfully as if
// nothing had happened.
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "editor/modWorkFlow.h"
#include "platform/qt/files/JournalFiles.h"
#include "tests/app/RealWindowFixture.h"
#include "tests/component/ComponentFixture.h"

#include <QElapsedTimer>
#include <QTest>

#include <functional>
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
  RealRecovery() { platform.journals = &journals_; }

  frmMain &LastOpened() {
    PageSlots &pages = window.Context().pages;
    return *pages.Page(pages.PageCount());
  }
  /// What another run finds after this one's end, once it holds the text.
  AbandonedPage Left(frmMain &page, const QString &text) {
    EXPECT_TRUE(WaitFor([&] { return page.DHTML1().Memory().document.contains(text); }));
    EXPECT_TRUE(page.Journal().Catch());
    // The process would have ended here; this one goes on, and the page stays.
    const JournalledPage kept{window.Context().pages.Record(page.Number()).Path,
                              page.GetPageRecord().Caption, JournalledPage::Saving::ToItsFile,
                              page.DHTML1().Memory(), QDateTime::currentDateTime()};
    return {{}, kept};
  }

  SyncCalls calls_;

 private:
  JournalFiles journals_{calls_};
};

TEST_F(RealRecovery, TheJournalGoesToTheDiskBetweenTheKeysOfWhoeverTypesOn) {
  constexpr int keys = 100;
  constexpr int pace = 50;          // milliseconds between two keys
  constexpr qint64 longest = 2000;  // from one sync to the next
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
  for (int key = 1; key <= keys; ++key) {
    Type(page, QStringLiteral("x"));
    (void)QTest::qWaitFor([&] { return clock.elapsed() >= key * pace; });
  }
  const qint64 end = clock.elapsed();
  calls_.onSync = {};
  EXPECT_EQ(late, 0);
  qint64 before = 0;
  syncs.push_back(end);
  for (const qint64 sync : syncs) {
    EXPECT_LE(sync - before, longest);
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
  const AbandonedPage left = Left(page, QStringLiteral("X"));

  ASSERT_TRUE(modWorkFlow::RestorePage(window.Context(), left.page));
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
  const AbandonedPage left = Left(page, QStringLiteral("oXne"));
  modWorkFlow::RestorePage(window.Context(), left.page);
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
  AbandonedPage left = Left(page, QStringLiteral("typed"));
  left.page.saving = JournalledPage::Saving::AsksForAName;
  modWorkFlow::RestorePage(window.Context(), left.page);
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
  const AbandonedPage left = Left(page, QStringLiteral("applied"));
  EXPECT_EQ(left.page.page.original, "<P>applied</P>");
  modWorkFlow::RestorePage(window.Context(), left.page);
  Choose("mnuSave");
  EXPECT_EQ(Bytes(QStringLiteral("page.htm")), "<P>applied</P>");
}

}  // namespace
}  // namespace velor
