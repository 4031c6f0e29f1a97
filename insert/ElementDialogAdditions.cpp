// SPDX-License-Identifier: GPL-3.0-or-later
// frmInsertElement: what it does beyond the published behaviour.
#include "insert/FileFilters.h"
#include "insert/FormParts.h"
#include "insert/LinkPaths.h"
#include "insert/TextBox.h"
#include "insert/frmInsertElement.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTabWidget>

#include <algorithm>

namespace velor {
namespace {

/// After the last key in the source box, in milliseconds.
constexpr int PreviewPause = 400;

const QString Address = QStringLiteral("href");
const QString Frame = QStringLiteral("target");
const QString Title = QStringLiteral("title");
const QString NoFrame = QStringLiteral("None");
const QString Mail = QStringLiteral("mailto:");
constexpr auto VideoFiles = Words::Mark(
    "Video Files (*.mp4, *.webm, *.ogv)|*.mp4;*.m4v;*.webm;*.ogv;*.mov|All Files *.*|*.*");

/// What Browse puts into an empty box when it is cancelled; it leads nowhere.
const QString EmptyFileAddress = QStringLiteral("file:///");

/// Without the name of a place in it.
QString PageOf(const QString &address) {
  return address.section(u'#', 0, 0);
}

void Fill(QListWidget &list, const QStringList &names) {
  const QSignalBlocker quiet(list);
  list.clear();
  list.addItems(names);
  list.setCurrentRow(-1);
}

}  // namespace

void frmInsertElement::ConnectAdditions() {
  typedPicture_.setSingleShot(true);
  typedPicture_.setInterval(PreviewPause);
  connect(&typedPicture_, &QTimer::timeout, this, &frmInsertElement::ShowTypedPicture);
  connect(imageSource_, &QLineEdit::textEdited, this, [this] { typedPicture_.start(); });
  connect(this, &QDialog::finished, &typedPicture_, &QTimer::stop);

  const auto onClick = [this](const char16_t *name, auto action) {
    connect(findChild<QPushButton *>(QString::fromUtf16(name)), &QPushButton::clicked, this,
            action);
  };
  onClick(u"cmdBrowseLowRes",
          [this] { BrowseInto(lowResolutionSource_, Words::tr(FileFilters::Pictures)); });
  onClick(u"Command1", [this] { BrowseInto(video_.source, Words::tr(VideoFiles)); });
  onClick(u"cmdBrowsePoster",
          [this] { BrowseInto(video_.poster, Words::tr(FileFilters::Pictures)); });
  onClick(u"cmdRefreshA", &frmInsertElement::ShowBookmarks);
  onClick(u"cmdRefreshOther", &frmInsertElement::ShowBookmarks);
  onClick(u"cmdABrowse", &frmInsertElement::ShowBookmarks);
  connect(link_.address, &QLineEdit::editingFinished, this, &frmInsertElement::ShowBookmarks);
  // Not the current row, which the keyboard's coming sets already.
  connect(link_.bookmarks, &QListWidget::itemSelectionChanged, this,
          &frmInsertElement::TakeBookmark);

  // Both Browse buttons of the image page have the letter B, and Alt+B would press neither.
  auto *lowResolution = findChild<QPushButton *>(QStringLiteral("cmdBrowseLowRes"));
  lowResolution->setShortcut(Qt::ALT | Qt::Key_W);
  lowResolution->setToolTip(Words::tr("Browse for a picture of low resolution (Alt+W)"));

  // These need a script, which pages made here have not.
  for (const char *name : {"txtVidLoop", "txtVidLoopDelay", "chkVidMouseOver", "chkMouseOver"}) {
    auto *control = findChild<QWidget *>(QLatin1String(name));
    control->setEnabled(false);
    control->setToolTip(tr("A page cannot say this without a script"));
  }
}

void frmInsertElement::ResetFields() {
  typedPicture_.stop();
  for (TextBox *box : {imageSource_, lowResolutionSource_, alternativeText_, link_.address,
                       link_.title, bookmarkName_, video_.source, video_.poster})
    box->clear();
  for (QTabWidget *halves : pages_->findChildren<QTabWidget *>()) halves->setCurrentIndex(0);
  const ImageValues plain = ValuesOfPicture({QStringLiteral("IMG"), {}});
  for (const AppearanceBoxes &look : {imageLook_, videoLook_}) FillLook(look, plain);
  ShowPicture({});
  link_.frame->setCurrentIndex(0);
  video_.controls->setChecked(true);
  for (QCheckBox *box : {video_.forever, video_.onOpen}) box->setChecked(false);
  for (QListWidget *list : {link_.bookmarks, otherBookmarks_}) list->clear();
  page_ = {};
}

void frmInsertElement::FillLook(const AppearanceBoxes &look, const ImageValues &values) {
  look.alignment->setCurrentIndex(
      std::max(0, look.alignment->findData(values.alignment, Qt::UserRole, Qt::MatchFixedString)));
  look.border->setText(values.border);
  look.horizontalSpacing->setText(values.horizontalSpacing);
  look.verticalSpacing->setText(values.verticalSpacing);
  const auto setLength = [](TextBox *box, const QString &length) {
    // A length in percent is not repaired to a number of pixels.
    const QString text = length.isEmpty() ? QStringLiteral("32") : length;
    box->setText(text);
    box->RepairNumberTo(text);
  };
  setLength(look.height, values.height);
  setLength(look.width, values.width);
  const bool hasSize = !values.height.isEmpty() || !values.width.isEmpty();
  look.sizeFromBoxes->setChecked(hasSize);
  for (TextBox *box : {look.height, look.width}) box->setEnabled(hasSize);
}

void frmInsertElement::FillFrom(const EditedPage &page) {
  page_ = page;
  link_.address->setText(page.link.Attribute(Address));
  link_.title->setText(page.link.Attribute(Title));
  const QString frame = page.link.Attribute(Frame);
  if (!frame.isEmpty() && link_.frame->findData(frame) < 0) link_.frame->addItem(frame, frame);
  link_.frame->setCurrentIndex(std::max(0, link_.frame->findData(frame)));
  if (!page.picture.IsNull()) FillPicture();
  if (ElementMode == u"hyperlink" || ElementMode == u"target") ShowBookmarks();
}

void frmInsertElement::FillPicture() {
  ImageValues values = ValuesOfPicture(page_.picture);
  if (values.alignment == u"Default" && page_.dialect == Dialect::Attributes && page_.isCentered)
    values.alignment = QStringLiteral("Center");
  imageSource_->setText(values.source);
  alternativeText_->setText(values.alternativeText);
  lowResolutionSource_->setText(values.lowResolutionSource);
  FillLook(imageLook_, values);
  ShowTypedPicture();
  const auto isOwn = [](const QString &length, int own) { return length == QString::number(own); };
  if (isOwn(values.height, pixels_.height()) && isOwn(values.width, pixels_.width()))
    imageLook_.sizeFromBoxes->click();
  shown_ = TrueValues();
}

ImageValues frmInsertElement::TrueValues() const {
  ImageValues values = Values();
  if (values.sizeSource == SizeSource::Boxes) return values;
  const auto length = [](int pixels) { return pixels > 0 ? QString::number(pixels) : QString(); };
  values.height = length(pixels_.height());
  values.width = length(pixels_.width());
  return values;
}

VideoValues frmInsertElement::Video() const {
  const bool hasSize = videoLook_.sizeFromBoxes->isChecked();
  return {.source = video_.source->text(),
          .poster = video_.poster->text(),
          .hasControls = video_.controls->isChecked(),
          .isLooped = video_.forever->isChecked(),
          .startsItself = video_.onOpen->isChecked(),
          .alignment = videoLook_.alignment->currentData().toString(),
          .border = videoLook_.border->text(),
          .horizontalSpacing = videoLook_.horizontalSpacing->text(),
          .verticalSpacing = videoLook_.verticalSpacing->text(),
          .height = hasSize ? videoLook_.height->text() : QString(),
          .width = hasSize ? videoLook_.width->text() : QString()};
}

void frmInsertElement::BrowseInto(TextBox *box, const QString &filter) {
  if (const QString file = Browse(filter); !file.isEmpty()) FillWithLink(box, file);
}

void frmInsertElement::ShowTypedPicture() {
  typedPicture_.stop();
  const QString file =
      FileOfLink(SavedMode == u"true" ? FilePath : QString(), imageSource_->text());
  try {
    ShowPicture(file);
  } catch (const RuntimeError &) {
    ShowPicture({});
    ShowThatItCannotBeShown(file);
  }
}

void frmInsertElement::ShowBookmarks() {
  if (!page_.bookmarks) return;
  Fill(*otherBookmarks_, page_.bookmarks({}));
  Fill(*link_.bookmarks, page_.bookmarks(PageOf(link_.address->text())));
}

void frmInsertElement::TakeBookmark() {
  const QList<QListWidgetItem *> chosen = link_.bookmarks->selectedItems();
  if (chosen.isEmpty()) return;
  link_.address->setText(PageOf(link_.address->text()) + u'#' + chosen.first()->text());
}

QString frmInsertElement::Refusal() const {
  const QString text = FirstBox()->text().trimmed();
  const bool takesLinkOff = ElementMode == u"hyperlink" && !page_.link.IsNull() && text.isEmpty();
  if (!takesLinkOff && (text.isEmpty() || text == EmptyFileAddress)) {
    const QString label = FirstBox()->accessibleName().remove(u':').trimmed();
    return tr("%1 is empty.").arg(label);
  }
  if (ElementMode == u"target") {
    if (text.contains(u' ') || text.contains(u'\t')) return tr("A bookmark's name has no blanks.");
    if (page_.bookmarks && page_.bookmarks({}).contains(text))
      return tr("The page has a bookmark of this name already.");
  }
  if (ElementMode == u"video" && page_.dialect != Dialect::Styles)
    return tr("Only pages that begin with <!DOCTYPE html> can hold a video.");
  return {};
}

void frmInsertElement::ChangePage() {
  if (const QString why = Refusal(); !why.isEmpty()) {
    if (auto *halves = pages_->currentWidget()->findChild<QTabWidget *>())
      halves->setCurrentIndex(0);
    return FormParts::Refuse(*refusal_, why, *FirstBox());
  }
  QString html;
  if (ElementMode == u"image") {
    if (typedPicture_.isActive()) ShowTypedPicture();
    ImageValues values = TrueValues();
    const bool isOther = page_.picture.IsNull() || values.source != shown_.source;
    if (isOther && page_.pictureAddress) {
      const QString own = page_.pictureAddress(values.source);
      if (!own.isEmpty()) values.source = own;
    }
    if (page_.picture.IsNull()) {
      html = PictureHtml(values, page_.dialect);
    } else {
      ChangePicture(values);
    }
  } else if (ElementMode == u"video") {
    html = VideoHtml(Video());
  } else if (ElementMode == u"hyperlink") {
    SetLink();
  } else if (ElementMode == u"target") {
    TheDOM->SetBookmark(bookmarkName_->text().trimmed());
  }
  if (!html.isEmpty()) {
    const QString failure = InsertHtmlAtSelection(runtime_, IsCreator, html, TheDOM, TheCode);
    if (!failure.isEmpty()) Q_EMIT Reported(failure);
  }
  accept();
}

void frmInsertElement::ChangePicture(const ImageValues &values) {
  using Side = HtmlDocument::ParagraphSide;
  const HtmlAttributes changes = PictureChanges(page_.picture, shown_, values, page_.dialect);
  Side side = Side::AsItIs;
  if (page_.dialect == Dialect::Attributes && values.alignment != shown_.alignment) {
    const QString center = QStringLiteral("Center");
    if (values.alignment == center) side = Side::Center;
    if (shown_.alignment == center) side = Side::Left;
  }
  if (!changes.empty() || side != Side::AsItIs) TheDOM->ChangeObject(changes, side);
}

void frmInsertElement::SetLink() {
  const QString address = link_.address->text().trimmed();
  const QString frame = link_.frame->currentData().toString();
  const HtmlAttributes attributes = {{Address, address},
                                     {Frame, frame == NoFrame ? QString() : frame},
                                     {Title, link_.title->text()}};
  const QString text = address.startsWith(Mail) ? address.sliced(Mail.size()) : address;
  TheDOM->SetLink(attributes, text);
}

}  // namespace velor
