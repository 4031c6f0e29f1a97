// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/NoticeBar.h"
#include "editor/EditorContext.h"

#include <QMetaObject>
#include <QString>

class QShortcut;

namespace velor {

class FrontWindow;
class PagePrinting;

/// Writes pages as PDF files, one at a time, while the person goes on working. The bar is on show
/// meanwhile; its button, and Escape anywhere in the window, stop the work. The file is replaced
/// when the PDF is whole: what was there stays where the work is stopped or fails.
class PdfExport final : public NoticeBar {
  Q_OBJECT

 public:
  /// `context` outlives it. Hidden at first.
  PdfExport(EditorContext &context, QWidget *parent);

  /// Asks for a file and begins to export what a child window shows.
  void Begin(FrontWindow &front);

 private:
  /// The file that the person chooses; empty for none.
  QString AskForFile(const FrontWindow &front);
  void Stop();
  void Write(const QByteArray &pdf);
  void End();

  EditorContext &context_;
  QString folder_;  ///< of the last export, in logic form
  QShortcut *escape_;
  PagePrinting *printing_ = nullptr;  ///< null while nothing is exported
  QMetaObject::Connection closing_;   ///< to the window that is exported
  QString file_;                      ///< in logic form
};

}  // namespace velor
