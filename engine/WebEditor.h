// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/EngineView.h"
#include "engine/NoticeQueue.h"
#include "engine/PageMirror.h"
#include "engine/StateSnapshot.h"
#include "page/saving/FaithfulPage.h"
#include "platform/EditingComponent.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace velor {

class Files;
class WebDocument;

/// The editing component on the browser engine.
///
/// The view is made with the first document, or when the widget is first seen without one: an
/// editor that is never shown costs nothing. States come from the pushed snapshot. A mirror of the
/// document is kept on this side: it answers while the page cannot, and a page whose process has
/// ended comes back from it with what it was loaded from (original and baseline) unchanged, so
/// that what counts as edited stays the same.
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

  /// What a load under way is for.
  enum class LoadPurpose { None, Blank, Document, Restore, Travel };
  /// The document and the selection's place as they were last seen on this side.
  struct Mirror {
    PageMirror page;
    QVariant start;
    QVariant end;
  };
  /// What the document came from; never null. Shared with the saves that are under way.
  using Original = std::shared_ptr<FaithfulPage>;
  /// A document that a load took the place of.
  struct Kept {
    Original original;
    QString html;
  };
  enum class Direction { Earlier, Later };

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
  void LoadBlankIfEmpty();
  /// The document as the page has it now; nothing when it does not answer (then `this` may be
  /// gone). A person who stops the wait ends the page's process, and the mirror is what there is.
  std::optional<QString> Read();
  /// For a wait that a person may stop; harmless when `this` is gone.
  Patience Stoppable(const QString &message);
  /// Works out in an idle moment what a save would write.
  void ComposeAhead();

  // One document in another's place, so that undo brings it back (WebEditorReplacing.cpp)
  enum class Replaced { Done, NotPossible, Stopped };
  /// Exchanges the document within the page: one step of its history.
  Replaced ReplaceInPlace(const Original &original, const QString &nativePath);
  /// Loads the document; the one before is kept at this side and undo comes back to it.
  void ReplaceKeepingEarlier(Original original, const QString &nativePath);
  static void Keep(std::vector<Kept> &documents, Kept kept);
  void Travel(Direction direction);
  /// Makes the original of that generation the one in force.
  void FollowGeneration(int generation);

  // The mirror and bringing a page back (WebEditorRecovery.cpp)
  void StateArrived(const StateSnapshot &state);
  void TakeMirrorSoon();
  void TakeMirror();
  /// Follows an answer of velor.mirror; false where it has to be asked for anew.
  bool Follow(const QVariantMap &mirror);
  void MirrorTaken();
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

  Original original_ = std::make_shared<FaithfulPage>();
  QString nativePath_;
  int lastGeneration_ = 0;
  int generation_ = 0;                 ///< of the document in force, within one load
  std::map<int, Original> originals_;  ///< of the other generations
  std::vector<Kept> earlier_;          ///< the one that was there last comes last
  std::vector<Kept> later_;
  StateSnapshot snapshot_;
  bool showDetails_ = false;
  bool snapToGrid_ = false;

  LoadPurpose load_ = LoadPurpose::None;
  int loads_ = 0;             ///< counts the loads begun
  bool hasDocument_ = false;  ///< one that was set or loaded, not the blank page
  int deaths_ = 0;            ///< of the page's process, in quick succession
  QElapsedTimer sinceDeath_;
  Mirror mirror_;
  bool isIdle_ = false;
  QElapsedTimer sinceInput_;
  QTimer mirrorTimer_;
  QTimer idleTimer_;  ///< runs out when a person rests, the mirror taken

  NoticeQueue notices_;
  std::unique_ptr<EngineView> view_;  ///< last: goes first, while the rest can still be told
};

}  // namespace velor
