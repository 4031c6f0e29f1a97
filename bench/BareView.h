// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QWebEngineView>

class QWebChannel;

namespace velor::bench {

/// The engine without this program: a view in design mode that tells when its selection changed.
/// The peer of every figure about pages.
class BareView : public QWebEngineView {
  Q_OBJECT

 public:
  explicit BareView(QWidget *parent = nullptr);

  /// Loads a file and returns when the page is there and in design mode.
  void LoadFile(const QString &nativePath);
  /// The root element's markup, waited for.
  QString OuterHtml();
  /// OuterHtml after inserting markup at the caret.
  QString OuterHtmlAfter(const QString &insertedHtml);

  /// Number of selection changes that the page reported.
  int selectionChanges = 0;

 public Q_SLOTS:
  void SelectionMoved() { ++selectionChanges; }

 private:
  QVariant Evaluate(const QString &script);
};

}  // namespace velor::bench
