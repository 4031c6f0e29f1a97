// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QString>
#include <QTimer>

#include <memory>

class QPushButton;

namespace velor {

class Components;
class EditingComponent;
class SourceControl;

/// The page around markup that is to go into it, for its looks: doctype, head and the body's tag.
struct MarkupSurroundings {
  QString start;
  QString path;  ///< the page's file, in logic form, against which links resolve; may be empty
};

/// The surroundings that a page's document gives.
MarkupSurroundings SurroundingsIn(const QString &document, const QString &path);

/// Takes markup in a box with the colours of source, and shows below it how it will look in the
/// page. Ctrl+Enter in the box is OK; Tab leads on.
class MarkupDialog final : public QDialog {
  Q_OBJECT

 public:
  /// `components` outlives it.
  MarkupDialog(Components &components, const MarkupSurroundings &surroundings, QWidget *parent);
  ~MarkupDialog() override;

  QString Markup() const;

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  void TextChanged();
  void ShowPreview();

  const MarkupSurroundings surroundings_;
  std::unique_ptr<SourceControl> source_;
  std::unique_ptr<EditingComponent> preview_;
  QPushButton *ok_;
  QTimer pause_;  ///< from the last key to the preview
};

}  // namespace velor
