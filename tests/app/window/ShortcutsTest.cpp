// SPDX-License-Identifier: GPL-3.0-or-later
// Keys of commands that a person chooses.
#include "app/window/FrmShortcuts.h"
#include "tests/app/window/WindowFixture.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

namespace velor {
namespace {

class ShortcutsTest : public WindowFixture {
 protected:
  /// Opens the window, lets the person act in it and presses a button.
  void Use(const char *button, const std::function<void(QWidget &)> &act) {
    dialogs.ExpectModal([=](QWidget &shown) {
      shown.show();
      act(shown);
      In<QPushButton>(shown, button).click();
    });
    Choose("mnuShortcuts");
  }
  template <typename Control>
  static Control &In(QWidget &shown, const char *name) {
    return *shown.findChild<Control *>(QString::fromLatin1(name));
  }
  static QTreeWidgetItem &Row(QWidget &shown, const char *name) {
    return *In<QTreeWidget>(shown, "lstCommands")
                .findItems(QString::fromLatin1(name), Qt::MatchExactly)
                .value(0);
  }
  /// Presses a key for the command of that name.
  static void Press(QWidget &shown, const char *name, Qt::Key key,
                    Qt::KeyboardModifiers modifiers = {}) {
    In<QTreeWidget>(shown, "lstCommands").setCurrentItem(&Row(shown, name));
    QTest::keyClick(&In<KeyBox>(shown, "txtKey"), key, modifiers);
  }
  static std::string KeyOf(QWidget &shown, const char *name) {
    return Row(shown, name).text(1).toStdString();
  }
  static std::string NoteOf(QWidget &shown, const char *name) {
    return Row(shown, name).text(2).toStdString();
  }
  static std::string State(QWidget &shown) {
    return In<QLabel>(shown, "lblState").text().toStdString();
  }
  static bool CanEnd(QWidget &shown) { return In<QPushButton>(shown, "cmdOK").isEnabled(); }
  std::string KeyOf(const char *item) { return Item(item)->shortcut().toString().toStdString(); }
  std::optional<QString> Stored(const char *item) {
    const auto value = registry.Query(QStringLiteral("Software\\Company\\VelorCDMaker\\shortcuts"),
                                      QString::fromLatin1(item));
    return value ? std::optional(value->text) : std::nullopt;
  }
};

constexpr Qt::KeyboardModifiers ControlAlt = Qt::ControlModifier | Qt::AltModifier;

TEST_F(ShortcutsTest, EachCommandIsListedWithItsKeyAndFoundByItsWords) {
  Use("cmdCancel", [](QWidget &shown) {
    EXPECT_EQ(KeyOf(shown, "New Document"), "Ctrl+N");
    EXPECT_EQ(KeyOf(shown, "Link"), "Ctrl+K");
    EXPECT_EQ(KeyOf(shown, "Align Center"), "");
    EXPECT_EQ(NoteOf(shown, "Bold"), "in the page Ctrl+B");
    EXPECT_EQ(NoteOf(shown, "Redo"), "in the page Ctrl+Y, Ctrl+Shift+Z");
    EXPECT_TRUE(CanEnd(shown));
    const auto &list = In<QTreeWidget>(shown, "lstCommands");
    EXPECT_GT(list.topLevelItemCount(), 90);
    In<QLineEdit>(shown, "txtWords").setText(QStringLiteral("photo"));
    EXPECT_EQ(list.currentItem()->text(0), QStringLiteral("Image"));
    EXPECT_TRUE(Row(shown, "New Document").isHidden());
    In<QLineEdit>(shown, "txtWords").setText(QStringLiteral("ctrl+shift+p"));
    EXPECT_EQ(list.currentItem()->text(0), QStringLiteral("Find Command"));
    In<QLineEdit>(shown, "txtWords").setText(QStringLiteral("no such thing"));
    EXPECT_FALSE(In<KeyBox>(shown, "txtKey").isEnabled());
  });
  EXPECT_TRUE(registry.Writes().isEmpty());
}

TEST_F(ShortcutsTest, AKeyThatIsChosenCountsAtOnceEverywhereAndAtTheNextStart) {
  NewPage();
  Use("cmdOK", [](QWidget &shown) {
    Press(shown, "Find", Qt::Key_J, ControlAlt);
    Press(shown, "Bold", Qt::Key_F8);
    Press(shown, "Snap to Grid", Qt::Key_F9);
    Press(shown, "Print", Qt::Key_Delete);
    EXPECT_EQ(KeyOf(shown, "Find"), "Ctrl+Alt+J");
    EXPECT_EQ(In<KeyBox>(shown, "txtKey").text(), QString());
  });
  EXPECT_EQ(KeyOf("mnuFind"), "Ctrl+Alt+J");
  EXPECT_EQ(KeyOf("mnuPrint"), "");
  EXPECT_EQ(KeyOf("mnuReplace"), "Ctrl+H");
  EXPECT_EQ(Find<QAction>("tbrEdit_bold")->toolTip(), QStringLiteral("Bold (F8)"));
  EXPECT_EQ(Find<QAction>("tbrEdit_italic")->toolTip(), QStringLiteral("Italic"));
  EXPECT_EQ(Stored("mnuFind"), QStringLiteral("Ctrl+Alt+J"));
  EXPECT_EQ(Stored("mnuPrint"), QStringLiteral("None"));
  EXPECT_EQ(Stored("mnuReplace"), std::nullopt);
  dialogs.ExpectModal([](QWidget &palette) {
    const auto &list = In<QListWidget>(palette, "lstCommands");
    EXPECT_EQ(list.findItems(QStringLiteral("Find (Ctrl+Alt+J)"), Qt::MatchExactly).size(), 1);
    EXPECT_EQ(list.findItems(QStringLiteral("Bold (F8)"), Qt::MatchExactly).size(), 1);
    palette.close();
  });
  Choose("mnuFindCommand");

  MfrmProgram next{platform, values};
  const auto nextItem = [&next](const char *name) {
    return next.findChild<QAction *>(QString::fromLatin1(name));
  };
  EXPECT_EQ(nextItem("mnuFind")->shortcut().toString(), QStringLiteral("Ctrl+Alt+J"));
  EXPECT_TRUE(nextItem("mnuPrint")->shortcut().isEmpty());
  EXPECT_EQ(nextItem("extSnap")->shortcut().toString(), QStringLiteral("F9"));
}

TEST_F(ShortcutsTest, AKeyRunsACommandWhoseMenuWasNeverOpened) {
  frmMain &page = NewPage();
  window.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  Use("cmdOK", [](QWidget &shown) {
    Press(shown, "Insert Row Below", Qt::Key_F8);
    Press(shown, "Bring to Front", Qt::Key_F9);
    Press(shown, "Align Center", Qt::Key_B, Qt::ControlModifier);
  });
  for (const EditingCommand command :
       {EditingCommand::InsertRowBelow, EditingCommand::BringToFront})
    Component(page).statuses[command] = CommandStatus::Enabled;
  log.clear();
  QTest::keyClick(Component(page).Widget(), Qt::Key_F8);
  QTest::keyClick(Component(page).Widget(), Qt::Key_F9);
  QTest::keyClick(Component(page).Widget(), Qt::Key_B, Qt::ControlModifier);
  EXPECT_EQ(Commands().join(u' ').toStdString(),
            "ExecCommand(6001) ExecCommand(6021) ExecCommand(5024)");
}

TEST_F(ShortcutsTest, ConflictsAreToldBeforeOk) {
  Use("cmdCancel", [](QWidget &shown) {
    Press(shown, "Find", Qt::Key_H, Qt::ControlModifier);
    EXPECT_EQ(NoteOf(shown, "Find"), "Replace has this key too");
    EXPECT_EQ(NoteOf(shown, "Replace"), "Find has this key too");
    EXPECT_EQ(State(shown), "Ctrl+H: Find; Replace has this key too");
    EXPECT_FALSE(CanEnd(shown));
    Press(shown, "Replace", Qt::Key_B, Qt::ControlModifier);
    EXPECT_EQ(NoteOf(shown, "Replace"), "goes before Bold in the page");
    EXPECT_TRUE(CanEnd(shown));
    // A key that stands beside the first one of its command.
    Press(shown, "Print", Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_EQ(NoteOf(shown, "Print"), "Zoom In has this key too");
    In<QPushButton>(shown, "cmdReset").click();
    EXPECT_EQ(KeyOf(shown, "Print"), "Ctrl+P");
    EXPECT_TRUE(CanEnd(shown));
    In<QPushButton>(shown, "cmdResetAll").click();
    EXPECT_EQ(KeyOf(shown, "Replace"), "Ctrl+H");
    EXPECT_EQ(KeyOf(shown, "Find"), "Ctrl+F");
  });
  EXPECT_EQ(KeyOf("mnuFind"), "Ctrl+F");
}

TEST_F(ShortcutsTest, KeysThatAreNoCommandsAreRefused) {
  struct Refusal {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    const char *words;
  };
  const Refusal refusals[] = {
      {Qt::Key_X, Qt::NoModifier, "X types, moves or deletes."},
      {Qt::Key_X, Qt::ShiftModifier, "Shift+X types, moves or deletes."},
      {Qt::Key_Left, Qt::ControlModifier, "Ctrl+Left types, moves or deletes."},
      {Qt::Key_F6, Qt::NoModifier, "F6 is a key of the window."},
      {Qt::Key_F, Qt::AltModifier, "Alt+F opens the menu File."},
  };
  Use("cmdCancel", [&](QWidget &shown) {
    for (const auto &[key, modifiers, words] : refusals) {
      Press(shown, "Print", key, modifiers);
      EXPECT_EQ(State(shown), words);
      EXPECT_EQ(KeyOf(shown, "Print"), "Ctrl+P");
    }
  });
}

TEST_F(ShortcutsTest, AStoredKeyThatMeansNothingOrIsTakenCountsForNothing) {
  const auto store = [this](const char *item, const char *key) {
    registry.SetText(QStringLiteral("Software\\Company\\VelorCDMaker\\shortcuts"),
                     QString::fromLatin1(item), QString::fromLatin1(key));
  };
  store("mnuFind", "rubbish");
  store("mnuPrint", "Alt+F");
  store("mnuSpelling", "Ctrl+H");
  store("mnuAbout", "Ctrl+H");
  MfrmProgram next{platform, values};
  const auto keyOf = [&next](const char *name) {
    return next.findChild<QAction *>(QString::fromLatin1(name))
        ->shortcut()
        .toString()
        .toStdString();
  };
  EXPECT_EQ(keyOf("mnuFind"), "Ctrl+F");
  EXPECT_EQ(keyOf("mnuPrint"), "Ctrl+P");
  EXPECT_EQ(keyOf("mnuSpelling"), "Ctrl+H");
  EXPECT_EQ(keyOf("mnuReplace"), "");
  EXPECT_EQ(keyOf("mnuAbout"), "");
}

class ShortcutsWithoutAdditions : public WindowFixture {
 protected:
  ShortcutsWithoutAdditions() : WindowFixture(Additions::Off) {}
};

TEST_F(ShortcutsWithoutAdditions, ThePublishedKeysStand) {
  registry.SetText(QStringLiteral("Software\\Company\\VelorCDMaker\\shortcuts"),
                   QStringLiteral("mnuSave"), QStringLiteral("F8"));
  MfrmProgram next{platform, values};
  EXPECT_EQ(next.findChild<QAction *>(QStringLiteral("mnuSave"))->shortcut().toString(),
            QStringLiteral("Ctrl+S"));
  EXPECT_EQ(next.findChild<QAction *>(QStringLiteral("mnuShortcuts")), nullptr);
}

}  // namespace
}  // namespace velor
