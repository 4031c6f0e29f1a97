// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/FlatSweeps.h"
#include "chrome/ReportingSweeps.h"
#include "chrome/WidgetControl.h"
#include "chrome/cControlFlater.h"
#include "qt/QtWindowSystem.h"
#include "tests/support/Checks.h"
#include "tests/support/FailingSweeps.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QTableWidget>
#include <QTextEdit>
#include <QVBoxLayout>

#include <memory>

namespace velor {
namespace {

TEST(ControlTypeName, NamesTheKindsThatSweepsKnow) {
  EXPECT_EQ(ControlTypeName(QPushButton()), QStringLiteral("CommandButton"));
  EXPECT_EQ(ControlTypeName(QLineEdit()), QStringLiteral("TextBox"));
  EXPECT_EQ(ControlTypeName(QTextEdit()), QStringLiteral("TextBox"));
  EXPECT_EQ(ControlTypeName(QComboBox()), QStringLiteral("ComboBox"));
  EXPECT_EQ(ControlTypeName(QScrollBar(Qt::Horizontal)), QStringLiteral("HScrollBar"));
  EXPECT_EQ(ControlTypeName(QListWidget()), QStringLiteral("ListBox"));
  EXPECT_EQ(ControlTypeName(QProgressBar()), QStringLiteral("ProgressBar"));
  EXPECT_EQ(ControlTypeName(QScrollBar(Qt::Vertical)), QString());
  EXPECT_EQ(ControlTypeName(QLabel()), QString());
}

TEST(ControlTypeName, InnerPartsOfControlsAreNoControls) {
  QComboBox combo;
  combo.setEditable(true);
  EXPECT_EQ(ControlTypeName(*combo.lineEdit()), QString());
  EXPECT_EQ(ControlTypeName(*combo.view()), QString());
  QSpinBox number;
  EXPECT_EQ(ControlTypeName(*number.findChild<QLineEdit *>()), QString());
  QTableWidget table;
  EXPECT_EQ(ControlTypeName(*table.horizontalScrollBar()), QString());
}

class FlatSweepsTest : public ::testing::Test {
 protected:
  /// A window with that many labels and combo boxes; nothing else in it.
  std::unique_ptr<QWidget> Window(int labels, int combos) {
    auto window = std::make_unique<QWidget>();
    window->setObjectName(QStringLiteral("frmTest"));
    for (int i = 0; i < labels; ++i) new QLabel(window.get());
    for (int i = 0; i < combos; ++i) new QComboBox(window.get());
    return window;
  }

  std::size_t Attached() const {
    std::size_t attached = 0;
    for (const auto &painter : sweeps.AllPainters()) attached += painter && painter->IsAttached();
    return attached;
  }

  static int ExtendedStyleOf(const QWidget &widget) {
    return widget.property(ExtendedStyleProperty).toInt();
  }

