// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/help/Manual.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTextDocumentFragment>

#include <algorithm>
#include <map>

namespace velor {
namespace {

const QString FirstPage = QStringLiteral("index.html");

QString ReadText(const QString &nativePath) {
  QFile file(nativePath);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString Plain(const QString &html) {
  return QTextDocumentFragment::fromHtml(html).toPlainText().simplified();
}

bool HasWord(const QString &text, const QString &beginning) {
  for (qsizetype at = 0; (at = text.indexOf(beginning, at, Qt::CaseInsensitive)) >= 0; ++at) {
    if (at == 0 || !text.at(at - 1).isLetterOrNumber()) return true;
  }
  return false;
}

bool HasWords(const QString &text, const QStringList &words) {
  return std::all_of(words.begin(), words.end(),
                     [&](const QString &word) { return HasWord(text, word); });
}

bool HasAny(const QString &text, const QStringList &words) {
  return std::any_of(words.begin(), words.end(),
                     [&](const QString &word) { return HasWord(text, word); });
}

constexpr int NotFound = -1;

/// How near a part is to the words, from 0. The chapter's title helps with some of them: alone it
/// would bring every part of the chapter.
int RankOf(const ManualPart &part, const QStringList &words) {
  const QString own = part.title + u' ' + part.text;
  if (HasWords(part.title, words)) return 0;
  if (HasWords(part.chapter + u' ' + part.title, words) && HasAny(part.title, words)) return 1;
  if (HasWords(own, words)) return 2;
  return HasWords(part.chapter + u' ' + own, words) && HasAny(own, words) ? 3 : NotFound;
}

/// The pages that the first one leads to, itself in front, each once.
QStringList PagesOf(const QString &firstPage) {
  static const QRegularExpression link(QStringLiteral("<a href=\"([\\w-]+\\.html)"));
  QStringList pages{FirstPage};
  for (const auto &match : link.globalMatch(firstPage)) pages << match.captured(1);
  pages.removeDuplicates();
  return pages;
}

}  // namespace

QStringList WordsOf(const QString &text) {
  static const QRegularExpression separator(QStringLiteral("[\\s,;:]+"));
  return text.split(separator, Qt::SkipEmptyParts);
}

Manual::Manual(const QString &nativeFolder) : folder_(nativeFolder) {
  const QString first = ReadText(QDir(folder_).filePath(FirstPage));
  if (first.isEmpty()) return;
  // The links to the next and the last page lead in reading order too, but only once to each.
  for (const QString &page : PagesOf(first.mid(first.indexOf(QStringLiteral("<main>")))))
    ReadPage(page);
}

void Manual::ReadPage(const QString &name) {
  static const QRegularExpression heading(QStringLiteral("<h[12] id=\"([\\w-]+)\">(.*?)</h[12]>"),
                                          QRegularExpression::DotMatchesEverythingOption);
  const QString html = ReadText(QDir(folder_).filePath(name));
  const qsizetype end = html.indexOf(QStringLiteral("</main>"));
  QString chapter;
  auto next = heading.globalMatch(html);
  while (next.hasNext()) {
    const QRegularExpressionMatch match = next.next();
    const qsizetype until = next.hasNext() ? next.peekNext().capturedStart() : end;
    const QString title = Plain(match.captured(2));
    const bool isBeginning = chapter.isEmpty();
    if (isBeginning) chapter = title;
    parts_ << ManualPart{name, isBeginning ? QString() : match.captured(1), chapter, title,
                         Plain(html.mid(match.capturedEnd(), until - match.capturedEnd()))};
  }
}

QList<ManualPart> Manual::Find(const QString &text) const {
  const QStringList words = WordsOf(text);
  std::multimap<int, ManualPart> found;
  for (const ManualPart &part : parts_) {
    const int rank = words.isEmpty() ? NotFound : RankOf(part, words);
    if (rank != NotFound) found.emplace(rank, part);
  }
  QList<ManualPart> inOrder;
  for (const auto &[rank, part] : found) inOrder << part;
  return inOrder;
}

QString ManualFolder(const QString &programFolder) {
  const QString installed = programFolder + QStringLiteral("/../share/doc/velor-web-creator/html");
  if (QFile::exists(installed + u'/' + FirstPage)) return QDir::cleanPath(installed);
  QDir folder(programFolder);
  do {
    const QString ofCheckout = folder.filePath(QStringLiteral("docs/manual"));
    if (QFile::exists(ofCheckout + u'/' + FirstPage)) return ofCheckout;
  } while (folder.cdUp());
  return {};
}

}  // namespace velor
