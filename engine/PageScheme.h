// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <QWebEngineUrlSchemeHandler>

#include <map>

namespace velor {

/// Makes the engine's schemes known, the preview's too; before the application object is made.
/// Repeating it is harmless.
void RegisterSchemes();

/// The scheme and path of an address, as the bridge tells files apart.
QString PartName(const QUrl &address);

/// The scheme under which pages are shown for editing. A page's address is its own native path, so
/// that its relative links resolve to the files beside it, with a query that names the text on
/// offer; the text itself comes from memory, already decoded. Every other address of the scheme is
/// a file: exactly named first, then ignoring letter case, as the pages' authors are used to.
class PageScheme : public QWebEngineUrlSchemeHandler {
  Q_OBJECT

 public:
  static QByteArray Name();

  /// A new address for a page of that file (as Offer takes it), under which no text is offered.
  QUrl NewAddress(const QString &nativePath);
  /// Offers a text and returns the address that shows it; `nativePath` is the page's file, or the
  /// folder (ending in "/") against which a page without a file resolves its links.
  QUrl Offer(const QString &nativePath, const QString &text);
  /// Ends an offer; does nothing for an address without one.
  void Withdraw(const QUrl &address);

  void requestStarted(QWebEngineUrlRequestJob *job) override;

 Q_SIGNALS:
  /// A page asks for a file of its own: the host of the page's address, the scheme and path that
  /// it asked by, and the native file, which need not exist. From inside the engine.
  void PartAsked(const QString &page, const QString &name, const QString &file);

 private:
  std::map<QString, QByteArray> offered_;  ///< UTF-8, by Key of the address
  int lastNumber_ = 0;
};

}  // namespace velor
