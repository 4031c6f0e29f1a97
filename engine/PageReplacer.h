// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/LiveDocument.h"

#include <QByteArray>

namespace velor {

class EngineVerifier;
class PageLoader;

/// Puts one page in another's place so that undo brings the earlier one back: within the page, as
/// one step of its own undo history, or else by a load that DocumentHistory remembers.
class PageReplacer {
 public:
  PageReplacer(LiveDocument &document, PageLoader &loader, NoticeQueue &notices,
               EngineVerifier &verifier);

  /// Makes a page's bytes the document, its links resolving against that file, and waits until it
  /// is shown. Undo leads back only where the folder stays the same, since links in the earlier
  /// document would lead elsewhere. Raises RuntimeError where the page is too large, cannot be
  /// shown, or the person stops it; the document before stays then, unless it was a load that was
  /// stopped. `this` may be gone afterwards.
  void Replace(const QByteArray &bytes, const QString &nativePath);
  /// Likewise for another text of the document on show, which belongs to that file from now on, in
  /// whatever folder: what the text names is fetched from there. Undo leads back to the nodes as
  /// they were shown.
  void ReplaceText(const QByteArray &bytes, const QString &nativePath);
  /// Loads the document that undo or redo leads to beyond the page's own history. `this` may be
  /// gone afterwards.
  void StepOverLoad(DocumentHistory::Direction direction);

 private:
  enum class Outcome { Done, NotPossible, Stopped };
  enum class Source { File, Text };

  void ReplaceFrom(Source source, const QByteArray &bytes, const QString &nativePath);
  /// Whether links in the document on show resolve as links in that file do. A document that is the
  /// one on show, as after its first save, or a text of it, is given the file's address for that.
  bool SharesFolder(Source source, const FaithfulPage &page, const QString &nativePath);
  /// Exchanges the document within the page: one step of its history.
  Outcome ReplaceInPlace(const DocumentHistory::Original &original, const QString &nativePath);
  /// Loads the document; the one before is kept on this side, and undo comes back to it.
  void ReplaceByLoad(DocumentHistory::Original original, const QString &nativePath);

  LiveDocument &document_;
  PageLoader &loader_;
  NoticeQueue &notices_;
  EngineVerifier &verifier_;
};

}  // namespace velor
