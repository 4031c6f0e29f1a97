// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/LinkPaths.h"

#include "platform/Conversions.h"
#include "platform/Dialogs.h"
#include "platform/RuntimeError.h"

#include <algorithm>

namespace velor {
namespace {

QString WithSlashes(QString path) {
  return path.replace(u'\\', u'/');
}

}  // namespace

int CountChar(const QString &text, QChar character) {
  return static_cast<int>(text.count(character));
}

QString MakeRelativeLink(const QString &pagePath, const QString &targetPath) {
  const QString page = WithSlashes(pagePath);
  const QString target = WithSlashes(targetPath);
  if (LowerCase(page.left(1)) != LowerCase(target.left(1))) return MakeAbsoluteLink(targetPath);

  const int pageDepth = CountChar(page, u'/');
  const int targetDepth = CountChar(target, u'/');
  const std::int16_t deeper = CInt(static_cast<double>(pageDepth - targetDepth));
  int up = std::max<int>(deeper, 0);

  bool diverged = false;
  qsizetype pageStart = 0;
  qsizetype targetStart = 0;
  qsizetype shared = target.size();
  for (int i = 0, count = std::min(pageDepth, targetDepth); i < count; ++i) {
    const qsizetype pageEnd = page.indexOf(u'/', pageStart);
    const qsizetype targetEnd = target.indexOf(u'/', targetStart);
    const bool same = QStringView(page).sliced(pageStart, pageEnd - pageStart) ==
                      QStringView(target).sliced(targetStart, targetEnd - targetStart);
    if (same && !diverged) {
      shared = targetEnd + 1;
    } else {
      diverged = true;
      ++up;
    }
    pageStart = pageEnd + 1;
    targetStart = targetEnd + 1;
  }
  return QStringLiteral("../").repeated(up) + target.sliced(shared);
}

QString MakeAbsoluteLink(const QString &path) {
  return QStringLiteral("file:///") + WithSlashes(path);
}

QString BrowseForFile(FileDialog &dialog, const QString &filter) {
  dialog.CancelError = true;
  dialog.Filter = filter;
  dialog.Flags = FileDialog::FileMustExist;
  try {
    return dialog.ShowOpen();
  } catch (const RuntimeError &) {
    return {};
  }
}

}  // namespace velor
