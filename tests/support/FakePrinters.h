// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Printers.h"

#include <QImage>
#include <QPainter>

#include <functional>
#include <vector>

namespace velor {

/// A printer that keeps its sheets as pictures, one dot a point.
class FakePrinters final : public Printers {
 public:
  bool isCancelled = false;  ///< the person cancels the dialog
  int mostPages = 1000;      ///< it takes no more than these
  QList<int> pages;          ///< that the person chooses; empty for all
  std::function<void()> onPage;

  std::vector<PrintTask> tasks;
  std::vector<QImage> sheets;
  int aborted = 0;
  int ended = 0;

  std::unique_ptr<PaperPrinter> Choose(const PrintTask &task, QWidget &) override {
    tasks.push_back(task);
    if (isCancelled) return nullptr;
    return std::make_unique<Printer>(*this, task.pages);
  }

 private:
  class Printer final : public PaperPrinter {
   public:
    Printer(FakePrinters &desk, int pages) : desk_(desk), pages_(pages) {}
    ~Printer() override { ++desk_.ended; }
    Printer(const Printer &) = delete;
    Printer &operator=(const Printer &) = delete;

    QList<int> Pages() const override {
      QList<int> all = desk_.pages;
      for (int page = 0; desk_.pages.isEmpty() && page < pages_; ++page) all << page;
      return all;
    }
    bool PrintPage(const QSizeF &size,
                   const std::function<void(QPainter &, const QRectF &)> &paint) override {
      if (static_cast<int>(desk_.sheets.size()) >= desk_.mostPages) return false;
      QImage sheet(size.toSize(), QImage::Format_RGB32);
      sheet.fill(Qt::white);
      QPainter painter(&sheet);
      paint(painter, QRectF(QPointF(), size));
      painter.end();
      desk_.sheets.push_back(sheet);
      if (desk_.onPage) desk_.onPage();
      return true;
    }
    void Abort() override { ++desk_.aborted; }

   private:
    FakePrinters &desk_;
    const int pages_;
  };
};

}  // namespace velor
