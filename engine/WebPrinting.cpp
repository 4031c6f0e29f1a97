// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/WebPrinting.h"

#include "engine/EditorPage.h"
#include "engine/LiveDocument.h"
#include "engine/PdfPrint.h"

#include <QTimer>

#include <chrono>
#include <utility>

namespace velor {

namespace {

using namespace std::chrono_literals;

/// Between two looks whether somebody waits for the engine.
constexpr std::chrono::milliseconds WaitPause = 20ms;

/// The engine may parse its own serialisation to another document than the source.
QString TextToPrint(const LiveDocument::Reading &reading) {
  if (reading.original == nullptr || reading.html != reading.original->Baseline())
    return reading.html;
  return reading.original->TextToLoad();
}

}  // namespace

WebPrinting::WebPrinting(EditingEngine &engine, LiveDocument &document)
    : engine_(engine), document_(document) {}

WebPrinting::~WebPrinting() {
  StopPdf();
}

void WebPrinting::MakePdf(const PaperForm &form, Made made) {
  StopPdf();
  const LiveDocument::Reading reading = document_.Read();
  if (reading.isEditorGone) return;
  // While the document was waited for, another call may have begun.
  StopPdf();
  made_ = std::move(made);
  address_ = engine_.Scheme().Offer(document_.NativePath(), TextToPrint(reading));
  page_ = std::make_unique<EditorPage>(&engine_.Profile(), engine_.Guard(), nullptr);
  ConnectPage(form);
  page_->LoadOwn(address_);
}

void WebPrinting::ConnectPage(const PaperForm &form) {
  const auto end = [this](const QByteArray &pdf) {
    // Not from inside the engine.
    QTimer::singleShot(1ms, page_.get(), [this, pdf] { Finish(pdf); });
  };
  QObject::connect(page_.get(), &QWebEnginePage::loadFinished, [this, form, end](bool isLoaded) {
    const EngineCallback callback(engine_.Guard());
    engine_.Scheme().Withdraw(address_);
    if (!isLoaded) return end({});
    print_ = std::make_unique<PdfPrint>(*page_, form);
    QObject::connect(print_.get(), &PdfPrint::Ended, end);
  });
  QObject::connect(page_.get(), &QWebEnginePage::renderProcessTerminated, [this, end] {
    const EngineCallback callback(engine_.Guard());
    end({});
  });
}

void WebPrinting::Finish(const QByteArray &pdf) {
  if (engine_.Guard().Waiting()) {
    QTimer::singleShot(WaitPause, page_.get(), [this, pdf] { Finish(pdf); });
    return;
  }
  const Made made = std::exchange(made_, {});
  StopPdf();
  if (made) made(pdf);
}

void WebPrinting::StopPdf() {
  made_ = {};
  print_.reset();
  if (page_ == nullptr) return;
  engine_.Scheme().Withdraw(address_);
  page_->disconnect();
  page_.reset();
}

}  // namespace velor
