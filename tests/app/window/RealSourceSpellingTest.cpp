// SPDX-License-Identifier: GPL-3.0-or-later
// The spelling of a page's text in its source, by keys: in View HTML and in the source editor.
#include "app/settings/modSettingManager.h"
#include "editor/PageSlots.h"
#include "editor/PageWords.h"
#include "editor/frmCodeEditor.h"
#include "qt/SourceColors.h"
#include "tests/app/window/RealSpellingFixture.h"
#include "tests/engine/ComponentFixture.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QContextMenuEvent>
#include <QImage>
#include <QLineEdit>
#include <QPixmap>
#include <QStatusBar>
#include <QTest>

namespace velor {
namespace {

const QByteArray Words =
    "<HTML lang=en><BODY>\r\n<p title=hose>the hose in\r\n  the gardn\r\n<P align=left>ho<B>s</B>e"
    "<!-- hose --> <CODE>xyzzy</CODE>\r\n<p lang=de>Haus hose\r\n</BODY></HTML>\r\n";

class SourceSpellingInWindow : public RealSpelling {
 protected:
  frmMain &OpenWords() { return Open(QStringLiteral("words.htm"), Words); }
  /// The page's window with its source in view.
  frmMain &View() {
    frmMain &page = OpenWords();
    page.ChangeMode(2);
    return page;
  }
  frmCodeEditor &Editor() {
    OpenWords().ChangeMode(3);
    return *window.Context().pages.CodeEditor(1);
  }
  static bool HasWaves(SourceControl &source) {
    const QImage picture = source.Widget()->grab().toImage();
    for (int y = 0; y < picture.height(); ++y)
      for (int x = 0; x < picture.width(); ++x)
        if (picture.pixelColor(x, y).rgb() == UnknownWordColor().rgb()) return true;
    return false;
  }
  static bool WavesAre(SourceControl &source, bool wanted) {
    return WaitFor([&] { return HasWaves(source) == wanted; });
  }
  static void PutCaret(SourceControl &source, const char *text) {
    const qsizetype at = source.Text().indexOf(QString::fromLatin1(text));
    ASSERT_GE(at, 0);
    source.Select({at, at});
  }
  static QMenu &WordMenu(QWidget &shown, SourceControl &source) {
    QTest::keyClick(source.Widget(), Qt::Key_Period, Qt::ControlModifier);
    return *ShownMenu(shown, "mnuWord");
  }
  static void ChooseOf(QMenu &menu, const char *caption) {
    const qsizetype place = Captions(menu.actions()).indexOf(QString::fromLatin1(caption));
    ASSERT_GE(place, 0) << Captions(menu.actions()).join(u'|').toStdString();
    menu.actions()[place]->trigger();
    menu.close();
  }
};

TEST_F(SourceSpellingInWindow, F7WalksThroughTheEditorAndEachChangeIsOneStepOfItsUndo) {
  frmCodeEditor &editor = Editor();
  SourceControl &code = editor.Code();
  const QString before = code.Text();
  PutCaret(code, "<HTML");
  QTest::keyClick(code.Widget(), Qt::Key_F7);
  ASSERT_TRUE(GoesTo(editor, "hose"));
  EXPECT_EQ(code.Selection().start, before.indexOf(QStringLiteral("hose in")));
  EXPECT_TRUE(WaitFor([&] { return Other(editor).lineEdit()->hasFocus(); }));
  Other(editor).setCurrentIndex(Other(editor).findText(QStringLiteral("house")));
  QTest::keyClick(&Other(editor), Qt::Key_Return);
  ASSERT_TRUE(GoesTo(editor, "gardn"));
  EXPECT_EQ(code.Text(),
            QString(before).replace(QStringLiteral("hose in"), QStringLiteral("house in")));
  Press(editor, "cmdIgnore");
  ASSERT_TRUE(GoesTo(editor, "hose"));
  Other(editor).setEditText(QStringLiteral("house"));
  Press(editor, "cmdChangeAll");
  ASSERT_TRUE(GoesTo(editor, "house")) << "which is no German word";
  QTest::keyClick(&Other(editor), Qt::Key_Escape);
  EXPECT_FALSE(Bar(editor).isVisible());
  EXPECT_EQ(QApplication::focusWidget(), code.Widget());
  EXPECT_TRUE(code.Text().contains(QStringLiteral("hou<B>s</B>e<!-- hose -->")));
  EXPECT_TRUE(code.Text().contains(QStringLiteral("title=hose")));
  code.Edit(EditingCommand::Undo);
  code.Edit(EditingCommand::Undo);
  EXPECT_EQ(code.Text(), before);
}

TEST_F(SourceSpellingInWindow, TheMenuAtAWordOfTheEditorCorrectsItAndTheFileGetsItsBytesOnly) {
  frmCodeEditor &editor = Editor();
  PutCaret(editor.Code(), "hose in");
  ChooseOf(WordMenu(editor, editor.Code()), "house");
  EXPECT_EQ(Saved(), QByteArray(Words).replace("hose in", "house in").toStdString());
}

TEST_F(SourceSpellingInWindow, TheEditorsOwnMenuBeginsWithTheWordOnlyWhereThatIsUnknown) {
  frmCodeEditor &editor = Editor();
  const auto captionsAt = [&](const char *word) {
    PutCaret(editor.Code(), word);
    auto &source = dynamic_cast<QAbstractScrollArea &>(*editor.Code().Widget());
    const QPoint caret = source.inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    PutCaret(editor.Code(), "<HTML");
    QContextMenuEvent press(QContextMenuEvent::Mouse, caret, source.mapToGlobal(caret));
    QApplication::sendEvent(source.viewport(), &press);
    QMenu *menu = ShownMenu(editor, "mnuSource");
    const QStringList captions = Captions(menu->actions());
    menu->close();
    WaitFor([&] { return editor.findChild<QMenu *>(QStringLiteral("mnuSource")) == nullptr; });
    return captions;
  };
  const QStringList plain = captionsAt("the hose");
  EXPECT_FALSE(plain.first().isEmpty());
  const QStringList atWord = captionsAt("gardn");
  EXPECT_TRUE(atWord.contains(QStringLiteral("garden")));
  EXPECT_TRUE(atWord.contains(QStringLiteral("Ignore \"gardn\"")));
  EXPECT_EQ(atWord.mid(atWord.size() - plain.size()), plain);
}

TEST_F(SourceSpellingInWindow, TheViewShowsWordsAndTakesThemForKnownButChangesNone) {
  frmMain &page = View();
  SourceControl &source = page.Code1();
  EXPECT_TRUE(WavesAre(source, true));
  PutCaret(source, "hose in");
  QMenu &menu = WordMenu(page, source);
  EXPECT_EQ(Captions(menu.actions()), (QStringList{"Add \"hose\" to My Words", "Ignore \"hose\""}));
  menu.close();
  QTest::keyClick(source.Widget(), Qt::Key_F7);
  ASSERT_TRUE(GoesTo(page, "hose"));
  EXPECT_EQ(source.SelectedText(), QStringLiteral("hose"));
  EXPECT_FALSE(Other(page).isVisible());
  EXPECT_FALSE(Button(page, "cmdChange").isVisible());
  EXPECT_FALSE(Button(page, "cmdChangeAll").isVisible());
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  ASSERT_TRUE(GoesTo(page, "gardn"));
  Press(page, "cmdIgnore");
  ASSERT_TRUE(GoesTo(page, "hose"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  EXPECT_EQ(QApplication::focusWidget(), source.Widget());
  EXPECT_EQ(source.Text().toStdString(), Words.toStdString());
  page.ChangeMode(1);
  QTest::keyClick(InputOf(page), Qt::Key_F7);
  ASSERT_TRUE(GoesTo(page, "hose"));
  EXPECT_TRUE(Other(page).isVisible()) << "in design view the same bar changes words";
}

TEST_F(SourceSpellingInWindow, AWordThatIsAddedInDesignViewLosesItsWavesInTheSourceAtOnce) {
  frmCodeEditor &editor = Editor();
  IgnoreWord(window.Context(), QStringLiteral("gardn"));
  ASSERT_TRUE(WavesAre(editor.Code(), true));
  AddWord(window.Context(), QStringLiteral("hose"), WordHome::Person);
  EXPECT_TRUE(WavesAre(editor.Code(), false));
  EXPECT_EQ(Bytes(QStringLiteral("words.txt")).toStdString(), "hose\n");
}

TEST_F(SourceSpellingInWindow, WithoutThePreferenceThereAreNoWaves) {
  frmCodeEditor &editor = Editor();
  ASSERT_TRUE(WavesAre(editor.Code(), true));
  modSettingManager::SetOption(registry, QStringLiteral("CheckSpelling"), QStringLiteral("False"));
  UseSpelling(window.Context());
  EXPECT_TRUE(WavesAre(editor.Code(), false));
  modSettingManager::SetOption(registry, QStringLiteral("CheckSpelling"), QStringLiteral("True"));
}

}  // namespace
}  // namespace velor
