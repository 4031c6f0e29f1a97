// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/frmInsertElement.h"

#include "chrome/StylingSweeps.h"
#include "insert/FormParts.h"
#include "insert/LinkPaths.h"
#include "insert/PictureLoading.h"
#include "insert/TextBox.h"
#include "platform/Dialogs.h"
#include "platform/Paths.h"
#include "platform/Platform.h"
#include "platform/RuntimeError.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

namespace velor {
namespace {

const QString ImageFiles = QStringLiteral(
    "All Image Files (*.jpg, *.gif, *.bmp, *.png, *.tif, *.wmf, *.tga)|"
    "*.jpg;*.jpeg;*.gif;*.bmp;*.png;*.tif;*.tiff;*.wmf;*.tga;*.ras;*.pcd;*.pcx;*.eps");
const QString AllFiles = QStringLiteral("All Files *.*|*.*");
const QString ExampleAddress = QStringLiteral("someone@example.com");

/// The element modes in the order of their pages.
const QStringList ElementModes = {QStringLiteral("image"), QStringLiteral("hyperlink"),
                                  QStringLiteral("target"), QStringLiteral("video")};

}  // namespace

frmInsertElement::frmInsertElement(Runtime &runtime, Dialogs &dialogs, Components &components,
                                   StylingSweeps *sweeps, QWidget *parent)
    : QDialog(parent), runtime_(runtime), dialogs_(dialogs), components_(components) {
  Build();
  Connect();
  if (sweeps) {
    sweeps->ThinEdgeByType(*this, QStringLiteral("commandbutton"));
    sweeps->ThinEdgeByType(*this, QStringLiteral("textbox"));
    sweeps->ThinEdgeByType(*this, QStringLiteral("listbox"));
    sweeps->FlatComboSweep(*this);
  }
  pages_->setTabEnabled(2, false);
  pages_->setTabEnabled(3, false);
}

frmInsertElement::~frmInsertElement() = default;

void frmInsertElement::Connect() {
  const auto onClick = [this](const char16_t *name, auto action) {
    connect(findChild<QPushButton *>(QString::fromUtf16(name)), &QPushButton::clicked, this,
            action);
  };
  onClick(u"cmdBrowseIMG", &frmInsertElement::BrowseForImage);
  onClick(u"cmdABrowse", &frmInsertElement::BrowseForLinkTarget);
  onClick(u"cmdAEmail", &frmInsertElement::AskForMailAddress);
  onClick(u"cmdOK", &frmInsertElement::InsertAndClose);
  onClick(u"cmdCancel", &QDialog::reject);

  for (const AppearanceBoxes &look : {imageLook_, videoLook_}) {
    connect(look.sizeFromBoxes, &QCheckBox::clicked, look.height, &QWidget::setEnabled);
    connect(look.sizeFromBoxes, &QCheckBox::clicked, look.width, &QWidget::setEnabled);
  }
  connect(videoLoopsForever_, &QCheckBox::clicked, videoLoops_, &QWidget::setDisabled);
}

void frmInsertElement::PrepareInsert(const QString &elementMode, HtmlDocument &document,
                                     const QString &savedPath) {
  SavedMode = savedPath.isEmpty() ? QStringLiteral("false") : QStringLiteral("true");
  if (!savedPath.isEmpty()) FilePath = savedPath;
  IsCreator = true;
  TheDOM = &document;
  InsertMode = QStringLiteral("true");
  ElementMode = elementMode;

  const int page = static_cast<int>(ElementModes.indexOf(elementMode));
  pages_->setTabEnabled(page, true);
  pages_->setCurrentIndex(page);
  for (int other = 0; other < pages_->count(); ++other) {
    if (other != page) pages_->setTabEnabled(other, false);
  }
}

TextBox *frmInsertElement::FirstBox() const {
  return firstBoxes_.at(static_cast<std::size_t>(pages_->currentIndex()));
}

void frmInsertElement::showEvent(QShowEvent *event) {
  QDialog::showEvent(event);
  refusal_->hide();
  if (FirstBox()->isVisible()) {
    FirstBox()->setFocus();
  } else {
    // The page was left at its other half.
    (FirstBox() == imageSource_ ? imageLook_ : videoLook_).alignment->setFocus();
  }
}

QString frmInsertElement::GenerateCode(std::int32_t &InsertWhat) {
  switch (InsertWhat) {
    case 1:
      return ImageHtml(Values());
    case 2:
      inHyperlink = CreateScratchElement(QStringLiteral("A"));
      break;
    case 3:
      inTarget = CreateScratchElement(QStringLiteral("A"));
      break;
    case 4:
      inVideo = CreateScratchElement(QStringLiteral("IMG"));
      break;
    default:
      break;
  }
  return {};
}

ImageValues frmInsertElement::Values() const {
  return {
      .source = imageSource_->text(),
      .alternativeText = alternativeText_->text(),
      .lowResolutionSource = lowResolutionSource_->text(),
      .alignment = imageLook_.alignment->currentText(),
      .border = imageLook_.border->text(),
      .horizontalSpacing = imageLook_.horizontalSpacing->text(),
      .verticalSpacing = imageLook_.verticalSpacing->text(),
      .sizeSource = imageLook_.sizeFromBoxes->isChecked() ? SizeSource::Boxes : SizeSource::Picture,
      .height = imageLook_.height->text(),
      .width = imageLook_.width->text(),
      .picture = picture_};
}

void frmInsertElement::InsertAndClose() {
  if (OnEmptyAddress == EmptyAddress::Refused && FirstBox()->text().isEmpty()) {
    if (auto *halves = pages_->currentWidget()->findChild<QTabWidget *>())
      halves->setCurrentIndex(0);
    const QString label = FirstBox()->accessibleName().remove(u':').trimmed();
    return FormParts::Refuse(*refusal_, QStringLiteral("%1 is empty.").arg(label), *FirstBox());
  }
  if (InsertMode == u"true" && ElementMode == u"image") {
    std::int32_t image = 1;
    const QString failure =
        InsertHtmlAtSelection(runtime_, IsCreator, GenerateCode(image), TheDOM, TheCode);
    if (!failure.isEmpty()) Q_EMIT Reported(failure);
  }
  accept();
}

QString frmInsertElement::Browse(const QString &filter) {
  if (!fileDialog_) fileDialog_ = components_.CreateFileDialog();
  return BrowseForFile(*fileDialog_, filter);
}

void frmInsertElement::BrowseForImage() {
  const QString file = Browse(ImageFiles);
  try {
    ShowPicture(file);
    FillWithLink(imageSource_, file);
  } catch (const RuntimeError &error) {
    ShowThatItCannotBeShown(file);
    Q_EMIT Reported(error.Description());
  }
}

void frmInsertElement::ShowThatItCannotBeShown(const QString &file) {
  // The size of the picture that the box Image Source still names stays.
  previewCaption_->clear();
  const QString name = QFileInfo(ToNative(file)).fileName();
  preview_->setText(QStringLiteral("%1 cannot be shown as a picture.").arg(name));
}

void frmInsertElement::BrowseForLinkTarget() {
  const QString file = Browse(AllFiles);
  try {
    FillWithLink(linkTarget_, file);
  } catch (const RuntimeError &error) {
    Q_EMIT Reported(error.Description());
  }
}

void frmInsertElement::FillWithLink(TextBox *box, const QString &file) {
  if (SavedMode == u"true") {
    box->setText(MakeRelativeLink(FilePath, file));
  } else if (SavedMode == u"false") {
    box->setText(MakeAbsoluteLink(file));
  }
}

void frmInsertElement::ShowPicture(const QString &file) {
  const QSize bounds = preview_->contentsRect().size();
  const LoadedPicture picture = LoadPicture(file, bounds * devicePixelRatioF());
  picture_ = PictureSize::OfPixels(picture.pixels.height(), picture.pixels.width());
  if (picture.pixels.isEmpty()) {
    preview_->clear();
    previewCaption_->clear();
    return;
  }
  if (picture.preview.isNull()) {
    preview_->setText(QStringLiteral("Too large for a preview"));
  } else {
    QPixmap pixmap = QPixmap::fromImage(picture.preview);
    pixmap.setDevicePixelRatio(PreviewRatio(pixmap.size(), bounds, devicePixelRatioF()));
    preview_->setPixmap(pixmap);
  }
  previewCaption_->setText(
      QStringLiteral("%1 × %2 pixels").arg(picture.pixels.width()).arg(picture.pixels.height()));
}

void frmInsertElement::AskForMailAddress() {
  const QString answer =
      dialogs_.AskText(QStringLiteral("Please enter the E-mail Address."),
                       QStringLiteral("Link to a E-mail Address"), ExampleAddress);
  if (!answer.isEmpty()) linkTarget_->setText(QStringLiteral("mailto:") + answer);
}

}  // namespace velor
