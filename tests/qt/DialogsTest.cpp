// SPDX-License-Identifier: GPL-3.0-or-later
// Message boxes, questions, modal windows and file dialogs as a person meets them.
#include "platform/Paths.h"
#include "qt/QtDialogs.h"
#include "qt/QtFileDialog.h"
#include "qt/QtPrinters.h"
#include "tests/support/Checks.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/KeyboardWalk.h"
#include "tests/support/Waiting.h"

#include <QCloseEvent>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <functional>
#include <gtest/gtest.h>
#include <optional>

namespace velor {
namespace {

Message Question(MessageButtons buttons) {
  Message message;
  message.text = QStringLiteral("Is <b>this</b> text?");
  message.title = QStringLiteral("Closing doucment...");
  message.buttons = buttons;
  return message;
}

TEST(MessageBox, ShowsExactlyTheTextAsPlainTextTheTitleAndTheButtons) {
  QtDialogs dialogs;
  OnDialog<QMessageBox> person([](QMessageBox &box) {
    EXPECT_EQ(box.windowTitle(), QStringLiteral("Closing doucment..."));
    EXPECT_EQ(box.text(), QStringLiteral("Is <b>this</b> text?"));
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(box.icon(), QMessageBox::NoIcon);
    box.button(QMessageBox::Yes)->click();
  });
  EXPECT_EQ(dialogs.ShowMessage(Question(MessageButtons::YesNo)), MessageAnswer::Yes);
}

TEST(MessageBox, HasTheApplicationsTitleWhenNoneIsGiven) {
  QtDialogs dialogs;
  OnDialog<QMessageBox> person([](QMessageBox &box) {
    EXPECT_EQ(box.windowTitle(), QStringLiteral("Velor Web Creator"));
    box.button(QMessageBox::Ok)->click();
  });
  Message message;
  message.text = QStringLiteral("Done");
  EXPECT_EQ(dialogs.ShowMessage(message), MessageAnswer::Ok);
}

TEST(MessageBox, AnswersTheButtonThatWasPressed) {
  QtDialogs dialogs;
  const std::pair<QMessageBox::StandardButton, MessageAnswer> answers[] = {
      {QMessageBox::Yes, MessageAnswer::Yes},
      {QMessageBox::No, MessageAnswer::No},
      {QMessageBox::Cancel, MessageAnswer::Cancel}};
  for (const auto &answer : answers) {
    OnDialog<QMessageBox> person(
        [&answer](QMessageBox &box) { box.button(answer.first)->click(); });
    EXPECT_EQ(dialogs.ShowMessage(Question(MessageButtons::YesNoCancel)), answer.second);
  }
}

TEST(MessageBox, TabAndArrowsMeetEveryButtonOfAQuestion) {
  QtDialogs dialogs;
  OnDialog<QMessageBox> person([](QMessageBox &box) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
    auto *yes = box.button(QMessageBox::Yes);
    EXPECT_EQ(QApplication::focusWidget(), yes);
    EXPECT_EQ(WalkBothWays(*yes).toStdString(), "Yes No Cancel");
    EXPECT_EQ(WalkByKey(Qt::Key_Right, *yes).join(u' ').toStdString(), "Yes No Cancel");
    EXPECT_EQ(SharedAltKeys(box).toStdString(), "");
    QTest::keyClick(yes, Qt::Key_Left);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  });
  EXPECT_EQ(dialogs.ShowMessage(Question(MessageButtons::YesNoCancel)), MessageAnswer::Cancel);
}

TEST(TextPrompt, TabMeetsTheBoxAndBothButtons) {
  QtDialogs dialogs;
  OnDialog<QInputDialog> person([](QInputDialog &box) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
    auto *line = box.findChild<QLineEdit *>();
    EXPECT_EQ(QApplication::focusWidget(), line);
    line->setObjectName(QStringLiteral("line"));
    EXPECT_EQ(WalkBothWays(*line).toStdString(), "line OK Cancel");
    EXPECT_EQ(SharedAltKeys(box).toStdString(), "");
    QTest::keyClicks(line, QStringLiteral("a@b.example"));
    QTest::keyClick(line, Qt::Key_Return);
  });
  EXPECT_EQ(
      dialogs.AskText(QStringLiteral("Enter the address"), QStringLiteral("Link to"), QString()),
      QStringLiteral("a@b.example"));
}

