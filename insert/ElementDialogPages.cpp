// SPDX-License-Identifier: GPL-3.0-or-later
// frmInsertElement: its four pages, their controls and labels.
#include "insert/FormParts.h"
#include "insert/TextBox.h"
#include "insert/frmInsertElement.h"
#include "platform/Words.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace velor {
namespace {

using namespace FormParts;

constexpr QSize PreviewBounds(320, 180);
constexpr int ComfortableWidth = 600;

/// "Botton" is the published spelling and is written to pages like that.
constexpr const char *Alignments[] = {
    Words::Mark("Default"),   Words::Mark("Left"),     Words::Mark("Right"),
    Words::Mark("Top"),       Words::Mark("Texttop"),  Words::Mark("Middle"),
    Words::Mark("Absmiddle"), Words::Mark("Baseline"), Words::Mark("Botton"),
    Words::Mark("Absbottom"), Words::Mark("Center")};

constexpr const char *TargetFrames[] = {Words::Mark("None"), "_self", "_top", "_blank", "_parent"};

/// A titled list with a button that belongs to it.
QListWidget *AddBookmarkList(QFormLayout *form, const QString &name, const QString &label,
                             const QString &refreshName) {
  auto *list = new QListWidget;
  Name(*list, name, label);
  auto *title = new QLabel(label);
  title->setBuddy(list);
  form->addRow(title);
  form->addRow(list);
  AddButton(form, MakeButton(refreshName, Words::tr("&Refresh")));
  return list;
}

/// A page with two tabs, "General" and "Appearance", which the callers fill.
struct HalvedPage {
  QWidget *whole = new QWidget;
  QVBoxLayout *general;
  QVBoxLayout *appearance;

  HalvedPage(const QString &name, const QString &label) {
    auto *tabs = new QTabWidget;
    Name(*tabs, name, label);
    MakePage(whole)->addWidget(tabs);
    auto *generalPage = new QWidget;
    auto *appearancePage = new QWidget;
    general = MakePage(generalPage);
    appearance = MakePage(appearancePage);
    tabs->addTab(generalPage, Words::tr("General"));
    tabs->addTab(appearancePage, Words::tr("Appearance"));
  }
};

const QString Zero = QStringLiteral("0");

/// Fills the "Appearance" half of a page. `kind` is the part of the boxes' names that tells the
/// pages apart.
AppearanceBoxes AddAppearance(QVBoxLayout *half, const QString &kind, const QString &border) {
  const QString pixels = QStringLiteral("32");
  const auto name = [&kind](const char *before, const char *behind) {
    return QLatin1String(before) + kind + QLatin1String(behind);
  };
  AppearanceBoxes boxes;
  QFormLayout *layout = AddFrame(half, Words::tr("Layout"));
  boxes.alignment = AddComboBox(layout, name("cob", "Align"), Words::tr("Alignment:"), Alignments);
  boxes.border =
      AddNumberBox(layout, name("txt", "Border"), Words::tr("Border thickness:"), border);
  boxes.horizontalSpacing =
      AddNumberBox(layout, name("txt", "HSpac"), Words::tr("Horizontal Spacing:"), Zero);
  boxes.verticalSpacing =
      AddNumberBox(layout, name("txt", "Vspac"), Words::tr("Vertical Spacing:"), Zero);
  QFormLayout *size = AddFrame(half, Words::tr("Size"));
  boxes.sizeFromBoxes = AddCheckBox(size, name("chk", "Size"), Words::tr("Use &Specific Size"));
  boxes.height = AddNumberBox(size, name("txt", "Height"), Words::tr("Height:"), pixels);
  boxes.width = AddNumberBox(size, name("txt", "Width"), Words::tr("Width:"), pixels);
  half->addStretch();
  for (TextBox *box : {boxes.height, boxes.width}) box->RepairNumberTo(pixels);
  return boxes;
}

}  // namespace

void frmInsertElement::Build() {
  setObjectName(QStringLiteral("frmInsertElement"));
  setWindowTitle(Words::tr("Element Information..."));
  setModal(true);

  pages_ = new QTabWidget;
  Name(*pages_, QStringLiteral("SSTab1"), Words::tr("Element"));
  QVBoxLayout *window = MakePage(this);
  window->addWidget(pages_, 1);
  pages_->addTab(BuildImagePage(), Words::tr("Image"));
  pages_->addTab(BuildHyperlinkPage(), Words::tr("Hyperlink"));
  pages_->addTab(BuildTargetPage(), Words::tr("Target"));
  pages_->addTab(BuildVideoPage(), Words::tr("Video"));
  for (int i = 0; i < pages_->count(); ++i) AlignLabels(pages_->widget(i));
  setMinimumWidth(ComfortableWidth);
  refusal_ = AddRefusal(window, {firstBoxes_[0], firstBoxes_[1], firstBoxes_[2], firstBoxes_[3]});
  AddButtonRow(window, {MakeButton(QStringLiteral("cmdOK"), Words::tr("OK")),
                        MakeButton(QStringLiteral("cmdCancel"), Words::tr("Cancel"))});
}

