// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVariantMap>

#include <utility>

namespace velor {

/// This side's copy of a page's text, kept up to date by the edits that the page sends
/// (engine/bridge/talk/changes.js): the whole once, then the ranges that differ.
class PageMirror {
 public:
  PageMirror() = default;
  /// A text that did not come from the page: it has no revision.
  explicit PageMirror(QString html) : html_(std::move(html)) {}

  const QString &Html() const { return html_; }
  /// Revision of this text, to be passed to velor.changes() and velor.mirror(); 0 for none.
  int Revision() const { return revision_; }

  /// Applies an answer of velor.changes(): the whole text, or the steps from an earlier revision.
  /// False, with nothing changed, where the steps begin after this revision; then the whole text
  /// has to be asked for (ForgetRevision).
  bool Apply(const QVariantMap &told);
  /// Sets the revision to 0, so that the page answers with its whole text.
  void ForgetRevision() { revision_ = 0; }

 private:
  QString html_;
  int revision_ = 0;
};

}  // namespace velor
