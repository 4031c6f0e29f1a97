// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/DialogInsertCommands.h"

#include "app/window/LinksOfPage.h"
#include "editor/MainWindow.h"
#include "editor/PagePictures.h"
#include "editor/PageSlots.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "insert/CharacterDialog.h"
#include "insert/ElementHtml.h"
#include "insert/LinkPaths.h"
#include "insert/MarkupDialog.h"
#include "insert/frmDialog_Table.h"
#include "insert/frmInsertElement.h"
#include "platform/Dialogs.h"
#include "platform/Platform.h"

namespace velor {
namespace {

EditedPage WhatIsEdited(frmMain &page, const QString &path) {
  EditingComponent &component = page.DHTML1();
  DocumentSelection &selection = component.Document().Selection();
  EditedPage edited;
  edited.dialect = DialectOf(component.Memory().document);
  edited.link = component.Document().Link();
  if (const HtmlElement object = selection.ControlElement(); object.tagName == u"IMG")
    edited.picture = object;
  edited.isCentered =
      component.QueryStatus(EditingCommand::JustifyCenter) == CommandStatus::Latched;
  edited.bookmarks = [alive = QPointer<frmMain>(&page), path](const QString &address) {
    return alive.isNull() ? QStringList() : PlacesOf(*alive, path, address);
  };
  edited.pictureAddress = [alive = QPointer<frmMain>(&page), path](const QString &address) {
    return alive.isNull() ? QString() : OwnPictureAddress(*alive, path, address);
  };
  return edited;
}

}  // namespace

void DialogInsertCommands::Element(const QString &mode, frmMain &page) {
  if (dialog_.isNull()) {
    dialog_ =
        new frmInsertElement(runtime_, dialogs_, components_, sweeps_, page.window(), Scope());
    QObject::connect(dialog_, &frmInsertElement::Reported, dialog_,
                     [this](const QString &message) { status_.Report(message); });
  }
  const QPointer<frmMain> alive = &page;
  const QString path = PathForLinks(page, additions_);
  dialog_->PrepareInsert(mode, page.DHTML1().Document(), path);
  if (additions_ == Additions::On) dialog_->FillFrom(WhatIsEdited(page, path));
  dialogs_.RunModal(*dialog_);
  if (alive.isNull() || dialog_.isNull()) return;
  for (const FullAddress &link : dialog_->FullAddresses)
    NoteFullAddress(page, link.address, link.target);
}

DialogScope DialogInsertCommands::Scope() const {
  return additions_ == Additions::On ? DialogScope::Extended : DialogScope::Published;
}

void DialogInsertCommands::Image(frmMain &page) {
  Element(QStringLiteral("image"), page);
}

void DialogInsertCommands::Hyperlink(frmMain &page) {
  Element(QStringLiteral("hyperlink"), page);
}

void DialogInsertCommands::Target(frmMain &page) {
  Element(QStringLiteral("target"), page);
}

void DialogInsertCommands::Video(frmMain &page) {
  Element(QStringLiteral("video"), page);
}

void DialogInsertCommands::Table(frmMain &page) {
  const QPointer<frmMain> alive = &page;
  frmDialog_Table dialog(html_, page.window(), Scope(), DialectOf(page.DHTML1().Memory().document));
  dialogs_.RunModal(dialog);
  if (alive.isNull()) return;
  page.DHTML1().Document().Selection().CreateRange()->PasteHTML(html_);
}

void DialogInsertCommands::Markup(frmMain &page) {
  const QPointer<frmMain> alive = &page;
  MarkupDialog dialog(
      components_, SurroundingsIn(page.DHTML1().Memory().document, PathForLinks(page, additions_)),
      page.window());
  dialogs_.RunModal(dialog);
  if (alive.isNull() || dialog.result() != QDialog::Accepted) return;
  page.DHTML1().Document().Selection().CreateRange()->PasteHTML(dialog.Markup());
}

void DialogInsertCommands::Character(frmMain &page) {
  const QPointer<frmMain> alive = &page;
  CharacterDialog dialog(recentCharacters_, page.window());
  dialogs_.RunModal(dialog);
  if (alive.isNull() || dialog.result() != QDialog::Accepted) return;
  page.DHTML1().Document().Selection().CreateRange()->PasteHTML(dialog.Character().toHtmlEscaped());
}

void DialogInsertCommands::Character(frmCodeEditor &editor) {
  const QPointer<frmCodeEditor> alive = &editor;
  CharacterDialog dialog(recentCharacters_, editor.window());
  dialogs_.RunModal(dialog);
  if (!alive.isNull() && dialog.result() == QDialog::Accepted)
    editor.InsertCharacter(dialog.Character());
}

void DialogInsertCommands::PictureFile(frmMain &page, const QString &path) {
  HtmlElement picture = CreateScratchElement(QStringLiteral("IMG"));
  if (additions_ == Additions::On) {
    const PagePictures::InPage taken = page.Pictures().TakeFile(path);
    picture.attributes.emplace_back(QStringLiteral("src"), taken.address);
    if (!taken.size.isEmpty()) {
      picture.attributes.emplace_back(QStringLiteral("width"), QString::number(taken.size.width()));
      picture.attributes.emplace_back(QStringLiteral("height"),
                                      QString::number(taken.size.height()));
    }
  } else {
    picture.attributes.emplace_back(QStringLiteral("src"),
                                    LinkToFile(PathForLinks(page, additions_), path));
  }
  page.DHTML1().Document().Selection().CreateRange()->PasteHTML(OuterHTML(picture));
}

}  // namespace velor
