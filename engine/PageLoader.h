// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/LiveDocument.h"

#include <QString>

namespace velor {

struct PageMemory;

/// How a page is shown; kept here, since each new page has to be told.
struct ViewOptions {
  bool showDetails = false;
  bool snapToGrid = false;
  bool wholeSigns = true;  ///< template signs in text are deleted as a whole and never broken
  bool spelling = false;   ///< unknown words have waves
  bool additions = true;   ///< what goes beyond the published behaviour
};

/// Loads a page into a LiveDocument, and loads it again when its process has ended. A load drops
/// the undo history of the page; PageReplacer is for exchanges that undo takes back.
class PageLoader {
 public:
  /// `programFolder` in logic form: where the links of a page without a file lead.
  PageLoader(LiveDocument &document, NoticeQueue &notices, const ViewOptions &options,
             const QString &programFolder);

  /// A load has begun and FinishLoad has not run for it yet.
  bool IsLoading() const { return purpose_ != Purpose::None; }
  /// A document was set or loaded, not just the blank page.
  bool HasDocument() const { return hasDocument_; }

  /// Loads an empty page where nothing was ever loaded.
  void LoadBlankIfEmpty();
  /// Loads `html` as a page without a file, written in the charset that it declares.
  void LoadText(const QString &html);
  /// Loads a document and waits until it is shown; undo does not lead back to the one before.
  /// Raises RuntimeError where it cannot be shown, or the person stops the load.
  void LoadPage(DocumentHistory::Original original, const QString &nativePath);
  /// The same, but undo over the load leads back to the documents in the history.
  void LoadPageKeepingHistory(DocumentHistory::Original original, const QString &nativePath);
  /// Begins to load a document that undo or redo leads to, whose original is current already.
  void BeginStep(QString html);
  /// Loads a remembered page: its original first, then its edited text. Raises RuntimeError as
  /// LoadPage does.
  void Restore(const PageMemory &memory);

  /// To be called outside of engine callbacks when the view's load has ended: takes over the
  /// baseline, and posts what the person or the listener is to be told.
  void FinishLoad();
  /// To be called outside of engine callbacks when the page's process has ended: begins to load
  /// the page from the mirror, but not for ever where the process ends again and again.
  void ReloadAfterCrash();

 private:
  /// What the load under way is for.
  enum class Purpose {
    None,
    Blank,
    Document,
    Restore,  ///< the page as last seen, after its process ended
    Step,     ///< a text with an original and a baseline of its own
  };
  /// Unknown where the wait could not see the end: the page was closed or loaded anew, or the wait
  /// was refused.
  enum class Outcome { Shown, NotShown, Unknown };

  void Replace(DocumentHistory::Original original, const QString &nativePath, Purpose purpose);
  /// Loads and waits; `procedure` names the error's source.
  void LoadAndFinish(Purpose purpose, const QString &procedure);
  Outcome LoadAndWait(Purpose purpose);
  void BeginLoad(Purpose purpose);

  LiveDocument &document_;
  NoticeQueue &notices_;
  const ViewOptions &options_;
  QString baseFolder_;  ///< native, ends in "/"
  Purpose purpose_ = Purpose::None;
  bool wasEverLoaded_ = false;
  bool hasDocument_ = false;
  CrashCount crashes_;
};

}  // namespace velor
