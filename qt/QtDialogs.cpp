// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/QtDialogs.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QEventLoop>
#include <QFontMetrics>
#include <QGridLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

namespace velor {

namespace {

struct ButtonSet {
  QMessageBox::StandardButtons buttons;
  QMessageBox::StandardButton initial;
  /// What Escape and the close box answer.
  QMessageBox::StandardButton escape;
};

ButtonSet ButtonsOf(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::YesNo:
      return {QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, QMessageBox::No};
    case MessageButtons::YesNoCancel:
      return {QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes,
              QMessageBox::Cancel};
    case MessageButtons::Ok:
      break;
  }
  return {QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok};
}

QMessageBox::Icon IconOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::Information:
      return QMessageBox::Information;
    case MessageIcon::Question:
      return QMessageBox::Question;
    case MessageIcon::Critical:
      return QMessageBox::Critical;
    case MessageIcon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

MessageAnswer AnswerOf(QMessageBox::StandardButton button) {
  switch (button) {
    case QMessageBox::Yes:
      return MessageAnswer::Yes;
    case QMessageBox::No:
      return MessageAnswer::No;
    case QMessageBox::Cancel:
      return MessageAnswer::Cancel;
    default:
      return MessageAnswer::Ok;
  }
}

/// Ends a loop when the watched window is hidden, as closing does too.
class HideWatcher final : public QObject {
 public:
  HideWatcher(QWidget &window, QEventLoop &loop) : loop_(loop) {
    window.installEventFilter(this);
    connect(&window, &QObject::destroyed, &loop, &QEventLoop::quit);
  }

  bool eventFilter(QObject *, QEvent *event) override {
    if (event->type() == QEvent::Hide && !event->spontaneous()) loop_.quit();
    return false;
  }

 private:
  QEventLoop &loop_;
};

/// Room for the buttons and the picture that desktops put beside a title, and for a title font
/// that is larger than ours.
constexpr int TitleButtons = 170;

int WidthForTitle(const QWidget &box) {
  return box.fontMetrics().horizontalAdvance(box.windowTitle()) + TitleButtons;
}

/// Puts a window that is about to be shown over the middle of its parent. The toolkit takes the
/// desktop's frame into account only from the second showing on, and the window would jump.
void PutOverParent(QWidget &window) {
  if (window.parentWidget() == nullptr) return;
  if (!window.testAttribute(Qt::WA_Resized)) window.adjustSize();
  const QRect around = window.parentWidget()->window()->frameGeometry();
  const QRect screen = window.parentWidget()->screen()->availableGeometry();
  QRect place(QPoint(), window.size());
  place.moveCenter(around.center());
  place.moveRight(std::min(place.right(), screen.right()));
  place.moveBottom(std::min(place.bottom(), screen.bottom()));
  place.moveTopLeft({std::max(place.left(), screen.left()), std::max(place.top(), screen.top())});
  window.move(place.topLeft());
}

void SetWords(QMessageBox &box, const Message &message) {
  // The format is set before the text, which may look like markup.
  box.setTextFormat(Qt::PlainText);
  box.setText(message.text);
  box.setInformativeText(message.details);
  // The message box would guess the format of this label.
  if (auto *details = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_informativelabel")))
    details->setTextFormat(Qt::PlainText);
  // The box sizes itself by its layout.
  if (auto *grid = qobject_cast<QGridLayout *>(box.layout()))
    grid->addItem(new QSpacerItem(WidthForTitle(box), 0), grid->rowCount(), 0, 1,
                  grid->columnCount());
}

}  // namespace

MessageAnswer QtDialogs::ShowMessage(const Message &message) {
  const ButtonSet set = ButtonsOf(message.buttons);
  QMessageBox box(IconOf(message.icon), message.title, {}, set.buttons,
                  QApplication::activeWindow());
  SetWords(box, message);
  box.setDefaultButton(set.initial);
  box.setEscapeButton(set.escape);
  if (message.foreground) {
    box.setWindowFlag(Qt::WindowStaysOnTopHint);
    box.show();
    box.raise();
    box.activateWindow();
  }
  box.exec();
  return AnswerOf(box.clickedButton() == nullptr ? set.escape
                                                 : box.standardButton(box.clickedButton()));
}

int QtDialogs::Choose(const Message &message, const QStringList &captions) {
  QMessageBox box(IconOf(message.icon), message.title, {}, QMessageBox::NoButton,
                  QApplication::activeWindow());
  SetWords(box, message);
  QList<QAbstractButton *> buttons;
  // Of one role, so that they keep their order.
  for (const QString &caption : captions)
    buttons << box.addButton(caption, QMessageBox::ActionRole);
  box.setDefaultButton(qobject_cast<QPushButton *>(buttons.constFirst()));
  box.setEscapeButton(buttons.constLast());
  box.exec();
  const auto pressed = static_cast<int>(buttons.indexOf(box.clickedButton()));
  return pressed < 0 ? static_cast<int>(buttons.size()) - 1 : pressed;
}

QString QtDialogs::AskText(const QString &prompt, const QString &title,
                           const QString &defaultAnswer) {
  QInputDialog box(QApplication::activeWindow());
  box.setWindowTitle(title);
  box.setLabelText(prompt);
  if (auto *label = box.findChild<QLabel *>()) label->setTextFormat(Qt::PlainText);
  box.setTextValue(defaultAnswer);
  // The box sizes itself by what it holds.
  if (auto *line = box.findChild<QLineEdit *>()) line->setMinimumWidth(WidthForTitle(box));
  return box.exec() == QDialog::Accepted ? box.textValue() : QString();
}

void QtDialogs::RunModal(QWidget &dialog) {
  QEventLoop loop;
  HideWatcher watcher(dialog, loop);
  dialog.setWindowModality(Qt::ApplicationModal);
  PutOverParent(dialog);
  dialog.show();
  dialog.activateWindow();
  // A window that hid itself while it was being shown has ended already.
  if (dialog.isVisible()) loop.exec(QEventLoop::DialogExec);
}

}  // namespace velor
