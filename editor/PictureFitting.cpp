// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/PictureFitting.h"

#include "editor/PagePictures.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "editor/modGeneral.h"
#include "pictures/CodedPicture.h"
#include "platform/Files.h"
#include "platform/Platform.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <QPushButton>

namespace velor {

namespace {

/// A file that is more than so many times as wide and high as its picture is told of.
constexpr int MuchLarger = 2;

/// A path beside `path` whose name has `tail` before its ending.
QString Beside(const QString &path, const QString &tail) {
  const qsizetype dot = path.lastIndexOf(u'.');
  return path.left(dot) + tail + path.sliced(dot);
}

/// Creates a file beside `path` with that tail in its name, numbered where that is taken.
QString CreateBeside(Files &files, const QString &path, const QString &tail,
                     const QByteArray &content) {
  for (int number = 1;; ++number) {
    const QString numbered = number == 1 ? tail : tail + u'-' + QString::number(number);
    const QString name = Beside(path, numbered);
    if (files.CreateNew(name, content)) return name;
  }
}

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
      [this] { Rewrite([](const QByteArray &file) { return Turned(file, Turn::Left); }); });
  add("cmdTurnRight", Words::tr("Turn Right"), Words::tr("Turn the file's picture right"),
      [this] { Rewrite([](const QByteArray &file) { return Turned(file, Turn::Right); }); });
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
  if (picture.address == picture_.address && picture.shown == picture_.shown) return;
  picture_ = picture;
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

void PictureFitting::Rewrite(const std::function<QByteArray(const QByteArray &)> &change) {
  Files &files = context_.platform.files;
  try {
    const QByteArray content = files.ReadAll(file_);
    const QByteArray changed = change(content);
    if (!before_) {
      before_ = {.path = file_,
                 .content = content,
                 .original = CreateBeside(files, file_, QStringLiteral("-original"), content),
                 .address = {}};
    }
    files.ReplaceAll(file_, changed);
    ReportChange();
  } catch (const RuntimeError &error) {
    ShowText(Words::tr("The file stays as it is: %1").arg(error.Description()));
  }
}

void PictureFitting::Fit() {
  Rewrite([size = picture_.shown](const QByteArray &file) { return Resized(file, size); });
}

void PictureFitting::FitTwice() {
  const QSize twice = picture_.shown * MuchLarger;
  if (!IsHtml5()) {
    Rewrite([twice](const QByteArray &file) { return Resized(file, twice); });
    return;
  }
  Rewrite([&](const QByteArray &file) {
    const QString dense =
        CreateBeside(context_.platform.files, file_, QStringLiteral("-2x"), Resized(file, twice));
    const QString address = PictureAddress(context_.pages.Record(page_.Number()).Path, dense);
    page_.Pictures().Own({.path = dense, .address = address, .isNew = true});
    page_.DHTML1().Document().ChangePicture(
        picture_.address, {{QStringLiteral("srcset"), address + QStringLiteral(" 2x")}});
    return Resized(file, picture_.shown);
  });
  if (before_ && IsHtml5()) before_->address = picture_.address;
}

void PictureFitting::ReportChange() {
  ShowText(
      Words::tr("%1 is changed. It is kept as it was as %2.")
          .arg(modGeneral::FileNameOfPath(file_), modGeneral::FileNameOfPath(before_->original)));
}

void PictureFitting::UndoChange() {
  Files &files = context_.platform.files;
  try {
    files.ReplaceAll(before_->path, before_->content);
    files.Delete(before_->original);
    if (!before_->address.isEmpty())
      page_.DHTML1().Document().ChangePicture(before_->address,
                                              {{QStringLiteral("srcset"), QString()}});
    before_.reset();
    ShowText(Words::tr("%1 is as it was.").arg(modGeneral::FileNameOfPath(file_)));
  } catch (const RuntimeError &error) {
    ShowText(Words::tr("The file stays as it is: %1").arg(error.Description()));
  }
}

void PictureFitting::ShowText(const QString &text) {
  undo_->setVisible(before_.has_value());
  Tell(text);
}

}  // namespace velor
