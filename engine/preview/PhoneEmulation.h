// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QWebEngineProfile>

#include <memory>

class QWebEnginePage;

namespace velor {

/// Shows the pages of a preview as a phone does, as long as this object lives: touch in the mouse's
/// place, pixels of the screen to a CSS pixel, layout by the viewport declaration, the name of the
/// browser. The engine does all of it itself; it is asked for through its developer tools, which
/// run in a hidden page. What is shown already has to be loaded again, at both ends.
class PhoneEmulation final : public QObject {
  Q_OBJECT

 public:
  /// `page` may go first.
  explicit PhoneEmulation(QWebEnginePage &page);
  ~PhoneEmulation() override;

 Q_SIGNALS:
  /// Pages are shown so from now on.
  void Ready();

 private:
  void Begin();

  QWebEngineProfile profile_;  ///< of the tools alone, nothing of it is kept
  QPointer<QWebEnginePage> page_;
  std::unique_ptr<QWebEnginePage> tools_;
};

}  // namespace velor
