// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVariantMap>

#include <utility>

namespace velor {

/// This side's copy of a page's text, kept up to date by the edits that the page tells
/// (engine/bridge/talk/changes.js): the whole once, then the ranges that differ.
class PageMirror {
 public:
  PageMirror() = default;
  /// A text that the page has not told: it has no revision.
  explicit PageMirror(QString html) : html_(std::move(html)) {}

  const QString &Html() const { return html_; }
  /// Revision of this text, to be passed to velor.changes() and velor.mirror(); 0 for none.
  int Revision() const { return revision_; }

  /// Applies an answer of velor.changes(). False where it does not follow on from this revision;
  /// then nothing changes, and the whole is to be asked for (ForgetRevision).
  bool Apply(const QVariantMap &told);
  /// The next update has to be a whole text.
  void ForgetRevision() { revision_ = 0; }

 private:
  QString html_;
  int revision_ = 0;
};

}  // namespace velor