TEST(MessageBox, EscapeAnswersCancelElseNoElseOk) {
  QtDialogs dialogs;
  const std::pair<MessageButtons, MessageAnswer> answers[] = {
      {MessageButtons::YesNoCancel, MessageAnswer::Cancel},
      {MessageButtons::YesNo, MessageAnswer::No},
      {MessageButtons::Ok, MessageAnswer::Ok}};
  for (const auto &answer : answers) {
    OnDialog<QMessageBox> person([](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(dialogs.ShowMessage(Question(answer.first)), answer.second);
  }
}

/// Runs the program's event loop until exit(): like the program, not until its last window closes.
void RunProgram() {
  QGuiApplication::setQuitOnLastWindowClosed(false);
  QCoreApplication::exec();
}

/// Runs `ask` in the program's event loop, which ends while the question waits.
void EndBehind(const std::function<void()> &ask) {
  QTimer::singleShot(0, ask);
  QTimer::singleShot(0, [] { QCoreApplication::exit(); });
  RunProgram();
}

TEST(MessageBox, AnswersAsEscapeDoesWhereTheProgramEndsBehindIt) {
  QtDialogs dialogs;
  const std::pair<MessageButtons, MessageAnswer> answers[] = {
      {MessageButtons::YesNoCancel, MessageAnswer::Cancel},
      {MessageButtons::YesNo, MessageAnswer::No},
      {MessageButtons::Ok, MessageAnswer::Ok}};
  for (const auto &[buttons, expected] : answers) {
    std::optional<MessageAnswer> answer;
    EndBehind([&, kind = buttons] { answer = dialogs.ShowMessage(Question(kind)); });
    EXPECT_EQ(answer, expected);
  }
  std::optional<int> choice;
  const QStringList captions = {QStringLiteral("One"), QStringLiteral("Two"),
                                QStringLiteral("Neither")};
  EndBehind([&] { choice = dialogs.Choose(Question(MessageButtons::Ok), captions); });
  EXPECT_EQ(choice, 2);
}

TEST(MessageBox, CarriesEachIcon) {
  QtDialogs dialogs;
  const std::pair<MessageIcon, QMessageBox::Icon> icons[] = {
      {MessageIcon::Information, QMessageBox::Information},
      {MessageIcon::Question, QMessageBox::Question},
      {MessageIcon::Critical, QMessageBox::Critical}};
  for (const auto &icon : icons) {
    Message message = Question(MessageButtons::Ok);
    message.icon = icon.first;
    message.foreground = true;
    OnDialog<QMessageBox> person([&icon](QMessageBox &box) {
      EXPECT_EQ(box.icon(), icon.second);
      box.accept();
    });
    dialogs.ShowMessage(message);
  }
}

TEST(TextQuestion, GivesTheTypedText) {
  QtDialogs dialogs;
  OnDialog<QInputDialog> person([](QInputDialog &box) {
    EXPECT_EQ(box.windowTitle(), QStringLiteral("Target"));
    EXPECT_EQ(box.labelText(), QStringLiteral("Name:"));
    EXPECT_EQ(box.findChild<QLabel *>()->textFormat(), Qt::PlainText);
    auto *edit = box.findChild<QLineEdit *>();
    EXPECT_EQ(edit->text(), QStringLiteral("top"));
    edit->setText(QStringLiteral("bottom"));
    box.accept();
  });
  EXPECT_EQ(
      dialogs.AskText(QStringLiteral("Name:"), QStringLiteral("Target"), QStringLiteral("top")),
      QStringLiteral("bottom"));
}

TEST(TextQuestion, AndMessagesAreWideEnoughForTheirTitles) {
  QtDialogs dialogs;
  const QString title(30, u'M');
  const auto isWide = [&title](const QWidget &box) {
    return box.width() >= box.fontMetrics().horizontalAdvance(title) + 100;
  };
  {
    OnDialog<QInputDialog> person([&](QInputDialog &box) {
      EXPECT_TRUE(isWide(box));
      box.reject();
    });
    dialogs.AskText(QStringLiteral("Name:"), title, {});
  }
  Message message{.text = QStringLiteral("Short"), .title = title};
  {
    OnDialog<QMessageBox> person([&](QMessageBox &box) {
      EXPECT_TRUE(isWide(box));
      box.accept();
    });
    dialogs.ShowMessage(message);
  }
  OnDialog<QMessageBox> person([&](QMessageBox &box) {
    EXPECT_TRUE(isWide(box));
    box.buttons().constFirst()->click();
  });
  dialogs.Choose(message, {QStringLiteral("One"), QStringLiteral("Two")});
}

TEST(TextQuestion, GivesTheEmptyTextWhenItIsCancelled) {
  QtDialogs dialogs;
  OnDialog<QInputDialog> person([](QInputDialog &box) { box.reject(); });
  EXPECT_EQ(dialogs.AskText(QStringLiteral("Name:"), {}, QStringLiteral("top")), QString());
}

TEST(ModalWindow, ReturnsWhenTheWindowCloses) {
  QtDialogs dialogs;
  QDialog window;
  OnDialog<QDialog> person([](QDialog &shown) { shown.accept(); });
  dialogs.RunModal(window);
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(window.result(), QDialog::Accepted);
}

TEST(ModalWindow, ReturnsWhenTheWindowHidesAndCanBeShownAgain) {
  QtDialogs dialogs;
  QWidget window;
  for (int showing = 0; showing < 2; ++showing) {
    OnDialog<QWidget> person([](QWidget &shown) { shown.hide(); });
    dialogs.RunModal(window);
    EXPECT_FALSE(window.isVisible());
  }
}

TEST(ModalWindow, LiesOverTheMiddleOfItsParentAtEveryShowing) {
  QtDialogs dialogs;
  QWidget parent;
  parent.setGeometry(150, 120, 400, 300);
  parent.show();
  QDialog window(&parent);
  window.setMinimumSize(200, 100);
  QPoint first;
  for (int showing = 0; showing < 2; ++showing) {
    OnDialog<QDialog> person([&](QDialog &shown) {
      const QPoint middle = QRect(shown.pos(), shown.size()).center();
      EXPECT_LE((middle - parent.frameGeometry().center()).manhattanLength(), 2);
      if (showing == 0) first = shown.pos();
      EXPECT_EQ(shown.pos(), first);
      shown.accept();
    });
    dialogs.RunModal(window);
  }
}

TEST(ModalWindow, ReturnsWhenTheWindowIsDestroyed) {
  QtDialogs dialogs;
  auto *window = new QDialog;
  window->setAttribute(Qt::WA_DeleteOnClose);
  const QPointer<QDialog> watched(window);
  OnDialog<QDialog> person([](QDialog &shown) { delete &shown; });
  dialogs.RunModal(*window);
  EXPECT_TRUE(watched.isNull());
}

TEST(NameFilters, AreMadeOfDescriptionsAndPatternsInBothLetterCases) {
  EXPECT_EQ(NameFilters(QStringLiteral("Database(*.mdb;)|*.mdb")),
            QStringList{QStringLiteral("Database(*.mdb;) (*.mdb *.MDB)")});
  const QStringList images = {QStringLiteral("Images (*.gif *.GIF *.jpg *.JPG)"),
                              QStringLiteral("All (*)")};
  EXPECT_EQ(NameFilters(QStringLiteral("Images|*.gif;*.jpg|All|*.*")), images);
  EXPECT_EQ(NameFilters({}), QStringList());
}

TEST(NameFilters, GiveTheSuffixOfTheFirstPatternThatHasOne) {
  EXPECT_EQ(DefaultSuffix(QStringLiteral("HTML File *.htm|*.htm")), QStringLiteral("htm"));
  EXPECT_EQ(DefaultSuffix(QStringLiteral("All|*.*")), QString());
}

class FileDialogs : public ::testing::Test {
 protected:
  FileDialogs() { dialog_.Filter = QStringLiteral("HTML File *.htm|*.htm"); }

  QString Native(const QString &name) const { return folder_.filePath(name); }
  QString Logic(const QString &name) const { return ToLogic(Native(name)); }

  void MakeFile(const QString &name) {
    QFile file(Native(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }

  static void Choose(QFileDialog &box, const QString &path) {
    box.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(path);
    QMetaObject::invokeMethod(&box, "accept");
  }

  QTemporaryDir folder_;
  QtFileDialog dialog_;
};

TEST_F(FileDialogs, OpenGivesTheChosenFileInLogicFormAndRemembersIt) {
  MakeFile(QStringLiteral("page #1.htm"));
  OnDialog<QFileDialog> person([this](QFileDialog &box) {
    EXPECT_EQ(box.acceptMode(), QFileDialog::AcceptOpen);
    EXPECT_EQ(box.nameFilters(), QStringList{QStringLiteral("HTML File *.htm (*.htm *.HTM)")});
    Choose(box, Native(QStringLiteral("page #1.htm")));
  });
  EXPECT_EQ(dialog_.ShowOpen(), Logic(QStringLiteral("page #1.htm")));
  EXPECT_EQ(dialog_.FileName, Logic(QStringLiteral("page #1.htm")));
}

TEST_F(FileDialogs, QuotationMarksWithinANameArePartOfItAndThoseAroundItAreNot) {
  const QString marked = QStringLiteral("a \"b\" c.htm");
  MakeFile(marked);
  MakeFile(QStringLiteral("plain.htm"));
  const auto answered = [this](const QString &name, QString (QtFileDialog::*show)()) {
    OnDialog<QFileDialog> person([&](QFileDialog &box) {
      box.setDirectory(folder_.path());
      Choose(box, name);
      // A name that leads nowhere leaves the dialog as it is.
      if (box.isVisible()) box.reject();
    });
    return (dialog_.*show)();
  };
  EXPECT_EQ(answered(marked, &QtFileDialog::ShowOpen), Logic(marked));
  EXPECT_EQ(answered(QStringLiteral("\"plain.htm\""), &QtFileDialog::ShowOpen),
            Logic(QStringLiteral("plain.htm")));
  EXPECT_EQ(answered(QStringLiteral("say \"no\""), &QtFileDialog::ShowSave),
            Logic(QStringLiteral("say \"no\".htm")));
}

TEST_F(FileDialogs, ACancelledShowingGivesTheEmptyNameAndKeepsTheOneItHeld) {
  dialog_.FileName = Logic(QStringLiteral("held.htm"));
  OnDialog<QFileDialog> person([](QFileDialog &box) { box.reject(); });
  EXPECT_EQ(dialog_.ShowOpen(), QString());
  EXPECT_EQ(dialog_.FileName, Logic(QStringLiteral("held.htm")));
}

TEST_F(FileDialogs, CancellingIsAnErrorWhenThatIsAskedFor) {
  dialog_.CancelError = true;
  OnDialog<QFileDialog> person([](QFileDialog &box) { box.reject(); });
  EXPECT_EQ(ErrorOf([this] { dialog_.ShowSave(); }), ErrorNumber::DialogCancelled);
}

TEST_F(FileDialogs, ANameInAMissingFolderLeavesThePersonInTheNearestOne) {
  dialog_.FileName = Logic(QStringLiteral("missing/deeper/new.htm"));
  OnDialog<QFileDialog> person([this](QFileDialog &box) {
    EXPECT_EQ(box.directory().absolutePath(), QDir(folder_.path()).absolutePath());
    EXPECT_EQ(box.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->text(),
              QStringLiteral("new.htm"));
    box.reject();
  });
  dialog_.ShowSave();
}

TEST_F(FileDialogs, TheNextShowingStartsAtTheFileItHolds) {
  MakeFile(QStringLiteral("held.htm"));
  dialog_.FileName = Logic(QStringLiteral("held.htm"));
  OnDialog<QFileDialog> person([this](QFileDialog &box) {
    EXPECT_EQ(box.directory().absolutePath(), QDir(folder_.path()).absolutePath());
    EXPECT_EQ(box.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->text(),
              QStringLiteral("held.htm"));
    box.reject();
  });
  dialog_.ShowOpen();
}

TEST_F(FileDialogs, AFileThatMustExistIsAskedForUntilItDoes) {
  dialog_.Flags = FileDialog::FileMustExist;
  OnDialog<QFileDialog> person([](QFileDialog &box) {
    EXPECT_EQ(box.fileMode(), QFileDialog::ExistingFile);
    box.reject();
  });
  dialog_.ShowOpen();
}

TEST_F(FileDialogs, SaveAddsTheFiltersSuffixToANameWithoutOne) {
  OnDialog<QFileDialog> person([this](QFileDialog &box) {
    EXPECT_EQ(box.acceptMode(), QFileDialog::AcceptSave);
    Choose(box, Native(QStringLiteral("new page")));
  });
  EXPECT_EQ(dialog_.ShowSave(), Logic(QStringLiteral("new page.htm")));
}

TEST_F(FileDialogs, SaveAsksBeforeATakenNameWhenItIsToldTo) {
  dialog_.Flags = FileDialog::OverwritePrompt;
  for (const QString &name : {QStringLiteral("taken.htm"), QStringLiteral("a \"b\".htm")}) {
    MakeFile(name);
    OnDialog<QFileDialog> person([&](QFileDialog &box) {
      OnDialog<QMessageBox> yes([&](QMessageBox &question) {
        EXPECT_EQ(question.text(),
                  name + QStringLiteral(" already exists.\nDo you want to replace it?"));
        question.button(QMessageBox::Yes)->click();
      });
      Choose(box, Native(name));
    });
    EXPECT_EQ(dialog_.ShowSave(), Logic(name));
  }
}

TEST_F(FileDialogs, TheFirstFoldersColumnsAreReadable) {
  MakeFile(QStringLiteral("a.htm"));
  dialog_.FileName = Logic(QStringLiteral("a.htm"));
  OnDialog<QFileDialog> person([](QFileDialog &box) {
    auto *list = box.findChild<QTreeView *>(QStringLiteral("treeView"));
    const QAbstractItemView &items = *list;
    const auto isReadable = [&] {
      const QHeaderView &header = *list->header();
      if (list->model()->rowCount(list->rootIndex()) != 1) return false;
      for (int column = 0; column < header.count(); ++column) {
        if (header.sectionSize(column) < items.sizeHintForColumn(column)) return false;
      }
      return header.length() <= list->viewport()->width();
    };
    EXPECT_TRUE(WaitFor(isReadable));
    box.reject();
  });
  dialog_.ShowOpen();
}

TEST_F(FileDialogs, SaveTakesATakenNameUnaskedOtherwise) {
  MakeFile(QStringLiteral("taken.htm"));
  OnDialog<QFileDialog> person(
      [this](QFileDialog &box) { Choose(box, Native(QStringLiteral("taken.htm"))); });
  EXPECT_EQ(dialog_.ShowSave(), Logic(QStringLiteral("taken.htm")));
}

TEST(PrintDialogs, PrintToFileWritesThePagesThatAreWanted) {
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("sheets.pdf"));
  QtDialogs dialogs;
  QtPrinters printers(dialogs);
  QWidget parent;
  OnDialog<QPrintDialog> person([&](QPrintDialog &box) {
    EXPECT_EQ(box.printer()->docName(), QStringLiteral("page.htm"));
    box.findChild<QLineEdit *>(QStringLiteral("filename"))->setText(file);
    box.accept();
  });
  auto printer = printers.Choose({QStringLiteral("page.htm"), QSizeF(842, 595), 2}, parent);
  ASSERT_NE(printer, nullptr);
  EXPECT_EQ(printer->Pages(), QList<int>({0, 1}));
  for (const int page : printer->Pages()) {
    EXPECT_TRUE(
        printer->PrintPage(QSizeF(842, 595), [page](QPainter &painter, const QRectF &place) {
          // As wide as the paper, which lies across.
          EXPECT_NEAR(place.width() / place.height(), 842.0 / 595, 0.01) << page;
          painter.fillRect(place, Qt::red);
        }));
  }
  printer.reset();
  QFile written(file);
  ASSERT_TRUE(written.open(QIODevice::ReadOnly));
  const QByteArray pdf = written.readAll();
  EXPECT_TRUE(pdf.startsWith("%PDF"));
  EXPECT_TRUE(pdf.contains("/Count 2"));
}

TEST(PrintDialogs, ACancelledOneGivesNoPrinter) {
  QtDialogs dialogs;
  QtPrinters printers(dialogs);
  QWidget parent;
  OnDialog<QPrintDialog> person([](QPrintDialog &box) { box.reject(); });
  EXPECT_EQ(printers.Choose({QStringLiteral("a"), QSizeF(595, 842), 1}, parent), nullptr);
}

}  // namespace
}  // namespace velor
