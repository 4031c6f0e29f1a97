// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QBuffer>
#include <QPdfDocument>
#include <QRectF>
#include <QString>

class QPainter;

namespace velor {

/// The pages of a PDF as they are painted on paper, with header and footer where wanted.
class PaperPages {
 public:
  /// The lines at the top and bottom edge: the title and the date, the place and the page's number.
  struct EdgeLines {
    QString title;
    QString date;
    QString place;
    bool areShown = true;
  };

  void Load(const QByteArray &pdf);
  void SetEdgeLines(const EdgeLines &lines) { lines_ = lines; }

  int Count() const { return document_.pageCount(); }
  /// In points.
  QSizeF SizeOf(int page) const { return document_.pagePointSize(page); }
  /// Paints a page, numbered from 0, over that place. `density` is in dots a point.
  void Paint(QPainter &painter, const QRectF &place, int page, qreal density);

 private:
  void PaintEdgeLines(QPainter &painter, const QRectF &place, int page) const;

  QBuffer bytes_;
  QPdfDocument document_;
  EdgeLines lines_;
};

}  // namespace velor
