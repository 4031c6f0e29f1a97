// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/VersionCompare.h"

#include "chrome/Palette.h"
#include "platform/Words.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <QVBoxLayout>

#include <algorithm>

namespace velor {

namespace {

/// Above this size all lines between the first and the last difference are marked.
constexpr qsizetype MostComparisons = 4'000'000;

QStringList LinesOf(QString text) {
  return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"))
      .replace(u'\r', u'\n')
      .split(u'\n');
}

void Mark(QPlainTextEdit &view, const std::vector<int> &lines) {
  QList<QTextEdit::ExtraSelection> marks;
  for (const int line : lines) {
    QTextEdit::ExtraSelection mark;
    mark.cursor = QTextCursor(view.document()->findBlockByNumber(line));
    mark.format.setBackground(PressedField(view.palette()));
    mark.format.setProperty(QTextFormat::FullWidthSelection, true);
    marks << mark;
  }
  view.setExtraSelections(marks);
}

}  // namespace

LineDifferences LineDifferences::Between(const QStringList &left, const QStringList &right) {
  qsizetype start = 0;
  const qsizetype shorter = std::min(left.size(), right.size());
  while (start < shorter && left[start] == right[start]) ++start;
  qsizetype end = 0;
  while (end < shorter - start && left[left.size() - 1 - end] == right[right.size() - 1 - end])
    ++end;
  const qsizetype rows = left.size() - start - end;
  const qsizetype columns = right.size() - start - end;
  LineDifferences differences;
  const auto markLeft = [&](qsizetype row) {
    differences.left.push_back(static_cast<int>(start + row));
  };
  const auto markRight = [&](qsizetype column) {
    differences.right.push_back(static_cast<int>(start + column));
  };
  if (rows * columns > MostComparisons) {
    for (qsizetype row = 0; row < rows; ++row) markLeft(row);
    for (qsizetype column = 0; column < columns; ++column) markRight(column);
    return differences;
  }
  // common[row][column]: length of the longest common subsequence of the lines from there on.
  const qsizetype width = columns + 1;
  std::vector<int> common(static_cast<std::size_t>((rows + 1) * width), 0);
  const auto at = [&](qsizetype row, qsizetype column) -> int & {
    return common[static_cast<std::size_t>(row * width + column)];
  };
  for (qsizetype row = rows - 1; row >= 0; --row) {
    for (qsizetype column = columns - 1; column >= 0; --column) {
      at(row, column) = left[start + row] == right[start + column]
                            ? at(row + 1, column + 1) + 1
                            : std::max(at(row + 1, column), at(row, column + 1));
    }
  }
  qsizetype row = 0;
  qsizetype column = 0;
  while (row < rows || column < columns) {
    if (row < rows && column < columns && left[start + row] == right[start + column]) {
      ++row;
      ++column;
    } else if (column == columns || (row < rows && at(row + 1, column) >= at(row, column + 1))) {
      markLeft(row++);
    } else {
      markRight(column++);
    }
  }
  return differences;
}

VersionCompare::VersionCompare(const QString &name, const QString &mine, const QString &theirs,
                               QWidget *parent)
    : QDialog(parent) {
  setObjectName(QStringLiteral("frmCompare"));
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(Words::tr("%1: here and on the disk").arg(name));
  auto *columns = new QHBoxLayout(this);
  const auto add = [&](const char *objectName, const QString &title, const QStringList &lines) {
    auto *view = new QPlainTextEdit(lines.join(u'\n'));
    view->setObjectName(QString::fromLatin1(objectName));
    view->setAccessibleName(title);
    view->setReadOnly(true);
    view->setLineWrapMode(QPlainTextEdit::NoWrap);
    view->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    auto *label = new QLabel(title);
    label->setBuddy(view);
    auto *column = new QVBoxLayout;
    column->addWidget(label);
    column->addWidget(view);
    columns->addLayout(column);
    return view;
  };
  const QStringList left = LinesOf(mine);
  const QStringList right = LinesOf(theirs);
  QPlainTextEdit *here = add("txtMine", Words::tr("Here, not saved"), left);
  QPlainTextEdit *there = add("txtTheirs", Words::tr("On the disk"), right);
  const LineDifferences differences = LineDifferences::Between(left, right);
  Mark(*here, differences.left);
  Mark(*there, differences.right);
  connect(here->verticalScrollBar(), &QScrollBar::valueChanged, there->verticalScrollBar(),
          &QScrollBar::setValue);
  connect(there->verticalScrollBar(), &QScrollBar::valueChanged, here->verticalScrollBar(),
          &QScrollBar::setValue);
  resize(1000, 640);
}

}  // namespace velor
