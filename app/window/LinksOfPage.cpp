// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/LinksOfPage.h"

#include "editor/Bookmarks.h"
#include "editor/PagePictures.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "insert/LinkPaths.h"
#include "platform/Platform.h"

namespace velor {

QString PathForLinks(const frmMain &page, Additions additions) {
  const PageRecord record = page.GetPageRecord();
  return record.HasFile != False16 || additions == Additions::On ? record.Path : QString();
}

void NoteFullAddress(frmMain &page, const QString &address, const QString &target) {
  page.Context()
      .pages.FullAddresses(page.Number())
      .push_back(
          {address, [target](const QString &pagePath) { return LinkToFile(pagePath, target); }});
}

QStringList PlacesOf(frmMain &page, const QString &path, const QString &address) {
  if (address.isEmpty()) return BookmarksIn(page.DHTML1().DocumentHTML());
  return BookmarksInFile(FileOfLink(path, address), page.Context().platform.files);
}

QString OwnPictureAddress(frmMain &page, const QString &path, const QString &address) {
  const QString file = FileOfLink(path, address);
  return file.isEmpty() ? QString() : page.Pictures().TakeChosenFile(file).address;
}

}  // namespace velor
