// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QWidget>

class QToolBar;

namespace velor {

class ToolBarAction;

class FormattingBar;
struct GeneralButton;

/// The band bar: `tbrGeneral` above, the formatting boxes and `tbrEdit` below. Buttons are known by
/// their keys and carry the toolbar's name and the key as object name ("tbrEdit_bold").
class CoolBar final : public QWidget {
  Q_OBJECT

 public:
  explicit CoolBar(QWidget *parent);

  FormattingBar &Boxes() { return *boxes_; }

  /// A button by its key; ElementNotFound (35601) for an unknown one.
  ToolBarAction &GeneralButtonOf(const QString &key) const;
  ToolBarAction &EditButtonOf(const QString &key) const;

 Q_SIGNALS:
  void GeneralClicked(const velor::GeneralButton &button);
  void EditClicked(int command);

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  QToolBar *BuildGeneral();
  QToolBar *BuildEdit();

  QToolBar *tbrGeneral;
  FormattingBar *boxes_;
  QToolBar *tbrEdit;
};

}  // namespace velor
