// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/StateSnapshot.h"
#include "platform/EditingCommands.h"

#include <gtest/gtest.h>

namespace velor {

namespace {

const QString Whole = QStringLiteral(R"({
  "version": 12, "dirty": true,
  "commands": {"5000": 7, "5023": 3, "5048": 11, "5025": 1, "5024": 0, "5026": 99},
  "fontName": "Arial", "fontSize": "12", "foreColor": "#112233", "backColor": "#FFFFFF",
  "blockFormat": "Heading 1", "selection": "Control",
  "path": ["body", "a"], "pathNumbers": [7, 9], "cells": [1, 0, 2, 4],
  "place": [210, -5, 150, 60],
  "element": {"tag": "A", "attributes": [["href", "x.htm"], ["title", "a \"b\" <c>"]]}
})");

TEST(StateSnapshot, HoldsEveryFieldOfAPushedState) {
  const auto state = StateSnapshot::FromJson(Whole);
  ASSERT_TRUE(state.has_value());
  EXPECT_EQ(state->version, 12);
  EXPECT_TRUE(state->dirty);
  EXPECT_EQ(state->selection, SelectionType::Control);
  EXPECT_EQ(state->element.tagName, QStringLiteral("A"));
  EXPECT_EQ(state->pathElements, QList<int>({7, 9}));
  EXPECT_EQ(state->cells, QRect(QPoint(1, 0), QPoint(2, 4)));
  EXPECT_EQ(state->place, QRect(210, -5, 150, 60));
  ASSERT_EQ(state->element.attributes.size(), 2U);
  EXPECT_EQ(state->element.attributes[0].first, QStringLiteral("href"));
  EXPECT_EQ(state->element.Attribute(QStringLiteral("title")), QStringLiteral("a \"b\" <c>"));
}

TEST(StateSnapshot, AnswersTheStatusOfACommand) {
  const auto state = StateSnapshot::FromJson(Whole);
  EXPECT_EQ(state->StatusOf(EditingCommand::Bold), CommandStatus::Latched);
  EXPECT_EQ(state->StatusOf(EditingCommand::Italic), CommandStatus::Enabled);
  EXPECT_EQ(state->StatusOf(EditingCommand::Underline), CommandStatus::Ninched);
  EXPECT_EQ(state->StatusOf(EditingCommand::JustifyLeft), CommandStatus::Disabled);
  EXPECT_EQ(state->StatusOf(EditingCommand::JustifyCenter), CommandStatus::NotSupported);
}

TEST(StateSnapshot, AnUnpublishedOrMissingStatusIsNotSupported) {
  const auto state = StateSnapshot::FromJson(Whole);
  EXPECT_EQ(state->StatusOf(EditingCommand::JustifyRight), CommandStatus::NotSupported);
  EXPECT_EQ(state->StatusOf(static_cast<EditingCommand>(4711)), CommandStatus::NotSupported);
  EXPECT_EQ(StateSnapshot{}.StatusOf(EditingCommand::Bold), CommandStatus::NotSupported);
}

TEST(StateSnapshot, AnswersTheValuesOfTheFiveQueryCommandsOnly) {
  const auto state = StateSnapshot::FromJson(Whole);
  EXPECT_EQ(state->ValueOf(EditingCommand::GetFontName), QStringLiteral("Arial"));
  EXPECT_EQ(state->ValueOf(EditingCommand::GetFontSize), QStringLiteral("12"));
  EXPECT_EQ(state->ValueOf(EditingCommand::GetForeColor), QStringLiteral("#112233"));
  EXPECT_EQ(state->ValueOf(EditingCommand::GetBackColor), QStringLiteral("#FFFFFF"));
  EXPECT_EQ(state->ValueOf(EditingCommand::GetBlockFormat), QStringLiteral("Heading 1"));
  EXPECT_EQ(state->ValueOf(EditingCommand::Bold), std::nullopt);
}

TEST(StateSnapshot, AMixedSelectionHasEmptyValuesAndNoElement) {
  const auto state =
      StateSnapshot::FromJson(QStringLiteral(R"({"fontName": "", "element": null})"));
  ASSERT_TRUE(state.has_value());
  EXPECT_EQ(state->ValueOf(EditingCommand::GetFontName), QString());
  EXPECT_TRUE(state->element.IsNull());
  EXPECT_EQ(state->selection, SelectionType::None);
  EXPECT_FALSE(state->dirty);
}

TEST(StateSnapshot, ATextThatIsNoStateIsNone) {
  for (const char *text : {"", "{", "[]", "\"x\"", "5"})
    EXPECT_FALSE(StateSnapshot::FromJson(QString::fromLatin1(text)).has_value()) << text;
}

}  // namespace

}  // namespace velor
