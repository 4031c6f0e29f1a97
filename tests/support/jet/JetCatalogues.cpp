// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/jet/JetCatalogues.h"

#include <QStringList>

#include <algorithm>

namespace velor::fixture {

namespace {

FixtureColumn Folder(const char *name, FolderType type) {
  return {QString::fromLatin1(name), type == FolderType::Memo ? CellType::Memo : CellType::Text};
}

FixtureColumn Column(const char *name, CellType type) {
  return {QString::fromLatin1(name), type};
}

/// Makes some of the rows moved, short or preceded by deleted ones; the last column of a table can
/// be missing from a row when it is null.
void Wear(FixtureTable &table, std::mt19937 &random) {
  for (FixtureRow &row : table.rows) {
    const auto kind = random() % 8;
    if (kind == 0) row.deletedBefore = 1 + static_cast<int>(random() % 2);
    if (kind == 1) row.place = RowPlace::Moved;
    if (kind == 2) row.place = RowPlace::MovedLeavingTail;
    if (kind == 3 && std::holds_alternative<std::monostate>(row.cells.back()))
      row.storedColumns = static_cast<int>(row.cells.size()) - 1;
  }
}

FixtureTable Projects(const CatalogueShape &shape, std::mt19937 &random) {
  FixtureTable table;
  table.name = QStringLiteral("Project");
  table.columns = {Column("IdProject", CellType::Long),
                   Column("Name", CellType::Text),
                   Folder("Path", shape.folders),
                   Column("Created", CellType::Boolean),
                   Column("DtModified", CellType::DateTime),
                   Column("Notes", CellType::Memo),
                   Column("Weight", CellType::Double)};
  table.columns[5].place = MemoPlace::Chain;
  table.indexes = {{QStringLiteral("PrimaryKey"), 0}};
  for (int i = 1; i <= shape.projects; ++i) {
    FixtureRow row;
    row.cells = {qint32{i},
                 QStringLiteral("Bob's Site %1").arg(i),
                 QStringLiteral("C:\\Sites\\P%1").arg(i),
                 i % 3 != 0,
                 Days{37800 + static_cast<double>(random() % 86400) / 86400 + i},
                 Cell(),
                 i * 0.125};
    if (i % 2 == 0)
      row.cells[5] = QString(static_cast<qsizetype>(random() % 9000), QChar(u'a' + i % 26));
    table.rows.push_back(row);
  }
  return table;
}

FixtureTable Pages(const CatalogueShape &shape, std::mt19937 &random) {
  FixtureTable table;
  table.name = QStringLiteral("Page");
  table.columns = {Column("PageId", CellType::Long),   Column("ProjectId", CellType::Long),
                   Column("PageName", CellType::Text), Folder("TPath", shape.folders),
                   Column("Path", CellType::Text),     Column("Title", CellType::Text),
                   Column("Remark", CellType::Memo)};
  table.columns[4].form = TextForm::Plain;
  table.indexes = {{QStringLiteral("PrimaryKey"), 0},
                   {QStringLiteral("ProjectId"), 1},
                   {QStringLiteral("PageName"), 2}};
  table.rows.reserve(shape.pages);
  for (int i = 1; i <= shape.pages; ++i) {
    FixtureRow row;
    const int project = 1 + i % shape.projects;
    row.cells = {qint32{i},
                 qint32{project},
                 QStringLiteral("page %1").arg(random() % 100000),
                 QStringLiteral("C:\\Sites\\P%1").arg(project),
                 QStringLiteral("\\Files\\page%1.htm").arg(i),
                 RandomText(random, 20),
                 Cell()};
    if (shape.remarks && i % 5 == 0) row.cells[6] = RandomText(random, 3000);
    if (i % 7 == 0) row.cells[5] = Cell();
    table.rows.push_back(row);
  }
  return table;
}

FixtureTable Discs(const CatalogueShape &shape) {
  FixtureTable table;
  table.name = QStringLiteral("CustomCD");
  table.columns = {Column("ProjectId", CellType::Long), Folder("PPath", shape.folders)};
  for (int i = 1; i <= shape.projects; ++i)
    table.rows.push_back({{qint32{i}, QStringLiteral("C:\\Sites\\P%1").arg(i)}});
  return table;
}

}  // namespace

FixtureFile CatalogueFixture(const CatalogueShape &shape) {
  std::mt19937 random(shape.seed);
  FixtureFile file;
  file.tables = {Projects(shape, random), Pages(shape, random), Discs(shape)};
  if (shape.worn)
    for (FixtureTable &table : file.tables) Wear(table, random);
  return file;
}

FixtureFile OddTablesFixture() {
  FixtureTable wide;
  wide.name = QStringLiteral("Wide");
  wide.columns = {Column("Id", CellType::Long)};
  FixtureRow row{{qint32{1}}};
  for (int i = 1; i < 150; ++i) {
    wide.columns.push_back({QStringLiteral("A column with a long name, number %1").arg(i),
                            i % 10 == 0 ? CellType::Boolean : CellType::Text});
    row.cells.push_back(i % 10 == 0 ? Cell(i % 20 == 0) : Cell(QString::number(i)));
  }
  wide.rows = {row};

  FixtureTable scripts;
  scripts.name = QString::fromUtf8("Ströme & 名前");
  scripts.columns = {Column("Id", CellType::Long), Column("Packed", CellType::Text),
                     Column("Wide", CellType::Text), Column("Story", CellType::Memo)};
  scripts.columns[2].form = TextForm::Plain;
  const QStringList texts = {QString(),
                             QStringLiteral("a"),
                             QString::fromUtf8("ÿþ"),
                             QString::fromUtf8("Grüße, l'été"),
                             QString::fromUtf8("目录\\图片"),
                             QString::fromUtf8("mixed 𝄞 and 😀 text"),
                             QString(255, u'x')};
  for (const QString &text : texts)
    scripts.rows.push_back(
        {{static_cast<qint32>(scripts.rows.size() + 1), text, text, text.repeated(40)}});
  scripts.rows.push_back({{static_cast<qint32>(scripts.rows.size() + 1), Cell(), Cell(), Cell()}});
  FixtureFile file;
  file.tables = {wide, scripts};
  return file;
}

QString RandomText(std::mt19937 &random, int longest) {
  static const QStringList pieces = {
      QStringLiteral("a"),       QStringLiteral("B"),     QStringLiteral("\\"),
      QStringLiteral("'"),       QStringLiteral(" "),     QStringLiteral("\""),
      QString::fromUtf8("é"),    QString::fromUtf8("ÿþ"), QString::fromUtf8("文"),
      QString::fromUtf8("😀"),    QStringLiteral("Sites"), QStringLiteral(","),
      QStringLiteral("C:\\Web"), QStringLiteral("index")};
  const bool plain = random() % 3 != 0;
  const auto length = static_cast<qsizetype>(random() % static_cast<unsigned>(longest + 1));
  QString text;
  while (text.size() < length) {
    const QString &piece = pieces[static_cast<qsizetype>(random()) % pieces.size()];
    if (plain && piece.size() == 1 && piece.front().unicode() > 255) continue;
    if (plain && piece.front().isHighSurrogate()) continue;
    text += piece;
  }
  text.truncate(length);
  if (!text.isEmpty() && text.back().isHighSurrogate()) text.chop(1);
  return text;
}

}  // namespace velor::fixture
