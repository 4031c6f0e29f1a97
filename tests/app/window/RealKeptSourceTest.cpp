// SPDX-License-Identifier: GPL-3.0-or-later
// Pages whose source cannot be kept, and files that are no pages, in the whole window.
#include "app/window/PageTabs.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "tests/app/window/RealWindowFixture.h"
#include "tests/engine/ComponentFixture.h"
#include "tests/support/FakeJournals.h"

#include <QStatusBar>

namespace velor {
namespace {

const QString PageFile = QStringLiteral("page.htm");
/// The last byte begins a character of two bytes, and would take the next letter for its second.
const QByteArray Unkeepable = "<meta charset=big5>\r\n<p id=x>one \xA4";

class RealKeptSource : public RealWindow {
 protected:
  RealKeptSource() { platform.replaced = &replaced; }

  frmMain &OpenUnkeepable() {
    frmMain &page = Open(PageFile, Unkeepable);
    Evaluate(EngineOf(page), QStringLiteral("document.querySelector('p').append('new')"));
    EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("new")); }));
    return page;
  }
  void ExpectQuestion(const char *answer) {
    dialogs.ExpectChoice(
        QStringLiteral("The source of page.htm cannot be kept as it was written, since bytes that "
                       "are no text in big5 stand beside what was changed."),
        QString::fromLatin1(answer));
  }

  FakeReplacedVersions replaced;
};

TEST_F(RealKeptSource, APageThatWouldBeWrittenAnewIsAskedAboutBeforeItsFirstSave) {
  OpenUnkeepable();
  ExpectQuestion("Cancel");
  Choose("mnuSave");
  EXPECT_EQ(Bytes(PageFile), Unkeepable);
  EXPECT_TRUE(replaced.kept.isEmpty());
}

TEST_F(RealKeptSource, SavedAnewItsOldBytesAreKeptOnceAndItIsNotAskedAgain) {
  frmMain &page = OpenUnkeepable();
  ExpectQuestion("Save Anew");
  Choose("mnuSave");
  const QByteArray first = Bytes(PageFile);
  EXPECT_TRUE(first.contains("new")) << first.constData();
  ASSERT_EQ(replaced.kept.size(), 1);
  Evaluate(EngineOf(page), QStringLiteral("document.querySelector('p').append('er')"));
  Choose("mnuSave");
  EXPECT_TRUE(Bytes(PageFile).contains("newer"));
  EXPECT_EQ(replaced.kept.size(), 1);
}

TEST_F(RealKeptSource, UnderAnotherNameTheOldFileStays) {
  OpenUnkeepable();
  ExpectQuestion("Save Under Another Name");
  SharedDialog().ExpectSave(Logic(QStringLiteral("other.htm")));
  Choose("mnuSave");
  EXPECT_EQ(Bytes(PageFile), Unkeepable);
  EXPECT_TRUE(Bytes(QStringLiteral("other.htm")).contains("new"));
}

TEST_F(RealKeptSource, ClosingAsksTheSameAndCancelKeepsThePage) {
  frmMain &page = OpenUnkeepable();
  dialogs.ExpectMessage(
      QStringLiteral("You have made changes to this document. Do you want to save it?"),
      MessageAnswer::Yes);
  ExpectQuestion("Cancel");
  EXPECT_FALSE(page.close());
  EXPECT_EQ(Tabs().count(), 1);
  EXPECT_EQ(Bytes(PageFile), Unkeepable);
}

TEST_F(RealKeptSource, FilesThatAreNoPagesAreNotOpenedAndSaidToBeWhatTheyAre) {
  struct {
    QByteArray bytes;
    const char *words;
  } const others[] = {
      {QByteArray("\xFF\xFE\0\0<\0\0\0p\0\0\0>\0\0\0a\0\0\0", 20), "is UTF-32, which"},
      {"<meta charset=utf-7><p>+AOk-</p>", "is UTF-7, which"},
      {"\x4C\x88\xA3\x94\x93\x6E\x4C\x82\x96\x84\xA8\x6E\x85\x4C\x61\x88\xA3\x94\x93\x6E",
       "is EBCDIC, which"},
      {QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16), "is a binary file, which"}};
  for (const auto &file : others) {
    Write(PageFile, file.bytes);
    SharedDialog().ExpectOpen(Logic(PageFile));
    Choose("mnuOpen");
    EXPECT_TRUE(window.statusBar()->currentMessage().contains(QString::fromLatin1(file.words)))
        << window.statusBar()->currentMessage().toStdString();
    window.statusBar()->clearMessage();
    window.Router().OpenDroppedFiles({Logic(PageFile)}, nullptr);
    EXPECT_TRUE(window.statusBar()->currentMessage().contains(QString::fromLatin1(file.words)));
    EXPECT_EQ(Tabs().count(), 0);
    EXPECT_EQ(Bytes(PageFile), file.bytes);
  }
}

}  // namespace
}  // namespace velor
