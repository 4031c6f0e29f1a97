// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/PdfExport.h"

#include "editor/FrontWindow.h"
#include "editor/MainWindow.h"
#include "editor/OpenPages.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "editor/modGeneral.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/PagePrinting.h"
#include "platform/Paths.h"
#include "platform/Platform.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <QApplication>
#include <QDir>
#include <QPointer>
#include <QPushButton>
#include <QShortcut>

namespace velor {

namespace {

const QString Ending = QStringLiteral(".pdf");

QString WithPdfEnding(const QString &path) {
  const qsizetype name = path.lastIndexOf(u'\\') + 1;
  const qsizetype dot = path.lastIndexOf(u'.');
  return (dot > name ? path.left(dot) : path) + Ending;
}

}  // namespace

PdfExport::PdfExport(EditorContext &context, QWidget *parent)
    : NoticeBar("picPdf", "lblPdf", Words::tr("Export as PDF"), parent),
      context_(context),
      folder_(ToLogic(QDir::homePath())),
      escape_(new QShortcut(Qt::Key_Escape, parent)) {
  QPushButton &stop =
      AddButton("cmdStopPdf", Words::tr("Stop"), Words::tr("Write no file (Escape)"));
  connect(&stop, &QPushButton::clicked, this, &PdfExport::Stop);
  escape_->setEnabled(false);
  connect(escape_, &QShortcut::activated, this, &PdfExport::Stop);
}

QString PdfExport::AskForFile(const FrontWindow &front) {
  const auto dialog = context_.platform.components.CreateFileDialog();
  dialog->Filter = Words::tr("PDF File") + QStringLiteral(" *.pdf|*.pdf");
  dialog->Flags = FileDialog::OverwritePrompt;
  const int number = front.PageNumber();
  frmMain *page = number > 0 ? context_.pages.Page(number).data() : nullptr;
  const QString own = page == nullptr ? folder_ + u'\\' + front.ShownName()
                                      : ProposedFile(context_.pages.Record(number),
                                                     page->DHTML1().Memory().document, folder_);
  dialog->FileName = WithPdfEnding(own);
  const QString file = dialog->ShowSave();
  if (file.isEmpty()) return file;
  folder_ = modGeneral::FolderOfPath(file);
  if (file.endsWith(Ending, Qt::CaseInsensitive)) return file;
  Message refusal;
  refusal.text = Words::tr("The name of a PDF file ends in .pdf. Nothing was written.");
  refusal.details = ForPeople(file);
  refusal.icon = MessageIcon::Information;
  context_.platform.dialogs.ShowMessage(refusal);
  return {};
}

void PdfExport::Begin(FrontWindow &front) {
  if (printing_ != nullptr) {
    context_.mainWindow.status.Report(Words::tr("A PDF is being made already. Escape stops it"));
    return;
  }
  const QPointer<QWidget> window = dynamic_cast<QWidget *>(&front);
  const QString file = AskForFile(front);
  if (file.isEmpty() || window.isNull()) return;
  printing_ = front.Printing();
  if (printing_ == nullptr) return;
  file_ = file;
  Tell(Words::tr("Making a PDF of %1. Escape stops it").arg(front.ShownName()));
  escape_->setEnabled(true);
  closing_ = connect(window, &QObject::destroyed, this, &PdfExport::End);
  printing_->MakePdf({}, [this](const QByteArray &pdf) { Write(pdf); });
}

void PdfExport::Stop() {
  if (printing_ == nullptr) return;
  printing_->StopPdf();
  End();
  context_.mainWindow.status.Report(Words::tr("The PDF was stopped. No file was written"));
}

void PdfExport::Write(const QByteArray &pdf) {
  End();
  Message failure;
  failure.icon = MessageIcon::Critical;
  failure.text = Words::tr("The PDF could not be written.");
  failure.details = ForPeople(file_);
  if (!pdf.isEmpty()) {
    try {
      context_.platform.files.ReplaceAll(file_, pdf);
      context_.mainWindow.status.Report(Words::tr("Exported %1").arg(ForPeople(file_)));
      return;
    } catch (const RuntimeError &error) {
      failure.details = error.Description();
    }
  } else {
    failure.text = Words::tr("The page could not be printed. No file was written.");
  }
  context_.platform.dialogs.ShowMessage(failure);
}

void PdfExport::End() {
  disconnect(closing_);
  printing_ = nullptr;
  escape_->setEnabled(false);
  // Asked for only then: at the end of the program the windows go with their area.
  if (isAncestorOf(QApplication::focusWidget())) {
    if (QWidget *front = context_.mainWindow.windows.Current())
      front->setFocus(Qt::OtherFocusReason);
  }
  hide();
}

}  // namespace velor
