// SPDX-License-Identifier: GPL-3.0-or-later
// Rules that hold for every command on every page: one step or none, an exact way back and forth,
// no empty elements, no doubled ids, markup that reads the same when loaded again.
#include "platform/EditingCommands.h"
#include "tests/engine/bridge/BridgeCase.h"
#include "tests/engine/bridge/BridgePage.h"

#include <QHash>
#include <QSet>

#include <gtest/gtest.h>
#include <vector>

namespace velor {
namespace {

class BridgeSweep : public ::testing::TestWithParam<const char *> {};

struct Page {
  QString body;
  bool isKind;  // written for a kind of selection: every command is tried on it in every dialect
};

/// Each page of the golden cases once.
std::vector<Page> Pages() {
  std::vector<Page> pages;
  QHash<QString, std::size_t> known;
  for (const BridgeCase &subject :
       ReadBridgeCases(QStringLiteral(VELOR_BRIDGE_TEST_FOLDER "/cases"))) {
    if (subject.IsDocument()) continue;
    if (!known.contains(subject.input)) {
      known.insert(subject.input, pages.size());
      pages.push_back({subject.input, false});
    }
    if (subject.file.endsWith(QStringLiteral("kinds.txt"))) {
      pages[known.value(subject.input)].isKind = true;
    }
  }
  return pages;
}

TEST_P(BridgeSweep, EveryCommandKeepsTheRulesOnEveryPageAndEveryKindOfSelection) {
  // The engine follows every range until it is collected: a document for some pages each.
  constexpr int PagesADocument = 10;
  const QString sweep = TestScript("sweep.js");
  BridgePage page;
  int done = 0;
  QSet<QString> cells;
  for (const auto &[body, isKind] : Pages()) {
    if (done++ % PagesADocument == 0) {
      page.Load(QString::fromLatin1(GetParam()) + QStringLiteral("<p>one|</p>"));
      page.Evaluate(sweep);
    }
    const QString call = QStringLiteral("sweep(%1, %2)").arg(ScriptText(body)).arg(isKind ? 1 : 0);
    const QVariantMap swept = page.Evaluate(call).toMap();
    EXPECT_EQ(swept[QStringLiteral("broken")].toString().toStdString(), "") << qPrintable(body);
    for (const QString &cell : swept[QStringLiteral("cells")].toStringList()) cells.insert(cell);
  }
  for (const QString &kind : page.Evaluate(QStringLiteral("sweptKinds")).toStringList()) {
    for (const QString &change : page.Evaluate(QStringLiteral("sweptChanges")).toStringList()) {
      EXPECT_TRUE(cells.contains(kind + QLatin1Char('/') + change))
          << qPrintable(change) << " was tried on no selection of the kind: " << qPrintable(kind);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Dialects, BridgeSweep, ::testing::Values("", "<!DOCTYPE html>"));

TEST(BridgeVocabulary, KnowsEveryCommandByItsNumber) {
  BridgePage page;
  page.Load(QStringLiteral("<p>one|</p>"));
  const std::vector<EditingCommand> commands = {
      EditingCommand::Bold,
      EditingCommand::Copy,
      EditingCommand::Cut,
      EditingCommand::Delete,
      EditingCommand::GetBackColor,
      EditingCommand::GetBlockFormat,
      EditingCommand::GetFontName,
      EditingCommand::GetFontSize,
      EditingCommand::GetForeColor,
      EditingCommand::Indent,
      EditingCommand::Italic,
      EditingCommand::JustifyCenter,
      EditingCommand::JustifyLeft,
      EditingCommand::JustifyRight,
      EditingCommand::OrderList,
      EditingCommand::Outdent,
      EditingCommand::Paste,
      EditingCommand::Redo,
      EditingCommand::SelectAll,
      EditingCommand::SetBackColor,
      EditingCommand::SetBlockFormat,
      EditingCommand::SetFontName,
      EditingCommand::SetFontSize,
      EditingCommand::SetForeColor,
      EditingCommand::Underline,
      EditingCommand::Undo,
      EditingCommand::UnorderList,
      EditingCommand::InsertRowBelow,
      EditingCommand::InsertRowAbove,
      EditingCommand::InsertColumnRight,
      EditingCommand::InsertColumnLeft,
      EditingCommand::DeleteRow,
      EditingCommand::DeleteColumn,
      EditingCommand::DeleteTable,
      EditingCommand::MergeCells,
      EditingCommand::SplitCell,
      EditingCommand::SelectCell,
      EditingCommand::SelectRow,
      EditingCommand::SelectColumn,
      EditingCommand::SelectTable,
      EditingCommand::MoveRowUp,
      EditingCommand::MoveRowDown,
      EditingCommand::MoveColumnLeft,
      EditingCommand::MoveColumnRight,
      EditingCommand::DistributeColumns,
      EditingCommand::AbsolutePosition,
      EditingCommand::BringToFront,
      EditingCommand::BringForward,
      EditingCommand::BringAboveText,
      EditingCommand::SendToBack,
      EditingCommand::SendBackward,
      EditingCommand::SendBelowText,
  };
  QStringList numbers;
  for (const EditingCommand command : commands) numbers += QString::number(Number(command));
  EXPECT_EQ(page.Evaluate(QStringLiteral("[...inside.commands.keys()].join(' ')"))
                .toString()
                .toStdString(),
            numbers.join(QLatin1Char(' ')).toStdString());
}

TEST(BridgeVocabulary, NamesTheBlockFormatsAsTheProgramDoes) {
  BridgePage page;
  page.Load(QStringLiteral("<p>one|</p>"));
  EXPECT_EQ(page.Evaluate(QStringLiteral("inside.blockFormats.map(({name}) => name).join('|')"))
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
    // The format P has two names; a query answers the first.
    const QString expected = name == QStringLiteral("Paragraph") ? QStringLiteral("Normal") : name;
    EXPECT_EQ(page.Evaluate(QStringLiteral("velor.state().blockFormat")).toString().toStdString(),
              expected.toStdString());
  }
}

}  // namespace
}  // namespace velor
