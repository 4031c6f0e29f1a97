// SPDX-License-Identifier: GPL-3.0-or-later
// How long the preview takes to show a page, from the command to the second frame after the load.
#include "bench/Figures.h"
#include "bench/Measure.h"
#include "bench/OurProgram.h"
#include "bench/SamplePage.h"
#include "editor/PageSlots.h"
#include "editor/frmBrowser.h"
#include "editor/frmMain.h"
#include "editor/modWorkFlow.h"
#include "platform/Browser.h"
#include "platform/Paths.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QWebEngineLoadingInfo>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineView>

namespace velor::bench {

namespace {

constexpr int PreviewMode = 4;
constexpr int PageSize = 100'000;
constexpr int Rounds = 9;
constexpr const char *TellWhenShown =
    "<script>addEventListener('load', () => requestAnimationFrame(() => requestAnimationFrame(() "
    "=> { document.title = 'shown' })))</script>";

bool Shows(const QWebEnginePage &page) {
  return page.title() == QStringLiteral("shown");
}

/// Waits for a load that begins after now.
void AwaitShown(const QWebEnginePage &page, const std::function<void()> &begin) {
  bool began = false;
  const auto connection = QObject::connect(
      &page, &QWebEnginePage::loadingChanged, &page, [&began](const QWebEngineLoadingInfo &info) {
        began = began || info.status() == QWebEngineLoadingInfo::LoadSucceededStatus;
      });
  begin();
  WaitUntil([&] { return began && Shows(page); });
  QObject::disconnect(connection);
}

class OurPreview {
 public:
  explicit OurPreview(const QString &nativePath) {
    modWorkFlow::OpenPage(program_.Context(), ToLogic(nativePath));
    WaitUntil([this] { return Page().PendingAction.isEmpty(); });
  }

  /// The window goes for good, so that the next preview makes it anew.
  void Forget() {
    program_.Context().preview->MarkKill();
    program_.Context().preview->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  void ShowFirst() {
    Page().ChangeMode(PreviewMode);
    const QWebEnginePage &page = Engine();
    WaitUntil([&] { return Shows(page); });
  }
  void ShowAgain() {
    AwaitShown(Engine(), [this] { Page().ChangeMode(PreviewMode); });
  }

 private:
  frmMain &Page() { return *program_.Context().pages.Page(1); }
  QWebEnginePage &Engine() {
    QWidget *widget = program_.Context().preview->WebBrowser().Widget();
    return *qobject_cast<QWebEngineView *>(widget)->page();
  }

  OurProgram program_;
};

class BarePreview {
 public:
  explicit BarePreview(const QString &nativePath) : address_(QUrl::fromLocalFile(nativePath)) {}

  void Forget() { view_.reset(); }
  void ShowFirst() {
    profile_ = std::make_unique<QWebEngineProfile>();
    view_ = std::make_unique<QWebEngineView>();
    view_->setPage(new QWebEnginePage(profile_.get(), view_.get()));
    view_->resize(1280, 860);
    view_->show();
    view_->load(address_);
    WaitUntil([this] { return Shows(*view_->page()); });
  }
  void ShowAgain() {
    AwaitShown(*view_->page(), [this] { view_->load(address_); });
  }

 private:
  QUrl address_;
  std::unique_ptr<QWebEngineProfile> profile_;
  std::unique_ptr<QWebEngineView> view_;
};

}  // namespace

void PreviewFigures() {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("page.html"));
  QFile file(path);
  if (file.open(QIODevice::WriteOnly)) {
    file.write(SamplePage(PageSize).replace("</head>", QByteArray(TellWhenShown) + "</head>"));
  }
  file.close();

  OurPreview ours(path);
  BarePreview theirs(path);
  const QString subject = QStringLiteral("100 KB");
  const auto first = [](auto &preview) {
    const double taken = Milliseconds([&] { preview.ShowFirst(); });
    preview.Forget();
    return taken;
  };
  Print(Compare(
      QStringLiteral("preview, first time"), subject, QStringLiteral("bare view"), Rounds,
      [&] { return first(ours); }, [&] { return first(theirs); }));
  ours.ShowFirst();
  theirs.ShowFirst();
  Print(Compare(
      QStringLiteral("preview again"), subject, QStringLiteral("bare view's load"), Rounds,
      [&] { return Milliseconds([&] { ours.ShowAgain(); }); },
      [&] { return Milliseconds([&] { theirs.ShowAgain(); }); }));
}

}  // namespace velor::bench
