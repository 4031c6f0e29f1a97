// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/PageScheme.h"

#include "engine/preview/SiteScheme.h"
#include "platform/Paths.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>

namespace velor {

namespace {

/// Identifies an address by path and query, since the engine may spell the rest in another way.
QString Key(const QUrl &address) {
  return address.path(QUrl::FullyDecoded) + u'?' + address.query();
}

/// The existing regular file that an address stands for; empty when there is none.
QString FileOf(const QUrl &address) {
  const QString path = address.path(QUrl::FullyDecoded);
  // Old pages have links with "\", which the browsers of their time accepted.
  for (const QString &candidate :
       {path, FindIgnoringCase(ToLogic(path)), FindIgnoringCase(QString(path).replace('/', '\\'))})
    if (QFileInfo(candidate).isFile()) return candidate;
  return {};
}

}  // namespace

QString PartName(const QUrl &address) {
  return address.scheme() + u':' + address.path(QUrl::FullyDecoded);
}

void RegisterSchemes() {
  RegisterSiteScheme();
  if (!QWebEngineUrlScheme::schemeByName(PageScheme::Name()).name().isEmpty()) return;
  QWebEngineUrlScheme scheme(PageScheme::Name());
  scheme.setSyntax(QWebEngineUrlScheme::Syntax::Host);
  // Not a local scheme: a page of one cannot be given another address (EngineView::MoveTo). A host
  // a load keeps the engine from showing pictures and style sheets as it read them for an earlier
  // one.
  scheme.setFlags(QWebEngineUrlScheme::SecureScheme | QWebEngineUrlScheme::LocalAccessAllowed);
  QWebEngineUrlScheme::registerScheme(scheme);
}

QByteArray PageScheme::Name() {
  return QByteArrayLiteral("velor-page");
}

QUrl PageScheme::NewAddress(const QString &nativePath) {
  QUrl address;
  address.setScheme(QString::fromLatin1(Name()));
  address.setHost(QStringLiteral("page%1").arg(++lastNumber_));
  address.setPath(nativePath, QUrl::DecodedMode);
  address.setQuery(QStringLiteral("page=%1").arg(lastNumber_));
  return address;
}

QUrl PageScheme::Offer(const QString &nativePath, const QString &text) {
  const QUrl address = NewAddress(nativePath);
  offered_[Key(address)] = text.toUtf8();
  return address;
}

void PageScheme::Withdraw(const QUrl &address) {
  offered_.erase(Key(address));
}

void PageScheme::requestStarted(QWebEngineUrlRequestJob *job) {
  const QUrl address = job->requestUrl();
  if (const auto page = offered_.find(Key(address)); page != offered_.end()) {
    auto *buffer = new QBuffer(job);
    buffer->setData(page->second);
    job->reply(QByteArrayLiteral("text/html; charset=utf-8"), buffer);
    return;
  }
  const QString path = FileOf(address);
  Q_EMIT PartAsked(address.host(), PartName(address),
                   path.isEmpty() ? address.path(QUrl::FullyDecoded) : path);
  auto *file = new QFile(path, job);
  if (file->fileName().isEmpty() || !file->open(QIODevice::ReadOnly)) {
    job->fail(QWebEngineUrlRequestJob::UrlNotFound);
    return;
  }
  job->reply(QMimeDatabase().mimeTypeForFile(file->fileName()).name().toLatin1(), file);
}

}  // namespace velor
