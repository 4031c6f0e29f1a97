// SPDX-License-Identifier: GPL-3.0-or-later
// The spelling of a page, by keys: waves, the word at the caret, the walk through the page.
#include "app/settings/modSettingManager.h"
#include "editor/PageSlots.h"
#include "editor/PageWords.h"
#include "editor/frmMain.h"
#include "tests/app/window/RealSpellingFixture.h"
#include "tests/engine/ComponentFixture.h"

#include <QApplication>
#include <QLineEdit>
#include <QStatusBar>
#include <QTest>
#include <QTreeWidget>
#include <QWebEnginePage>

namespace velor {
namespace {

const QByteArray Words =
    "<HTML lang=en><BODY>\r\n<p id=a>the hose in\r\n  the gardn\r\n<P align=left>ho<B>s</B>e"
    "<!-- hose --> <CODE>xyzzy</CODE>\r\n<p lang=de>Haus hose\r\n</BODY></HTML>\r\n";

class DesignSpelling : public RealSpelling {
 protected:
  static int Waves(frmMain &page) {
    return Evaluate(EngineOf(page), QStringLiteral("getComputedStyle(document.head, '::before')"
                                                   ".backgroundImage.split('data:image').length"))
               .toInt() -
           1;
  }
  static bool WavesCome(frmMain &page, int count) {
    return WaitFor([&] { return Waves(page) == count; });
  }
  /// The menu at the page's first unknown word.
  static QMenu &WordMenu(frmMain &page) {
    Evaluate(EngineOf(page), QStringLiteral("getSelection().collapse(a.firstChild, 6)"));
    Key(page, Qt::Key_Period, Qt::ControlModifier);
    return *ShownMenu(page, "mnuWord");
  }
};

TEST_F(DesignSpelling, UnknownWordsHaveWavesAndTheFileStaysAsItIs) {
  frmMain &page = Open(QStringLiteral("words.htm"), Words);
  EXPECT_TRUE(WaitFor([&] { return Waves(page) >= 6; }))
      << "hose, gardn, ho-s-e, and hose, which is no German noun";
  EXPECT_EQ(Saved(), Words.toStdString());
}

TEST_F(DesignSpelling, WithoutThePreferenceThereAreNoWaves) {
  modSettingManager::SetOption(registry, QStringLiteral("CheckSpelling"), QStringLiteral("False"));
  frmMain &page = Open(QStringLiteral("words.htm"), Words);
  Key(page, Qt::Key_F7);
  EXPECT_TRUE(GoesTo(page, "hose")) << "the walk is there all the same";
  EXPECT_TRUE(WavesCome(page, 0));
  modSettingManager::SetOption(registry, QStringLiteral("CheckSpelling"), QStringLiteral("True"));
}

TEST_F(DesignSpelling, F7WalksThroughThePageAndChangesItsBytesOnly) {
  frmMain &page = Open(QStringLiteral("words.htm"), Words);
  Key(page, Qt::Key_F7);
  ASSERT_TRUE(GoesTo(page, "hose"));
  EXPECT_TRUE(WaitFor([&] { return Other(page).lineEdit()->hasFocus(); }));
  EXPECT_GE(Other(page).findText(QStringLiteral("house")), 0);
  // As the arrow keys leave it: the suggestion is selected.
  Other(page).setCurrentIndex(Other(page).findText(QStringLiteral("house")));
  Other(page).lineEdit()->selectAll();
  QTest::keyClick(&Other(page), Qt::Key_Return);
  ASSERT_TRUE(GoesTo(page, "gardn"));
  Press(page, "cmdIgnore");
  ASSERT_TRUE(GoesTo(page, "hose"));
  Other(page).setEditText(QStringLiteral("house"));
  Press(page, "cmdChangeAll");
  ASSERT_TRUE(GoesTo(page, "house")) << "which is no German word";
  Press(page, "cmdIgnore");
  EXPECT_TRUE(WaitFor([&] { return !page.Spelling().isVisible(); })) << "none is left";
  EXPECT_EQ(Saved(),
            "<HTML lang=en><BODY>\r\n<p id=a>the house in\r\n  the gardn\r\n<P align=left>house"
            "<!-- hose --> <CODE>xyzzy</CODE>\r\n<p lang=de>Haus house\r\n</BODY></HTML>\r\n");
  Choose("mnuUndo");
  Choose("mnuUndo");
  ASSERT_TRUE(WaitFor([&] { return !Holds(page, QStringLiteral("house")); }));
  EXPECT_EQ(Saved(), Words.toStdString());
}

TEST_F(DesignSpelling, EscapeLeavesTheKeyboardOnTheWord) {
  frmMain &page = Open(QStringLiteral("words.htm"), Words);
  Key(page, Qt::Key_F7);
  ASSERT_TRUE(GoesTo(page, "hose"));
  QTest::keyClick(&Other(page), Qt::Key_Escape);
  EXPECT_FALSE(page.Spelling().isVisible());
  ASSERT_EQ(QApplication::focusWidget(), InputOf(page));
  Type(page, QStringLiteral("and"));
  EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("the and in")); })) << Seen(page);
}

