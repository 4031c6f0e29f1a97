// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/RewrittenPictures.h"

#include "pictures/PicturePlaces.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/ReplacedVersions.h"
#include "platform/RuntimeError.h"

#include <algorithm>

namespace velor {

QString CreateBeside(Files &files, const QString &path, const QString &tail,
                     const QByteArray &content) {
  const qsizetype dot = path.lastIndexOf(u'.');
  for (int number = 1;; ++number) {
    const QString numbered = number == 1 ? tail : tail + u'-' + QString::number(number);
    const QString name = path.left(dot) + numbered + path.sliced(dot);
    if (files.CreateNew(name, content)) return name;
  }
}

RewrittenPictures::Picture *RewrittenPictures::Find(const QString &path) {
  const auto found = std::find_if(pictures_.begin(), pictures_.end(),
                                  [&](const Picture &picture) { return picture.path == path; });
  return found == pictures_.end() ? nullptr : &*found;
}

void RewrittenPictures::Rewrite(const QString &path, const QByteArray &content) {
  const QByteArray there = files_.ReadAll(path);
  Picture *picture = Find(path);
  if (picture == nullptr || picture->latest != there) {
    std::erase_if(pictures_, [&](const Picture &one) { return one.path == path; });
    picture = &pictures_.emplace_back(
        Picture{.path = path, .first = there, .saved = there, .latest = there});
  }
  Write(*picture, content);
}

void RewrittenPictures::Write(Picture &picture, const QByteArray &content) {
  if (content == picture.latest) return;
  const bool isFirst = content == picture.first;
  const bool isFirstSaved = picture.saved == picture.first;
  if (!isFirst && picture.original.isEmpty())
    picture.original =
        CreateBeside(files_, picture.path, QStringLiteral("-original"), picture.first);
  if (!isFirstSaved && picture.savedCopy.isEmpty() && replaced_ != nullptr)
    picture.savedCopy = ToLogic(replaced_->Store(picture.path, picture.saved));
  files_.ReplaceAll(picture.path, content);
  picture.latest = content;
  const QString saved = isFirstSaved ? picture.original : picture.savedCopy;
  picture.unsaved.reset();
  if (content != picture.saved && !saved.isEmpty())
    picture.unsaved = {picture.path, {}, DigestOf(content), saved, DigestOf(picture.saved)};
  if (!isFirst || picture.original.isEmpty()) return;
  if (files_.ReadAll(picture.original) == picture.first) files_.Delete(picture.original);
  picture.original.clear();
}

void RewrittenPictures::Note(const QString &path, const QString &text, const QByteArray &content) {
  Picture *picture = Find(path);
  if (picture == nullptr) return;
  std::erase_if(picture->contents, [&](const auto &one) { return one.first == text; });
  picture->contents.emplace_back(text, content);
}

QString RewrittenPictures::OriginalOf(const QString &path) {
  const Picture *picture = Find(path);
  return picture == nullptr ? QString() : picture->original;
}

void RewrittenPictures::PutBack(const QString &path) {
  Picture *picture = Find(path);
  if (picture != nullptr && files_.ReadAll(path) == picture->latest)
    Write(*picture, picture->first);
}

void RewrittenPictures::WriteBack(Picture &picture, const QByteArray &content) {
  try {
    if (files_.ReadAll(picture.path) == picture.latest) Write(picture, content);
  } catch (const RuntimeError &) {
    // Gone, or written by nobody any more: it stays as it is.
  }
}

void RewrittenPictures::Follow(const QString &text) {
  for (Picture &picture : pictures_) {
    const auto known = std::find_if(picture.contents.begin(), picture.contents.end(),
                                    [&](const auto &one) { return one.first == text; });
    if (known != picture.contents.end() && known->second != picture.latest)
      WriteBack(picture, known->second);
  }
}

void RewrittenPictures::MarkSaved() {
  for (Picture &picture : pictures_) {
    picture.saved = picture.latest;
    picture.savedCopy.clear();
    picture.unsaved.reset();
  }
}

void RewrittenPictures::RemoveUnsaved() {
  // A file whose size nothing in the page says goes with either text.
  for (Picture &picture : pictures_)
    if (!picture.contents.empty()) WriteBack(picture, picture.saved);
  pictures_.clear();
}

QList<JournalledPicture> RewrittenPictures::Unsaved() const {
  QList<JournalledPicture> unsaved;
  for (const Picture &picture : pictures_)
    if (picture.unsaved && !picture.contents.empty()) unsaved << *picture.unsaved;
  return unsaved;
}

void RewrittenPictures::Adopt(const QList<JournalledPicture> &pictures, const QString &text) {
  for (const JournalledPicture &picture : pictures) {
    if (picture.saved.isEmpty()) continue;
    try {
      const QByteArray latest = files_.ReadAll(picture.path);
      const QByteArray saved = files_.ReadAll(picture.saved);
      if (DigestOf(latest) != picture.digest || DigestOf(saved) != picture.savedDigest) continue;
      const bool isBeside = FolderOf(picture.saved) == FolderOf(picture.path);
      pictures_.push_back({.path = picture.path,
                           .original = isBeside ? picture.saved : QString(),
                           .first = saved,
                           .saved = saved,
                           .latest = latest,
                           .contents = {{text, latest}},
                           .unsaved = picture});
    } catch (const RuntimeError &) {
      // One of the two is gone: there is nothing to bring back.
    }
  }
}

}  // namespace velor
