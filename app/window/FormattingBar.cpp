// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/FormattingBar.h"

#include "app/window/BandToolBar.h"
#include "app/window/ChoiceBox.h"
#include "chrome/ColorPicker.h"
#include "chrome/FontPicker.h"
#include "chrome/Palette.h"
#include "insert/modColor.h"
#include "platform/EditingCommands.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QToolBar>

#include <algorithm>

namespace velor {
namespace {

constexpr std::int32_t PaperWhite = 0xFFFFFF;
constexpr int FormatWidth = 150;
constexpr int FontWidth = 190;
constexpr int SizeWidth = 64;

template <typename Box>
Box *Named(Box *box, const char *name, const QString &label) {
  box->setObjectName(QString::fromLatin1(name));
  box->setAccessibleName(label);
  box->setToolTip(label);
  return box;
}

/// Shows `htmlColor` in `picker` unless it shows that colour already.
void ShowColor(ColorPicker &picker, const QString &htmlColor) {
  const std::int32_t color = modColor::HtmlToColor(htmlColor);
  if (picker.Color() != color) picker.SetColor(color);
}

}  // namespace

FormattingBar::FormattingBar(QWidget *parent)
    : QWidget(parent),
      blockFormat_(Named(new ChoiceBox(this), "cobFormat", tr("Block Format"))),
      fontSize_(Named(new ChoiceBox(this), "cobSize", tr("Font Size"))),
      fontName_(Named(new FontPicker(this), "Font1", tr("Font"))) {
  // The keyboard is in the picker's text box, which is heard by a name of its own.
  fontName_->lineEdit()->setAccessibleName(fontName_->accessibleName());
  blockFormat_->setFixedWidth(FormatWidth);
  fontName_->setFixedWidth(FontWidth);
  fontSize_->setFixedWidth(SizeWidth);

  auto *row = new QHBoxLayout(this);
  row->setContentsMargins(BarMargin - BarSpacing, 0, 0, 0);
  row->setSpacing(BarMargin);
  for (QWidget *box : std::initializer_list<QWidget *>{blockFormat_, fontName_, fontSize_}) {
    row->addWidget(box);
  }
  QToolBar *tbrEdit = BuildButtons();
  // One row for the eye: the colours close it.
  tbrEdit->addWidget(BuildColors());
  row->addWidget(tbrEdit, 1);

  connect(blockFormat_, &ChoiceBox::Clicked, this, &FormattingBar::BlockFormatClicked);
  connect(fontSize_, &ChoiceBox::Clicked, this, &FormattingBar::FontSizeClicked);
  connect(fontName_, &FontPicker::FontChosen, this, &FormattingBar::FontNameChanged);
  connect(textColor_, &ColorPicker::ColorChosen, this, &FormattingBar::ForeColorChanged);
  connect(backColor_, &ColorPicker::ColorChosen, this, &FormattingBar::BackColorChanged);
}

QToolBar *FormattingBar::BuildButtons() {
  QToolBar *bar = NewBandToolBar("tbrEdit", tr("Formatting"), this);
  for (std::size_t index = 0; index < EditCommands.size(); ++index) {
    const EditCommand &row = EditCommands[index];
    buttons_[index] =
        AddBandButton(*bar, row.key.toString(), row.tooltip.toString(), ButtonKind::Toggle);
    connect(buttons_[index], &ToolBarAction::Chosen, this,
            [this, &row] { Q_EMIT CommandClicked(row.command); });
  }
  return bar;
}

QWidget *FormattingBar::BuildColors() {
  auto *colors = new QWidget(this);
  textColor_ =
      Named(new ColorPicker(QStringLiteral("forecolor"), colors), "cpFore", tr("Text Color"));
  backColor_ =
      Named(new ColorPicker(QStringLiteral("backcolor"), colors), "cpBack", tr("Background Color"));
  backColor_->SetColor(PaperWhite);
  auto *row = new QHBoxLayout(colors);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(BarSpacing);
  row->addWidget(textColor_);
  row->addWidget(backColor_);
  return colors;
}

void FormattingBar::InitialiseFonts() {
  fontName_->Initialise();
}

void FormattingBar::FillBlockFormats(const QStringList &names) {
  blockFormat_->addItems(names);
  blockFormat_->ShowText(QString());
}

void FormattingBar::FillFontSizes() {
  for (const int points : FontSizePoints) fontSize_->addItem(QString::number(points));
  fontSize_->ShowText(QString());
}

void FormattingBar::ShowButton(EditingCommand command, ButtonState state) {
  const auto row =
      std::find_if(EditCommands.begin(), EditCommands.end(),
                   [command](const EditCommand &entry) { return entry.command == command; });
  if (row == EditCommands.end()) return;
  ToolBarAction &button = *buttons_[static_cast<std::size_t>(row - EditCommands.begin())];
  button.setEnabled(state == ButtonState::On || state == ButtonState::Pressed);
  if (state != ButtonState::Unsupported) button.ShowChecked(state == ButtonState::Pressed);
}

void FormattingBar::ShowFontName(const QString &name) {
  if (fontName_->FontName() != name) fontName_->SetFontName(name);
}

void FormattingBar::ShowBlockFormat(const QString &name) {
  if (blockFormat_->Text() != name) blockFormat_->ShowText(name);
}

void FormattingBar::ShowFontSize(const QString &points) {
  if (fontSize_->Text() != points) fontSize_->ShowText(points);
}

void FormattingBar::ShowForeColor(const QString &htmlColor) {
  ShowColor(*textColor_, htmlColor);
}

void FormattingBar::ShowBackColor(const QString &htmlColor) {
  ShowColor(*backColor_, htmlColor);
}

}  // namespace velor
