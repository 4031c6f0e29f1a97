// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QSizeF>
#include <QString>

#include <functional>
#include <memory>

class QPainter;
class QRectF;
class QWidget;

namespace velor {

/// What is to be printed.
struct PrintTask {
  QString name;  ///< in the printer's list of what waits there
  QSizeF paper;  ///< of the first page, in points
  int pages = 0;
};

/// A printer with a task that has begun. Its destructor ends the task.
class PaperPrinter {
 public:
  virtual ~PaperPrinter() = default;
  /// The pages that the person chose, numbered from 0, in the order in which they are printed.
  virtual QList<int> Pages() const = 0;
  /// Prints the next sheet: `paint` gets the place of a page of `size` points on it. False where
  /// the printer does not take it.
  virtual bool PrintPage(const QSizeF &size,
                         const std::function<void(QPainter &, const QRectF &)> &paint) = 0;
  /// Gives the task up.
  virtual void Abort() = 0;
};

/// The printers of the desktop.
class Printers {
 public:
  virtual ~Printers() = default;
  /// Shows the desktop's dialog for printing; null where the person cancels it.
  virtual std::unique_ptr<PaperPrinter> Choose(const PrintTask &task, QWidget &parent) = 0;
};

}  // namespace velor
