// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/AboutAnimation.h"

#include <QBasicTimer>
#include <QDialog>

namespace velor {

class Runtime;
struct EngineVersion;

/// The About box: product, maker, versions, a mail link, a band of ridges and a small animated
/// pattern (AboutAnimation) that runs while the box is the active window.
class frmAbout final : public QDialog {
  Q_OBJECT

 public:
  /// `runtime` outlives the box.
  frmAbout(Runtime &runtime, const EngineVersion &engine, QWidget *parent = nullptr);

 protected:
  void paintEvent(QPaintEvent *event) override;
  void changeEvent(QEvent *event) override;
  void hideEvent(QHideEvent *event) override;
  void timerEvent(QTimerEvent *event) override;

 private:
  class Pattern;

  QWidget *BuildHead();
  QWidget *BuildFoot(const EngineVersion &engine);
  /// Takes the animation's next step if it is due.
  void Play();
  /// Opens the desktop's mail program for a mailto: link; a failure is ignored.
  void WriteTo(const QString &link);

  Runtime &runtime_;
  AboutAnimation animation_;
  QBasicTimer passes_;
  Pattern *pattern_ = nullptr;
};

}  // namespace velor
