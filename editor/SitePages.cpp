// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/SitePages.h"

#include "editor/modGeneral.h"
#include "platform/Paths.h"

#include <QDirIterator>

namespace velor {
namespace {

/// The folders and files that are looked at: a project may lie on a slow disk.
constexpr int MostEntries = 20'000;

const QStringList PageNames = {QStringLiteral("*.htm"), QStringLiteral("*.html"),
                               QStringLiteral("*.xhtml"), QStringLiteral("*.shtml"),
                               QStringLiteral("*.php")};

}  // namespace

QStringList PagesAround(const QString &pagePath, const QString &site) {
  if (pagePath.isEmpty()) return {};
  const QString folder = ToNative(site.isEmpty() ? modGeneral::FolderOfPath(pagePath) : site);
  const QString own = ToNative(pagePath);
  QStringList pages;
  QDirIterator files(folder, QDir::Files | QDir::AllDirs | QDir::NoDotAndDotDot,
                     site.isEmpty() ? QDirIterator::NoIteratorFlags : QDirIterator::Subdirectories);
  for (int entry = 0; files.hasNext() && entry < MostEntries && pages.size() < MostPagesAround;
       ++entry) {
    const QString file = files.next();
    if (file != own && QDir::match(PageNames, files.fileName()) && files.fileInfo().isFile())
      pages << ToLogic(file);
  }
  pages.sort(Qt::CaseInsensitive);
  return pages;
}

}  // namespace velor
