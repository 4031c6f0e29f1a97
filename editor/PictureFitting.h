// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/NoticeBar.h"
#include "editor/EditorContext.h"
#include "pictures/CodedPicture.h"
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
/// (in pages with the HTML5 doctype both), and turns and cuts the picture, whose size in the page
/// follows. The file's content is kept beside it as "name-original"; Undo in the bar puts it back,
/// and so does Undo of the size in the page. Files outside the page's site are left alone.
class PictureFitting final : public NoticeBar {
  Q_OBJECT

 public:
  /// Both outlive it; `page` becomes its parent. Hidden at first.
  PictureFitting(EditorContext &context, frmMain &page);

  /// The selection, or what is selected, may have changed.
  void SelectionChanged();

  /// The selected picture, to choose a part of it; null where it is none that can be changed, which
  /// the status bar says.
  QImage PictureToCut();
  /// The name of that picture's file.
  QString FileName() const;
  /// Cuts that picture.
  void CutPicture(const PictureCut &cut);

 private:
  /// What of the picture's attributes was changed here, as it was at first.
  struct Before {
    PropertyValues sizes;
    HtmlAttributes attributes;  ///< that it did not have: no values
  };
  using Change = std::function<QByteArray(const QByteArray &)>;
  /// Whether a change is seen in the page.
  enum class Look { Same, Other };

  bool IsMuchLarger() const;
  QString FileOfSelection() const;
  void Fit();
  void FitTwice();
  void TurnPicture(Turn turn);
  /// Writes the file anew; what of the picture's size the page says becomes `shown`, and the
  /// picture gets the attributes. With another look the page says one side at least, so that its
  /// Undo takes the change back: the file follows the page's text.
  void Rewrite(const Change &change, Look look, QSize shown, HtmlAttributes attributes = {});
  /// Changes the page. Its text before and after belongs to the file's content before and now.
  void ChangePage(const QByteArray &before, const std::function<void()> &change);
  void UndoChange();
  void ShowText(const QString &text);
  bool IsHtml5() const;

  EditorContext &context_;
  frmMain &page_;
  ShownPicture picture_;
  QString file_;
  std::optional<Before> before_;  ///< none while the file is as it was
  QPushButton *undo_ = nullptr;
};

}  // namespace velor
