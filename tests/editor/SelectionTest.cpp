// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/EditCommands.h"
#include "tests/editor/EditorWorld.h"

namespace velor {

class SelectionTest : public EditorWorld {
 protected:
  static HtmlElement Element(const char *tag, const char *href = nullptr) {
    HtmlElement element;
    element.tagName = QString::fromLatin1(tag);
    if (href != nullptr) {
      element.attributes.emplace_back(QStringLiteral("href"), QString::fromLatin1(href));
    }
    return element;
  }
  QStringList Matching(const QString &start) const {
    QStringList found;
    for (const QString &call : log) {
      if (call.startsWith(start)) found << call;
    }
    return found;
  }
};

TEST_F(SelectionTest, EachStatusGivesItsButtonState) {
  New();
  const std::map<CommandStatus, const char *> expected{
      {CommandStatus::NotSupported, "ShowButton(5000, Unsupported)"},
      {CommandStatus::Disabled, "ShowButton(5000, Off)"},
      {CommandStatus::Enabled, "ShowButton(5000, On)"},
      {CommandStatus::Latched, "ShowButton(5000, Pressed)"},
      {CommandStatus::Ninched, "ShowButton(5000, On)"}};
  for (const auto &[status, call] : expected) {
    log.clear();
    Component(1).statuses[EditingCommand::Bold] = status;
    Page(1).EditBarCheck(EditingCommand::Bold, EditingCommand::Bold);
    EXPECT_EQ(log, Calls({"QueryStatus(5000)", call}));
  }
}

TEST_F(SelectionTest, AnyOtherStatusLeavesTheButtonAlone) {
  New();
  for (const int status : {2, 4, 15, -1}) {
    log.clear();
    Component(1).statuses[EditingCommand::Italic] = static_cast<CommandStatus>(status);
    Page(1).EditBarCheck(EditingCommand::Italic, EditingCommand::Italic);
    EXPECT_EQ(log, Calls({"QueryStatus(5023)"})) << status;
  }
}

TEST_F(SelectionTest, RefreshingAsksTheTenCommandsInToolbarOrder) {
  New();
  Page(1).RefreshMfrm();
  QStringList expected;
  for (const EditCommand &entry : EditCommands) {
    expected << QStringLiteral("QueryStatus(%1)").arg(Number(entry.command));
  }
  EXPECT_EQ(Matching(QStringLiteral("QueryStatus")), expected);
  QStringList keys;
  for (const EditCommand &entry : EditCommands) {
    keys << QStringLiteral("ShowButton(%1, On)").arg(Number(entry.command));
  }
  EXPECT_EQ(Matching(QStringLiteral("ShowButton")), keys);
}

TEST_F(SelectionTest, RefreshingShowsTheFiveValuesInTheirOrder) {
  New();
  Component(1).values[EditingCommand::GetFontName] = QStringLiteral("Arial");
  Component(1).values[EditingCommand::GetBackColor] = QStringLiteral("#ffffff");
  Component(1).values[EditingCommand::GetForeColor] = QStringLiteral("#102030");
  Component(1).values[EditingCommand::GetBlockFormat] = QStringLiteral("Heading 1");
  Component(1).values[EditingCommand::GetFontSize] = QStringLiteral("24");
  Page(1).RefreshMfrm();
  const CallLog boxes(log.end() - 10, log.end());
  EXPECT_EQ(boxes, Calls({"ExecCommand(5013)", "ShowFontName(Arial)", "ExecCommand(5010)",
                          "ShowBackColor(#ffffff)", "ExecCommand(5015)", "ShowForeColor(#102030)",
                          "ExecCommand(5011)", "ShowBlockFormat(Heading 1)", "ExecCommand(5014)",
                          "ShowFontSize(24)"}));
}

TEST_F(SelectionTest, ADisplayChangeRefreshesTheBoxesAndThenTheLink) {
  New();
  Component(1).element = Element("P");
  Component(1).ChangeDisplay();
  const auto place = [&](const char *call) {
    return std::find(log.begin(), log.end(), QString::fromLatin1(call)) - log.begin();
  };
  EXPECT_LT(place("QueryStatus(5000)"), place("ShowFontSize()"));
  EXPECT_LT(place("ShowFontSize()"), place("ShowTag(P)"));
  EXPECT_EQ(mainWindow.tag, QStringLiteral("P"));
}

TEST_F(SelectionTest, BeforeThePageIsReadyNothingFollowsTheSelection) {
  New();
  for (const char *ready : {"", "true", "False"}) {
    Page(1).Ready = QString::fromLatin1(ready);
    Component(1).ChangeDisplay();
    EXPECT_TRUE(log.empty()) << ready;
  }
}

TEST_F(SelectionTest, ACaretInALinkTellsItsTargetAndMovingOutClearsIt) {
  New();
  for (const char *tag : {"A", "a"}) {
    Component(1).element = Element(tag, "next.htm");
    Page(1).DynaLink();
    EXPECT_EQ(mainWindow.tag, QString::fromLatin1(tag));
    EXPECT_EQ(Component(1).toolTip, QStringLiteral("Link to : next.htm"));
  }
  Component(1).element = Element("B");
  Page(1).DynaLink();
  EXPECT_EQ(mainWindow.tag, QStringLiteral("B"));
  EXPECT_TRUE(Component(1).toolTip.isEmpty()) << "bold text inside the link is no link itself";
}

TEST_F(SelectionTest, ALinkWithoutATargetShowsTheWordsAlone) {
  New();
  Component(1).element = Element("A");
  Page(1).DynaLink();
  EXPECT_EQ(Component(1).toolTip, QStringLiteral("Link to : "));
}

TEST_F(SelectionTest, TheActiveElementIsTheCaretsOrTheSelectedObject) {
  New();
  Component(1).element = Element("P");
  Component(1).object = Element("IMG");
  const std::pair<SelectionType, const char *> rows[] = {
      {SelectionType::None, "P"}, {SelectionType::Text, "P"}, {SelectionType::Control, "IMG"}};
  for (const auto &[type, tag] : rows) {
    Component(1).selectionType = type;
    EXPECT_EQ(Page(1).GetActiveElement().tagName, QString::fromLatin1(tag));
  }
}

TEST_F(SelectionTest, TheContextMenuPopsUpWhereTheComponentAsks) {
  New();
  Component(1).RequestContextMenu(QPoint(30, 40));
  EXPECT_EQ(log, Calls({"PopUpContextMenu(30, 40)"}));
}

TEST_F(SelectionTest, MouseNoticesLeaveTheirPlaceInTheWindow) {
  New();
  Component(1).NotifyMouse(12, 34);
  EXPECT_EQ(Page(1).ClientX, 12);
  EXPECT_EQ(Page(1).ClientY, 34);
}

TEST_F(SelectionTest, WhatTheComponentReportsStandsInTheStatusBar) {
  New();
  Component(1).Report(QStringLiteral("The page came back."));
  EXPECT_EQ(mainWindow.reports, QStringList{QStringLiteral("The page came back.")});
}

}  // namespace velor
