// SPDX-License-Identifier: GPL-3.0-or-later
// frmInsertElement: its four pages, their controls and labels.
#include "insert/FormParts.h"
#include "insert/TextBox.h"
#include "insert/frmInsertElement.h"

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
const QStringList Alignments = {
    QStringLiteral("Default"),   QStringLiteral("Left"),     QStringLiteral("Right"),
    QStringLiteral("Top"),       QStringLiteral("Texttop"),  QStringLiteral("Middle"),
    QStringLiteral("Absmiddle"), QStringLiteral("Baseline"), QStringLiteral("Botton"),
    QStringLiteral("Absbottom"), QStringLiteral("Center")};

const QStringList TargetFrames = {QStringLiteral("None"), QStringLiteral("_self"),
                                  QStringLiteral("_top"), QStringLiteral("_blank"),
                                  QStringLiteral("_parent")};

/// A titled list with a button that belongs to it.
QListWidget *AddBookmarkList(QFormLayout *form, const QString &name, const QString &label,
                             const QString &refreshName) {
  auto *list = new QListWidget;
  Name(*list, name, label);
  auto *title = new QLabel(label);
  title->setBuddy(list);
  form->addRow(title);
  form->addRow(list);
  AddButton(form, MakeButton(refreshName, QStringLiteral("&Refresh")));
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
    tabs->addTab(generalPage, QStringLiteral("General"));
    tabs->addTab(appearancePage, QStringLiteral("Appearance"));
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
  QFormLayout *layout = AddFrame(half, QStringLiteral("Layout"));
  boxes.alignment =
      AddComboBox(layout, name("cob", "Align"), QStringLiteral("Alignment:"), Alignments);
  boxes.border =
      AddNumberBox(layout, name("txt", "Border"), QStringLiteral("Border thickness:"), border);
  boxes.horizontalSpacing =
      AddNumberBox(layout, name("txt", "HSpac"), QStringLiteral("Horizontal Spacing:"), Zero);
  boxes.verticalSpacing =
      AddNumberBox(layout, name("txt", "Vspac"), QStringLiteral("Vertical Spacing:"), Zero);
  QFormLayout *size = AddFrame(half, QStringLiteral("Size"));
  boxes.sizeFromBoxes =
      AddCheckBox(size, name("chk", "Size"), QStringLiteral("Use &Specific Size"));
  boxes.height = AddNumberBox(size, name("txt", "Height"), QStringLiteral("Height:"), pixels);
  boxes.width = AddNumberBox(size, name("txt", "Width"), QStringLiteral("Width:"), pixels);
  half->addStretch();
  for (TextBox *box : {boxes.height, boxes.width}) box->RepairNumberTo(pixels);
  return boxes;
}

}  // namespace

