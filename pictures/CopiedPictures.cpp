// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/CopiedPictures.h"

#include "platform/Files.h"
#include "platform/ReplacedVersions.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <utility>

namespace velor {

namespace {

bool IsPartOfAddress(QChar c) {
  return c.isLetterOrNumber() || QStringView(u"-_.~/%!$*+;=@:").contains(c);
}

/// Whether the address stands in the text, and not only as a part of a longer one.
bool HasAddress(const QString &html, const QString &address) {
  for (qsizetype at = html.indexOf(address); at >= 0; at = html.indexOf(address, at + 1)) {
    const qsizetype end = at + address.size();
    const bool beginsThere = at == 0 || !IsPartOfAddress(html[at - 1]);
    if (beginsThere && (end == html.size() || !IsPartOfAddress(html[end]))) return true;
  }
  return false;
}

}  // namespace

CopiedPictures::CopiedPictures(Files &files, ReplacedVersions *replaced,
                               std::function<bool(const QString &path)> isUsedElsewhere)
    : files_(files), replaced_(replaced), isUsedElsewhere_(std::move(isUsedElsewhere)) {}

void CopiedPictures::Add(const SitePicture &picture) {
  if (!picture.isNew) return;
  pictures_.push_back({.path = picture.path,
                       .address = picture.address,
                       .digest = DigestOf(files_.ReadAll(picture.path))});
}

void CopiedPictures::Adopt(const QList<JournalledPicture> &pictures) {
  for (const JournalledPicture &picture : pictures) {
    if (picture.digest.isEmpty() || !picture.saved.isEmpty()) continue;
    pictures_.push_back({.path = picture.path,
                         .address = picture.address,
                         .digest = picture.digest,
                         .wasSeen = true});
  }
}

QList<JournalledPicture> CopiedPictures::There() const {
  QList<JournalledPicture> there;
  for (const Picture &picture : pictures_)
    if (picture.isThere) there.push_back({picture.path, picture.address, picture.digest});
  return there;
}

bool CopiedPictures::AwaitsAny() const {
  return std::any_of(pictures_.begin(), pictures_.end(),
                     [](const Picture &picture) { return !picture.wasSeen; });
}

void CopiedPictures::ExpectAll() {
  for (Picture &picture : pictures_) picture.wasSeen = true;
}

void CopiedPictures::Follow(const QString &html) {
  for (Picture &picture : pictures_) {
    const bool isUsed = HasAddress(html, picture.address);
    // The text may be older than the picture, which is on its way into the page.
    picture.wasSeen = picture.wasSeen || isUsed;
    if (isUsed) {
      BringBack(picture);
    } else if (picture.wasSeen) {
      Remove(picture);
    }
  }
}

void CopiedPictures::MarkSaved(const QString &html) {
  Follow(html);
  std::erase_if(pictures_,
                [&](const Picture &picture) { return HasAddress(html, picture.address); });
}

void CopiedPictures::LeaveToSite(const std::function<bool(const QString &path)> &isSaved) {
  std::erase_if(pictures_, [&](const Picture &picture) { return isSaved(picture.path); });
}

void CopiedPictures::RemoveUnsaved() {
  for (Picture &picture : pictures_) Remove(picture);
  pictures_.clear();
}

void CopiedPictures::RemoveUnseen() {
  for (Picture &picture : pictures_)
    if (!picture.wasSeen) Remove(picture);
  std::erase_if(pictures_, [](const Picture &picture) { return !picture.wasSeen; });
}

void CopiedPictures::Remove(Picture &picture) {
  if (!picture.isThere || isUsedElsewhere_(picture.path)) return;
  try {
    const QByteArray content = files_.ReadAll(picture.path);
    if (DigestOf(content) != picture.digest) return;
    if (replaced_ != nullptr) replaced_->Store(picture.path, content);
    files_.Delete(picture.path);
    picture.content = content;
    picture.isThere = false;
  } catch (const RuntimeError &) {
    // The file stays, which harms nothing.
  }
}

void CopiedPictures::BringBack(Picture &picture) {
  if (picture.isThere) return;
  try {
    // Where another file has the name now, that one stays.
    files_.CreateNew(picture.path, picture.content);
    picture.isThere = true;
    picture.content.clear();
  } catch (const RuntimeError &) {
    // Tried again with the next text.
  }
}

}  // namespace velor
