// SPDX-License-Identifier: GPL-3.0-or-later
// Rectangles of cells: selected by the pointer and by keys, shown, and what is done to all of them.
#include "tests/engine/bridge/ObjectsFixture.h"

namespace velor {
namespace {

/// A cell is 100 pixels wide and 40 high: the one in row y and column x is named by its letter.
class Cells : public Objects {
 protected:
  void LoadTable(const QString &rows = QStringLiteral("<tr><td>a</td><td>b</td><td>c</td></tr>"
                                                      "<tr><td>d</td><td>e</td><td>f</td></tr>"
                                                      "<tr><td>g</td><td>h</td><td>i</td></tr>")) {
    page_.Load(QStringLiteral("<!DOCTYPE html><html><head><style>body { margin: 0 }"
                              "table { border-collapse: collapse }"
                              "td, th { width: 100px; height: 40px; padding: 0; text-align: left }"
                              "</style></head><body><table><tbody>") +
               rows + QStringLiteral("</tbody></table><p>below</p></body></html>"));
    loaded_ = Body();
  }
  static QPoint At(int column, int row) { return {column * 100 + 50, row * 40 + 20}; }
  /// The texts of the cells that are selected as such.
  QString Chosen() {
    return Text(
        QStringLiteral("(inside.selection.cellsIn(getSelection().getRangeAt(0)) ?? [])"
                       ".map((cell) => cell.textContent).join()"));
  }
  bool BecomesChosen(const QString &cells) {
    return WaitFor([&] { return Chosen() == cells; }, 5000);
  }
  /// Selects from one cell to another, by their texts.
  void Choose(const QString &from, const QString &to) {
    Evaluate(QStringLiteral("{ const cell = (text) => [...document.querySelectorAll('td, th')]"
                            ".find((each) => each.textContent === text);"
                            "inside.tables.selectCells(cell('%1'), cell('%2')) }")
                 .arg(from, to));
  }
  /// The texts of the table's cells, a row each.
  QString Table() {
    return Text(
        QStringLiteral("[...document.querySelector('table').rows].map((row) => [...row.cells]"
                       ".map((cell) => cell.textContent).join()).join('; ')"));
  }
  QString Bold() {
    return Text(
        QStringLiteral("[...document.querySelectorAll('b')].map((each) => each.textContent)"
                       ".join()"));
  }
  /// What a copy or cut puts on the clipboard.
  QString Copied(const QString &kind, const QString &type) {
    return Text(QStringLiteral("{ const clipboardData = new DataTransfer();"
                               "  document.body.dispatchEvent(new ClipboardEvent('%1',"
                               "    { clipboardData, bubbles: true, cancelable: true }));"
                               "  globalThis.copied = clipboardData.getData('text/html');"
                               "  clipboardData.getData('%2') }")
                    .arg(kind, type));
  }
  void PasteCopied() {
    Evaluate(
        QStringLiteral("inside.insert({ html: copied, text: '', addresses: '' }, "
                       "'insertFromPaste')"));
  }
  void Undo() { Evaluate(QStringLiteral("velor.exec(5049)")); }
};

TEST_F(Cells, ADragFromOneCellToAnotherSelectsTheRectangleBetween) {
  LoadTable();
  Drag(At(1, 0), At(2, 1));
  EXPECT_TRUE(BecomesChosen(QStringLiteral("b,c,e,f"))) << qPrintable(Chosen());
  Drag(At(2, 1), At(0, 2));
  EXPECT_TRUE(BecomesChosen(QStringLiteral("d,e,f,g,h,i"))) << qPrintable(Chosen());
  EXPECT_EQ(Text(QStringLiteral("JSON.stringify(velor.state().cells)")),
            QStringLiteral("[0,1,2,2]"));
  page_.Click(At(0, 0));
  EXPECT_TRUE(BecomesChosen(QString()));
  EXPECT_EQ(Body(), loaded_);
}

TEST_F(Cells, ADragFromTheHeadIntoTheBodySelectsCellsAndNotTheTable) {
  LoadTable(
      QStringLiteral("</tbody><thead><tr><th>a</th><th>b</th></tr></thead><tbody>"
                     "<tr><td>c</td><td>d</td></tr>"));
  Drag(At(0, 0), At(1, 1));
  EXPECT_TRUE(BecomesChosen(QStringLiteral("a,b,c,d"))) << qPrintable(Chosen());
  page_.Type(QStringLiteral(""));
  EXPECT_EQ(Selected(), QString());
  EXPECT_EQ(Chosen(), QStringLiteral("a,b,c,d"));
}

TEST_F(Cells, ADragThatComesBackSelectsTextAgain) {
  LoadTable();
  page_.Button(QEvent::MouseButtonPress, At(0, 0));
  page_.Move(At(1, 0), Qt::LeftButton);
  EXPECT_TRUE(BecomesChosen(QStringLiteral("a,b")));
  page_.Move({1, 20}, Qt::LeftButton);
  EXPECT_TRUE(BecomesChosen(QString()));
  EXPECT_TRUE(Comes(QStringLiteral("getSelection().toString() === 'a'")))
      << qPrintable(Text(QStringLiteral("getSelection().toString()")));
  page_.Button(QEvent::MouseButtonRelease, {1, 20});
}

TEST_F(Cells, AClickWithShiftSelectsUpToThatCell) {
  LoadTable();
  page_.Click(At(1, 1));
  page_.Button(QEvent::MouseButtonPress, At(0, 2), Qt::ShiftModifier);
  page_.Button(QEvent::MouseButtonRelease, At(0, 2), Qt::ShiftModifier);
  EXPECT_TRUE(BecomesChosen(QStringLiteral("d,e,g,h"))) << qPrintable(Chosen());
}

TEST_F(Cells, ShiftAndArrowsGoFromCellToCellAndEscapeEndsIt) {
  LoadTable();
  Evaluate(QStringLiteral("getSelection().collapse(document.querySelector('td').firstChild, 0)"));
  page_.Press(QKeySequence(Qt::SHIFT | Qt::Key_Right));
  EXPECT_EQ(Text(QStringLiteral("getSelection().toString()")), QStringLiteral("a"));
  EXPECT_EQ(Chosen(), QString());
  page_.Press(QKeySequence(Qt::SHIFT | Qt::Key_Right));
  EXPECT_TRUE(BecomesChosen(QStringLiteral("a,b"))) << qPrintable(Chosen());
  page_.Press(QKeySequence(Qt::SHIFT | Qt::Key_Down));
  EXPECT_TRUE(BecomesChosen(QStringLiteral("a,b,d,e"))) << qPrintable(Chosen());
  page_.Press(QKeySequence(Qt::SHIFT | Qt::Key_Left));
  EXPECT_TRUE(BecomesChosen(QStringLiteral("a,d"))) << qPrintable(Chosen());
  page_.Press(QKeySequence(Qt::Key_Escape));
  EXPECT_TRUE(BecomesChosen(QString()));
  EXPECT_EQ(Text(QStringLiteral("getSelection().anchorNode.textContent")), QStringLiteral("d"));
  EXPECT_EQ(Body(), loaded_);
}

TEST_F(Cells, ARectangleCutsNoCell) {
  LoadTable(
      QStringLiteral("<tr><td>a</td><td colspan=\"2\">b</td></tr>"
                     "<tr><td>c</td><td>d</td><td>e</td></tr>"));
  Choose(QStringLiteral("c"), QStringLiteral("d"));
  EXPECT_EQ(Chosen(), QStringLiteral("c,d"));
  page_.Press(QKeySequence(Qt::SHIFT | Qt::Key_Up));
  EXPECT_TRUE(BecomesChosen(QStringLiteral("a,b,c,d,e"))) << qPrintable(Chosen());
}

TEST_F(Cells, TheOverlayShowsTheRectangleAndTheEngineNoText) {
  LoadTable();
  Choose(QStringLiteral("a"), QStringLiteral("e"));
  EXPECT_TRUE(
      Comes(QStringLiteral("getComputedStyle(document.head, '::before').backgroundSize"
                           ".endsWith('200px 80px')")))
      << qPrintable(
             Text(QStringLiteral("getComputedStyle(document.head, '::before').backgroundSize")));
  EXPECT_EQ(Text(QStringLiteral("getComputedStyle(document.querySelector('td'), '::selection')"
                                ".backgroundColor")),
            QStringLiteral("rgba(0, 0, 0, 0)"));
  EXPECT_EQ(Body(), loaded_);
  page_.Click(At(0, 0));
  EXPECT_TRUE(Comes(
      QStringLiteral("getComputedStyle(document.head, '::before').backgroundImage === 'none'")));
}

TEST_F(Cells, FormatsApplyToAllCellsOfTheRectangleAndToNoOther) {
  LoadTable();
  Choose(QStringLiteral("b"), QStringLiteral("e"));
  Evaluate(QStringLiteral("velor.exec(5000)"));
  EXPECT_EQ(Bold(), QStringLiteral("b,e"));
  EXPECT_EQ(Chosen(), QStringLiteral("b,e"));
  EXPECT_EQ(Evaluate(QStringLiteral("velor.state().commands[5000]")).toInt(), 7);
  Evaluate(QStringLiteral("velor.exec(5024)"));
  EXPECT_EQ(Text(QStringLiteral("[...document.querySelectorAll('[style]')]"
                                ".map((each) => each.textContent).join()")),
            QStringLiteral("b,e"));
  EXPECT_EQ(Chosen(), QStringLiteral("b,e"));
  Undo();
  Undo();
  EXPECT_EQ(Body(), loaded_);
  EXPECT_EQ(Chosen(), QStringLiteral("b,e"));
}

TEST_F(Cells, DeleteClearsTheCellsAndLeavesThem) {
  LoadTable();
  Drag(At(0, 0), At(1, 1));
  ASSERT_TRUE(BecomesChosen(QStringLiteral("a,b,d,e")));
  page_.Press(QKeySequence(Qt::Key_Delete));
  EXPECT_TRUE(WaitFor([&] { return Table() == ",,c; ,,f; g,h,i"; }, 5000)) << qPrintable(Table());
  EXPECT_EQ(Text(QStringLiteral("JSON.stringify(velor.state().cells)")),
            QStringLiteral("[0,0,1,1]"));
  EXPECT_EQ(Steps(), 1);
  Undo();
  EXPECT_EQ(Body(), loaded_);
  EXPECT_EQ(Chosen(), QStringLiteral("a,b,d,e"));
}

TEST_F(Cells, TypingReplacesWhatTheCellsHoldByTextInTheFirst) {
  LoadTable();
  Choose(QStringLiteral("b"), QStringLiteral("e"));
  page_.Type(QStringLiteral("xy"));
  EXPECT_EQ(Table(), QStringLiteral("a,xy,c; d,,f; g,h,i"));
  Choose(QStringLiteral("c"), QStringLiteral("f"));
  page_.Press(QKeySequence(Qt::Key_Backspace));
  EXPECT_EQ(Table(), QStringLiteral("a,xy,; d,,; g,h,i"));
}

TEST_F(Cells, ACopyIsATableAndATextWithTabs) {
  LoadTable(
      QStringLiteral("<tr><td>a</td><td>b</td><td>c</td></tr>"
                     "<tr><td>d</td><td rowspan=\"2\">e<br>two</td><td>f</td></tr>"
                     "<tr><td>g</td><td>i</td></tr>"));
  Choose(QStringLiteral("d"), QStringLiteral("g"));
  EXPECT_EQ(Copied(QStringLiteral("copy"), QStringLiteral("text/plain")), QStringLiteral("d\ng"));
  Choose(QStringLiteral("d"), QStringLiteral("i"));
  EXPECT_EQ(Copied(QStringLiteral("copy"), QStringLiteral("text/plain")),
            QStringLiteral("d\te two\tf\ng\t\ti"));
  EXPECT_TRUE(Copied(QStringLiteral("copy"), QStringLiteral("text/html"))
                  .endsWith(QStringLiteral(
                      "<table><tbody><tr><td>d</td><td rowspan=\"2\">e<br>two</td><td>f</td></tr>"
                      "<tr><td>g</td><td>i</td></tr></tbody></table>")));
  EXPECT_EQ(Body(), loaded_);
}

TEST_F(Cells, ACutEmptiesTheCellsAndAPasteFillsOthersInOneStepEach) {
  LoadTable();
  Choose(QStringLiteral("a"), QStringLiteral("e"));
  Copied(QStringLiteral("cut"), QStringLiteral("text/html"));
  EXPECT_EQ(Table(), QStringLiteral(",,c; ,,f; g,h,i"));
  EXPECT_EQ(Steps(), 1);
  page_.Click(At(1, 1));
  ASSERT_TRUE(BecomesChosen(QString()));
  PasteCopied();
  EXPECT_EQ(Table(), QStringLiteral(",,c; ,a,b; g,d,e"));
  EXPECT_EQ(Chosen(), QStringLiteral("a,b,d,e"));
  EXPECT_EQ(Steps(), 2);
  Undo();
  Undo();
  EXPECT_EQ(Body(), loaded_);
}

TEST_F(Cells, APasteBeyondTheTablesEndGrowsIt) {
  LoadTable();
  Choose(QStringLiteral("a"), QStringLiteral("e"));
  Copied(QStringLiteral("copy"), QStringLiteral("text/html"));
  page_.Click(At(2, 2));
  ASSERT_TRUE(BecomesChosen(QString()));
  PasteCopied();
  EXPECT_EQ(Table(), QStringLiteral("a,b,c,; d,e,f,; g,h,a,b; ,,d,e"));
  Undo();
  EXPECT_EQ(Body(), loaded_);
}

TEST_F(Cells, ASpreadsheetsCellsFillTheSelectedOnes) {
  LoadTable();
  Choose(QStringLiteral("a"), QStringLiteral("b"));
  Evaluate(
      QStringLiteral("inside.insert({ html: '<table><tr><td>1</td><td><b>2</b></td></tr>"
                     "<tr><td>3</td><td>4</td></tr></table>', text: '1\\t2\\n3\\t4', "
                     "addresses: '' }, 'insertFromPaste')"));
  EXPECT_EQ(Table(), QStringLiteral("1,2,c; 3,4,f; g,h,i"));
  EXPECT_EQ(Bold(), QStringLiteral("2"));
  Choose(QStringLiteral("c"), QStringLiteral("f"));
  Evaluate(
      QStringLiteral("inside.insert({ html: '', text: '5\\n6\\n', addresses: '' }, "
                     "'insertFromPaste')"));
  EXPECT_EQ(Table(), QStringLiteral("1,2,5; 3,4,6; g,h,i"));
  EXPECT_EQ(Steps(), 2);
}

TEST_F(Cells, FilledCellsKeepTheLineEndsOfTheSource) {
  LoadTable(QStringLiteral("<tr><td>a<td>b\n  <tr><td>d<td><b>e</b>\n\n  <tr><td>g<td>h\n"));
  Choose(QStringLiteral("a"), QStringLiteral("b\\n  "));
  Evaluate(
      QStringLiteral("inside.insert({ html: '', text: '1\\t2\\n3\\t4\\n5\\t', addresses: '' }, "
                     "'insertFromPaste')"));
  EXPECT_EQ(Table(), QStringLiteral("1,2\n  ; 3,4\n\n  ; 5,\n"));
}

TEST_F(Cells, WithoutTheAdditionsARangeOverCellsIsOneOfText) {
  LoadTable();
  Evaluate(QStringLiteral("velor.start({ additions: false })"));
  Drag(At(1, 0), At(2, 1));
  EXPECT_TRUE(Comes(QStringLiteral("getSelection().toString().length > 3")));
  EXPECT_EQ(Chosen(), QString());
  EXPECT_EQ(Text(QStringLiteral("String(velor.state().cells)")), QString());
  Choose(QStringLiteral("b"), QStringLiteral("e"));
  Evaluate(QStringLiteral("velor.exec(5000)"));
  EXPECT_EQ(Bold(), QStringLiteral("b,c,d,e"));
}

/// A table of two rows and three columns of 100 pixels.
class Edges : public Cells {
 protected:
  void LoadColumns(const QString &first, const char *doctype = "<!DOCTYPE html>") {
    page_.Load(QLatin1String(doctype) +
               QStringLiteral("<html><head><style>body { margin: 0 } table { border-collapse: "
                              "collapse } td { height: 40px; padding: 0 }</style></head><body>") +
               first +
               QStringLiteral("<tr><td>d</td><td>e</td><td>f</td></tr></tbody></table></body>"
                              "</html>"));
    loaded_ = Body();
  }
  void ExpectTable(const QString &start) {
    EXPECT_TRUE(WaitFor([&] { return Body().startsWith(start); }, 5000)) << qPrintable(Body());
    EXPECT_EQ(Steps(), 1);
    Undo();
    EXPECT_EQ(Body(), loaded_);
  }
};

TEST_F(Edges, ADraggedEdgeMovesTheWidthFromOneColumnToTheNext) {
  LoadColumns(
      QStringLiteral("<table><tbody><tr><td style=\"width: 100px\">a</td>"
                     "<td style=\"width: 100px\">b</td><td style=\"width: 100px\">c</td></tr>"));
  page_.Move({100, 20});
  EXPECT_TRUE(
      Comes(QStringLiteral("getComputedStyle(document.querySelector('td')).cursor"
                           " === 'col-resize'")));
  Drag({100, 20}, {130, 20});
  ExpectTable(
      QStringLiteral("<table><tbody><tr><td style=\"width: 130px\">a</td>"
                     "<td style=\"width: 70px\">b</td><td style=\"width: 100px\">c</td></tr>"));
}

TEST_F(Edges, TheGapBetweenCellsIsAnEdgeOfATableInATableToo) {
  const QString before = QStringLiteral(
      "<table><tbody><tr><td><table cellspacing=\"4\" style=\"border-collapse: separate\"><tbody>"
      "<tr><td style=\"width: %1px\">a</td><td style=\"width: %2px\">b</td>"
      "<td style=\"width: 100px\">c</td></tr></tbody></table></td></tr>");
  LoadColumns(before.arg(100).arg(100));
  Drag({106, 24}, {136, 24});
  ExpectTable(before.arg(130).arg(70));
}

TEST_F(Edges, WidthsAreWrittenWhereThePageHasThemAndInItsUnits) {
  LoadColumns(
      QStringLiteral("<table width=\"400\"><colgroup><col width=\"25%\"><col width=\"50%\"><col>"
                     "</colgroup><tbody><tr><td>a</td><td>b</td><td>c</td></tr>"));
  Drag({100, 20}, {200, 60});
  ExpectTable(
      QStringLiteral("<table width=\"400\"><colgroup><col width=\"50%\"><col width=\"25%\"><col>"));
  LoadColumns(QStringLiteral("<table width=\"300\"><tbody><tr><td width=\"100\">a</td>"
                             "<td width=\"100\">b</td><td width=\"100\">c</td></tr>"),
              "");
  Drag({200, 60}, {180, 60});
  ExpectTable(
      QStringLiteral("<table width=\"300\"><tbody><tr><td width=\"100\">a</td>"
                     "<td width=\"80\">b</td><td width=\"120\">c</td></tr>"));
  LoadColumns(QStringLiteral("<table width=\"300\"><tbody><tr><td>a</td><td>b</td><td>c</td></tr>"),
              "");
  const auto widthOf = [this](int cell) {
    return Evaluate(QStringLiteral("document.querySelectorAll('td')[%1].getBoundingClientRect()"
                                   ".width")
                        .arg(cell))
        .toDouble();
  };
  const double first = widthOf(0);
  const double second = widthOf(1);
  Drag({qRound(first), 60}, {qRound(first) + 20, 60});
  ExpectTable(QStringLiteral("<table width=\"300\"><tbody><tr><td width=\"%1\">a</td>"
                             "<td width=\"%2\">b</td><td>c</td></tr>")
                  .arg(qRound(first + 20))
                  .arg(qRound(second - 20)));
}

TEST_F(Edges, TheWidthsAreShownBeforeThePageChangesAndEscapeLeavesIt) {
  LoadColumns(
      QStringLiteral("<table><tbody><tr><td style=\"width: 100px\">a</td>"
                     "<td style=\"width: 100px\">b</td><td style=\"width: 100px\">c</td></tr>"));
  page_.Button(QEvent::MouseButtonPress, {100, 20});
  page_.Move({140, 20}, Qt::LeftButton);
  const QString sign = QStringLiteral("getComputedStyle(document.head, '::after').content");
  EXPECT_TRUE(Comes(sign + QStringLiteral(" === '\"140 | 60\"'"))) << qPrintable(Text(sign));
  EXPECT_EQ(Evaluate(QStringLiteral("document.querySelector('td').offsetWidth")).toInt(), 140);
  EXPECT_EQ(Body(), loaded_);
  page_.Press(QKeySequence(Qt::Key_Escape));
  EXPECT_TRUE(Comes(QStringLiteral("document.querySelector('td').offsetWidth === 100")));
  page_.Button(QEvent::MouseButtonRelease, {140, 20});
  page_.Type(QStringLiteral(""));
  EXPECT_EQ(Body(), loaded_);
  EXPECT_FALSE(Evaluate(QStringLiteral("inside.history.canUndo()")).toBool());
}

TEST_F(Edges, AClickAtAnEdgePutsTheCaretThere) {
  LoadColumns(
      QStringLiteral("<table><tbody><tr><td style=\"width: 100px\">a</td>"
                     "<td style=\"width: 100px\">b</td><td style=\"width: 100px\">c</td></tr>"));
  page_.Click({101, 20});
  EXPECT_TRUE(Comes(QStringLiteral("getSelection().anchorNode.textContent === 'b'")));
  EXPECT_EQ(Body(), loaded_);
}

TEST_F(Edges, HalfOfANarrowCellIsTheCellsOwn) {
  const QString cell = QStringLiteral("<td style=\"width: 12px\">i</td>");
  LoadColumns(QStringLiteral("<table style=\"width: 36px\"><tbody><tr>") + cell + cell + cell +
              QStringLiteral("</tr>"));
  const auto isEdge = [this](int x) {
    page_.Move({x, 20});
    return Evaluate(QStringLiteral("getComputedStyle(document.querySelector('td')).cursor"
                                   " === 'col-resize'"))
        .toBool();
  };
  for (const auto &[x, expected] : {std::pair{13, true}, {16, false}, {20, false}, {23, true}})
    EXPECT_TRUE(WaitFor([&, at = x, wanted = expected] { return isEdge(at) == wanted; }, 2000))
        << x;
  page_.Click({16, 20});
  EXPECT_TRUE(Comes(QStringLiteral("getSelection().anchorNode.parentNode.cellIndex === 1")));
}

TEST_F(Edges, TheTablesRightEdgeIsDraggedAtOnce) {
  LoadColumns(
      QStringLiteral("<table width=\"300\"><tbody><tr><td>a</td><td>b</td><td>c</td></tr>"));
  page_.Move({302, 20});
  EXPECT_TRUE(Comes(QStringLiteral("getComputedStyle(document.body).cursor === 'e-resize'")));
  Drag({302, 20}, {350, 20});
  ExpectTable(QStringLiteral("<table width=\"348\"><tbody><tr><td>a</td>"));
}

TEST_F(Edges, WithoutTheAdditionsAnEdgeIsNone) {
  LoadColumns(
      QStringLiteral("<table><tbody><tr><td style=\"width: 100px\">a</td>"
                     "<td style=\"width: 100px\">b</td><td style=\"width: 100px\">c</td></tr>"));
  Evaluate(QStringLiteral("velor.start({ additions: false })"));
  Drag({100, 20}, {130, 20});
  page_.Type(QStringLiteral(""));
  EXPECT_EQ(Body(), loaded_);
}

}  // namespace
}  // namespace velor
