// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/text/PageText.h"
#include "platform/EditingCommands.h"
#include "platform/EditingComponent.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "tests/support/FakePagePrinting.h"
#include "tests/support/FakeTextSearch.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace velor {

/// An editing component without an engine: the document is a text, the selection a range of it, and
/// the test sets states and values. It keeps the contract of the real one (loading and saving
/// through Files, the completion notice after the call has returned), and notes every call as
/// "Name(arguments)".
class FakeEditingComponent final : public EditingComponent,
                                   public HtmlDocument,
                                   public DocumentSelection {
 public:
  /// `log`: where calls are written, so that several fakes share one order; its own when null.
  FakeEditingComponent(Files &files, QWidget *parent, std::vector<QString> *log = nullptr);
  ~FakeEditingComponent() override;

  // What tests script.
  std::map<EditingCommand, CommandStatus> statuses;  ///< Enabled where absent
  std::map<EditingCommand, QVariant> values;         ///< of query commands; empty text where absent
  QStringList blockFormats = BlockFormatNames();
  SelectionType selectionType = SelectionType::None;
  HtmlElement element;  ///< at the caret, and the selected object where `object` is null
  HtmlElement object;   ///< selected
  HtmlElement link;     ///< that the selection is in
  QStringList elementPath;
  PathChoices pathChoices;  ///< of every element of the path
  QList<int> pathElements;  ///< their numbers; without any each one's is its index
  QRect objectPlace;
  QRect selectedCells;
  std::map<PropertySubject, PropertyValues> properties;
  /// The stretch of the document's text that is selected; after loading the start of the body.
  qsizetype selectionStart = 0;
  qsizetype selectionEnd = 0;
  ElementPlaces caretPlaces;
  ElementPlaces endPlaces;  ///< of the selection's end; empty for a caret
  bool isIdle = false;
  QString reasonToWriteAnew;
  /// Called once while LoadDocument or Restore waits; may close the page.
  std::function<void()> whileLoading;
  FakeTextSearch search;
  FakePagePrinting printing;
  TextCounts counts;
  double zoom = 1;
  std::optional<RuntimeError> nextLoadFailure;  ///< raised once by LoadDocument and LoadText
  std::optional<RuntimeError> nextSaveFailure;  ///< raised once by SaveDocument

  // What a person or the engine does.
  /// Replaces the selected text, the caret after it, and tells of the changed display.
  void TypeText(const QString &text);
  /// Replaces the document's text, as editing would; only MemoryChanged is told.
  void Edit(const QString &html);
  /// Delivers the pending completion notice at once instead of by the event loop.
  void CompleteDocument();
  void ChangeDisplay();
  void RequestContextMenu(QPoint screenPosition);
  void NotifyMouse(int clientX, int clientY);
  void Report(const QString &message);

  // What tests read.
  const std::vector<QString> &Calls() const { return *log_; }
  void ForgetCalls() { log_->clear(); }
  QString toolTip;

  // EditingComponent
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
  QString ReasonToWriteAnew() override { return reasonToWriteAnew; }
  PageMemory Memory() const override;
  bool IsIdle() const override { return isIdle; }
  void Restore(const PageMemory &memory) override;
  QString Charset() const override;
  QString TextForm() const override { return InWords(original_.page.encoding); }
  bool HasByteOrderMark() const override { return original_.page.encoding.byteOrderMark; }
  ElementPlaces CaretPlaces() override { return caretPlaces; }
  void ShowPlace(const ElementPlaces &places) override { ShowStretch({places}); }
  ElementStretch SelectedPlaces() override { return {caretPlaces, endPlaces}; }
  void ShowStretch(const ElementStretch &stretch) override {
    caretPlaces = stretch.start;
    endPlaces = stretch.end;
  }
  QVariant ExecCommand(EditingCommand command, ExecOption option, const QVariant &value) override;
  CommandStatus QueryStatus(EditingCommand command) const override;
  QStringList BlockFormats() const override { return blockFormats; }
  TextSearch &Search() override { return search; }
  PagePrinting &Printing() override { return printing; }
  void CountText(const TextCounted &counted) override { counted(counts); }
  double Zoom() const override { return zoom; }
  void SetZoom(double factor) override { zoom = factor; }
  HtmlDocument &Document() override;
  bool ShowDetails() const override;
  void SetShowDetails(bool on) override;
  bool SnapToGrid() const override;
  void SetSnapToGrid(bool on) override;

  // HtmlDocument and DocumentSelection. Links and attributes are noted only.
  HtmlElement Link() const override { return link; }
  void SetLink(const HtmlAttributes &attributes, const QString &text) override;
  void SetBookmark(const QString &name) override;
  void ChangeObject(const HtmlAttributes &attributes, ParagraphSide side) override;
  void SetProperties(PropertyOwner owner, const PropertyValues &changed) override;
  PropertyValues Properties(PropertyOwner owner) override { return properties[owner.subject]; }
  QStringList Path() const override { return elementPath; }
  void ActOnPath(int index, PathDeed deed) override;
  PathChoices ChoicesOnPath(int) override { return pathChoices; }
  int PathElement(int index) const override { return pathElements.value(index, index); }
  QRect ObjectPlace() const override { return objectPlace; }
  QRect SelectedCells() const override { return selectedCells; }
  void SetClassOnPath(int index, const QString &name, bool on) override;
  DocumentSelection &Selection() override;
  SelectionType Type() const override;
  std::unique_ptr<TextRange> CreateRange() override;
  HtmlElement ControlElement() const override;

 private:
  bool OutlivesTheWait();
  friend class FakeTextRange;

  void Log(const QString &call) const;
  void Take(PageOriginal original);
  /// What Undo brings back.
  struct State {
    PageOriginal original;
    QString document;
  };
  void KeepForUndo();
  /// Files copied in a file manager are pasted as dropped ones.
  void ReportCopiedFiles();

  Files &files_;
  mutable std::vector<QString> ownLog_;
  std::vector<QString> *log_;
  QPointer<QWidget> widget_;
  EditingListener *listener_ = nullptr;
  PageOriginal original_;
  QString base_;
  QString current_;  ///< LF line breaks, like an engine's serialisation
  std::vector<State> earlier_;
  QTimer completion_;
  bool showDetails_ = false;
  bool snapToGrid_ = false;
};

}  // namespace velor
