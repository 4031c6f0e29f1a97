// SPDX-License-Identifier: GPL-3.0-or-later
// Pages whose source cannot be kept, and files that are no pages, in the whole window.
#include "app/window/CommandRouter.h"
#include "app/window/PageTabs.h"
#include "editor/OutsideChanges.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "editor/modWorkFlow.h"
#include "platform/RuntimeError.h"
#include "tests/app/window/RealWindowFixture.h"
#include "tests/engine/ComponentFixture.h"
#include "tests/support/FakeFileWatches.h"
#include "tests/support/FakeJournals.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QPushButton>
#include <QStatusBar>
#include <QUrl>

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

struct OtherForm {
  QByteArray bytes;
  const char *words;
};
const OtherForm OtherForms[] = {
    {QByteArray("\xFF\xFE\0\0<\0\0\0p\0\0\0>\0\0\0a\0\0\0", 20), "it is UTF-32, which"},
    {"<meta charset=utf-7><p>+AOk-</p>", "it is UTF-7, which"},
    {"\x4C\x88\xA3\x94\x93\x6E\x4C\x82\x96\x84\xA8\x6E\x85\x4C\x61\x88\xA3\x94\x93\x6E",
     "it is EBCDIC, which"},
    {QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16), "it is a binary file, which"}};

/// A file that is no page, and every way into the program.
class RealOtherForms : public RealWindow {
 protected:
  RealOtherForms() { platform.watches = &watches; }

  /// The status bar names the file once and says what it is.
  void ExpectTold(const OtherForm &form) {
    const auto said = [this] { return window.statusBar()->currentMessage(); };
    EXPECT_TRUE(WaitFor([&] { return said().contains(QString::fromLatin1(form.words)); }))
        << said().toStdString();
    EXPECT_EQ(said().count(PageFile), 1) << said().toStdString();
    window.Context().mainWindow.status.Report({});
    EXPECT_EQ(Bytes(PageFile), form.bytes);
  }

  FakeFileWatches watches;
};

TEST_F(RealOtherForms, AreNotOpenedFromDialogDropHistoryOrClipboardAndSaidToBeWhatTheyAre) {
  frmMain &page = Open(QStringLiteral("good.htm"), "<p>good</p>");
  for (const OtherForm &form : OtherForms) {
    Write(PageFile, form.bytes);
    SharedDialog().ExpectOpen(Logic(PageFile));
    Choose("mnuOpen");
    ExpectTold(form);
    window.Opener().OpenDroppedFiles({Logic(PageFile)}, nullptr);
    ExpectTold(form);
    window.Opener().OpenRecentFile(Logic(PageFile));
    ExpectTold(form);
    auto *copied = new QMimeData;
    copied->setUrls({QUrl::fromLocalFile(folder.FilePath(PageFile))});
    QApplication::clipboard()->setMimeData(copied);
    PutCaret(page, QStringLiteral("p"));
    Choose("mnuPaste");
    ExpectTold(form);
    EXPECT_EQ(Tabs().count(), 1);
    EXPECT_TRUE(Holds(page, QStringLiteral("<p>good</p>"))) << Seen(page);
  }
}

TEST_F(RealOtherForms, AreNotOpenedAsPagesOfAProjectNorRestored) {
  for (const OtherForm &form : OtherForms) {
    Write(PageFile, form.bytes);
    const auto told = [](const auto &act) {
      try {
        act();
      } catch (const RuntimeError &error) {
        return error.Description();
      }
      return QString();
    };
    const QString project =
        told([&] { modWorkFlow::OpenProjectPage(window.Context(), Logic(PageFile)); });
    EXPECT_TRUE(project.contains(QString::fromLatin1(form.words).mid(3))) << project.toStdString();
    EXPECT_EQ(project.count(PageFile), 1) << project.toStdString();
    JournalledPage kept;
    kept.path = Logic(PageFile);
    kept.page = {form.bytes, folder.FilePath(PageFile), QStringLiteral("<p>a</p>")};
    const QString restored = told([&] { modWorkFlow::RestorePage(window.Context(), kept); });
    EXPECT_TRUE(restored.contains(QString::fromLatin1(form.words))) << restored.toStdString();
    EXPECT_EQ(Tabs().count(), 0);
    EXPECT_EQ(Bytes(PageFile), form.bytes);
  }
}

TEST_F(RealOtherForms, AreNotTakenInThePlaceOfAnOpenPage) {
  frmMain &page = Open(PageFile, "<p>one</p>");
  for (const OtherForm &form : OtherForms) {
    Write(PageFile, form.bytes);
    watches.Change(Logic(PageFile));
    ExpectTold(form);
    EXPECT_TRUE(Holds(page, QStringLiteral("<p>one</p>"))) << Seen(page);
  }
  PutCaret(page, QStringLiteral("p"));
  Type(page, QStringLiteral("X"));
  ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("oXne")); }));
  watches.Change(Logic(PageFile));
  ASSERT_TRUE(WaitFor([&] { return page.Outside().isVisible(); }));
  page.Outside().findChild<QPushButton *>(QStringLiteral("cmdTakeTheirs"))->click();
  ExpectTold(OtherForms[3]);
  EXPECT_TRUE(Holds(page, QStringLiteral("oXne"))) << Seen(page);
}

}  // namespace
}  // namespace velor
