// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/PictureFitting.h"

#include "editor/MainWindow.h"
#include "editor/PagePictures.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "editor/modGeneral.h"
#include "pictures/CropRules.h"
#include "platform/Files.h"
#include "platform/Platform.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <QPointer>
#include <QPushButton>

#include <array>
#include <utility>

namespace velor {

namespace {

/// A file that is more than so many times as wide and high as its picture is told of.
constexpr int MuchLarger = 2;

}  // namespace

PictureFitting::PictureFitting(EditorContext &context, frmMain &page)
    : NoticeBar("picFitting", "lblFitting", Words::tr("Picture larger than shown"), &page),
      context_(context),
      page_(page) {
  const auto add = [&](const char *name, const QString &caption, const QString &tip, auto action) {
    QPushButton &button = AddButton(name, caption, tip);
    connect(&button, &QPushButton::clicked, this, action);
    return &button;
  };
  add("cmdFit", Words::tr("Fit File to Size"),
      Words::tr("Make the file as large as the picture is shown; the original is kept"),
      &PictureFitting::Fit);
  add("cmdFitTwice", Words::tr("Fit for Dense Screens"),
      Words::tr("Make the file twice as large as the picture is shown"), &PictureFitting::FitTwice);
  add("cmdTurnLeft", Words::tr("Turn Left"), Words::tr("Turn the file's picture left"),
      [this] { TurnPicture(Turn::Left); });
  add("cmdTurnRight", Words::tr("Turn Right"), Words::tr("Turn the file's picture right"),
      [this] { TurnPicture(Turn::Right); });
  add("cmdCrop", Words::tr("Crop..."), Words::tr("Cut a part out of the file's picture"),
      [this] { context_.mainWindow.requests.CropPicture(page_); });
  undo_ = add("cmdUndoFitting", Words::tr("Undo"), Words::tr("Put the file back as it was"),
              &PictureFitting::UndoChange);
}

bool PictureFitting::IsMuchLarger() const {
  return picture_.pixels.width() > MuchLarger * picture_.shown.width() &&
         picture_.pixels.height() > MuchLarger * picture_.shown.height() &&
         !picture_.shown.isEmpty();
}

QString PictureFitting::FileOfSelection() const {
  const PageRecord &record = context_.pages.Record(page_.Number());
  const PageSite site{record.Path, context_.pages.Site(page_.Number())};
  const QString file = FileOfAddress(record.Path, picture_.address);
  const Files &files = context_.platform.files;
  if (file.isEmpty() || !files.FileExists(file) || !LiesInSite(site, file)) return {};
  const bool isOurs = !files.IsReadOnly(file) && CanBeChanged(files.ReadAll(file));
  return isOurs ? file : QString();
}

void PictureFitting::SelectionChanged() {
  const ShownPicture picture = page_.DHTML1().Document().SelectedPicture();
  if (picture == picture_) return;
  const bool isSame = picture.address == picture_.address;
  picture_ = picture;
  // The bar tells what was done to it.
  if (isSame && before_ && !page_.Pictures().Rewritten().OriginalOf(file_).isEmpty()) return;
  before_.reset();
  hide();
  if (!context_.hasAdditions || !IsMuchLarger()) return;
  try {
    file_ = FileOfSelection();
  } catch (const RuntimeError &) {
    return;  // it cannot be read, and is not shown either
  }
  if (file_.isEmpty()) return;
  ShowText(Words::tr("%1 has %2 × %3 pixels and is shown at %4 × %5.")
               .arg(modGeneral::FileNameOfPath(file_))
               .arg(picture.pixels.width())
               .arg(picture.pixels.height())
               .arg(picture.shown.width())
               .arg(picture.shown.height()));
}

bool PictureFitting::IsHtml5() const {
  const QString html = page_.DHTML1().Memory().document.left(100).simplified().toLower();
  return html.startsWith(QStringLiteral("<!doctype html>"));
}

QImage PictureFitting::PictureToCut() {
  picture_ = page_.DHTML1().Document().SelectedPicture();
  const auto refuse = [this](const QString &why) {
    context_.mainWindow.status.ReportOn(page_.Number(), why);
    return QImage();
  };
  try {
    file_ = picture_.address.isEmpty() ? QString() : FileOfSelection();
    if (!file_.isEmpty()) return UprightPicture(context_.platform.files.ReadAll(file_));
  } catch (const RuntimeError &error) {
    return refuse(Words::tr("The file stays as it is: %1").arg(error.Description()));
  }
  return refuse(
      Words::tr("Select a picture of the site first: a JPEG, PNG or WebP file that does not move"));
}

QString PictureFitting::FileName() const {
  return modGeneral::FileNameOfPath(file_);
}

void PictureFitting::CutPicture(const PictureCut &cut) {
  if (cut.quarterTurns == 0 && cut.part == QRect({}, picture_.pixels)) return;
  Rewrite([&cut](const QByteArray &file) { return Cropped(file, cut); }, Look::Other,
          ShownAfter(cut, picture_.pixels, picture_.shown));
}

void PictureFitting::TurnPicture(Turn turn) {
  Rewrite([turn](const QByteArray &file) { return Turned(file, turn); }, Look::Other,
          picture_.shown.transposed());
}

void PictureFitting::Fit() {
  Rewrite([size = picture_.shown](const QByteArray &file) { return Resized(file, size); },
          Look::Same, picture_.shown);
}

void PictureFitting::FitTwice() {
  const QSize twice = picture_.shown * MuchLarger;
  if (!IsHtml5()) {
    Rewrite([twice](const QByteArray &file) { return Resized(file, twice); }, Look::Same,
            picture_.shown);
    return;
  }
  try {
    Files &files = context_.platform.files;
    const QString dense =
        CreateBeside(files, file_, QStringLiteral("-2x"), Resized(files.ReadAll(file_), twice));
    const QString address = PictureAddress(context_.pages.Record(page_.Number()).Path, dense);
    page_.Pictures().Own({.path = dense, .address = address, .isNew = true});
    Rewrite([size = picture_.shown](const QByteArray &file) { return Resized(file, size); },
            Look::Same, picture_.shown,
            {{QStringLiteral("srcset"), address + QStringLiteral(" 2x")}});
  } catch (const RuntimeError &error) {
    ShowText(Words::tr("The file stays as it is: %1").arg(error.Description()));
  }
}

void PictureFitting::Rewrite(const Change &change, Look look, QSize shown,
                             HtmlAttributes attributes) {
  HtmlDocument &document = page_.DHTML1().Document();
  RewrittenPictures &rewritten = page_.Pictures().Rewritten();
  const QPointer<PictureFitting> alive = this;
  const PropertyValues said = document.Properties({PropertySubject::Image});
  if (alive == nullptr) return;
  PropertyValues before;
  PropertyValues after;
  const std::array lengths = {std::pair(QStringLiteral("width"), shown.width()),
                              std::pair(QStringLiteral("height"), shown.height())};
  for (const auto &[name, length] : lengths) {
    // A share of the page, or nothing, goes with any file.
    if (said.value(name).toDouble() <= 0 || said.value(name) == QString::number(length)) continue;
    before.insert(name, said.value(name));
    after.insert(name, QString::number(length));
  }
  for (const auto &[name, length] : lengths) {
    const bool isNeeded = look == Look::Other && after.isEmpty() && attributes.empty();
    if (isNeeded && said.value(name).isEmpty()) attributes = {{name, QString::number(length)}};
  }
  try {
    const QByteArray content = context_.platform.files.ReadAll(file_);
    rewritten.Rewrite(file_, change(content));
    ChangePage(content, [&] {
      if (!after.isEmpty()) document.SetProperties({PropertySubject::Image}, after);
      if (!attributes.empty())
        document.ChangeObject(attributes, HtmlDocument::ParagraphSide::AsItIs);
    });
    if (alive == nullptr) return;
    if (!before_) before_.emplace();
    // What an earlier change has found is how it was at first.
    for (auto size = before.cbegin(); size != before.cend(); ++size)
      if (!before_->sizes.contains(size.key())) before_->sizes.insert(size.key(), size.value());
    for (const auto &[name, value] : attributes) before_->attributes.emplace_back(name, QString());
    ShowText(Words::tr("%1 is changed. It is kept as it was as %2.")
                 .arg(FileName(), modGeneral::FileNameOfPath(rewritten.OriginalOf(file_))));
  } catch (const RuntimeError &error) {
    ShowText(Words::tr("The file stays as it is: %1").arg(error.Description()));
  }
}

void PictureFitting::ChangePage(const QByteArray &before, const std::function<void()> &change) {
  const QPointer<frmMain> alive = &page_;
  const QString file = file_;
  // Reading the document brings the component's memory of it up to date.
  const auto text = [&] {
    if (alive != nullptr) alive->DHTML1().DocumentHTML();
    return alive == nullptr ? QString() : alive->DHTML1().Memory().document;
  };
  const QString textBefore = text();
  if (alive != nullptr) change();
  const QString textAfter = text();
  if (alive == nullptr || textAfter == textBefore) return;
  RewrittenPictures &rewritten = alive->Pictures().Rewritten();
  rewritten.Note(file, textBefore, before);
  rewritten.Note(file, textAfter, context_.platform.files.ReadAll(file));
  // A crash may come before the next moment at which the journal is written.
  alive->Journal().Flush();
}

void PictureFitting::UndoChange() {
  const QPointer<PictureFitting> alive = this;
  try {
    const QByteArray content = context_.platform.files.ReadAll(file_);
    page_.Pictures().Rewritten().PutBack(file_);
    ChangePage(content, [&] {
      HtmlDocument &document = page_.DHTML1().Document();
      if (!before_->sizes.isEmpty())
        document.SetProperties({PropertySubject::Image}, before_->sizes);
      if (!before_->attributes.empty())
        document.ChangeObject(before_->attributes, HtmlDocument::ParagraphSide::AsItIs);
    });
    if (alive == nullptr) return;
    before_.reset();
    ShowText(Words::tr("%1 is as it was.").arg(FileName()));
  } catch (const RuntimeError &error) {
    ShowText(Words::tr("The file stays as it is: %1").arg(error.Description()));
  }
}

void PictureFitting::ShowText(const QString &text) {
  undo_->setVisible(before_.has_value());
  Tell(text);
}

}  // namespace velor