void frmInsertElement::Build() {
  setObjectName(QStringLiteral("frmInsertElement"));
  setWindowTitle(QStringLiteral("Element Information..."));
  setModal(true);

  pages_ = new QTabWidget;
  Name(*pages_, QStringLiteral("SSTab1"), QStringLiteral("Element"));
  QVBoxLayout *window = MakePage(this);
  window->addWidget(pages_, 1);
  pages_->addTab(BuildImagePage(), QStringLiteral("Image"));
  pages_->addTab(BuildHyperlinkPage(), QStringLiteral("Hyperlink"));
  pages_->addTab(BuildTargetPage(), QStringLiteral("Target"));
  pages_->addTab(BuildVideoPage(), QStringLiteral("Video"));
  for (int i = 0; i < pages_->count(); ++i) AlignLabels(pages_->widget(i));
  setMinimumWidth(ComfortableWidth);
  refusal_ = AddRefusal(window, {firstBoxes_[0], firstBoxes_[1], firstBoxes_[2], firstBoxes_[3]});
  AddButtonRow(window, {MakeButton(QStringLiteral("cmdOK"), QStringLiteral("OK")),
                        MakeButton(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"))});
}

QWidget *frmInsertElement::BuildImagePage() {
  const HalvedPage page(QStringLiteral("SSTab2"), QStringLiteral("Image"));

  imageSource_ = AddTextBox(
      AddForm(page.general), QStringLiteral("txtImgSource"), QStringLiteral("Image Source:"),
      MakeButton(QStringLiteral("cmdBrowseIMG"), QStringLiteral("&Browse...")));
  QFormLayout *alternative = AddFrame(page.general, QStringLiteral("Alternative"));
  lowResolutionSource_ =
      AddTextBox(alternative, QStringLiteral("txtLowRes"), QStringLiteral("Low Resolution:"),
                 MakeButton(QStringLiteral("cmdBrowseLowRes"), QStringLiteral("&Browse...")));
  alternativeText_ =
      AddTextBox(alternative, QStringLiteral("txtAlt"), QStringLiteral("Alternative Text:"));
  preview_ = new QLabel;
  Name(*preview_, QStringLiteral("picPreview"), QStringLiteral("Preview"));
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
  QPushButton *browse = MakeButton(QStringLiteral("cmdABrowse"), QStringLiteral("&Browse..."));
  browse->setToolTip(QStringLiteral("Browse from your computer and Link to a file"));
  QPushButton *mail = MakeButton(QStringLiteral("cmdAEmail"), QStringLiteral("&E-mail..."));
  mail->setToolTip(QStringLiteral("Link to a E-mail Address"));
  for (QPushButton *button : {browse, mail}) button->setAccessibleName(button->toolTip());

  QFormLayout *link = AddForm(rows);
  link_.address =
      AddTextBox(link, QStringLiteral("txtHref"), QStringLiteral("Anchor Element Href:"), browse);
  link_.frame = AddComboBox(link, QStringLiteral("cobATarget"), QStringLiteral("Target Frame:"),
                            TargetFrames);
  if (scope_ == DialogScope::Extended)
    link_.title = AddTextBox(link, QStringLiteral("txtATitle"), QStringLiteral("&Title:"));
  QFormLayout *special = AddFrame(rows, QStringLiteral("Special Links:"));
  AddButton(special, mail);
  link_.bookmarks = AddBookmarkList(special, QStringLiteral("lstABookMark"),
                                    QStringLiteral("Link to a Bookmark (Target):"),
                                    QStringLiteral("cmdRefreshA"));
  firstBoxes_[1] = link_.address;
  return page;
}

QWidget *frmInsertElement::BuildTargetPage() {
  auto *page = new QWidget;
  QFormLayout *form = AddForm(MakePage(page));
  bookmarkName_ =
      AddTextBox(form, QStringLiteral("txtBookmarkName"), QStringLiteral("Bookmark Name: "));
  otherBookmarks_ = AddBookmarkList(form, QStringLiteral("lstOtherBookmark"),
                                    QStringLiteral("Other bookmarks in this page:"),
                                    QStringLiteral("cmdRefreshOther"));
  firstBoxes_[2] = bookmarkName_;
  return page;
}

QWidget *frmInsertElement::BuildVideoPage() {
  const HalvedPage page(QStringLiteral("SSTab3"), QStringLiteral("Video"));

  QFormLayout *source = AddForm(page.general);
  video_.source =
      AddTextBox(source, QStringLiteral("txtVidSource"), QStringLiteral("Video Source:"),
                 MakeButton(QStringLiteral("Command1"), QStringLiteral("&Browse...")));
  if (scope_ == DialogScope::Extended) {
    QPushButton *browse =
        MakeButton(QStringLiteral("cmdBrowsePoster"), QStringLiteral("Bro&wse..."));
    browse->setAccessibleName(QStringLiteral("Browse for a poster"));
    video_.poster =
        AddTextBox(source, QStringLiteral("txtVidPoster"), QStringLiteral("&Poster:"), browse);
  }
  video_.controls = AddCheckBox(source, QStringLiteral("chkShowControl"),
                                QStringLiteral("&Show controls in Browser"));
  QFormLayout *repeat = AddFrame(page.general, QStringLiteral("Repeat"));
  video_.loops = AddNumberBox(repeat, QStringLiteral("txtVidLoop"), QStringLiteral("&Loop:"),
                              QStringLiteral("1"));
  video_.forever = AddCheckBox(repeat, QStringLiteral("chkForever"), QStringLiteral("Forever"));
  AddNumberBox(repeat, QStringLiteral("txtVidLoopDelay"), QStringLiteral("Loop &delay:"),
               QStringLiteral("0"), QStringLiteral("Milliseconds"));
  QFormLayout *start = AddFrame(page.general, QStringLiteral("Start"));
  video_.onOpen =
      AddCheckBox(start, QStringLiteral("chkVidOnOpen"), QStringLiteral("On file open"));
  AddCheckBox(start, QStringLiteral("chkVidMouseOver"), QStringLiteral("On mouse over"));
  AddCheckBox(AddForm(page.general), QStringLiteral("chkMouseOver"),
              QStringLiteral("Start on &Mouse Over"));
  page.general->addStretch();

  firstBoxes_[3] = video_.source;
  videoLook_ = AddAppearance(page.appearance, QStringLiteral("VID"), QStringLiteral("1"));
  return page.whole;
}

}  // namespace velor
