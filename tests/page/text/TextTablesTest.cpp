// SPDX-License-Identifier: GPL-3.0-or-later
// Charset tables and named references, character by character, against digests of tables that have
// nothing to do with this program: make-tables.py says where these come from.
#include "page/text/CharsetIndex.h"
#include "page/text/NamedReferences.h"

#include <QCryptographicHash>
#include <QFile>
#include <QMap>
#include <QString>

#include <gtest/gtest.h>

namespace velor {

namespace {

/// Digests by names.
const QMap<QByteArray, QByteArray> &Digests() {
  static const QMap<QByteArray, QByteArray> digests = [] {
    QMap<QByteArray, QByteArray> read;
    QFile file(QStringLiteral(VELOR_TEXT_TABLES));
    if (!file.open(QIODevice::ReadOnly)) return read;
    for (const QByteArray &line : file.readAll().split('\n')) {
      if (!line.startsWith('#') && line.contains(' '))
        read[line.left(line.indexOf(' '))] = line.mid(line.indexOf(' ') + 1).trimmed();
    }
    return read;
  }();
  return digests;
}

QByteArray DigestOf(const QByteArray &lines) {
  return QCryptographicHash::hash(lines, QCryptographicHash::Sha256).toHex();
}

void AddLine(QByteArray &lines, std::size_t bytes, char32_t character) {
  if (character == 0) return;
  lines += QByteArray::number(static_cast<qulonglong>(bytes), 16) + '=' +
           QByteArray::number(static_cast<uint>(character), 16) + '\n';
}

/// A line a character: its bytes and its code.
QByteArray LinesOf(const QString &charset) {
  const CharsetIndex &index = IndexOf(charset);
  QByteArray lines;
  for (std::size_t at = 0; at < index.singles.size(); ++at)
    AddLine(lines, at + 0x80, index.singles[at]);
  for (std::size_t at = 0; at < index.pairs.size(); ++at)
    AddLine(lines, at + 0x8000, index.pairs[at]);
  for (std::size_t at = 0; at < index.triples.size(); ++at)
    AddLine(lines, at + 0x8F8000, index.triples[at]);
  return lines;
}

constexpr const char *References = "named-references";

TEST(TextTables, HoldTheCharactersOfEveryCharset) {
  ASSERT_EQ(Digests().size(), 33);
  for (auto digest = Digests().begin(); digest != Digests().end(); ++digest) {
    if (digest.key() == References) continue;
    EXPECT_EQ(DigestOf(LinesOf(QString::fromLatin1(digest.key()))), digest.value())
        << digest.key().constData();
  }
}

TEST(TextTables, HoldTheNamesOfAllReferences) {
  QMap<QByteArray, QByteArray> names;
  for (const char *const *row = NamedReferences; *row != nullptr; ++row) {
    for (const QByteArray &entry : QByteArray(*row).split(' ')) {
      const qsizetype sign = entry.indexOf('=');
      names[entry.left(sign)] = entry.mid(sign + 1).replace(',', '+');
    }
  }
  EXPECT_EQ(names.size(), 2231);
  QByteArray lines;
  for (auto name = names.begin(); name != names.end(); ++name)
    lines += name.key() + '=' + name.value() + '\n';
  EXPECT_EQ(DigestOf(lines), Digests().value(References));
}

}  // namespace

}  // namespace velor
