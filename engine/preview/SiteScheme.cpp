// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/preview/SiteScheme.h"

#include "platform/Paths.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QRegularExpression>
#include <QUuid>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>

namespace velor {

namespace {

const QString TextMark = QStringLiteral("velor-text");

/// Links of the file system followed as far as the path exists.
QString Canonical(const QString &path) {
  const QFileInfo info(QDir::cleanPath(path));
  if (info.exists() || info.isRoot() || path.isEmpty()) return info.canonicalFilePath();
  return QDir(Canonical(info.path())).filePath(info.fileName());
}

bool IsBelow(const QString &path, const QString &folder) {
  return path.startsWith(folder.endsWith(u'/') ? folder : folder + u'/');
}

/// The style sheet with the full "file:" addresses of its rules as addresses of its own site. All
/// charsets of style sheets but UTF-16 have ASCII in its place.
QByteArray WithSiteAddresses(const QByteArray &sheet) {
  static const QRegularExpression beforePath(
      QStringLiteral("(url\\(\\s*[\"']?|@import\\s+[\"'])file://(?:localhost)?(?=/)"),
      QRegularExpression::CaseInsensitiveOption);
  return QString::fromLatin1(sheet).replace(beforePath, QStringLiteral("\\1")).toLatin1();
}

bool HasHiddenPart(QStringView belowSite) {
  return belowSite.startsWith(u'.') || belowSite.contains(QLatin1String("/."));
}

}  // namespace

void RegisterSiteScheme() {
  if (!QWebEngineUrlScheme::schemeByName(SiteScheme::Name()).name().isEmpty()) return;
  QWebEngineUrlScheme scheme(SiteScheme::Name());
  scheme.setSyntax(QWebEngineUrlScheme::Syntax::Host);
  scheme.setFlags(QWebEngineUrlScheme::SecureScheme);
  QWebEngineUrlScheme::registerScheme(scheme);
}

QByteArray SiteScheme::Name() {
  return QByteArrayLiteral("velor-site");
}

QUrl SiteScheme::AddressOf(const QString &file, const QString &site) {
  QString folder = Canonical(site);
  if (site.isEmpty() || !IsBelow(Canonical(file), folder)) folder = Canonical(FolderOfNative(file));
  const QString host = QStringLiteral("site-") + QUuid::createUuid().toString(QUuid::Id128);
  QUrl address;
  address.setScheme(QString::fromLatin1(Name()));
  address.setHost(host);
  address.setPath(u'/' + file.mid(file.startsWith(u'/') ? 1 : 0), QUrl::DecodedMode);
  sites_[host] = {folder, FileOf(address)};
  return address;
}

QUrl SiteScheme::Offer(const QString &file, const QString &site, const QString &html) {
  QUrl address = AddressOf(file, site);
  address.setQuery(TextMark);
  texts_[FileOf(address)] = html.toUtf8();
  return address;
}

QString SiteScheme::FileOf(const QUrl &address) {
  const QString path = address.path(QUrl::FullyDecoded);
  // "/C:/pics/a.png": a full address of another machine's drive, which is a folder here.
  const auto mapped = UrlOfMappedDrive(QUrl::fromLocalFile(path));
  return mapped ? mapped->toLocalFile() : path;
}

bool SiteScheme::IsInside(const QUrl &address) const {
  if (!TextOf(address).isNull()) return true;
  const QString folder = sites_.value(address.host()).folder;
  if (folder.isEmpty()) return false;
  const QString file = Canonical(FileOf(address));
  return IsBelow(file, folder) && !HasHiddenPart(QStringView(file).mid(folder.size()));
}

QByteArray SiteScheme::TextOf(const QUrl &address) const {
  const QString file = FileOf(address);
  const bool isAsked = address.query() == TextMark && sites_.value(address.host()).page == file;
  return isAsked ? texts_.value(file) : QByteArray();
}

QString SiteScheme::Find(const QUrl &address) const {
  const QString path = FileOf(address);
  // Old pages have links with "\", which the browsers of their time accepted.
  for (const QString &candidate : {path, FindIgnoringCase(ToLogic(path)),
                                   FindIgnoringCase(QString(path).replace('/', '\\'))}) {
    QUrl found = address;
    found.setPath(candidate, QUrl::DecodedMode);
    if (QFileInfo(candidate).isFile() && IsInside(found)) return Canonical(candidate);
  }
  return {};
}

void SiteScheme::requestStarted(QWebEngineUrlRequestJob *job) {
  const QUrl address = job->requestUrl();
  // Empty for what the program asks for, "null" for a sandboxed frame, which can read nothing.
  const QUrl asking = job->initiator();
  if (!asking.host().isEmpty() && asking.host() != address.host())
    return job->fail(QWebEngineUrlRequestJob::RequestDenied);
  if (const QByteArray text = TextOf(address); !text.isNull()) {
    auto *buffer = new QBuffer(job);
    buffer->setData(text);
    return job->reply(QByteArrayLiteral("text/html; charset=utf-8"), buffer);
  }
  const QString path = Find(address);
  if (!path.isEmpty() && FileOf(address) != sites_.value(address.host()).page)
    Q_EMIT PartServed(path);
  auto *file = new QFile(path, job);
  if (!file->fileName().isEmpty() && file->open(QIODevice::ReadOnly)) {
    const QByteArray type = QMimeDatabase().mimeTypeForFile(file->fileName()).name().toLatin1();
    if (type != "text/css") return job->reply(type, file);
    auto *sheet = new QBuffer(job);
    sheet->setData(WithSiteAddresses(file->readAll()));
    return job->reply(type, sheet);
  }
  if (IsInside(address)) return job->fail(QWebEngineUrlRequestJob::UrlNotFound);
  Q_EMIT Refused(FileOf(address));
  job->fail(QWebEngineUrlRequestJob::RequestDenied);
}

}  // namespace velor
