// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/help/Manual.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTextDocumentFragment>

#include <algorithm>

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
  QList<ManualPart> found;
  if (words.isEmpty()) return found;
  std::copy_if(parts_.begin(), parts_.end(), std::back_inserter(found),
               [&](const ManualPart &part) {
                 return HasWords(part.chapter + u' ' + part.title + u' ' + part.text, words);
               });
  std::stable_partition(found.begin(), found.end(), [&](const ManualPart &part) {
    return HasWords(part.chapter + u' ' + part.title, words);
  });
  return found;
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
