// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVariantMap>

#include <utility>

namespace velor {

/// The text of a page as this side has it, kept by what the page tells of its changes
/// (engine/bridge/talk/changes.js): the whole once, then the stretches that differ.
class PageMirror {
 public:
  PageMirror() = default;
  /// A text that did not come from the page itself.
  explicit PageMirror(QString html) : html_(std::move(html)) {}

  const QString &Html() const { return html_; }
  /// What the page is to be asked with: which of the texts that it told this one is.
  int Revision() const { return revision_; }

  /// Follows what was told. False where that does not follow on from this text; then nothing
  /// changes, and the page is to be asked for the whole (with Revision 0).
  bool Follow(const QVariantMap &told);
  /// The same page will not tell anything any more that follows on from this text.
  void Detach() { revision_ = 0; }

 private:
  QString html_;
  int revision_ = 0;
};

}  // namespace velor
