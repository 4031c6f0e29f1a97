// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/NoticeBar.h"
#include "editor/EditorContext.h"
#include "platform/HtmlDocument.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

class QPushButton;

namespace velor {

class frmMain;

/// The bar under a page for a selected picture whose file is much larger than it is shown, which
/// makes a page slow. It makes the file as large as it is shown, or twice that for dense screens
/// (in pages with the HTML5 doctype both), and turns the picture. The file's content is kept beside
/// it as "name-original"; Undo in the bar puts it back. Files outside the page's site are left
/// alone.
class PictureFitting final : public NoticeBar {
  Q_OBJECT

 public:
  /// Both outlive it; `page` becomes its parent. Hidden at first.
  PictureFitting(EditorContext &context, frmMain &page);

  /// The selection, or what is selected, may have changed.
  void SelectionChanged();

 private:
  /// A file as it was before it was changed here.
  struct Before {
    QString path;
    QByteArray content;
    QString original;  ///< the copy that was made of it; empty where there was one
    QString address;   ///< of the picture whose srcset was set; empty for none
  };

  bool IsMuchLarger() const;
  QString FileOfSelection() const;
  void Fit();
  void FitTwice();
  void Rewrite(const std::function<QByteArray(const QByteArray &)> &change);
  void ReportChange();
  void UndoChange();
  void ShowText(const QString &text);
  bool IsHtml5() const;

  EditorContext &context_;
  frmMain &page_;
  ShownPicture picture_;
  QString file_;
  std::optional<Before> before_;
  QPushButton *undo_ = nullptr;
};

}  // namespace velor
