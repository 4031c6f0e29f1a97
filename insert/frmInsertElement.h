// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insert/ElementHtml.h"
#include "platform/HtmlDocument.h"

#include <QDialog>

#include <array>
#include <cstdint>
#include <memory>

class QCheckBox;
class QComboBox;
class QLabel;
class QTabWidget;

namespace velor {

class Components;
class Dialogs;
class FileDialog;
class Runtime;
class SourceControl;
class StylingSweeps;
class TextBox;

/// The boxes of a page's half "Appearance", the same for pictures and videos.
struct AppearanceBoxes {
  QComboBox *alignment = nullptr;
  TextBox *border = nullptr;
  TextBox *horizontalSpacing = nullptr;
  TextBox *verticalSpacing = nullptr;
  QCheckBox *sizeFromBoxes = nullptr;
  TextBox *height = nullptr;
  TextBox *width = nullptr;
};

/// What OK does while the first box of the page, the element's address or name, is empty: nothing
/// goes into the document in either case. Published is that the dialog goes and the selected
/// content with it; Refused says so in the dialog, which stays.
enum class EmptyAddress { Taken, Refused };

/// The element dialog: pages for a picture, a hyperlink, a bookmark and a video. Only a picture
/// reaches the document; OK on the other pages, and in edit mode, changes nothing.
///
/// One instance serves the whole run: OK, Cancel and the close box hide it, so that every field is
/// found as it was left. Shown modally by the caller.
class frmInsertElement : public QDialog {
  Q_OBJECT

 public:
  /// `runtime`, `dialogs` and `components` outlive the dialog; `components` makes the file dialog
  /// of its browse buttons. Without `sweeps` the controls keep the palette's own look.
  frmInsertElement(Runtime &runtime, Dialogs &dialogs, Components &components,
                   StylingSweeps *sweeps, QWidget *parent = nullptr);
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
  EmptyAddress OnEmptyAddress = EmptyAddress::Taken;

  /// Prepares the next showing: sets the fields above for inserting an element of that mode into
  /// `document`, and makes its page the current and only available one. `savedPath` is the file of
  /// the edited page in logic form, empty while it has none.
  void PrepareInsert(const QString &elementMode, HtmlDocument &document, const QString &savedPath);

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
  QString Browse(const QString &filter);
  void ShowPicture(const QString &file);
  void ShowThatItCannotBeShown(const QString &file);
  ImageValues Values() const;

  Runtime &runtime_;
  Dialogs &dialogs_;
  Components &components_;
  std::unique_ptr<FileDialog> fileDialog_;
  PictureSize picture_;

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

  TextBox *linkTarget_ = nullptr;

  TextBox *videoLoops_ = nullptr;
  QCheckBox *videoLoopsForever_ = nullptr;
  AppearanceBoxes videoLook_;
};

}  // namespace velor
