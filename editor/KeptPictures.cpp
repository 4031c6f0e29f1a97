// SPDX-License-Identifier: GPL-3.0-or-later
// PagePictures over a crash: what a journal has of a page's pictures, and what becomes of them.
#include "editor/FileTrace.h"
#include "editor/MainWindow.h"
#include "editor/PagePictures.h"
#include "editor/PageSlots.h"
#include "editor/SitePages.h"
#include "editor/frmMain.h"
#include "editor/modGeneral.h"
#include "page/text/PageEncoding.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/Platform.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <algorithm>

namespace velor {

namespace {

/// Whether that page file names the file; one that cannot be read may.
bool MayName(const Files &files, const QString &page, const QString &path) {
  try {
    return NamesFile(DecodePage(files.ReadAll(page)).text, path);
  } catch (const RuntimeError &) {
    return true;
  }
}

/// Whether another page in the folder of `page` or below names the file. Where there are too many
/// to look at, one of them may.
bool IsNamedAround(const Files &files, const QString &page, const QString &path) {
  if (page.isEmpty()) return false;
  const QString copy = modGeneral::TemporaryPath(page);
  const QStringList around = PagesAround(page, modGeneral::FolderOfPath(page));
  return around.size() == MostPagesAround ||
         std::any_of(around.begin(), around.end(), [&](const QString &other) {
           return other != copy && MayName(files, other, path);
         });
}

/// The kept pictures that are that page's alone: copies that no other page names, and files written
/// anew for the page whose file is as it was then, not saved after them.
QList<JournalledPicture> OnlyOf(const Files &files, const JournalledPage &kept) {
  QList<JournalledPicture> own = kept.pictures;
  own.removeIf([&](const JournalledPicture &picture) {
    if (picture.saved.isEmpty()) return IsNamedAround(files, kept.path, picture.path);
    return !files.FileExists(kept.path) ||
           FileTrace::Of(kept.path, files.ReadAll(kept.path)).hash != picture.page;
  });
  return own;
}

}  // namespace

QList<JournalledPicture> PagePictures::Unsaved() const {
  QList<JournalledPicture> unsaved = copied_.There();
  for (const Homeless &picture : homeless_) {
    if (HasPath()) break;
    const bool isKnown = std::any_of(unsaved.begin(), unsaved.end(),
                                     [&](const auto &known) { return known.path == picture.path; });
    if (!isKnown) unsaved.push_back({picture.path, picture.address});
  }
  for (JournalledPicture picture : rewritten_.Unsaved()) {
    if (picture.page == 0) picture.page = context_.pages.Trace(page_.Number()).hash;
    unsaved << picture;
  }
  return unsaved;
}

void PagePictures::Restore(const JournalledPage &kept) {
  const QList<JournalledPicture> own = OnlyOf(context_.platform.files, kept);
  copied_.Adopt(own);
  rewritten_.Adopt(own, page_.DHTML1().Memory().document);
  if (HasPath()) return;
  for (const JournalledPicture &picture : kept.pictures)
    if (picture.saved.isEmpty())
      NoteHomeless(picture.address, picture.path,
                   picture.digest.isEmpty() ? Place::WhereItLies : Place::BesideTheCopy);
}

void RemoveUnsavedPictures(EditorContext &context, const JournalledPage &kept) {
  Files &files = context.platform.files;
  QString saved;
  if (!kept.pictures.isEmpty() && files.FileExists(kept.path))
    saved = DecodePage(files.ReadAll(kept.path)).text;
  const auto isUsed = [&](const QString &path) {
    constexpr int NoPage = 0;
    return NamesFile(saved, path) || IsNamedByOpenPage(context, NoPage, path);
  };
  const QList<JournalledPicture> own = OnlyOf(files, kept);
  RewrittenPictures rewritten(files);
  rewritten.Adopt(own, {});
  rewritten.RemoveUnsaved();
  CopiedPictures copied(files, context.platform.replaced, isUsed);
  copied.Adopt(own);
  copied.RemoveUnsaved();
  for (const JournalledPicture &picture : kept.pictures) {
    if (picture.saved.isEmpty() || !files.FileExists(picture.saved)) continue;
    if (files.FileExists(picture.path) &&
        DigestOf(files.ReadAll(picture.path)) == picture.savedDigest)
      continue;
    context.mainWindow.status.Report(
        Words::tr("%1 stays as it is. What the saved page shows is kept as %2.")
            .arg(modGeneral::FileNameOfPath(picture.path), ForPeople(picture.saved)));
  }
}

}  // namespace velor