  QtWindowSystem system;
  FlatSweeps sweeps{system};
};

TEST_F(FlatSweepsTest, TheArrayReachesToTheNumberOfControlsOnEverySweep) {
  const auto first = Window(4, 0);
  sweeps.FlatSweep(*first);
  EXPECT_EQ(sweeps.AllPainters().size(), 5U);
  EXPECT_EQ(sweeps.CountOfPainters(), 0);
  const auto second = Window(1, 0);
  sweeps.FlatComboSweep(*second);
  EXPECT_EQ(sweeps.AllPainters().size(), 2U);
}

TEST_F(FlatSweepsTest, MenuItemsCountAsControls) {
  QMainWindow window;
  const auto widgets = [&] { return window.findChildren<QWidget *>().size(); };
  QMenu *menu = window.menuBar()->addMenu(QStringLiteral("File"));
  menu->addAction(QStringLiteral("New"));
  menu->addSeparator();
  menu->addMenu(QStringLiteral("More"))->addAction(QStringLiteral("Less"));
  sweeps.FlatSweep(window);
  // File, New, the separator, More and Less.
  EXPECT_EQ(sweeps.AllPainters().size(), static_cast<std::size_t>(widgets()) + 5 + 1);
}

TEST_F(FlatSweepsTest, PaintersAreCountedOverAllWindowsInTheOrderOfTheControls) {
  const auto first = Window(5, 2);
  sweeps.FlatComboSweep(*first);
  const auto second = Window(5, 1);
  sweeps.FlatComboSweep(*second);
  EXPECT_EQ(sweeps.CountOfPainters(), 3);
  EXPECT_EQ(sweeps.AllPainters().size(), 7U);
  for (std::size_t index = 0; index < 3; ++index) {
    EXPECT_NE(sweeps.AllPainters()[index], nullptr) << index;
  }
  EXPECT_EQ(sweeps.AllPainters()[3], nullptr);
}

TEST_F(FlatSweepsTest, TheIndexOfTheControlCountIsStillInside) {
  const auto first = Window(6, 1);
  sweeps.FlatComboSweep(*first);
  // The list of a combo box that has a painter is there and counts; a fresh combo box has none.
  const auto second = Window(0, 1);
  sweeps.FlatComboSweep(*second);
  EXPECT_EQ(sweeps.CountOfPainters(), 2);
}

TEST_F(FlatSweepsTest, RunningPastTheEndIsASubscriptOutOfRange) {
  const auto large = Window(9, 4);
  sweeps.FlatComboSweep(*large);
  const auto small = Window(1, 1);
  EXPECT_EQ(ErrorOf([&] { sweeps.FlatComboSweep(*small); }), ErrorNumber::SubscriptOutOfRange);
  EXPECT_EQ(sweeps.AllPainters().size(), 3U);
  EXPECT_EQ(sweeps.CountOfPainters(), 4);
}

TEST_F(FlatSweepsTest, PaintersBeyondTheNewSizeGoAndThoseBelowStay) {
  const auto large = Window(9, 4);
  sweeps.FlatComboSweep(*large);
  EXPECT_EQ(Attached(), 4U);
  const auto *kept = sweeps.AllPainters()[1].get();
  sweeps.FlatSweep(*Window(1, 0));
  EXPECT_EQ(Attached(), 2U);
  EXPECT_EQ(sweeps.AllPainters()[1].get(), kept);
}

TEST_F(FlatSweepsTest, PaintersOutliveTheirWindows) {
  auto window = Window(3, 2);
  sweeps.FlatComboSweep(*window);
  window.reset();
  EXPECT_EQ(Attached(), 2U);
}

TEST_F(FlatSweepsTest, EachSweepHasItsKindsOfControls) {
  QWidget window;
  for (int i = 0; i < 20; ++i) new QLabel(&window);
  new QPushButton(&window);
  new QLineEdit(&window);
  new QComboBox(&window);
  new QScrollBar(Qt::Horizontal, &window);
  new QListWidget(&window);
  new QProgressBar(&window);
  sweeps.FlatSweep(window);
  EXPECT_EQ(sweeps.CountOfPainters(), 5);
  sweeps.FlatComboSweep(window);
  EXPECT_EQ(sweeps.CountOfPainters(), 6);
}

TEST_F(FlatSweepsTest, ThinEdgesReplaceSunkenOnes) {
  QWidget window;
  QLineEdit box(&window);
  QPushButton button(&window);
  QProgressBar bar(&window);
  QComboBox combo(&window);
  sweeps.ThinEdgeSweep(window);
  for (const QWidget *thin : std::initializer_list<QWidget *>{&box, &button, &bar}) {
    EXPECT_EQ(ExtendedStyleOf(*thin), 0x20000);
  }
  EXPECT_EQ(ExtendedStyleOf(combo), 0);
}

TEST_F(FlatSweepsTest, ThinEdgesByTypeDoNotMindLetterCase) {
  QWidget window;
  QLineEdit box(&window);
  QListWidget list(&window);
  sweeps.ThinEdgeByType(window, QStringLiteral("LISTbox"));
  EXPECT_EQ(ExtendedStyleOf(list), 0x20000);
  EXPECT_EQ(ExtendedStyleOf(box), 0);
  sweeps.ThinEdgeByType(window, QStringLiteral("textbox"));
  EXPECT_EQ(ExtendedStyleOf(box), 0x20000);
}

TEST_F(FlatSweepsTest, AThinEdgeMovesAndOrdersNothing) {
  QWidget window;
  auto *box = new QLineEdit(&window);
  auto *above = new QLabel(&window);
  box->setGeometry(10, 20, 100, 24);
  window.show();
  QWidget *active = QApplication::activeWindow();
  sweeps.ThinEdgeSweep(window);
  EXPECT_EQ(box->geometry(), QRect(10, 20, 100, 24));
  EXPECT_EQ(window.children(), (QObjectList{box, above}));
  EXPECT_EQ(QApplication::activeWindow(), active);
}

TEST_F(FlatSweepsTest, ATextBoxUnderFlatSweepIsTwoPixelsInwards) {
  QWidget window;
  auto *box = new QLineEdit(&window);
  box->setGeometry(10, 20, 100, 24);
  sweeps.FlatSweep(window);
  EXPECT_EQ(box->geometry(), QRect(12, 22, 96, 20));
}

TEST_F(FlatSweepsTest, ATextBoxInALayoutStaysTwoPixelsInwards) {
  QWidget window;
  auto *column = new QVBoxLayout(&window);
  column->setContentsMargins(10, 10, 10, 10);
  auto *box = new QTextEdit(&window);
  column->addWidget(box);
  sweeps.FlatSweep(window);
  window.resize(200, 100);
  window.show();
  EXPECT_EQ(box->geometry(), QRect(12, 12, 176, 76));
  window.resize(300, 160);
  EXPECT_EQ(box->geometry(), QRect(12, 12, 276, 136));
}

class ReportingSweepsTest : public FlatSweepsTest {};

TEST_F(ReportingSweepsTest, AnErrorDoesNotKeepTheWindowFromLoading) {
  QWidget window;
  ReportingSweeps reporting(std::make_unique<FailingSweeps>());
  EXPECT_NO_THROW(reporting.FlatSweep(window));
  EXPECT_NO_THROW(reporting.FlatComboSweep(window));
  EXPECT_NO_THROW(reporting.ThinEdgeSweep(window));
  EXPECT_NO_THROW(reporting.ThinEdgeByType(window, {}));
}

}  // namespace
}  // namespace velor
