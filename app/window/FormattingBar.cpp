// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/FormattingBar.h"

#include "app/window/BandToolBar.h"
#include "app/window/ChoiceBox.h"
#include "chrome/ColorPicker.h"
#include "chrome/FontPicker.h"
#include "chrome/Palette.h"
#include "insert/modColor.h"
#include "platform/EditingCommands.h"
#include "platform/Words.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenu>
#include <QToolBar>
#include <QWidgetAction>

#include <algorithm>

namespace velor {
namespace {

constexpr std::int32_t PaperWhite = 0xFFFFFF;
constexpr int FormatWidth = 150;
constexpr int FontWidth = 182;
constexpr int SizeWidth = 72;

template <typename Box>
Box *Named(Box *box, const char *name, const QString &label) {
  box->setObjectName(QString::fromLatin1(name));
  box->setAccessibleName(label);
  box->setToolTip(label);
  return box;
}

/// A row of colour pickers, side by side.
QWidget *PickerRow(std::initializer_list<ColorPicker *> pickers, QWidget *parent) {
  auto *row = new QWidget(parent);
  auto *layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(BarSpacing);
  for (ColorPicker *picker : pickers) layout->addWidget(picker);
  return row;
}

/// The colour pickers on a toolbar. In the overflow menu of a toolbar that is too narrow there are
/// second pickers, which pass their choice to the first. A toolbar shows no default widget
/// (setDefaultWidget) in that menu, so each place creates its own.
class ColorsAction final : public QWidgetAction {
 public:
  ColorsAction(ColorPicker &fore, ColorPicker &back, QObject *parent)
      : QWidgetAction(parent), fore_(fore), back_(back) {}

 protected:
  QWidget *createWidget(QWidget *parent) override {
    auto *menu = qobject_cast<QMenu *>(parent);
    if (menu == nullptr) return PickerRow({&fore_, &back_}, parent);
    return PickerRow({StandIn(fore_, *menu), StandIn(back_, *menu)}, menu);
  }

 private:
  ColorPicker *StandIn(ColorPicker &picker, QMenu &menu) {
    auto *stand = new ColorPicker(picker.IconKey(), &menu);
    stand->setAccessibleName(picker.accessibleName());
    stand->setToolTip(picker.toolTip());
    stand->SetColor(picker.Color());
    stand->setEnabled(picker.isEnabled());
    connect(stand, &ColorPicker::ColorChosen, &picker, [&picker, &menu](std::int32_t color) {
      menu.close();
      Q_EMIT picker.ColorChosen(color);
    });
    return stand;
  }

  ColorPicker &fore_;
  ColorPicker &back_;
};

/// The name of a block format as the person reads it.
QString Translated(const QString &format) {
  return format.isEmpty() ? QString() : Words::tr(format.toUtf8().constData());
}

}  // namespace

FormattingBar::FormattingBar(QWidget *parent)
    : QWidget(parent),
      blockFormat_(Named(new ChoiceBox(this), "cobFormat", tr("Block Format"))),
      fontSize_(Named(new ChoiceBox(this), "cobSize", tr("Font Size"))),
      fontName_(Named(new FontPicker(this), "Font1", tr("Font"))) {
  // The text box in the picker has the focus: assistive technology reads its name, not the
  // picker's.
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
  QToolBar *buttonBar = BuildButtons();
  // The colours are the last part of the button bar.
  AddColors(*buttonBar);
  row->addWidget(buttonBar, 1);
  setTabOrder(blockFormat_, fontName_);
  setTabOrder(fontName_, fontSize_);

  connect(blockFormat_, &ChoiceBox::Clicked, this, [this](const QString &text) {
    Q_EMIT BlockFormatClicked(blockFormat_->itemData(blockFormat_->findText(text)).toString());
  });
  connect(fontSize_, &ChoiceBox::Clicked, this, &FormattingBar::FontSizeClicked);
  connect(fontName_, &FontPicker::FontChosen, this, &FormattingBar::FontNameChanged);
  connect(blockFormat_, &ChoiceBox::Done, this, &FormattingBar::Done);
  connect(fontSize_, &ChoiceBox::Done, this, &FormattingBar::Done);
  connect(fontName_, &FontPicker::Done, this, &FormattingBar::Done);
  connect(textColor_.picker, &ColorPicker::ColorChosen, this, [this](std::int32_t color) {
    ShowAgain(textColor_);
    Q_EMIT ForeColorChanged(color);
  });
  connect(backColor_.picker, &ColorPicker::ColorChosen, this, [this](std::int32_t color) {
    ShowAgain(backColor_);
    Q_EMIT BackColorChanged(color);
  });
}

QToolBar *FormattingBar::BuildButtons() {
  QToolBar *bar = NewBandToolBar("tbrEdit", tr("Formatting"), this);
  for (std::size_t index = 0; index < EditCommands.size(); ++index) {
    const EditCommand &row = EditCommands[index];
    buttons_[index] =
        AddBandButton(*bar, row.key.toString(), Words::tr(row.tooltip), ButtonKind::Toggle);
    connect(buttons_[index], &ToolBarAction::Chosen, this,
            [this, &row] { Q_EMIT CommandClicked(row.command); });
  }
  return bar;
}

void FormattingBar::AddColors(QToolBar &bar) {
  textColor_.picker =
      Named(new ColorPicker(QStringLiteral("forecolor"), this), "cpFore", tr("Text Color"));
  backColor_ = {
      Named(new ColorPicker(QStringLiteral("backcolor"), this), "cpBack", tr("Background Color")),
      PaperWhite};
  ShowAgain(backColor_);
  bar.addAction(new ColorsAction(*textColor_.picker, *backColor_.picker, &bar));
}

void FormattingBar::ShowAgain(const ColorBox &box) {
  box.picker->SetColor(box.shown);
}

void FormattingBar::ShowColor(ColorBox &box, const QString &htmlColor) {
  box.picker->setEnabled(true);
  box.shown = modColor::HtmlToColor(htmlColor);
  if (box.picker->Color() != box.shown) ShowAgain(box);
}

void FormattingBar::InitialiseFonts() {
  fontName_->Initialise();
}

void FormattingBar::FillBlockFormats(const QStringList &names) {
  for (const QString &name : names) blockFormat_->addItem(Translated(name), name);
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
  fontName_->setEnabled(true);
  // An installed font is shown as the list spells it.
  if (fontName_->FontName().compare(name, Qt::CaseInsensitive) != 0) fontName_->SetFontName(name);
}

void FormattingBar::ShowBlockFormat(const QString &name) {
  blockFormat_->setEnabled(true);
  const QString text = Translated(name);
  if (blockFormat_->Text() != text) blockFormat_->ShowText(text);
}

void FormattingBar::ShowFontSize(const QString &points) {
  fontSize_->setEnabled(true);
  if (fontSize_->Text() != points) fontSize_->ShowText(points);
}

void FormattingBar::ShowForeColor(const QString &htmlColor) {
  ShowColor(textColor_, htmlColor);
}

void FormattingBar::ShowBackColor(const QString &htmlColor) {
  ShowColor(backColor_, htmlColor);
}

void FormattingBar::ShowNothing() {
  for (ToolBarAction *button : buttons_) {
    button->setEnabled(false);
    button->ShowChecked(false);
  }
  ShowFontName({});
  ShowBlockFormat({});
  ShowFontSize({});
  for (QWidget *box : std::initializer_list<QWidget *>{blockFormat_, fontName_, fontSize_,
                                                       textColor_.picker, backColor_.picker})
    box->setEnabled(false);
}

}  // namespace velor
