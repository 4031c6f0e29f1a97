// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QUrl>
#include <QWebEngineUrlSchemeHandler>

namespace velor {

/// Makes the scheme known; before the application object is made. Repeating it is harmless.
void RegisterSiteScheme();

/// The scheme under which the preview shows pages of this machine. A site is a folder with all that
/// lies below it. Each address made has a host of its own: no page can guess it, no page of another
/// host may request it, and the engine does not use style sheets and pictures that it cached for
/// another one. The path of an address is the file's own path, so that links out of the folder are
/// recognised.
///
/// Invariant: only regular files of the site's folder are served, after links of the file system
/// have been followed, and nothing hidden (a name in the path below that folder that begins with a
/// dot).
class SiteScheme : public QWebEngineUrlSchemeHandler {
  Q_OBJECT

 public:
  static QByteArray Name();

  /// The address of a file. Its site is the folder `site` where the file lies in it, else the
  /// file's own folder. All paths are native.
  QUrl AddressOf(const QString &file, const QString &site);
  /// The address under which `html` is shown in the place of that file, which need not exist; a
  /// later text for the same file replaces it.
  QUrl Offer(const QString &file, const QString &site, const QString &html);
  /// The file that an address of the scheme stands for, whether it is served or not.
  static QString FileOf(const QUrl &address);
  /// Whether an address lies in its own site, or a text was offered for it.
  bool IsInside(const QUrl &address) const;

  void requestStarted(QWebEngineUrlRequestJob *job) override;

 Q_SIGNALS:
  /// A file is served, other than the page that its site was made for; native. From inside the
  /// engine.
  void PartServed(const QString &file);
  /// A file outside of its page's site was requested, and not served.
  void Refused(const QString &file);

 private:
  struct Site {
    QString folder;  ///< links of the file system followed
    QString page;    ///< the file that the address was made for
  };

  /// The file to serve; empty where there is none in the site.
  QString Find(const QUrl &address) const;
  /// The text that was offered in the place of the file; null for none.
  QByteArray TextOf(const QUrl &address) const;

  QHash<QString, Site> sites_;        ///< by host
  QHash<QString, QByteArray> texts_;  ///< UTF-8, by file
};

}  // namespace velor