TEST_F(DesignSpelling, TheMenuAtTheWordCorrectsIt) {
  frmMain &page = Open(QStringLiteral("words.htm"), Words);
  QMenu &menu = WordMenu(page);
  const QStringList captions = Captions(menu.actions());
  ASSERT_TRUE(captions.contains(QStringLiteral("house"))) << captions.join(u'|').toStdString();
  EXPECT_TRUE(captions.contains(QStringLiteral("Ignore \"hose\"")));
  menu.actions()[captions.indexOf(QStringLiteral("house"))]->trigger();
  menu.close();
  ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("the house in")); }));
  EXPECT_EQ(Saved(), QByteArray(Words).replace("the hose", "the house").toStdString());
}

TEST_F(DesignSpelling, TheContextMenuBeginsWithTheWordOnlyWhereThatIsUnknown) {
  frmMain &page = Open(QStringLiteral("words.htm"), Words);
  auto *menu = Find<QMenu>("mnuExt");
  const QStringList published = Captions(menu->actions());
  Evaluate(EngineOf(page), QStringLiteral("getSelection().collapse(a.firstChild, 6)"));
  Parts().requests.PopUpContextMenu(QPoint(10, 10));
  const QStringList captions = Captions(menu->actions());
  EXPECT_EQ(captions.mid(captions.size() - published.size()), published);
  EXPECT_TRUE(captions.contains(QStringLiteral("Add \"hose\" to My Words")));
  menu->close();
  Evaluate(EngineOf(page), QStringLiteral("getSelection().collapse(a.firstChild, 1)"));
  Parts().requests.PopUpContextMenu(QPoint(10, 10));
  EXPECT_EQ(Captions(menu->actions()), published);
  menu->close();
}

TEST_F(DesignSpelling, ARightClickOnAWordIsAboutThatWord) {
  frmMain &page = Open(QStringLiteral("words.htm"), Words);
  const QRect word = [&] {
    const QVariantList box =
        Evaluate(EngineOf(page),
                 QStringLiteral("(() => { const r = document.createRange();"
                                "r.setStart(a.firstChild, 4); r.setEnd(a.firstChild, 8);"
                                "const {x, y, width, height} = r.getBoundingClientRect();"
                                "return [x, y, width, height]; })()"))
            .toList();
    return QRect(box[0].toInt(), box[1].toInt(), box[2].toInt(), box[3].toInt());
  }();
  auto *menu = Find<QMenu>("mnuExt");
  QTest::mouseClick(InputOf(page), Qt::RightButton, Qt::NoModifier, word.center());
  ASSERT_TRUE(WaitFor([&] { return menu->isVisible(); }));
  EXPECT_TRUE(Captions(menu->actions()).contains(QStringLiteral("Ignore \"hose\"")));
  menu->close();
}

