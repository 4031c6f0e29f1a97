// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QKeySequence>
#include <QLabel>
#include <QMap>
#include <QMenu>
#include <QRadioButton>
#include <QSet>
#include <QTabBar>
#include <QTest>

#include <functional>
#include <gtest/gtest.h>

namespace velor {

inline QString NameOf(const QWidget &control) {
  const auto *button = qobject_cast<const QAbstractButton *>(&control);
  const bool isNamed = button == nullptr || !control.objectName().isEmpty();
  return isNamed ? control.objectName() : button->text().remove(u'&');
}

/// What a key meets from where the keyboard is, until it is back there or where `isEnd` says.
inline QStringList WalkByKey(
    Qt::Key key, QWidget &start,
    const std::function<bool(const QWidget &)> &isEnd = [](const QWidget &) { return false; }) {
  constexpr int Enough = 100;
  QStringList met{NameOf(start)};
  for (int step = 0; step < Enough; ++step) {
    QTest::keyClick(QApplication::focusWidget(), key);
    const QWidget *now = QApplication::focusWidget();
    if (now == nullptr || now == &start || isEnd(*now)) return met;
    met.append(NameOf(*now));
  }
  ADD_FAILURE() << "the key never comes back: " << met.join(u' ').toStdString();
  return met;
}

/// A window is walked by Tab from where its keyboard is, and by Shift+Tab the same way back.
inline QString WalkBothWays(QWidget &start) {
  const QStringList met = WalkByKey(Qt::Key_Tab, start);
  QStringList back = WalkByKey(Qt::Key_Backtab, start);
  std::reverse(back.begin() + 1, back.end());
  EXPECT_EQ(back.join(u' ').toStdString(), met.join(u' ').toStdString()) << "by Shift+Tab";
  return met.join(u' ');
}

/// What no assistive technology could name or Tab does not meet, of the usable controls in sight of
/// the window or bar that has the keyboard; empty where all is well.
inline QString OutOfReach(const QWidget &window) {
  QSet<const QWidget *> met;
  QWidget *start = QApplication::focusWidget();
  if (start == nullptr) return QStringLiteral("no keyboard");
  WalkByKey(Qt::Key_Tab, *start, [&](const QWidget &now) {
    met.insert(&now);
    return !window.isAncestorOf(&now);
  });
  met.insert(start);
  QStringList missed;
  for (QWidget *control : window.findChildren<QWidget *>()) {
    const auto *radio = qobject_cast<const QRadioButton *>(control);
    const bool isStop = (control->focusPolicy() & Qt::TabFocus) != 0 &&
                        control->focusProxy() == nullptr &&
                        (radio == nullptr || radio->isChecked());
    if (!isStop || control->window() != window.window() || !control->isVisible() ||
        !control->isEnabled())
      continue;
    const QString name =
        QLatin1String(control->metaObject()->className()) + u' ' + NameOf(*control);
    if (!met.contains(control)) missed.append(name + QStringLiteral(" is not met"));
    if (QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name).isEmpty())
      missed.append(name + QStringLiteral(" has no name"));
  }
  return missed.join(u"; ");
}

/// The Alt keys that more than one usable control in sight has, with the captions of those; empty
/// where each has its own.
inline QString SharedAltKeys(const QWidget &window) {
  QMap<QString, QStringList> captions;
  const auto addKey = [&](const QKeySequence &key, const QString &caption) {
    if (!key.isEmpty()) captions[key.toString()].append(caption);
  };
  const auto add = [&](const QString &caption) {
    addKey(QKeySequence::mnemonic(caption), caption);
  };
  const auto isUsable = [&](const QWidget &control) {
    return control.isVisibleTo(&window) && control.isEnabledTo(&window) &&
           control.window() == window.window();
  };
  for (const auto *button : window.findChildren<QAbstractButton *>()) {
    if (isUsable(*button)) addKey(button->shortcut(), button->text());
  }
  for (const auto *label : window.findChildren<QLabel *>()) {
    if (label->buddy() != nullptr && isUsable(*label) && isUsable(*label->buddy()))
      add(label->text());
  }
  for (const auto *bar : window.findChildren<QTabBar *>()) {
    for (int tab = 0; isUsable(*bar) && tab < bar->count(); ++tab) {
      if (bar->isTabEnabled(tab) && bar->isTabVisible(tab)) add(bar->tabText(tab));
    }
  }
  QStringList shared;
  for (auto key = captions.cbegin(); key != captions.cend(); ++key) {
    if (key->size() > 1) shared.append(key.key() + QStringLiteral(": ") + key->join(u", "));
  }
  return shared.join(u"; ");
}

}  // namespace velor
