// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings/modSettingManager.h"
#include "editor/modWorkFlow.h"
#include "tests/editor/EditorWorld.h"
#include "tests/support/Waiting.h"

#include <QAction>
#include <QStackedLayout>
#include <QToolBar>

namespace velor {

namespace {

const QString IndexFile = QStringLiteral("\\site\\index.htm");
const QString IndexCopy = QStringLiteral("\\site\\indexTMP.htm");

}  // namespace

class ModesTest : public EditorWorld {
 protected:
  QToolBar *Quick(int number) {
    return Page(number).findChild<QToolBar *>(QStringLiteral("tbrQuick"));
  }
  QAction *Button(int number, int position) { return Quick(number)->actions().at(position - 1); }
  bool InFront(QWidget *widget) { return widget->isVisibleTo(&Page(1)); }
  QString Option(const QString &name) {
    return modSettingManager::GetOption(registry, name, QStringLiteral("absent"));
  }
};

TEST_F(ModesTest, TheModeToolbarHasItsKeysCaptionsAndTooltipsInOrder) {
  struct Row {
    const char *key;
    const char *caption;
    const char *tooltip;
  };
  const std::array<Row, 7> rows{{{"design", "Design", "Design Mode"},
                                 {"viewcode", "View HTML", "View HTML"},
                                 {"editcode", "Edit HTML", "Edit HTML"},
                                 {"preview", "Preview", "Preview"},
                                 {"", "", ""},
                                 {"detail", "Show Detail", "Show Detail"},
                                 {"snap", "Snap to Grid", "Snap to Grid"}}};
  New();
  const QList<QAction *> buttons = Quick(1)->actions();
  ASSERT_EQ(buttons.size(), 7);
  for (int at = 0; at < 7; ++at) {
    const Row &row = rows[static_cast<std::size_t>(at)];
    if (at == 4) {
      EXPECT_TRUE(buttons[at]->isSeparator());
      continue;
    }
    EXPECT_EQ(buttons[at]->data().toString(), QString::fromLatin1(row.key));
    EXPECT_EQ(buttons[at]->text(), QString::fromLatin1(row.caption));
    EXPECT_EQ(buttons[at]->toolTip(), QString::fromLatin1(row.tooltip));
    EXPECT_FALSE(buttons[at]->icon().isNull()) << row.key;
  }
}

TEST_F(ModesTest, DesignAndSourceViewLieInTheSamePlaceUnderTheToolbar) {
  New();
  EXPECT_NE(Page(1).findChild<QWidget *>(QStringLiteral("DHTML1")), nullptr);
  EXPECT_NE(Page(1).findChild<QWidget *>(QStringLiteral("Code1")), nullptr);
  Page(1).ChangeMode(2);
  const auto *frame = Page(1).findChild<QWidget *>(QStringLiteral("picPage"));
  EXPECT_TRUE(frame->isAncestorOf(Component(1).Widget()));
  EXPECT_EQ(frame->geometry(), SourceView(1).Widget()->geometry());
  EXPECT_GE(SourceView(1).Widget()->geometry().top(), Quick(1)->geometry().bottom());
}

TEST_F(ModesTest, DesignComesToTheFrontWithTheFocusAndCopiesNothing) {
  New();
  Page(1).ChangeMode(2);
  log.clear();
  Page(1).ChangeMode(1);
  // Nothing is copied; the bars then show what is true of the design view.
  EXPECT_EQ(CallLog(log.begin(), log.begin() + 2), Calls({"SetFocus()", "Refresh()"}));
  EXPECT_EQ(Count(QStringLiteral("Source.SetText()")), 0);
  EXPECT_TRUE(InFront(Component(1).Widget()));
  EXPECT_FALSE(InFront(SourceView(1).Widget()));
}

TEST_F(ModesTest, OtherModeNumbersDoNothing) {
  New();
  for (const int mode : {-1, 0, 5, 99}) Page(1).ChangeMode(mode);
  EXPECT_TRUE(log.empty());
  EXPECT_TRUE(InFront(Component(1).Widget()));
}

TEST_F(ModesTest, ViewHtmlShowsACopyOfThePagesText) {
  Open(IndexFile);
  Component(1).Edit(QStringLiteral("<p>b</p>"));
  Page(1).ChangeMode(2);
  EXPECT_EQ(SourceView(1).text, QStringLiteral("<p>b</p>"));
  EXPECT_EQ(SourceView(1).access, SourceAccess::View);
  EXPECT_TRUE(InFront(SourceView(1).Widget()));
  EXPECT_EQ(log, Calls({"TextToSave()", "Source.SetText()", "Source.SetFocus()", "Refresh()",
                        "ShowNothing()", "ShowTag()"}));
}

TEST_F(ModesTest, ViewHtmlOpensAtTheCaretsElementAndDesignComesBackToWhereItWasMoved) {
  Open(IndexFile, "<p>One</p>\r\n<p>Two</p>");
  const ElementPlaces before = {{QStringLiteral("p"), 1, 2}};
  Component(1).caretPlaces = before;
  Page(1).ChangeMode(2);
  EXPECT_EQ(SourceView(1).CaretLine(), 1);
  EXPECT_EQ(SourceView(1).CaretColumn(), 5);
  Page(1).ChangeMode(1);
  EXPECT_EQ(Component(1).caretPlaces, before) << "not moved, so left alone";
  Page(1).ChangeMode(2);
  SourceView(1).SetCaret(0, 4);
  Page(1).ChangeMode(1);
  EXPECT_EQ(Component(1).caretPlaces.front(), (ElementPlace{QStringLiteral("p"), 0, 1}));
}

TEST_F(ModesTest, WhatStandsInTheSourceViewIsNotCarriedBack) {
  Open(IndexFile);
  Page(1).ChangeMode(2);
  SourceView(1).text = QStringLiteral("<p>typed</p>");
  Page(1).ChangeMode(1);
  EXPECT_EQ(Component(1).DocumentHTML(), QStringLiteral("<p>a</p>"));
}

TEST_F(ModesTest, TheTemporaryCopyIsWrittenAnewEveryTimeAndIsNeverThePagesFile) {
  Open(IndexFile);
  Component(1).Edit(QStringLiteral("<p>b</p>"));
  EXPECT_EQ(Page(1).CreatorHTML(), QStringLiteral("<p>b</p>"));
  EXPECT_EQ(Content(IndexCopy), "<p>b</p>");
  Component(1).Edit(QStringLiteral("<p>c</p>"));
  EXPECT_EQ(Page(1).CreatorHTML(), QStringLiteral("<p>c</p>"));
  EXPECT_EQ(Content(IndexCopy), "<p>c</p>");
  EXPECT_EQ(Content(IndexFile), "<p>a</p>");
}

TEST_F(ModesTest, WhereTheCopyCannotBeWrittenTheTextComesFromTheComponentSilently) {
  Open(IndexFile);
  Component(1).Edit(QStringLiteral("<p>b</p>"));
  files.MakeFolderUnwritable(QStringLiteral("\\site"));
  EXPECT_EQ(Page(1).CreatorHTML(), QStringLiteral("<p>b</p>"));
  Page(1).ChangeMode(2);
  EXPECT_EQ(SourceView(1).text, QStringLiteral("<p>b</p>"));
  EXPECT_TRUE(mainWindow.reports.isEmpty());
  EXPECT_FALSE(Exists(IndexCopy));
}

TEST_F(ModesTest, EditHtmlMarksTheRecordAndFillsTheEditorFromTwoCopies) {
  Open(IndexFile);
  Component(1).Edit(QStringLiteral("<p>b</p>"));
  Page(1).ChangeMode(3);
  EXPECT_EQ(Record(1).EditorOpen, True16);
  EXPECT_EQ(log, Calls({"TextToSave()", "TextToSave()", "Source.SetText()",
                        "ShowWindow(frmCodeEditor)", "Source.SetFocus()"}));
  EXPECT_EQ(pages.CodeEditor(1)->AppliedText, QStringLiteral("<p>b</p>"));
  EXPECT_EQ(Code(1).text, QStringLiteral("<p>b</p>"));
  EXPECT_EQ(pages.CodeEditor(1)->windowTitle(), QStringLiteral("index.htm"));
  EXPECT_FALSE(pages.CodeEditor(1)->isModal());
}

TEST_F(ModesTest, EditHtmlMakesTheEditorAnewAfterItWasClosed) {
  Open(IndexFile);
  Page(1).ChangeMode(3);
  pages.CodeEditor(1)->close();
  EXPECT_TRUE(pages.CodeEditor(1).isNull());
  DeleteClosedWindows();
  Page(1).ChangeMode(3);
  ASSERT_FALSE(pages.CodeEditor(1).isNull());
  EXPECT_EQ(pages.CodeEditor(1)->Tag, QStringLiteral("1"));
  EXPECT_TRUE(pages.CodeEditor(1)->isVisible());
}

TEST_F(ModesTest, EditHtmlAgainReplacesUnappliedSourceAsOneStepThatUndoTakesBack) {
  Open(IndexFile);
  Page(1).ChangeMode(3);
  Code(1).text = QStringLiteral("unapplied");
  Page(1).ChangeMode(3);
  EXPECT_EQ(Code(1).text, QStringLiteral("<p>a</p>"));
  EXPECT_EQ(Code(1).undoable, QStringList{QStringLiteral("unapplied")});
  ASSERT_EQ(mainWindow.reports.size(), 1);
  EXPECT_TRUE(mainWindow.reports[0].contains(QStringLiteral("Undo (Ctrl+Z)")));
}

TEST_F(ModesTest, EditHtmlAgainWithNothingTypedFillsTheEditorAnew) {
  Open(IndexFile);
  Page(1).ChangeMode(3);
  Page(1).ChangeMode(3);
  EXPECT_TRUE(Code(1).undoable.isEmpty());
  EXPECT_TRUE(mainWindow.reports.isEmpty());
}

TEST_F(ModesTest, TheEditorsCaptionIsTheRecordsEvenAfterASaveUnderANewName) {
  New();
  dialog.ExpectSave(QStringLiteral("\\site\\new.htm"));
  modWorkFlow::SavePage(context, Page(1), dialog, Record(1), true);
  Page(1).ChangeMode(3);
  EXPECT_EQ(pages.CodeEditor(1)->windowTitle(), QStringLiteral("Untitled 1"));
}

TEST_F(ModesTest, TheButtonsCallTheirModesByPosition) {
  Open(IndexFile);
  Button(1, 2)->trigger();
  EXPECT_TRUE(InFront(SourceView(1).Widget()));
  Button(1, 1)->trigger();
  EXPECT_TRUE(InFront(Component(1).Widget()));
  Button(1, 3)->trigger();
  EXPECT_EQ(Record(1).EditorOpen, True16);
  Button(1, 4)->trigger();
  EXPECT_FALSE(context.preview.isNull());
}

TEST_F(ModesTest, ShowDetailAndSnapToGridToggleAndAreRemembered) {
  New();
  EXPECT_FALSE(Button(1, 6)->isChecked());
  EXPECT_TRUE(Button(1, 7)->isChecked());
  Button(1, 6)->trigger();
  Button(1, 7)->trigger();
  EXPECT_TRUE(Component(1).ShowDetails());
  EXPECT_FALSE(Component(1).SnapToGrid());
  EXPECT_TRUE(Button(1, 6)->isChecked());
  EXPECT_FALSE(Button(1, 7)->isChecked());
  EXPECT_EQ(Option(QStringLiteral("ShowDetails")), QStringLiteral("True"));
  EXPECT_EQ(Option(QStringLiteral("SnapToGrid")), QStringLiteral("False"));
  Button(1, 6)->trigger();
  EXPECT_EQ(Option(QStringLiteral("ShowDetails")), QStringLiteral("False"));
}

TEST_F(ModesTest, ATruthValueThatIsNoneIsToldOnceARunWithItsSettingAndFile) {
  modSettingManager::SetOption(registry, QStringLiteral("SnapToGrid"), QStringLiteral("yes"));
  modSettingManager::SetOption(registry, QStringLiteral("ShowDetails"), QStringLiteral(" 1 "));
  dialogs.ExpectMessage(
      QStringLiteral("Type mismatch: the setting SnapToGrid in /config/fake.conf is \"yes\"; "
                     "\"True\" counts until it is mended"));
  New();
  EXPECT_TRUE(Component(1).SnapToGrid());
  EXPECT_TRUE(Component(1).ShowDetails());
  New();
  EXPECT_TRUE(WaitFor([&] { return !dialogs.messages.empty(); }));
  EXPECT_FALSE(WaitFor([&] { return dialogs.messages.size() > 1; }, 50));
  EXPECT_EQ(dialogs.messages[0].icon, MessageIcon::Critical);
}

TEST_F(ModesTest, TogglingLeavesOtherWindowsAloneAndTheNextWindowFollows) {
  New();
  New();
  Button(1, 6)->trigger();
  Button(1, 7)->trigger();
  EXPECT_FALSE(Component(2).ShowDetails());
  EXPECT_TRUE(Component(2).SnapToGrid());
  New();
  EXPECT_TRUE(Component(3).ShowDetails());
  EXPECT_FALSE(Component(3).SnapToGrid());
  EXPECT_TRUE(Button(3, 6)->isChecked());
  EXPECT_FALSE(Button(3, 7)->isChecked());
}

TEST_F(ModesTest, TheSourceViewsMarginsGetTheirColours) {
  New();
  EXPECT_EQ(SourceView(1).colors.at(1), 0x808080);
  EXPECT_EQ(SourceView(1).colors.at(27), 0x808080);
  EXPECT_EQ(SourceView(1).colors.at(26), 0xFFFFFF);
}

TEST_F(ModesTest, AReadOnlyPageHasNoSourceEditing) {
  Open(IndexFile);
  Record(1).ReadOnly = True16;
  Page(1).CheckAcc();
  EXPECT_FALSE(Button(1, 3)->isEnabled());
  EXPECT_EQ(log, Calls({"SetSourceEditingEnabled(False)"}));
  Record(1).ReadOnly = False16;
  Page(1).CheckAcc();
  EXPECT_TRUE(Button(1, 3)->isEnabled());
  EXPECT_EQ(Count(QStringLiteral("SetSourceEditingEnabled(True)")), 1);
}

TEST_F(ModesTest, ActivationChecksAccessAndThenSelectsTheTab) {
  New();
  New();
  Page(1).OnActivated();
  EXPECT_EQ(log.front(), QStringLiteral("SetSourceEditingEnabled(True)"));
  EXPECT_EQ(CallLog(log.end() - 2, log.end()),
            Calls({"SelectTab(key1)", "ResetElementInspection()"}));
  EXPECT_EQ(mainWindow.selectedTab, QStringLiteral("key1"));
}

TEST_F(ModesTest, ActivationReadsWhetherTheToolBoxIsShown) {
  New();
  modSettingManager::SetOption(registry, QStringLiteral("showtoolbox"), QStringLiteral("False"));
  Page(1).OnActivated();
  EXPECT_EQ(Count(QStringLiteral("ResetElementInspection()")), 0);
}

TEST_F(ModesTest, ActivationWithoutATabOrTagIsHarmless) {
  New();
  mainWindow.Clear();
  Page(1).Tag.clear();
  EXPECT_NO_THROW(Page(1).OnActivated());
}

TEST_F(ModesTest, TheTabCaptionIsSetOnThePagesOwnTabWhicheverPlaceItHas) {
  New();
  New();
  New();
  Page(1).close();
  Page(2).setWindowTitle(QStringLiteral("two"));
  Page(2).UpdateTabCaption();
  EXPECT_EQ(mainWindow.tabs[0].key, QStringLiteral("key2"));
  EXPECT_EQ(mainWindow.tabs[0].caption, QStringLiteral("two"));
  EXPECT_EQ(mainWindow.tabs[1].caption, QStringLiteral("Untitled 3"));
}

TEST_F(ModesTest, APageWithoutATabNeedsNoCaptionThere) {
  New();
  mainWindow.Clear();
  EXPECT_NO_THROW(Page(1).UpdateTabCaption());
}

TEST_F(ModesTest, TheRecordIsHandedOutAsACopy) {
  New();
  PageRecord record = Page(1).GetPageRecord();
  record.Path = QStringLiteral("\\elsewhere");
  EXPECT_TRUE(Record(1).Path.isEmpty());
}

}  // namespace velor
