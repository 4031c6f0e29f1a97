// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/QtPrinters.h"

#include "platform/Dialogs.h"

#include <QPageLayout>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

#include <algorithm>
#include <utility>

namespace velor {

namespace {

constexpr int PointsInInch = 72;

class QtPaperPrinter final : public PaperPrinter {
 public:
  QtPaperPrinter(std::unique_ptr<QPrinter> printer, int pages)
      : printer_(std::move(printer)), pages_(pages) {}

  QList<int> Pages() const override {
    const bool isPart = printer_->printRange() == QPrinter::PageRange && printer_->fromPage() > 0;
    const int first = isPart ? printer_->fromPage() - 1 : 0;
    const int last = isPart ? std::min(printer_->toPage(), pages_) : pages_;
    QList<int> once;
    for (int page = first; page < last; ++page) once << page;
    if (printer_->pageOrder() == QPrinter::LastPageFirst) std::reverse(once.begin(), once.end());
    const int copies = printer_->supportsMultipleCopies() ? 1 : printer_->copyCount();
    QList<int> all;
    if (printer_->collateCopies()) {
      for (int copy = 0; copy < copies; ++copy) all << once;
    } else {
      for (const int page : once) all << QList<int>(copies, page);
    }
    return all;
  }

  bool PrintPage(const QSizeF &size,
                 const std::function<void(QPainter &, const QRectF &)> &paint) override {
    if (!(painter_.isActive() ? printer_->newPage() : painter_.begin(printer_.get()))) return false;
    const QRectF paper = printer_->paperRect(QPrinter::DevicePixel);
    QSizeF shown = size * printer_->resolution() / PointsInInch;
    if (shown.width() > paper.width() || shown.height() > paper.height())
      shown.scale(paper.size(), Qt::KeepAspectRatio);
    paint(painter_, QRectF(QPointF(), shown));
    return printer_->printerState() != QPrinter::Error;
  }

  void Abort() override { printer_->abort(); }

 private:
  std::unique_ptr<QPrinter> printer_;
  const int pages_;
  QPainter painter_;  ///< last: it ends before its printer
};

QPageLayout LayoutOf(const QSizeF &paper) {
  const bool isWide = paper.width() > paper.height();
  return {QPageSize(isWide ? paper.transposed() : paper, QPageSize::Point),
          isWide ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()};
}

}  // namespace

std::unique_ptr<PaperPrinter> QtPrinters::Choose(const PrintTask &task, QWidget &parent) {
  auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer->setDocName(task.name);
  // Margins are in the pages.
  printer->setFullPage(true);
  printer->setPageLayout(LayoutOf(task.paper));
  QPrintDialog dialog(printer.get(), &parent);
  dialog.setMinMax(1, task.pages);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange);
  dialogs_.RunModal(dialog);
  if (dialog.result() != QDialog::Accepted) return nullptr;
  return std::make_unique<QtPaperPrinter>(std::move(printer), task.pages);
}

}  // namespace velor
