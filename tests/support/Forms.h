// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QString>
#include <QStringList>
#include <QTabBar>
#include <QWidget>

#include <gtest/gtest.h>

/// Reading a form as its user does: controls by name, their labels, the order of the Tab key.
namespace velor {

/// The control of that name; the test ends when there is none.
template <typename Widget>
Widget *Control(const QWidget &form, const QString &name) {
  auto *control = form.findChild<Widget *>(name);
  if (!control) throw std::invalid_argument("no control " + name.toStdString());
  return control;
}

inline bool HasLabel(const QWidget &form, const QString &text) {
  for (const QLabel *label : form.findChildren<QLabel *>()) {
    if (label->text() == text) return true;
  }
  return false;
}

/// The text of the label that leads to the control; empty without one.
inline QString LabelOf(const QWidget &form, const QWidget *control) {
  for (const QLabel *label : form.findChildren<QLabel *>()) {
    if (label->buddy() == control) return label->text();
  }
  return {};
}

/// Names of the form's named controls that Tab reaches, in its order; those on hidden pages too.
inline QStringList TabOrder(const QWidget &form) {
  QStringList names;
  for (const QWidget *at = form.nextInFocusChain(); at != &form; at = at->nextInFocusChain()) {
    const bool reached = at->focusPolicy() & Qt::TabFocus;
    const bool own = !at->objectName().isEmpty() && !at->objectName().startsWith(u"qt_") &&
                     !qobject_cast<QTabBar *>(at->parentWidget());
    if (reached && own && at->window() == &form) names.append(at->objectName());
  }
  return names;
}

}  // namespace velor
