// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/DialogInsertCommands.h"

#include "editor/MainWindow.h"
#include "editor/frmMain.h"
#include "insert/ElementHtml.h"
#include "insert/LinkPaths.h"
#include "insert/frmDialog_Table.h"
#include "insert/frmInsertElement.h"
#include "platform/Dialogs.h"

namespace velor {

void DialogInsertCommands::Element(const QString &mode, frmMain &page) {
  if (dialog_.isNull()) {
    dialog_ = new frmInsertElement(runtime_, dialogs_, components_, sweeps_, page.window());
    QObject::connect(dialog_, &frmInsertElement::Reported, dialog_,
                     [this](const QString &message) { status_.Report(message); });
    if (additions_ == Additions::On) dialog_->OnEmptyAddress = EmptyAddress::Refused;
  }
  const PageRecord record = page.GetPageRecord();
  dialog_->PrepareInsert(mode, page.DHTML1().Document(),
                         record.HasFile != False16 ? record.Path : QString());
  dialogs_.RunModal(*dialog_);
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
  frmDialog_Table dialog(html_, page.window());
  dialogs_.RunModal(dialog);
  if (alive.isNull()) return;
  page.DHTML1().Document().Selection().CreateRange()->PasteHTML(html_);
}

void DialogInsertCommands::PictureFile(frmMain &page, const QString &path) {
  const PageRecord record = page.GetPageRecord();
  HtmlElement picture = CreateScratchElement(QStringLiteral("IMG"));
  picture.attributes.emplace_back(QStringLiteral("src"), record.HasFile != False16
                                                             ? MakeRelativeLink(record.Path, path)
                                                             : MakeAbsoluteLink(path));
  page.DHTML1().Document().Selection().CreateRange()->PasteHTML(OuterHTML(picture));
}

}  // namespace velor
