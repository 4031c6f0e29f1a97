// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/PagePrinting.h"

#include <QByteArray>
#include <QDeadlineTimer>
#include <QObject>

class QWebEnginePage;

namespace velor {

/// Prints a page of the engine into a PDF. Begins when pictures and fonts of the page have come, or
/// have not for ten seconds. The engine obeys the paper size of the page's `@page` rules, but not
/// their margins: these are taken over here. Of `@page :first` a wider upper margin is.
class PdfPrint : public QObject {
  Q_OBJECT

 public:
  /// `page` outlives it.
  PdfPrint(QWebEnginePage &page, PaperForm form);

 Q_SIGNALS:
  /// From the event loop, once; without bytes where the engine made none.
  void Ended(const QByteArray &pdf);

 private:
  void AwaitParts();
  void Print();
  /// Emits Ended from the event loop, unless it was emitted already: receivers may want to wait for
  /// the engine.
  void End(const QByteArray &pdf);

  QWebEnginePage &page_;
  PaperForm form_;
  const QDeadlineTimer partsLimit_;
  bool hasEnded_ = false;
};

/// The PDF with the addresses of links into our schemes as addresses of files. Its length stays,
/// since the file's table tells where each object begins.
QByteArray WithFileLinks(QByteArray pdf);

}  // namespace velor
