// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/FrmSettings.h"

#include "app/settings/Languages.h"
#include "app/settings/modSettingManager.h"
#include "app/window/MenuTable.h"
#include "chrome/ColorPicker.h"
#include "insert/FormParts.h"
#include "insert/TextBox.h"
#include "platform/Conversions.h"
#include "platform/Registry.h"
#include "platform/Words.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace velor {

using namespace FormParts;
namespace Settings = modSettingManager;

/// The menu style that is none of the menu's.
constexpr const char *PictureFileStyle[] = {Words::Mark("Picture file")};

FrmSettings::FrmSettings(Registry &registry, const MenuPictures &pictures, QWidget *parent)
    : QDialog(parent), registry_(registry), pictures_(pictures) {
  setObjectName(QStringLiteral("FrmSettings"));
  setWindowTitle(Words::tr("Settings"));
  setModal(true);
  QVBoxLayout *window = MakePage(this);
  // In two columns, so that the window fits on a small screen.
  auto *columns = new QHBoxLayout;
  auto *left = new QVBoxLayout;
  auto *right = new QVBoxLayout;
  for (QVBoxLayout *column : {left, right}) columns->addLayout(column);
  window->addLayout(columns);

  QFormLayout *pages = AddFrame(left, Words::tr("Pages that are opened from now on"));
  AddTruth(pages, PreferenceOf("ShowDetails"), Words::tr("Show &details"));
  AddTruth(pages, PreferenceOf("SnapToGrid"), Words::tr("&Snap to grid"));
  AddTruth(pages, PreferenceOf("showtoolbox"),
           Words::tr("&Forget the inspected element with its page"));
  AddTruth(pages, PreferenceOf("CheckSpelling"), Words::tr("Waves under &unknown words"));
  AddText(pages, PreferenceOf("NewPageTemplate"), Words::tr("Template of new pa&ges:"),
          Words::tr("A page file; empty for the usual new page"));
  QFormLayout *source = AddFrame(left, Words::tr("Source"));
  AddTruth(source, PreferenceOf("WrapSource"), Words::tr("&Wrap long lines"));
  QFormLayout *images = AddFrame(left, Words::tr("Pictures from outside the site"));
  AddTruth(images, PreferenceOf("CopyPictures"), Words::tr("&Copy them into the site"));
  AddTruth(images, PreferenceOf("KeepPictureData"),
           Words::tr("Keep place, &time and camera in copies"));
  AddTruth(images, PreferenceOf("PhotosAsWebP"), Words::tr("Write pasted photos as We&bP"));
  QFormLayout *menus = AddFrame(right, Words::tr("Menus"));
  AddMenuStyle(menus);
  for (const ColorSetting &setting : ColorSettings) AddColor(menus, setting);
  QFormLayout *program = AddFrame(right, Words::tr("From the next start on"));
  AddLanguage(program);
  AddTruth(program, PreferenceOf("WholeTemplateSigns"), Words::tr("&Keep template signs whole"));
  AddText(program, PreferenceOf("SpellingLanguage"),
          Words::tr("Language of pages that name &none:"),
          Words::tr("A tag such as en-GB or de; empty for the system's language"));
  QCheckBox *publishedOnly = AddTruth(program, PreferenceOf("PublishedOnly"),
                                      Words::tr("&Published behaviour only (no menu Tools)"));
  publishedOnly->setToolTip(Words::tr("PublishedOnly=False in %1 brings the menu back.")
                                .arg(Settings::OptionsPlace(registry)));

  for (QVBoxLayout *column : {left, right}) column->addStretch();

  refusal_ = AddRefusal(window, {background_});
  if (!faults_.isEmpty()) {
    refusal_->setText(faults_.join(u'\n'));
    refusal_->show();
  }
  QPushButton *ok = MakeButton(QStringLiteral("cmdOK"), Words::tr("OK"));
  QPushButton *cancel = MakeButton(QStringLiteral("cmdCancel"), Words::tr("Cancel"));
  connect(ok, &QPushButton::clicked, this, &FrmSettings::accept);
  connect(cancel, &QPushButton::clicked, this, &FrmSettings::reject);
  AddButtonRow(window, {ok, cancel});
  AlignLabels(this);
}

