// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/jet/JetReaders.h"

#include "catalogue/jet/JetFile.h"
#include "files/PosixJetStorage.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace velor::fixture {

namespace {

/// Characters that no fixture holds, so that nothing needs quoting.
constexpr char FieldEnd = '\x1F';
constexpr char RowEnd = '\x1E';

const QString &NullText() {
  static const QString text = CellText(Cell());
  return text;
}

QString Quoted(const QString &text) {
  return CellText(Cell(text));
}

/// What another program printed in a column of that type, in the common form.
QString CellTextOf(CellType type, const QString &printed) {
  switch (type) {
    case CellType::Boolean:
      return CellText(printed == u'1' || printed == QStringLiteral("true"));
    case CellType::Double:
      return printed.isEmpty() ? NullText() : CellText(printed.toDouble());
    case CellType::Text:
    case CellType::Memo:
      return Quoted(printed);
    default:
      return printed.isEmpty() ? NullText() : printed;
  }
}

QString CellTextOf(CellType type, const QVariant &value) {
  if (type == CellType::Boolean) return CellText(value.toBool());
  if (!value.isValid()) return NullText();
  QString text = value.toString();
  if (type == CellType::DateTime && text.size() == 10) text += QStringLiteral(" 00:00:00");
  return CellTextOf(type, text);
}

QString CellTextOf(CellType type, const QJsonValue &value) {
  if (value.isNull()) return NullText();
  if (value.isBool()) return CellText(value.toBool());
  if (value.isDouble() && type != CellType::Double) return QString::number(value.toInteger());
  if (value.isDouble()) return CellText(value.toDouble());
  if (type == CellType::DateTime)  // "2003-06-29T06:37:25.000Z"
    return value.toString().left(19).replace(u'T', u' ');
  return CellTextOf(type, value.toString());
}

QByteArray OutputOf(const QString &program, const QStringList &arguments) {
  QProcess process;
  process.start(program, arguments);
  const bool ended = process.waitForFinished();
  const QByteArray errors = process.readAllStandardError();
  if (!ended || process.exitCode() != 0 || !errors.isEmpty())
    return QByteArray("(") + program.toUtf8() + " failed: " + errors +
           process.errorString().toUtf8() + ")";
  return process.readAllStandardOutput();
}

std::vector<QStringList> ReadByMdbtools(const QString &path, const FixtureTable &table) {
  const QString dates = QStringLiteral("%Y-%m-%d %H:%M:%S");
  QString printed = QString::fromUtf8(
      OutputOf(QStringLiteral("mdb-export"),
               {QStringLiteral("-H"), QStringLiteral("-Q"), QStringLiteral("-d"),
                QString(QChar(FieldEnd)), QStringLiteral("-R"), QString(QChar(RowEnd)),
                QStringLiteral("-D"), dates, QStringLiteral("-T"), dates, path, table.name}));
  if (printed.endsWith(QChar(RowEnd))) printed.chop(1);
  std::vector<QStringList> rows;
  if (printed.isEmpty()) return rows;
  for (const QString &line : printed.split(QChar(RowEnd))) {
    const QStringList fields = line.split(QChar(FieldEnd));
    QStringList row;
    for (qsizetype i = 0; i < fields.size(); ++i)
      row << (i < static_cast<qsizetype>(table.columns.size())
                  ? CellTextOf(table.columns[i].type, fields[i])
                  : fields[i]);
    rows.push_back(row);
  }
  return rows;
}

/// What mdbtools can tell apart: an empty text prints like null, and a character beyond the BMP as
/// two question marks.
QString AsMdbtoolsSees(QString cell) {
  if (cell == NullText()) return Quoted(QString());
  for (QChar &character : cell)
    if (character.isSurrogate()) character = u'?';
  return cell;
}

/// The first cell in which two rows differ, from a little before the first differing character.
QString Difference(const QStringList &meant, const QStringList &seen) {
  constexpr qsizetype Before = 10;
  constexpr qsizetype Shown = 40;
  for (qsizetype i = 0; i < std::max(meant.size(), seen.size()); ++i) {
    const QString expected = meant.value(i);
    const QString got = seen.value(i);
    if (expected == got && i < meant.size() && i < seen.size()) continue;
    const qsizetype at =
        std::mismatch(expected.begin(), expected.end(), got.begin(), got.end()).first -
        expected.begin();
    const qsizetype from = std::max<qsizetype>(at - Before, 0);
    return QStringLiteral(": row %1, column %2, character %3: meant ...%4, seen ...%5")
        .arg(meant.value(0))
        .arg(i)
        .arg(at)
        .arg(expected.mid(from, Shown), got.mid(from, Shown));
  }
  return {};
}

Reading Sorted(Reading reading) {
  for (auto &[name, rows] : reading) std::sort(rows.begin(), rows.end());
  return reading;
}

Reading AsMdbtoolsSees(Reading reading) {
  for (auto &table : reading)
    for (QStringList &row : table.second)
      for (QString &cell : row) cell = AsMdbtoolsSees(cell);
  return Sorted(reading);
}

}  // namespace

