// SPDX-License-Identifier: GPL-3.0-or-later
#include "spelling/WordList.h"

#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

namespace velor {

WordList::WordList(Files &files, QString path) : files_(files), path_(std::move(path)) {}

void WordList::Read() {
  const QDateTime time = files_.ChangeTime(path_);
  if (time == readAt_) return;
  readAt_ = time;
  words_.clear();
  if (!time.isValid()) return;
  try {
    for (const QString &line : QString::fromUtf8(files_.ReadAll(path_)).split(u'\n')) {
      const QString word = line.trimmed();
      if (!word.isEmpty() && !word.startsWith(u'#')) words_.insert(word);
    }
  } catch (const RuntimeError &) {
    // A list that cannot be read has no words; Add will say why.
  }
}

bool WordList::Has(const QString &word) {
  Read();
  if (words_.contains(word)) return true;
  const QString small = word.toLower();
  return word == small.left(1).toUpper() + small.mid(1) && words_.contains(small);
}

void WordList::Add(const QString &word) {
  Read();
  if (words_.contains(word)) return;
  QByteArray content;
  if (files_.FileExists(path_)) {
    content = files_.ReadAll(path_);
    if (!content.isEmpty() && !content.endsWith('\n')) content += '\n';
  } else {
    // The person's data folder may not be there yet.
    QDir().mkpath(QFileInfo(ToNative(path_)).path());
  }
  files_.ReplaceAll(path_, content + word.toUtf8() + '\n');
  words_.insert(word);
  readAt_ = files_.ChangeTime(path_);
}

}  // namespace velor
