// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/MenuSettings.h"

#include <QDialog>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;

namespace velor {

class Registry;
class RuntimeError;
class TextBox;

/// The window of the preferences. It reads each as its readers do: one that is no such value is
/// named, and shown by its default. OK stores the ones that were changed or named, as text; the
/// others stay as they are written.
class FrmSettings final : public QDialog {
  Q_OBJECT

 public:
  /// Both outlive the window. `pictures` checks the file of the menu background.
  FrmSettings(Registry &registry, const MenuPictures &pictures, QWidget *parent);

  void accept() override;

 private:
  /// A preference and the control that shows it.
  struct Row {
    QString name;
    std::function<QString()> text;  ///< the control's value as the store has it
    /// The same when the window came up; nullopt where what is stored is no such value.
    std::optional<QString> before;
  };

  QCheckBox *AddTruth(QFormLayout *form, const Preference &preference, const QString &caption);
  void AddText(QFormLayout *form, const Preference &preference, const QString &caption,
               const QString &tip);
  void AddMenuStyle(QFormLayout *form);
  void AddLanguage(QFormLayout *form);
  void AddColor(QFormLayout *form, const ColorSetting &setting);
  void AddRow(const QString &name, const std::function<QString()> &text);
  /// Keeps the words for a preference that is no such value.
  void Tell(const RuntimeError &fault);

  Registry &registry_;
  const MenuPictures &pictures_;
  std::vector<Row> rows_;
  QStringList faults_;
  bool isFaulty_ = false;  ///< the preference that is being read
  QComboBox *style_ = nullptr;
  TextBox *background_ = nullptr;
  QLabel *refusal_ = nullptr;
};

}  // namespace velor
