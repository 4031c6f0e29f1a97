// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/DocumentHistory.h"
#include "engine/DocumentMirror.h"
#include "engine/EngineView.h"
#include "engine/Lifetime.h"
#include "engine/NoticeQueue.h"
#include "engine/StateSnapshot.h"
#include "platform/EditingComponent.h"

#include <QWidget>

#include <memory>
#include <optional>

namespace velor {

class Files;
class WebDocument;

/// The editing component on the browser engine.
///
/// The view is made with the first document, or when the widget is first seen without one: an
/// editor that is never shown costs nothing. This class puts its parts together: DocumentHistory
/// knows what the document came from and what undo over a load brings back, DocumentMirror what was
/// last seen of it, EngineView the page itself. A page whose process has ended comes back from the
/// mirror with its original and baseline unchanged, so that what counts as edited stays the same.
class WebEditor : public EditingComponent {
 public:
  /// `programFolder` in logic form: where the links of a page without a file lead.
  WebEditor(EditingEngine &engine, Files &files, QString programFolder, QWidget *parent);
  ~WebEditor() override;

  QWidget *Widget() override;
  void SetListener(EditingListener *listener) override;
  void SetFocus() override;
  void SetToolTip(const QString &text) override;
  QString DocumentHTML() override;
  void SetDocumentHTML(const QString &html) override;
  void LoadDocument(const QString &path) override;
  void LoadText(const QString &html, const QString &path) override;
  void DeliverCompletion() override;
  void SaveDocument(const QString &path) override;
  QString TextToSave() override;
  QString ReasonToWriteAnew() override;
  PageMemory Memory() const override;
  bool IsIdle() const override;
  bool IsWaiting() const override;
  void Recall(const PageMemory &memory) override;
  QString Charset() const override;
  QString TextForm() const override;
  bool HasByteOrderMark() const override;
  ElementPlaces CaretPlaces() override;
  void ShowPlace(const ElementPlaces &places) override;
  QVariant ExecCommand(EditingCommand command, ExecOption option, const QVariant &value) override;
  CommandStatus QueryStatus(EditingCommand command) const override;
  QStringList BlockFormats() const override;
  HtmlDocument &Document() override;
  bool ShowDetails() const override;
  void SetShowDetails(bool on) override;
  bool SnapToGrid() const override;
  void SetSnapToGrid(bool on) override;

  /// What SaveDocument writes, and how much of the page that takes. `this` may be gone afterwards.
  SavedPage Compose();

 private:
  friend class WebDocument;
  friend class WebTextRange;

  using Original = DocumentHistory::Original;
  using Direction = DocumentHistory::Direction;
  /// What a load under way is for.
  enum class LoadPurpose { None, Blank, Document, Restore, Step };
  /// The document for whoever saves or keeps it. Complete in itself, since a wait has passed.
  struct Reading {
    QString html;
    Original original;  ///< what the document came from
    bool isEditorGone = false;
    /// The page is alive and did not answer: it may hold more than `html`.
    bool isUnanswered = false;
  };

  EngineView &View();
  void ConnectView();

  // Loading (WebEditorLoading.cpp)
  /// Takes a page's bytes as the document, links resolving against the file.
  void TakeBytes(const QByteArray &bytes, const QString &nativePath);
  void Replace(Original original, const QString &nativePath, LoadPurpose purpose);
  /// Begins a load and waits for its end, up to a time limit; the answer is how it went.
  enum class Loaded { Yes, No, Unknown };
  Loaded Load(LoadPurpose purpose);
  void BeginLoad(LoadPurpose purpose);
  void FinishLoad();
  void PostComplete();
  void LoadBlankIfEmpty();
  /// The document as the page has it now, or else as last seen. A person who stops the wait ends
  /// the page's process.
  Reading Read();
  /// Nothing where the page does not answer or the editor is gone.
  std::optional<QString> AskForDocument();
  /// For a wait that a person may stop; may outlive the editor.
  Patience Stoppable(const QString &message);
  /// Works out in an idle moment what a save would write.
  void ComposeAhead();

  // One document in another's place, so that undo brings it back (WebEditorReplacing.cpp)
  enum class Replaced { Done, NotPossible, Stopped };
  /// Whether links in the page on show resolve as links in that file do. A document that is the one
  /// on show, as after its first save, is given the file's address for that.
  bool SharesFolder(const FaithfulPage &page, const QString &nativePath);
  /// Exchanges the document within the page: one step of its history.
  Replaced ReplaceInPlace(const Original &original, const QString &nativePath);
  /// Loads the document; the one before is kept at this side and undo comes back to it.
  void ReplaceKeepingEarlier(Original original, const QString &nativePath);
  /// Loads the document that undo or redo comes to beyond the page's own history.
  void StepOverLoad(Direction direction);
  void ShowGeneration(int generation);

  // The mirror and bringing a page back (WebEditorRecovery.cpp)
  void StateArrived(const StateSnapshot &state);
  void LookAtPage();
  /// Takes over an answer of velor.mirror; false where it has to be asked for anew.
  bool ApplyMirror(const QVariantMap &mirror);
  void MemoryChanged();
  void Died();
  void Report(const QString &message);
  /// Files were dropped or pasted.
  void TakeFiles(const QStringList &nativePaths);

  void Run(const QString &expression);

  EditingEngine &engine_;
  Files &files_;
  QString programFolder_;
  QPointer<QWidget> container_;
  EditingListener *listener_ = nullptr;
  std::unique_ptr<WebDocument> document_;

  DocumentHistory history_;
  DocumentMirror mirror_;
  QString nativePath_;
  StateSnapshot snapshot_;
  bool showDetails_ = false;
  bool snapToGrid_ = false;

  LoadPurpose load_ = LoadPurpose::None;
  int loads_ = 0;             ///< counts the loads begun
  bool hasDocument_ = false;  ///< one that was set or loaded, not the blank page
  CrashCount crashes_;
  TypingWatch typing_;

  NoticeQueue notices_;
  std::unique_ptr<EngineView> view_;  ///< goes while the rest can still be told
  Lifetime lifetime_;                 ///< last: over before anything else goes
};

}  // namespace velor
