// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/PagePrinting.h"

#include <QUrl>

#include <memory>

namespace velor {

class EditingEngine;
class EditorPage;
class LiveDocument;
class PdfPrint;

/// Prints the document of an editing component. The page that is edited is only read: its text is
/// loaded into a page of its own, which runs no scripts and has a process of its own.
class WebPrinting : public PagePrinting {
 public:
  WebPrinting(EditingEngine &engine, LiveDocument &document);
  ~WebPrinting() override;
  WebPrinting(const WebPrinting &) = delete;
  WebPrinting &operator=(const WebPrinting &) = delete;

  /// Waits until the document is read.
  void MakePdf(const PaperForm &form, Made made) override;
  void StopPdf() override;

 private:
  void ConnectPage(const PaperForm &form);
  /// Ends the work and gives the PDF, as soon as nobody waits for the engine.
  void Finish(const QByteArray &pdf);

  EditingEngine &engine_;
  LiveDocument &document_;
  QUrl address_;
  std::unique_ptr<EditorPage> page_;
  std::unique_ptr<PdfPrint> print_;
  Made made_;
};

}  // namespace velor