TEST_F(DesignSpelling, AnAddedWordIsInThePersonsFileAndItsWavesGo) {
  frmMain &page = Open(QStringLiteral("words.htm"), Words);
  ASSERT_TRUE(WaitFor([&] { return Waves(page) >= 6; }));
  Key(page, Qt::Key_F7);
  ASSERT_TRUE(GoesTo(page, "hose"));
  Press(page, "cmdAddWord");
  ASSERT_TRUE(GoesTo(page, "gardn"));
  EXPECT_TRUE(WavesCome(page, 1));
  EXPECT_EQ(Bytes(QStringLiteral("words.txt")).toStdString(), "hose\n");
}

TEST_F(DesignSpelling, AWordOfTheSiteIsAddedToAFileBesideTheProject) {
  frmMain &page = Open(QStringLiteral("words.htm"), Words);
  window.Context().pages.Site(page.Number()) = Logic(QStringLiteral("site"));
  UseSpelling(window.Context(), page.Number());
  QMenu &menu = WordMenu(page);
  const qsizetype place =
      Captions(menu.actions()).indexOf(QStringLiteral("Add \"hose\" to the Words of the Site"));
  ASSERT_GE(place, 0);
  menu.actions()[place]->trigger();
  menu.close();
  EXPECT_TRUE(WavesCome(page, 1)) << "gardn is left";
  EXPECT_EQ(Bytes(QStringLiteral("site-words.txt")).toStdString(), "hose\n");
  EXPECT_FALSE(Exists(QStringLiteral("words.txt")));
}

TEST_F(DesignSpelling, AMissingDictionaryIsToldOnceByItsPackage) {
  const QByteArray french = "<p lang=en>hose<p lang=fr>bonjour\n";
  const auto &status = *Find<QStatusBar>("Sta");
  const auto isTold = [&] { return status.currentMessage().contains(u"hunspell-fr "); };
  Open(QStringLiteral("one.htm"), french);
  EXPECT_TRUE(WaitFor(isTold));
  frmMain &other = Open(QStringLiteral("other.htm"), french);
  EXPECT_TRUE(WavesCome(other, 1)) << "all its words were judged";
  EXPECT_FALSE(isTold()) << status.currentMessage().toStdString();
}

TEST_F(DesignSpelling, AllOpenPagesAreCheckedAndCorrectedTogether) {
  frmMain &page = Open(QStringLiteral("words.htm"), Words);
  frmMain &other = Open(QStringLiteral("other.htm"), "<p>gardn and gardn\n");
  dialogs.ExpectModal([](QWidget &list) {
    list.show();
    auto &words = *list.findChild<QTreeWidget *>(QStringLiteral("lstWords"));
    QStringList rows;
    for (int row = 0; row < words.topLevelItemCount(); ++row) {
      const QTreeWidgetItem &item = *words.topLevelItem(row);
      rows << item.text(0) + u' ' + item.text(1) + u' ' + item.text(2);
    }
    EXPECT_EQ(rows, (QStringList{"gardn 3 words.htm, other.htm", "hose 3 words.htm"}))
        << rows.join(u'|').toStdString();
    auto &box = *list.findChild<QComboBox *>(QStringLiteral("cobChangeTo"));
    // As the arrow keys leave it: the suggestion is selected.
    box.setCurrentIndex(box.findText(QStringLiteral("garden")));
    box.lineEdit()->selectAll();
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(words.topLevelItemCount(), 1);
    list.findChild<QPushButton *>(QStringLiteral("cmdClose"))->click();
  });
  Choose("mnuSpellingOfPages");
  EXPECT_TRUE(WaitFor([&other] { return Holds(other, QStringLiteral("garden and garden")); }));
  EXPECT_TRUE(WaitFor([&page] { return !Holds(page, QStringLiteral("gardn")); })) << Seen(page);
  EXPECT_EQ(Bytes(QStringLiteral("words.htm")).toStdString(), Words.toStdString())
      << "it is changed, not saved";
}

}  // namespace
}  // namespace velor
