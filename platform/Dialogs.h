// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace velor {

enum class MessageIcon { None, Information, Question, Critical };
enum class MessageButtons { Ok, YesNo, YesNoCancel };
enum class MessageAnswer { Ok, Yes, No, Cancel };

/// The application's title, used by message boxes without a title of their own.
inline constexpr const char16_t *ApplicationTitle = u"Velor Web Creator";

/// One modal message box: plain text, exactly these words, buttons and icon.
struct Message {
  QString text;
  /// Stands below the text in smaller letters: the file and the reason in words, say.
  QString details = {};
  QString title = QString::fromUtf16(ApplicationTitle);
  MessageButtons buttons = MessageButtons::Ok;
  MessageIcon icon = MessageIcon::None;
  /// Raised above the windows of other programs.
  bool foreground = false;
};

/// Modal questions to the person. Closing a box by its close button or Escape answers Cancel where
/// there is one, else No, else Ok.
class Dialogs {
 public:
  virtual ~Dialogs() = default;

  virtual MessageAnswer ShowMessage(const Message &message) = 0;

  /// Shows a message with a button for each of these captions, instead of `message.buttons`.
  /// Returns the index of the one pressed; the last for the close button and Escape.
  virtual int Choose(const Message &message, const QStringList &captions) = 0;

  /// Asks for one line of text; returns the empty text when cancelled.
  virtual QString AskText(const QString &prompt, const QString &title,
                          const QString &defaultAnswer) = 0;

  /// Shows a dialog widget modally; returns when it has closed or been hidden.
  virtual void RunModal(QWidget &dialog) = 0;
};

/// A file dialog whose fields keep their values from one showing to the next. Paths in logic form.
class FileDialog {
 public:
  /// The chosen file must exist (open dialogs).
  static constexpr int FileMustExist = 4096;
  /// Ask before a name that exists is taken (save dialogs).
  static constexpr int OverwritePrompt = 2;

  virtual ~FileDialog() = default;

  /// Whether a cancelled showing raises RuntimeError DialogCancelled (32755) rather than returning
  /// the empty text.
  bool CancelError = false;
  /// Pairs of description and patterns separated by "|", patterns separated by ";".
  QString Filter;
  /// Sum of the flags above.
  int Flags = 0;
  /// The full path that the dialog starts with, and afterwards the one chosen. A cancelled showing
  /// leaves it unchanged.
  QString FileName;

  /// Shows the dialog; returns the path chosen now, the empty text when cancelled.
  virtual QString ShowOpen() = 0;
  virtual QString ShowSave() = 0;
};

}  // namespace velor
