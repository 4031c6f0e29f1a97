// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/TextSearch.h"

#include <QVariant>

namespace velor {

class LiveDocument;
class NoticeQueue;

/// Finds and replaces in the page by the bridge (engine/bridge/find). Results come when the page
/// has answered, from the event loop.
class WebSearch final : public TextSearch {
 public:
  WebSearch(LiveDocument &document, NoticeQueue &notices)
      : document_(document), notices_(notices) {}

  QString SelectedLine() override;
  void SetFocus() override;
  bool CanReplace() const override { return true; }
  void Find(const SearchQuery &query, SearchDirection direction) override;
  void Recount(const SearchQuery &query) override;
  void Replace(const SearchQuery &query, const QString &replacement) override;
  void ReplaceAll(const SearchQuery &query, const QString &replacement) override;
  void End() override;

 private:
  /// Evaluates a call of the bridge and reports what it answers.
  void Run(const QString &call);

  LiveDocument &document_;
  NoticeQueue &notices_;
};

}  // namespace velor