QWidget *frmInsertElement::BuildImagePage() {
  const HalvedPage page(QStringLiteral("SSTab2"), Words::tr("Image"));

  imageSource_ =
      AddTextBox(AddForm(page.general), QStringLiteral("txtImgSource"), Words::tr("Image Source:"),
                 MakeButton(QStringLiteral("cmdBrowseIMG"), Words::tr("&Browse...")));
  QFormLayout *alternative = AddFrame(page.general, Words::tr("Alternative"));
  lowResolutionSource_ =
      AddTextBox(alternative, QStringLiteral("txtLowRes"), Words::tr("Low Resolution:"),
                 MakeButton(QStringLiteral("cmdBrowseLowRes"), Words::tr("&Browse...")));
  alternativeText_ =
      AddTextBox(alternative, QStringLiteral("txtAlt"), Words::tr("Alternative Text:"));
  preview_ = new QLabel;
  Name(*preview_, QStringLiteral("picPreview"), Words::tr("Preview"));
  preview_->setFrameShape(QFrame::StyledPanel);
  preview_->setAlignment(Qt::AlignCenter);
  preview_->setTextFormat(Qt::PlainText);
  preview_->setWordWrap(true);
  preview_->setMinimumSize(PreviewBounds);
  // The frame is resized with the dialog and does not grow with the picture.
  preview_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  page.general->addWidget(preview_, 1);
  previewCaption_ = new QLabel;
  previewCaption_->setObjectName(QStringLiteral("lblPreviewSize"));
  previewCaption_->setAlignment(Qt::AlignCenter);
  page.general->addWidget(previewCaption_);

  imageLook_ = AddAppearance(page.appearance, QStringLiteral("IMG"), Zero);
  for (TextBox *box : {imageLook_.border, imageLook_.horizontalSpacing, imageLook_.verticalSpacing})
    box->RepairNumberTo(Zero);
  for (TextBox *box : {imageLook_.height, imageLook_.width}) box->setEnabled(false);
  firstBoxes_[0] = imageSource_;
  return page.whole;
}

QWidget *frmInsertElement::BuildHyperlinkPage() {
  auto *page = new QWidget;
  QVBoxLayout *rows = MakePage(page);
  QPushButton *browse = MakeButton(QStringLiteral("cmdABrowse"), Words::tr("&Browse..."));
  browse->setToolTip(Words::tr("Browse from your computer and Link to a file"));
  QPushButton *mail = MakeButton(QStringLiteral("cmdAEmail"), Words::tr("&E-mail..."));
  mail->setToolTip(Words::tr("Link to a E-mail Address"));
  for (QPushButton *button : {browse, mail}) button->setAccessibleName(button->toolTip());

  QFormLayout *link = AddForm(rows);
  link_.address =
      AddTextBox(link, QStringLiteral("txtHref"), Words::tr("Anchor Element Href:"), browse);
  link_.frame =
      AddComboBox(link, QStringLiteral("cobATarget"), Words::tr("Target Frame:"), TargetFrames);
  if (scope_ == DialogScope::Extended)
    link_.title = AddTextBox(link, QStringLiteral("txtATitle"), Words::tr("&Title:"));
  QFormLayout *special = AddFrame(rows, Words::tr("Special Links:"));
  AddButton(special, mail);
  link_.bookmarks =
      AddBookmarkList(special, QStringLiteral("lstABookMark"),
                      Words::tr("Link to a Bookmark (Target):"), QStringLiteral("cmdRefreshA"));
  firstBoxes_[1] = link_.address;
  return page;
}

QWidget *frmInsertElement::BuildTargetPage() {
  auto *page = new QWidget;
  QFormLayout *form = AddForm(MakePage(page));
  bookmarkName_ = AddTextBox(form, QStringLiteral("txtBookmarkName"), Words::tr("Bookmark Name: "));
  otherBookmarks_ = AddBookmarkList(form, QStringLiteral("lstOtherBookmark"),
                                    Words::tr("Other bookmarks in this page:"),
                                    QStringLiteral("cmdRefreshOther"));
  firstBoxes_[2] = bookmarkName_;
  return page;
}

QWidget *frmInsertElement::BuildVideoPage() {
  const HalvedPage page(QStringLiteral("SSTab3"), Words::tr("Video"));

  QFormLayout *source = AddForm(page.general);
  video_.source = AddTextBox(source, QStringLiteral("txtVidSource"), Words::tr("Video Source:"),
                             MakeButton(QStringLiteral("Command1"), Words::tr("&Browse...")));
  if (scope_ == DialogScope::Extended) {
    QPushButton *browse = MakeButton(QStringLiteral("cmdBrowsePoster"), Words::tr("Bro&wse..."));
    browse->setAccessibleName(Words::tr("Browse for a poster"));
    video_.poster =
        AddTextBox(source, QStringLiteral("txtVidPoster"), Words::tr("&Poster:"), browse);
  }
  video_.controls =
      AddCheckBox(source, QStringLiteral("chkShowControl"), Words::tr("&Show controls in Browser"));
  QFormLayout *repeat = AddFrame(page.general, Words::tr("Repeat"));
  video_.loops =
      AddNumberBox(repeat, QStringLiteral("txtVidLoop"), Words::tr("&Loop:"), QStringLiteral("1"));
  video_.forever = AddCheckBox(repeat, QStringLiteral("chkForever"), Words::tr("Forever"));
  AddNumberBox(repeat, QStringLiteral("txtVidLoopDelay"), Words::tr("Loop &delay:"),
               QStringLiteral("0"), Words::tr("Milliseconds"));
  QFormLayout *start = AddFrame(page.general, Words::tr("Start"));
  video_.onOpen = AddCheckBox(start, QStringLiteral("chkVidOnOpen"), Words::tr("On file open"));
  AddCheckBox(start, QStringLiteral("chkVidMouseOver"), Words::tr("On mouse over"));
  AddCheckBox(AddForm(page.general), QStringLiteral("chkMouseOver"),
              Words::tr("Start on &Mouse Over"));
  page.general->addStretch();

  firstBoxes_[3] = video_.source;
  videoLook_ = AddAppearance(page.appearance, QStringLiteral("VID"), QStringLiteral("1"));
  return page.whole;
}

}  // namespace velor
