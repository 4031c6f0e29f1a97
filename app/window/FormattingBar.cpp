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
      cobFormat(Named(new ChoiceBox(this), "cobFormat", tr("Block Format"))),
      cobSize(Named(new ChoiceBox(this), "cobSize", tr("Font Size"))),
      Font1(Named(new FontPicker(this), "Font1", tr("Font"))) {
  // The keyboard is in the picker's text box, which is heard by a name of its own.
  Font1->lineEdit()->setAccessibleName(Font1->accessibleName());
  cobFormat->setFixedWidth(FormatWidth);
  Font1->setFixedWidth(FontWidth);
  cobSize->setFixedWidth(SizeWidth);

  auto *row = new QHBoxLayout(this);
  row->setContentsMargins(BarMargin - BarSpacing, 0, 0, 0);
  row->setSpacing(BarMargin);
  for (QWidget *box : std::initializer_list<QWidget *>{cobFormat, Font1, cobSize}) {
    row->addWidget(box);
  }
  QToolBar *tbrEdit = BuildButtons();
  // One row for the eye: the colours close it.
  tbrEdit->addWidget(BuildColors());
  row->addWidget(tbrEdit, 1);

  connect(cobFormat, &ChoiceBox::Clicked, this, &FormattingBar::BlockFormatClicked);
  connect(cobSize, &ChoiceBox::Clicked, this, &FormattingBar::FontSizeClicked);
  connect(Font1, &FontPicker::FontChosen, this, &FormattingBar::FontNameChanged);
  connect(cpFore, &ColorPicker::ColorChosen, this, &FormattingBar::ForeColorChanged);
  connect(cpBack, &ColorPicker::ColorChosen, this, &FormattingBar::BackColorChanged);
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
  cpFore = Named(new ColorPicker(QStringLiteral("forecolor"), colors), "cpFore", tr("Text Color"));
  cpBack =
      Named(new ColorPicker(QStringLiteral("backcolor"), colors), "cpBack", tr("Background Color"));
  cpBack->SetColor(PaperWhite);
  auto *row = new QHBoxLayout(colors);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(BarSpacing);
  row->addWidget(cpFore);
  row->addWidget(cpBack);
  return colors;
}

void FormattingBar::InitialiseFonts() {
  Font1->Initialise();
}

void FormattingBar::FillBlockFormats(const QStringList &names) {
  cobFormat->addItems(names);
  cobFormat->ShowText(QString());
}

void FormattingBar::FillFontSizes() {
  for (const int points : FontSizePoints) cobSize->addItem(QString::number(points));
  cobSize->ShowText(QString());
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
  if (Font1->FontName() != name) Font1->SetFontName(name);
}

void FormattingBar::ShowBlockFormat(const QString &name) {
  if (cobFormat->Text() != name) cobFormat->ShowText(name);
}

void FormattingBar::ShowFontSize(const QString &points) {
  if (cobSize->Text() != points) cobSize->ShowText(points);
}

void FormattingBar::ShowForeColor(const QString &htmlColor) {
  ShowColor(*cpFore, htmlColor);
}

void FormattingBar::ShowBackColor(const QString &htmlColor) {
  ShowColor(*cpBack, htmlColor);
}

}  // namespace velor
