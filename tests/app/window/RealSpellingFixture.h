// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/SpellingBar.h"
#include "editor/frmMain.h"
#include "platform/Paths.h"
#include "spelling/HunspellSpelling.h"
#include "tests/app/window/RealWindowFixture.h"
#include "tests/support/Waiting.h"

#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>

#include <memory>

namespace velor {

/// The main window with an English and a German dictionary of a few words, and what a person sees
/// of the bar and the menu at a word; `shown` is the window of a page or of its source.
class RealSpelling : public RealWindow {
 protected:
  RealSpelling() {
    Write(QStringLiteral("en_US.aff"), "SET UTF-8\nTRY esianrtolcdugmphbyfvkwz'\n");
    Write(QStringLiteral("en_US.dic"), "5\nhouse\ngarden\nthe\nin\nand\n");
    Write(QStringLiteral("de_DE.aff"), "SET UTF-8\n");
    Write(QStringLiteral("de_DE.dic"), "2\nHaus\nHose\n");
    spelling = std::make_unique<HunspellSpelling>(
        files, SpellingPlaces{{folder.FilePath(QString())}, Logic(QStringLiteral("words.txt"))},
        [] { return QStringLiteral("en"); });
    platform.spelling = spelling.get();
  }
  static SpellingBar &Bar(QWidget &shown) { return *shown.findChild<SpellingBar *>(); }
  /// Whether the bar comes to tell of the word.
  static bool GoesTo(QWidget &shown, const char *word) {
    auto *text = Bar(shown).findChild<QLabel *>(QStringLiteral("lblUnknownWord"));
    return WaitFor([&] {
      return Bar(shown).isVisible() &&
             text->text() == QStringLiteral("Unknown word: ") + QString::fromLatin1(word);
    });
  }
  static QPushButton &Button(QWidget &shown, const char *name) {
    return *Bar(shown).findChild<QPushButton *>(QString::fromLatin1(name));
  }
  static void Press(QWidget &shown, const char *button) { Button(shown, button).click(); }
  static QComboBox &Other(QWidget &shown) {
    return *Bar(shown).findChild<QComboBox *>(QStringLiteral("cobSuggestions"));
  }
  static QStringList Captions(const QList<QAction *> &actions) {
    QStringList captions;
    for (const QAction *action : actions) captions << action->text();
    return captions;
  }
  /// The menu of that name, once it is shown.
  static QMenu *ShownMenu(QWidget &shown, const char *name) {
    QMenu *menu = nullptr;
    EXPECT_TRUE(WaitFor([&] {
      menu = shown.findChild<QMenu *>(QString::fromLatin1(name));
      return menu != nullptr && menu->isVisible();
    })) << name;
    return menu;
  }
  std::string Saved() {
    Choose("mnuSave");
    return Bytes(QStringLiteral("words.htm")).toStdString();
  }

  std::unique_ptr<HunspellSpelling> spelling;
};

}  // namespace velor