Reading WhatWasMeant(const FixtureFile &file) {
  Reading reading;
  for (const FixtureTable &table : file.tables) {
    reading[table.name];
    for (const FixtureRow &row : table.rows) {
      QStringList cells;
      for (const Cell &cell : row.cells) cells << CellText(cell);
      reading[table.name].push_back(cells);
    }
  }
  return Sorted(reading);
}

Reading ReadByUs(JetFile &file, const FixtureFile &shape) {
  Reading reading;
  for (const FixtureTable &table : shape.tables) {
    const JetTable *found = file.FindTable(table.name);
    if (!found) continue;
    reading[table.name];
    for (JetCursor cursor = file.Scan(*found); cursor.Next();) {
      QStringList row;
      for (int i = 0; i < static_cast<int>(table.columns.size()); ++i)
        row << CellTextOf(table.columns[i].type, cursor.Value(i));
      reading[table.name].push_back(row);
    }
  }
  return Sorted(reading);
}

QString Disagreement(const Reading &meant, const Reading &seen, const QString &reader) {
  for (const auto &[table, rows] : meant) {
    const auto found = seen.find(table);
    const std::vector<QStringList> none;
    const std::vector<QStringList> &seenRows = found == seen.end() ? none : found->second;
    for (std::size_t i = 0; i < std::max(rows.size(), seenRows.size()); ++i) {
      const QString difference = Difference(i < rows.size() ? rows[i] : QStringList(),
                                            i < seenRows.size() ? seenRows[i] : QStringList());
      if (!difference.isEmpty()) return reader + QStringLiteral(", ") + table + difference;
    }
  }
  return {};
}

JetReaders::~JetReaders() {
  mdbReader_.closeWriteChannel();
  if (mdbReader_.state() != QProcess::NotRunning) mdbReader_.waitForFinished();
}

bool JetReaders::HasMdbReader() {
  return QFile::exists(QStringLiteral(VELOR_JET_READER_FOLDER "/node_modules/mdb-reader"));
}

QString JetReaders::DisagreementOn(const QString &path, const FixtureFile &meant) {
  const Reading expected = WhatWasMeant(meant);
  const QString ours = Disagreement(expected, ReadByUs(*JetFile::Open(OpenJetStorage(path)), meant),
                                    QStringLiteral("our reader"));
  if (!ours.isEmpty()) return ours;

  Reading byMdbtools;
  for (const FixtureTable &table : meant.tables)
    byMdbtools[table.name] = ReadByMdbtools(path, table);
  const QString theirs = Disagreement(AsMdbtoolsSees(expected), AsMdbtoolsSees(byMdbtools),
                                      QStringLiteral("mdb-export"));
  if (!theirs.isEmpty() || !HasMdbReader()) return theirs;
  return Disagreement(expected, Sorted(ReadByMdbReader(path, meant)), QStringLiteral("mdb-reader"));
}

Reading JetReaders::ReadByMdbReader(const QString &path, const FixtureFile &shape) {
  if (mdbReader_.state() == QProcess::NotRunning) {
    mdbReader_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    mdbReader_.start(QStringLiteral("node"), {QStringLiteral(VELOR_JET_READER_SCRIPT),
                                              QStringLiteral(VELOR_JET_READER_FOLDER)});
  }
  mdbReader_.write(path.toUtf8() + '\n');
  while (!mdbReader_.canReadLine() && mdbReader_.waitForReadyRead()) continue;
  const QJsonObject tables = QJsonDocument::fromJson(mdbReader_.readLine()).object();
  Reading reading;
  for (const FixtureTable &table : shape.tables) {
    for (const QJsonValue cells : tables[table.name].toArray()) {
      QStringList row;
      for (std::size_t i = 0; i < table.columns.size(); ++i)
        row << CellTextOf(table.columns[i].type, cells.toArray().at(static_cast<qsizetype>(i)));
      reading[table.name].push_back(row);
    }
  }
  return reading;
}

}  // namespace velor::fixture
