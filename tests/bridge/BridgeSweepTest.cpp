// SPDX-License-Identifier: GPL-3.0-or-later
// Rules that hold for every command on every page: one step or none, an exact way back and forth,
// no empty elements, no doubled ids, markup that reads the same when loaded again.
#include "platform/EditingCommands.h"
#include "tests/bridge/BridgeCase.h"
#include "tests/bridge/BridgePage.h"

#include <QFile>

#include <gtest/gtest.h>

namespace velor {
namespace {

class BridgeSweep : public ::testing::TestWithParam<const char *> {};

/// Each page of the golden cases once.
QStringList Pages() {
  QStringList pages;
  for (const BridgeCase &subject :
       ReadBridgeCases(QStringLiteral(VELOR_BRIDGE_TEST_FOLDER "/cases"))) {
    if (!subject.IsDocument()) pages += subject.input;
  }
  pages.removeDuplicates();
  return pages;
}

TEST_P(BridgeSweep, EveryCommandKeepsTheRulesOnEveryPage) {
  // One document for all would grow slower from page to page, until the engine collects what is
  // left.
  constexpr int PagesADocument = 10;
  QFile script(QStringLiteral(VELOR_BRIDGE_TEST_FOLDER "/sweep.js"));
  ASSERT_TRUE(script.open(QIODevice::ReadOnly));
  const QString sweep = QString::fromUtf8(script.readAll());
  BridgePage page;
  int done = 0;
  for (const QString &body : Pages()) {
    if (done++ % PagesADocument == 0) {
      page.Load(QString::fromLatin1(GetParam()) + QStringLiteral("<p>one|</p>"));
      page.Evaluate(sweep);
    }
    const QString call = QStringLiteral("sweep(%1)").arg(ScriptText(body));
    EXPECT_EQ(page.Evaluate(call).toString().toStdString(), "") << qPrintable(body);
  }
}

INSTANTIATE_TEST_SUITE_P(Dialects, BridgeSweep, ::testing::Values("", "<!DOCTYPE html>"));

TEST(BridgeVocabulary, KnowsEveryCommandByItsNumber) {
  BridgePage page;
  page.Load(QStringLiteral("<p>one|</p>"));
  const std::vector<EditingCommand> commands = {
      EditingCommand::Bold,        EditingCommand::Copy,         EditingCommand::Cut,
      EditingCommand::Delete,      EditingCommand::GetBackColor, EditingCommand::GetBlockFormat,
      EditingCommand::GetFontName, EditingCommand::GetFontSize,  EditingCommand::GetForeColor,
      EditingCommand::Indent,      EditingCommand::Italic,       EditingCommand::JustifyCenter,
      EditingCommand::JustifyLeft, EditingCommand::JustifyRight, EditingCommand::OrderList,
      EditingCommand::Outdent,     EditingCommand::Paste,        EditingCommand::Redo,
      EditingCommand::SelectAll,   EditingCommand::SetBackColor, EditingCommand::SetBlockFormat,
      EditingCommand::SetFontName, EditingCommand::SetFontSize,  EditingCommand::SetForeColor,
      EditingCommand::Underline,   EditingCommand::Undo,         EditingCommand::UnorderList,
  };
  QStringList numbers;
  for (const EditingCommand command : commands) numbers += QString::number(Number(command));
  EXPECT_EQ(page.Evaluate(QStringLiteral("[...velor.commands.keys()].join(' ')"))
                .toString()
                .toStdString(),
            numbers.join(QLatin1Char(' ')).toStdString());
}

TEST(BridgeVocabulary, NamesTheBlockFormatsAsTheProgramDoes) {
  BridgePage page;
  page.Load(QStringLiteral("<p>one|</p>"));
  EXPECT_EQ(page.Evaluate(QStringLiteral("velor.blocks.formats.map(({name}) => name).join('|')"))
                .toString()
                .toStdString(),
            BlockFormatNames().join(QLatin1Char('|')).toStdString());
}

TEST(BridgeVocabulary, EveryFontSizeComesBackAsItWasChosen) {
  BridgePage page;
  page.Load(QStringLiteral("<p>^one|</p>"));
  for (const int points : FontSizePoints) {
    page.Evaluate(QStringLiteral("velor.exec(5045, '%1')").arg(points));
    EXPECT_EQ(page.Evaluate(QStringLiteral("velor.state().fontSize")).toString().toStdString(),
              QString::number(points).toStdString());
  }
}

TEST(BridgeVocabulary, EveryBlockFormatComesBackAsItWasChosen) {
  BridgePage page;
  page.Load(QStringLiteral("<p>one|</p>"));
  for (const QString &name : BlockFormatNames()) {
    page.Evaluate(QStringLiteral("velor.exec(5043, '%1')").arg(name));
    // A paragraph is named after the first of its two names.
    const QString expected = name == QStringLiteral("Paragraph") ? QStringLiteral("Normal") : name;
    EXPECT_EQ(page.Evaluate(QStringLiteral("velor.state().blockFormat")).toString().toStdString(),
              expected.toStdString());
  }
}

}  // namespace
}  // namespace velor
