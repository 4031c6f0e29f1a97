// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/frmInsertElement.h"

#include "chrome/StylingSweeps.h"
#include "insert/FileFilters.h"
#include "insert/FormParts.h"
#include "insert/LinkPaths.h"
#include "insert/PictureLoading.h"
#include "insert/TextBox.h"
#include "platform/Dialogs.h"
#include "platform/Paths.h"
#include "platform/Platform.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

namespace velor {
namespace {

constexpr auto ImageFiles = Words::Mark(
    "All Image Files (*.jpg, *.gif, *.bmp, *.png, *.tif, *.wmf, *.tga)|"
    "*.jpg;*.jpeg;*.gif;*.bmp;*.png;*.tif;*.tiff;*.wmf;*.tga;*.ras;*.pcd;*.pcx;*.eps");
const QString ExampleAddress = QStringLiteral("someone@example.com");

/// The element modes in the order of their pages.
const QStringList ElementModes = {QStringLiteral("image"), QStringLiteral("hyperlink"),
                                  QStringLiteral("target"), QStringLiteral("video")};

}  // namespace

frmInsertElement::frmInsertElement(Runtime &runtime, Dialogs &dialogs, Components &components,
                                   StylingSweeps *sweeps, QWidget *parent, DialogScope scope)
    : QDialog(parent),
      runtime_(runtime),
      dialogs_(dialogs),
      components_(components),
      scope_(scope) {
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

frmInsertElement::~frmInsertElement() {
  // It loses the keyboard while it is deleted, which ends its editing.
  link_.address->disconnect(this);
}

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
  if (scope_ == DialogScope::Extended) return ConnectAdditions();
  connect(video_.forever, &QCheckBox::clicked, video_.loops, &QWidget::setDisabled);
}

void frmInsertElement::PrepareInsert(const QString &elementMode, HtmlDocument &document,
                                     const QString &savedPath) {
  SavedMode = savedPath.isEmpty() ? QStringLiteral("false") : QStringLiteral("true");
  if (!savedPath.isEmpty()) FilePath = savedPath;
  IsCreator = true;
  TheDOM = &document;
  InsertMode = QStringLiteral("true");
  ElementMode = elementMode;
  FullAddresses.clear();
  if (scope_ == DialogScope::Extended) ResetFields();

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
      .alignment = imageLook_.alignment->currentData().toString(),
      .border = imageLook_.border->text(),
      .horizontalSpacing = imageLook_.horizontalSpacing->text(),
      .verticalSpacing = imageLook_.verticalSpacing->text(),
      .sizeSource = imageLook_.sizeFromBoxes->isChecked() ? SizeSource::Boxes : SizeSource::Picture,
      .height = imageLook_.height->text(),
      .width = imageLook_.width->text(),
      .picture = picture_};
}

void frmInsertElement::InsertAndClose() {
  if (scope_ == DialogScope::Extended) return ChangePage();
  if (InsertMode == u"true" && ElementMode == u"image") {
    std::int32_t image = 1;
    const QString failure =
        InsertHtmlAtSelection(runtime_, IsCreator, GenerateCode(image), TheDOM, TheCode);
    if (!failure.isEmpty()) Q_EMIT Reported(failure);
  }
  accept();
}

QString frmInsertElement::Browse(const QString &filter) {
  if (!fileDialog_) {
    fileDialog_ = components_.CreateFileDialog();
    // Where the page lies; later on where the person was last.
    if (scope_ == DialogScope::Extended && SavedMode == u"true") fileDialog_->FileName = FilePath;
  }
  return BrowseForFile(*fileDialog_, filter);
}

void frmInsertElement::BrowseForImage() {
  const QString file = Browse(Words::tr(ImageFiles));
  if (KeepsAddress(imageSource_, file)) return;
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
  preview_->setText(Words::tr("%1 cannot be shown as a picture.").arg(name));
}

void frmInsertElement::BrowseForLinkTarget() {
  const QString file = Browse(Words::tr(FileFilters::All));
  if (KeepsAddress(link_.address, file)) return;
  try {
    FillWithLink(link_.address, file);
  } catch (const RuntimeError &error) {
    Q_EMIT Reported(error.Description());
  }
}

bool frmInsertElement::KeepsAddress(const TextBox *box, const QString &file) const {
  return scope_ == DialogScope::Extended && file.isEmpty() && !box->text().isEmpty();
}

void frmInsertElement::FillWithLink(TextBox *box, const QString &file) {
  if (scope_ == DialogScope::Extended) {
    const bool hasPath = SavedMode == u"true";
    box->setText(LinkToFile(hasPath ? FilePath : QString(), file));
    if (!hasPath && !file.isEmpty()) FullAddresses.push_back({box->text(), file});
  } else if (SavedMode == u"true") {
    box->setText(MakeRelativeLink(FilePath, file));
  } else if (SavedMode == u"false") {
    box->setText(MakeAbsoluteLink(file));
  }
}

void frmInsertElement::ShowPicture(const QString &file) {
  const QSize bounds = preview_->contentsRect().size();
  const LoadedPicture picture = LoadPicture(file, bounds * devicePixelRatioF());
  pixels_ = picture.pixels;
  // The true size is offered first.
  if (scope_ == DialogScope::Extended && !imageLook_.sizeFromBoxes->isChecked() &&
      !pixels_.isEmpty()) {
    imageLook_.height->setText(QString::number(pixels_.height()));
    imageLook_.width->setText(QString::number(pixels_.width()));
  }
  picture_ = PictureSize::OfPixels(picture.pixels.height(), picture.pixels.width());
  if (picture.pixels.isEmpty()) {
    preview_->clear();
    previewCaption_->clear();
    return;
  }
  if (picture.preview.isNull()) {
    preview_->setText(Words::tr("Too large for a preview"));
  } else {
    QPixmap pixmap = QPixmap::fromImage(picture.preview);
    pixmap.setDevicePixelRatio(PreviewRatio(pixmap.size(), bounds, devicePixelRatioF()));
    preview_->setPixmap(pixmap);
  }
  previewCaption_->setText(
      QStringLiteral("%1 × %2 pixels").arg(picture.pixels.width()).arg(picture.pixels.height()));
}

void frmInsertElement::AskForMailAddress() {
  const QString answer = dialogs_.AskText(Words::tr("Please enter the E-mail Address."),
                                          Words::tr("Link to a E-mail Address"), ExampleAddress);
  if (!answer.isEmpty()) link_.address->setText(QStringLiteral("mailto:") + answer);
}

}  // namespace velor
