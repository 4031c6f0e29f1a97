// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/LiveDocument.h"
#include "engine/NoticeQueue.h"
#include "engine/PageLoader.h"
#include "engine/PageReplacer.h"
#include "engine/PageSaver.h"
#include "engine/WebDocument.h"
#include "engine/WebPrinting.h"
#include "engine/WebSearch.h"
#include "engine/WebSpelling.h"
#include "platform/EditingComponent.h"

#include <map>
#include <optional>

namespace velor {

class Files;

/// The editing component on the browser engine.
///
/// The view is made with the first document, or when the widget is first seen without one: an
/// editor that is never shown costs nothing. This class passes calls to its parts and the signals
/// of the view to parts and listener: LiveDocument has the page and what is known of it, PageLoader
/// and PageReplacer put pages into it, PageSaver writes it. A page whose process has ended comes
/// back from the mirror with its original and baseline unchanged, so that what counts as edited
/// stays the same.
class WebEditor : public EditingComponent {
 public:
  /// `programFolder` in logic form: where the links of a page without a file lead.
  WebEditor(EditingEngine &engine, Files &files, const QString &programFolder, QWidget *parent);

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
  void Restore(const PageMemory &memory) override;
  QString Charset() const override;
  QString TextForm() const override;
  bool HasByteOrderMark() const override;
  void ReloadPart(const QString &path) override;
  ElementPlaces CaretPlaces() override;
  void ShowPlace(const ElementPlaces &places) override;
  ElementStretch SelectedPlaces() override;
  void ShowStretch(const ElementStretch &stretch) override;
  QVariant ExecCommand(EditingCommand command, ExecOption option, const QVariant &value) override;
  CommandStatus QueryStatus(EditingCommand command) const override;
  QStringList BlockFormats() const override;
  TextSearch &Search() override { return search_; }
  PagePrinting &Printing() override { return printing_; }
  PageSpelling *SpellCheck() override { return &spelling_; }
  void CountText(const TextCounted &counted) override;
  double Zoom() const override { return zoom_; }
  void SetZoom(double factor) override;
  HtmlDocument &Document() override;
  bool ShowDetails() const override;
  void SetShowDetails(bool on) override;
  bool SnapToGrid() const override;
  void SetSnapToGrid(bool on) override;
  /// Whether template signs in text are kept whole, from the next load on. True at first.
  void SetWholeSigns(bool on) { options_.wholeSigns = on; }
  /// Whether pages have what goes beyond the published behaviour, from the next load on. True at
  /// first.
  void SetAdditions(bool on) { options_.additions = on; }

  /// What SaveDocument writes, and how much of the page that takes. `this` may be gone afterwards.
  SavedPage Compose() { return saver_.Compose(); }

 private:
  void ConnectView(EngineView &view);
  /// Writes the page as it is now in another charset; undo brings the old bytes back. Raises
  /// RuntimeError where the page does not answer, and for a character that cannot be written there
  /// as a reference either. `this` may be gone afterwards.
  void ConvertTo(const QString &charset);
  void StateArrived(const StateSnapshot &state);
  /// The picture or the files on the clipboard go into the page.
  void PastePicture();
  /// The page asks for a file that it shows; `name` is the file's in the bridge.
  void PartAsked(const QString &name, const QString &file);
  /// Tells the listener of files that were dropped or pasted.
  void ReportFiles(const QStringList &nativePaths);
  /// The places that a call of the bridge answers.
  ElementPlaces AskForPlaces(const QString &call);
  const PageEncoding &Encoding() const;

  const EngineGuard &guard_;
  Files &files_;
  ViewOptions options_;
  double zoom_ = 1;
  TypingWatch typing_;
  /// The files that the page shows, by logic path, with their names in the bridge.
  std::map<QString, QStringList> parts_;
  std::optional<Lifetime::Watch> partsOf_;  ///< the page that they belong to
  NoticeQueue notices_;                     ///< outlives the parts, which post to it
  LiveDocument document_;
  WebDocument documentObject_;
  WebSearch search_;
  WebSpelling spelling_;
  PageLoader loader_;
  PageReplacer replacer_;
  PageSaver saver_;
  WebPrinting printing_;
};

}  // namespace velor