void FrmSettings::AddRow(const QString &name, const std::function<QString()> &text) {
  const bool isValue = !std::exchange(isFaulty_, false);
  rows_.push_back({name, text, isValue ? std::optional(text()) : std::nullopt});
}

void FrmSettings::Tell(const RuntimeError &fault) {
  faults_ << fault.Description();
  isFaulty_ = true;
}

QCheckBox *FrmSettings::AddTruth(QFormLayout *form, const Preference &preference,
                                 const QString &caption) {
  QCheckBox *box = AddCheckBox(form, preference.Name(), caption);
  box->setChecked(Settings::TruthOption(registry_, preference,
                                        [this](const RuntimeError &fault) { Tell(fault); }));
  AddRow(preference.Name(), [box] { return BoolText(box->isChecked()); });
  return box;
}

void FrmSettings::AddText(QFormLayout *form, const Preference &preference, const QString &caption,
                          const QString &tip) {
  TextBox *box = AddTextBox(form, preference.Name(), caption);
  box->setToolTip(tip);
  box->setText(Settings::GetOption(registry_, preference));
  AddRow(preference.Name(), [box] { return box->text(); });
}

void FrmSettings::AddMenuStyle(QFormLayout *form) {
  constexpr const Preference &MenuStyle = PreferenceOf("MenuStyle");
  constexpr const Preference &MenuBackground = PreferenceOf("MenuBackground");
  style_ = AddComboBox(form, MenuStyle.Name(), Words::tr("Style:"), PictureFileStyle);
  for (const MenuRow &row : MenuTable())
    if (row.command.id == CommandId::MenuStyle) style_->addItem(Words::tr(row.caption));
  const int last = style_->count() - 1;
  int style = Settings::IntegerOption(registry_, MenuStyle,
                                      [this](const RuntimeError &fault) { Tell(fault); });
  if (style < 0 || style > last) {
    Tell(Settings::FaultOf(registry_, MenuStyle,
                           RuntimeError::Of(ErrorNumber::IndexOutOfBounds, MenuStyle.Name())));
    style = CInt(MenuStyle.Default());
  }
  style_->setCurrentIndex(style);
  AddRow(MenuStyle.Name(), [this] { return QString::number(style_->currentIndex()); });

  background_ = AddTextBox(form, MenuBackground.Name(), Words::tr("Picture file:"));
  background_->setText(Settings::GetOption(registry_, MenuBackground));
  AddRow(MenuBackground.Name(), [this] { return background_->text(); });
  const auto followStyle = [this] { background_->setEnabled(style_->currentIndex() == 0); };
  connect(style_, &QComboBox::currentIndexChanged, this, followStyle);
  followStyle();
}

void FrmSettings::AddLanguage(QFormLayout *form) {
  constexpr const Preference &Spoken = PreferenceOf("Language");
  QComboBox *box = AddComboBox(form, Spoken.Name(), Words::tr("&Language:"), {});
  box->addItem(Words::tr("As the desktop"), QString());
  for (const Language &language : Languages)
    box->addItem(QString::fromUtf16(language.name), QLatin1String(language.code));
  const QString stored = Settings::GetOption(registry_, Spoken);
  box->setCurrentIndex(std::max(0, box->findData(stored)));
  AddRow(Spoken.Name(), [box] { return box->currentData().toString(); });
}

void FrmSettings::AddColor(QFormLayout *form, const ColorSetting &setting) {
  const QString name = setting.preference.Name();
  auto *picker = new ColorPicker(QStringLiteral("backcolor"), this);
  AddControl(form, name, Words::tr(setting.label), picker);
  picker->SetColor(Settings::LongOption(registry_, setting.preference,
                                        [this](const RuntimeError &fault) { Tell(fault); }));
  AddRow(name, [picker] { return QString::number(picker->Color()); });
}

void FrmSettings::accept() {
  if (style_->currentIndex() == 0) {
    try {
      pictures_.file(background_->text());
    } catch (const RuntimeError &) {
      return Refuse(*refusal_, Words::tr("That file cannot be shown as a picture."), *background_);
    }
  }
  for (const Row &row : rows_)
    if (row.text() != row.before) Settings::SetOption(registry_, row.name, row.text());
  QDialog::accept();
}

}  // namespace velor
