// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insert/DialogScope.h"
#include "insert/ElementDialogParts.h"
#include "insert/ElementHtml.h"
#include "platform/HtmlDocument.h"

#include <QDialog>
#include <QSize>
#include <QTimer>

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

class QLabel;
class QTabWidget;

namespace velor {

class Components;
class Dialogs;
class FileDialog;
class Runtime;
class SourceControl;
class StylingSweeps;
/// The element dialog: pages for a picture, a hyperlink, a bookmark and a video. One instance
/// serves the whole run: OK, Cancel and the close box hide it. Shown modally by the caller.
///
/// Published: only a picture reaches the document; OK on the other pages, and in edit mode, changes
/// nothing; every field is found as it was left. Extended: each opening begins anew, filled with
/// what is selected; OK makes, changes or removes that, and says why where it cannot; links lead to
/// files whatever these are called.
class frmInsertElement : public QDialog {
  Q_OBJECT

 public:
  /// `runtime`, `dialogs` and `components` outlive the dialog; `components` makes the file dialog
  /// of its browse buttons. Without `sweeps` the controls keep the palette's own look.
  frmInsertElement(Runtime &runtime, Dialogs &dialogs, Components &components,
                   StylingSweeps *sweeps, QWidget *parent = nullptr,
                   DialogScope scope = DialogScope::Published);
  ~frmInsertElement() override;

  // Set before the dialog is shown; PrepareInsert sets all that an insertion needs.
  HtmlDocument *TheDOM = nullptr;
  SourceControl *TheCode = nullptr;
  HtmlElement inImage;
  HtmlElement inHyperlink;
  HtmlElement inTarget;
  HtmlElement inVideo;
  /// "true" inserts; any other text edits.
  QString InsertMode;
  /// "image", "video", "hyperlink" or "target".
  QString ElementMode;
  /// "true" when the page has a file, which FilePath then names; else "false".
  QString SavedMode;
  QString FilePath;
  /// Whether the result goes into TheDOM rather than TheCode.
  bool IsCreator = false;
  /// What Browse has written since the last PrepareInsert.
  std::vector<FullAddress> FullAddresses;

  /// Prepares the next showing: sets the fields above for inserting an element of that mode into
  /// `document`, and makes its page the current and only available one. `savedPath` is the file of
  /// the edited page in logic form, empty while it has none.
  void PrepareInsert(const QString &elementMode, HtmlDocument &document, const QString &savedPath);

  /// Fills the fields with what is selected in the page; Extended only, after PrepareInsert.
  void FillFrom(const EditedPage &page);

  /// For 1 returns the picture's HTML. For 2, 3 and 4 puts a new element into inHyperlink, inTarget
  /// or inVideo. Returns the empty text for all numbers but 1.
  QString GenerateCode(std::int32_t &InsertWhat);

 Q_SIGNALS:
  /// An operation failed and the dialog shows nothing of it; `message` is for the status bar.
  void Reported(const QString &message);

 protected:
  void showEvent(QShowEvent *event) override;

 private:
  // Building (ElementDialogPages.cpp).
  void Build();
  QWidget *BuildImagePage();
  QWidget *BuildHyperlinkPage();
  QWidget *BuildTargetPage();
  QWidget *BuildVideoPage();

  void Connect();
  TextBox *FirstBox() const;
  void InsertAndClose();
  void BrowseForImage();
  void BrowseForLinkTarget();
  void AskForMailAddress();
  /// Fills `box` with the link from the page to the file.
  void FillWithLink(TextBox *box, const QString &file);
  /// Whether a cancelled Browse leaves the box as it is.
  bool KeepsAddress(const TextBox *box, const QString &file) const;
  QString Browse(const QString &filter);
  void ShowPicture(const QString &file);
  void ShowThatItCannotBeShown(const QString &file);
  ImageValues Values() const;

  // Additions (ElementDialogAdditions.cpp).
  void ConnectAdditions();
  void ResetFields();
  void FillLook(const AppearanceBoxes &look, const ImageValues &values);
  void FillPicture();
  /// The values as they are to be in the page: the size is that of the boxes or the picture's own.
  ImageValues TrueValues() const;
  VideoValues Video() const;
  /// Browse for another box than the picture's and the link's.
  void BrowseInto(TextBox *box, const QString &filter);
  /// Loads the picture that the source box names, where that is a file.
  void ShowTypedPicture();
  void ShowBookmarks();
  void TakeBookmark();
  /// Why OK does not close the dialog; empty where it does.
  QString Refusal() const;
  void ChangePage();
  void ChangePicture(const ImageValues &values);
  void SetLink();

  Runtime &runtime_;
  Dialogs &dialogs_;
  Components &components_;
  const DialogScope scope_;
  std::unique_ptr<FileDialog> fileDialog_;
  PictureSize picture_;
  QSize pixels_;  ///< of the loaded picture; empty for none

  QTabWidget *pages_ = nullptr;
  QLabel *refusal_ = nullptr;
  /// The box of each page in which typing starts.
  std::array<TextBox *, 4> firstBoxes_{};

  TextBox *imageSource_ = nullptr;
  TextBox *lowResolutionSource_ = nullptr;
  TextBox *alternativeText_ = nullptr;
  QLabel *preview_ = nullptr;
  QLabel *previewCaption_ = nullptr;
  AppearanceBoxes imageLook_;

  HyperlinkPage link_;
  TextBox *bookmarkName_ = nullptr;
  QListWidget *otherBookmarks_ = nullptr;

  VideoPage video_;
  AppearanceBoxes videoLook_;

  EditedPage page_;
  /// The selected picture's values as the dialog shows them.
  ImageValues shown_;
  QTimer typedPicture_;
};

}  // namespace velor
