// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/OpenPages.h"

#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "editor/modGeneral.h"
#include "page/text/CharacterReferences.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/Platform.h"
#include "platform/Words.h"

#include <QDir>

#include <algorithm>

namespace velor {

namespace {

/// The title in the template of new pages; no file name is made from it.
const QString TitleOfNewPages = QStringLiteral("Untitled New Page");
/// Maximum length of a proposed name in UTF-16 code units.
constexpr qsizetype LongestName = 60;

QString WithoutReferences(QStringView text) {
  QString plain;
  for (qsizetype at = 0; at < text.size();) {
    const CharacterReference reference =
        text[at] == u'&' ? ReadReference(text, at, ReferencePlace::Text) : CharacterReference();
    if (reference.length == 0) {
      plain += text[at++];
      continue;
    }
    plain += QString::fromUcs4(&reference.first, 1);
    if (reference.second != 0) plain += QString::fromUcs4(&reference.second, 1);
    at += reference.length;
  }
  return plain;
}

QString TitleOf(const QString &html) {
  const qsizetype tag = html.indexOf(QStringLiteral("<title"), 0, Qt::CaseInsensitive);
  const qsizetype begin = tag < 0 ? -1 : html.indexOf(u'>', tag) + 1;
  if (begin <= 0) return {};
  const qsizetype end = html.indexOf(QStringLiteral("</title"), begin, Qt::CaseInsensitive);
  return end < 0 ? QString() : WithoutReferences(QStringView(html).sliced(begin, end - begin));
}

/// A file name made from a text, valid on every system; empty where no character of it is.
QString AsFileName(const QString &text) {
  QString name = text.simplified().left(LongestName);
  const QString forbidden = QStringLiteral("\\/:*?\"<>|");
  name.removeIf([&](QChar character) {
    return forbidden.contains(character) || !character.isPrint() ||
           character.category() == QChar::Other_PrivateUse || character.isSurrogate();
  });
  while (name.startsWith(u'.')) name.remove(0, 1);
  while (name.endsWith(u'.')) name.chop(1);
  return name.trimmed();
}

}  // namespace

int OpenPageCount(EditorContext &context) {
  int count = 0;
  for (int number = 1; number <= context.pages.PageCount(); ++number)
    if (!context.pages.Page(number).isNull()) ++count;
  return count;
}

bool HasRoom(EditorContext &context) {
  // A page can have lost its tab, so both are counted.
  if (std::max(context.mainWindow.tabs.Count(), OpenPageCount(context)) < MostPages) return true;
  Message refusal;
  refusal.text = Words::tr(
      "Too many Pages are opened. Please close one or two File(s), and then try to open it.");
  refusal.icon = MessageIcon::Critical;
  context.platform.dialogs.ShowMessage(refusal);
  return false;
}

frmMain *PageOfFile(EditorContext &context, const QString &path) {
  for (int number = 1; number <= context.pages.PageCount(); ++number) {
    frmMain *page = context.pages.Page(number);
    const QString file = context.pages.Record(number).Path;
    if (page != nullptr && !file.isEmpty() && context.platform.files.IsSameFile(file, path))
      return page;
  }
  return nullptr;
}

bool ShowPageOfFile(EditorContext &context, const QString &path) {
  frmMain *page = PageOfFile(context, path);
  if (page == nullptr) return false;
  context.mainWindow.windows.Activate(page);
  context.mainWindow.status.Report(
      Words::tr("%1 is open already").arg(ForPeople(page->GetPageRecord().Path)));
  return true;
}

QString ProposedFile(const PageRecord &record, const QString &html, const QString &folder) {
  if (!record.Path.isEmpty()) return record.Path;
  const QString title = TitleOf(html);
  QString name = title == TitleOfNewPages ? QString() : AsFileName(title);
  if (name.isEmpty()) name = AsFileName(record.Caption);
  return folder + u'\\' + name + QStringLiteral(".htm");
}

void SetDialogFileName(EditorContext &context, frmMain &page) {
  FileDialog &dialog = context.mainWindow.fileDialog;
  const QString folder = dialog.FileName.contains(u'\\') ? modGeneral::FolderOfPath(dialog.FileName)
                                                         : ToLogic(QDir::homePath());
  dialog.FileName =
      ProposedFile(context.pages.Record(page.Number()), page.DHTML1().Memory().document, folder);
}

}  // namespace velor
