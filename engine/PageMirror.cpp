// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/PageMirror.h"

#include "page/saving/ByteSplice.h"

#include <QVariantList>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace velor {

namespace {

/// The text after one step; nothing where the step does not fit this text.
std::optional<QString> After(const QString &text, const QVariantList &edits) {
  std::vector<TextPatch> patches;
  qsizetype done = 0;
  for (const QVariant &each : edits) {
    const QVariantList edit = each.toList();
    const qsizetype start = edit.value(0).toInt();
    const qsizetype end = start + edit.value(1).toInt();
    if (edit.size() != 3 || start < done || end < start || end > text.size()) return std::nullopt;
    patches.push_back({start, end, edit[2].toString()});
    done = end;
  }
  return Patched(text, patches);
}

}  // namespace

bool PageMirror::Apply(const QVariantMap &told) {
  const int revision = told[QStringLiteral("revision")].toInt();
  if (const auto html = told.find(QStringLiteral("html")); html != told.end()) {
    html_ = html->toString();
    revision_ = revision;
    return true;
  }
  const QVariantList steps = told[QStringLiteral("steps")].toList();
  const int first = revision - static_cast<int>(steps.size());
  if (revision_ == 0 || revision_ < first) return false;
  // Steps up to this revision have been applied already, by a push that crossed with an answer.
  QString html = html_;
  for (int step = revision_; step < revision; ++step) {
    auto after = After(html, steps[step - first].toList());
    if (!after) return false;
    html = std::move(*after);
  }
  // An equal text is not taken over, so that copies of the old one go on sharing its memory.
  if (html != html_) html_ = html;
  revision_ = std::max(revision, revision_);
  return true;
}

}  // namespace velor
