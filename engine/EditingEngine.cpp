// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/EditingEngine.h"

#include "engine/BridgeScript.h"
#include "platform/Paths.h"

#include <QWebEngineCookieStore>
#include <QWebEngineDownloadRequest>
#include <QWebEngineSettings>

namespace velor {

namespace {

struct Setting {
  QWebEngineSettings::WebAttribute attribute;
  bool on;
};

/// Pages may be hostile: they run no scripts, open no windows, store nothing and reach nothing
/// outside. The clipboard settings concern the bridge's world, the only one with scripts.
constexpr Setting Settings[] = {
    {QWebEngineSettings::JavascriptEnabled, false},
    {QWebEngineSettings::JavascriptCanOpenWindows, false},
    {QWebEngineSettings::JavascriptCanAccessClipboard, true},
    {QWebEngineSettings::JavascriptCanPaste, true},
    {QWebEngineSettings::LocalStorageEnabled, false},
    {QWebEngineSettings::LocalContentCanAccessRemoteUrls, false},
    {QWebEngineSettings::LocalContentCanAccessFileUrls, true},
    {QWebEngineSettings::HyperlinkAuditingEnabled, false},
    {QWebEngineSettings::ErrorPageEnabled, false},
    {QWebEngineSettings::PluginsEnabled, false},
    {QWebEngineSettings::PdfViewerEnabled, false},
    {QWebEngineSettings::FullScreenSupportEnabled, false},
    {QWebEngineSettings::ScreenCaptureEnabled, false},
    {QWebEngineSettings::WebGLEnabled, false},
    {QWebEngineSettings::AutoLoadIconsForPage, false},
    {QWebEngineSettings::FocusOnNavigationEnabled, false},
    {QWebEngineSettings::AllowRunningInsecureContent, false},
    {QWebEngineSettings::AllowGeolocationOnInsecureOrigins, false},
    {QWebEngineSettings::DnsPrefetchEnabled, false},
    {QWebEngineSettings::NavigateOnDropEnabled, false},
};

bool IsLocal(const QUrl &address) {
  const QString scheme = address.scheme();
  return scheme == QLatin1String(PageScheme::Name()) ||
         ((scheme == u"file" || scheme == u"data" || scheme == u"blob" || scheme == u"qrc") &&
          address.host().isEmpty());
}

}  // namespace

void RequestBlocker::interceptRequest(QWebEngineUrlRequestInfo &request) {
  const QUrl address = request.requestUrl();
  if (!IsLocal(address)) return request.block(true);
  const auto mapped = UrlOfMappedDrive(address);
  if (address.isLocalFile())
    Q_EMIT FileAsked(request.firstPartyUrl().host(), PartName(address),
                     mapped.value_or(address).toLocalFile());
  if (mapped) request.redirect(*mapped);
}

EditingEngine::EditingEngine() {
  QObject::connect(&blocker_, &RequestBlocker::FileAsked, &scheme_, &PageScheme::PartAsked);
}

QWebEngineProfile &EditingEngine::Profile() {
  if (profile_ != nullptr) return *profile_;
  profile_ = std::make_unique<QWebEngineProfile>();
  profile_->setHttpCacheType(QWebEngineProfile::NoCache);
  profile_->setPersistentCookiesPolicy(QWebEngineProfile::NoPersistentCookies);
  profile_->cookieStore()->setCookieFilter([](const auto &) { return false; });
  profile_->setUrlRequestInterceptor(&blocker_);
  profile_->installUrlSchemeHandler(PageScheme::Name(), &scheme_);
  for (const Setting &setting : Settings)
    profile_->settings()->setAttribute(setting.attribute, setting.on);
  profile_->settings()->setUnknownUrlSchemePolicy(QWebEngineSettings::DisallowUnknownUrlSchemes);
  QObject::connect(profile_.get(), &QWebEngineProfile::downloadRequested,
                   [](QWebEngineDownloadRequest *download) { download->cancel(); });
  return *profile_;
}

const QString &EditingEngine::Bridge() {
  if (bridge_.isEmpty()) bridge_ = BridgeScript();
  return bridge_;
}

}  // namespace velor
