// SPDX-License-Identifier: GPL-3.0-or-later
// What a person does in a page by keys, mouse, menus and dialogs, with the file that comes of it.
#include "editor/frmMain.h"
#include "editor/modWorkFlow.h"
#include "platform/EditingComponent.h"
#include "tests/app/window/RealWindowFixture.h"
#include "tests/engine/ComponentFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>
#include <QWebEnginePage>
#include <QWebEngineView>

namespace velor {
namespace {

const QString File = QStringLiteral("a.htm");

class RealPageEdits : public RealWindow {
 protected:
  /// A rectangle of the page, in its widget's coordinates.
  static QRect Place(frmMain &page, const QString &selector, int index = 0) {
    const QVariantList place =
        Evaluate(EngineOf(page),
                 QStringLiteral("{ const r = document.querySelectorAll('%1')[%2]"
                                ".getBoundingClientRect(); [r.x, r.y, r.width, r.height] }")
                     .arg(selector)
                     .arg(index))
            .toList();
    EXPECT_EQ(place.size(), 4) << selector.toStdString();
    return {place.value(0).toInt(), place.value(1).toInt(), place.value(2).toInt(),
            place.value(3).toInt()};
  }
  static void Click(frmMain &page, QPoint place) {
    QTest::mouseClick(InputOf(page), Qt::LeftButton, {}, place);
  }
  static bool TableIsSelected(frmMain &page) {
    return page.DHTML1().Document().Selection().Type() == SelectionType::Control;
  }
  frmMain &PageWithTable() {
    frmMain &page = Open(File, "<html><body>\n<p>Prices</p>\n</body></html>\n");
    Key(page, Qt::Key_End, Qt::ControlModifier);
    dialogs.ExpectModal([](QWidget &dialog) {
      dialog.findChild<QPushButton *>(QStringLiteral("Command1"))->click();
    });
    Choose("mnuTBLnew");
    EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("<table")); })) << Seen(page);
    return page;
  }
};

TEST_F(RealPageEdits, AFirstWordThatIsCutAndPastedBackKeepsItsBlank) {
  struct Row {
    const char *page;
    const char *within;
  };
  for (const Row &row : {Row{"<p>alpha beta gamma</p>", "p"},
                         Row{"<ul><li>alpha beta</li><li>gamma</li></ul>", "li"},
                         Row{"<p>alpha <b>beta</b> gamma</p>", "p"},
                         Row{"<table><tr><td>alpha beta</td></tr></table>", "td"}}) {
    SCOPED_TRACE(row.page);
    const QByteArray content = QByteArray("<html><body>") + row.page + "</body></html>";
    frmMain &page = Open(File, content);
    PutCaret(page, QString::fromLatin1(row.within));
    Key(page, Qt::Key_Home);
    Key(page, Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    Key(page, Qt::Key_X, Qt::ControlModifier);
    ASSERT_TRUE(WaitFor([&] { return !Holds(page, QStringLiteral("alpha")); })) << Seen(page);
    Key(page, Qt::Key_V, Qt::ControlModifier);
    ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("alpha")); })) << Seen(page);
    Choose("mnuSave");
    EXPECT_EQ(Bytes(File).toStdString(), content.toStdString());
    page.MarkKill();
    page.close();
  }
}

TEST_F(RealPageEdits, OfficeTextPastedIntoANewPageTakesThePlaceOfItsEmptyParagraph) {
  frmMain &page = NewPage();
  auto *data = new QMimeData;
  data->setHtml(
      QStringLiteral("<html xmlns:o=\"urn:schemas-microsoft-com:office:office\"><body>"
                     "<!--StartFragment--><h2>Our history</h2><p class=MsoNormal>Since 1923"
                     "<o:p></o:p></p><!--EndFragment--></body></html>"));
  QApplication::clipboard()->setMimeData(data);
  Key(page, Qt::Key_V, Qt::ControlModifier);
  ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("Since 1923")); })) << Seen(page);
  SharedDialog().ExpectSave(Logic(File));
  Choose("mnuSave");
  QString wanted = modWorkFlow::NewPageTemplate();
  wanted.replace(QStringLiteral("<P>&nbsp;</P>"),
                 QStringLiteral("<H2>Our history</H2>\r\n<P>Since 1923</P>"));
  EXPECT_EQ(Bytes(File).toStdString(), wanted.toStdString());
}

TEST_F(RealPageEdits, ATableThatWasPutInIsFilledByTabAndGrowsByARow) {
  frmMain &page = PageWithTable();
  for (int cell = 1; cell <= 9; ++cell) {
    Type(page, QStringLiteral("c%1").arg(cell));
    Key(page, Qt::Key_Tab);
  }
  Type(page, QStringLiteral("more"));
  ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("more")); })) << Seen(page);
  const QString html = page.DHTML1().DocumentHTML();
  EXPECT_TRUE(html.contains(QStringLiteral("<p>Prices</p>"))) << Seen(page);
  for (int cell = 1; cell <= 9; ++cell)
    EXPECT_TRUE(html.contains(QStringLiteral("<td>c%1</td>").arg(cell))) << cell << Seen(page);
  EXPECT_TRUE(html.contains(QStringLiteral("<td>more</td>"))) << Seen(page);
  EXPECT_EQ(html.count(QStringLiteral("<tr>")), 4) << Seen(page);
}

TEST_F(RealPageEdits, AnEmptyCellIsALineHighAndNothingOfThatIsInTheFile) {
  frmMain &page = PageWithTable();
  const int line = Place(page, QStringLiteral("p")).height();
  for (int cell = 0; cell < 9; ++cell)
    EXPECT_GE(Place(page, QStringLiteral("td"), cell).height(), line) << cell;
  Choose("mnuSave");
  EXPECT_EQ(Bytes(File).count("<td></td>"), 9) << Bytes(File).toStdString();
}

TEST_F(RealPageEdits, AClickInACellPutsTheCaretThereAndTheEdgeSelectsTheTable) {
  frmMain &page = PageWithTable();
  for (const int cell : {4, 8, 0}) {
    Click(page, Place(page, QStringLiteral("td"), cell).center());
    Type(page, QStringLiteral("c%1").arg(cell));
    ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("<td>c%1</td>").arg(cell)); }))
        << Seen(page);
    EXPECT_FALSE(TableIsSelected(page));
  }
  const QRect table = Place(page, QStringLiteral("table"));
  Click(page, {table.right() + 2, table.center().y()});
  EXPECT_TRUE(WaitFor([&] { return TableIsSelected(page); }));
  Click(page, Place(page, QStringLiteral("td"), 4).center());
  EXPECT_TRUE(WaitFor([&] { return !TableIsSelected(page); }));
  Key(page, Qt::Key_Escape);
  EXPECT_TRUE(WaitFor([&] { return TableIsSelected(page); }));
}

TEST_F(RealPageEdits, TheMenuKeyOpensTheMenuWhoseRowAndColumnGoIntoTheFileAlone) {
  frmMain &page = Open(File,
                       "<HTML><BODY bgcolor=white>\r\n<TABLE border=1>\r\n"
                       "<TR><TD>one</TD><TD>two</TD></TR>\r\n</TABLE>\r\n</BODY></HTML>\r\n");
  PutCaret(page, QStringLiteral("td"));
  ASSERT_TRUE(WaitFor([&] {
    return page.DHTML1().QueryStatus(EditingCommand::InsertRowBelow) == CommandStatus::Enabled;
  }));
  QMenu &menu = *Find<QMenu>("mnuExt");
  Key(page, Qt::Key_Menu);
  ASSERT_TRUE(WaitFor([&] { return menu.isVisible(); }));
  EXPECT_TRUE(Find<QAction>("extInRow")->isEnabled());
  EXPECT_FALSE(Find<QAction>("extMerge")->isEnabled());
  menu.close();
  Choose("extInRow");
  Choose("extInCol");
  ASSERT_TRUE(WaitFor([&] { return page.DHTML1().DocumentHTML().count(u"<td>") == 6; }))
      << Seen(page);
  Choose("mnuSave");
  EXPECT_EQ(Bytes(File).toStdString(),
            "<HTML><BODY bgcolor=white>\r\n<TABLE border=1>\r\n"
            "<TR><TD>one</TD><TD><BR></TD><TD>two</TD></TR>\r\n"
            "<TR><TD><BR></TD><TD><BR></TD><TD><BR></TD></TR>\r\n</TABLE>\r\n</BODY></HTML>\r\n");
}

TEST_F(RealPageEdits, PropertiesGoIntoTheFileAndNothingElseDoes) {
  frmMain &page = Open(File,
                       "<HTML><HEAD>\r\n<TITLE>old</TITLE>\r\n</HEAD><BODY bgcolor=white>\r\n"
                       "<TABLE border=1>\r\n<TR><TD>one</TD></TR>\r\n</TABLE>\r\n"
                       "<P>two <A HREF=x.htm>three</A></P>\r\n</BODY></HTML>\r\n");
  const auto change = [&](const char *item, const char *field, const char *value) {
    dialogs.ExpectModal([=](QWidget &dialog) {
      auto *box = dialog.findChild<QLineEdit *>(QStringLiteral("prp_") + QLatin1String(field));
      ASSERT_NE(box, nullptr) << field;
      box->selectAll();
      QTest::keyClicks(box, QLatin1String(value));
      dialog.findChild<QPushButton *>(QStringLiteral("cmdOK"))->click();
    });
    Choose(item);
  };
  PutCaret(page, QStringLiteral("td"));
  change("extPagePro", "title", "new");
  change("extTDPro", "width", "50%");
  change("extTablePro", "caption", "Prices");
  PutCaret(page, QStringLiteral("a"));
  change("extAPro", "href", "y.htm");
  ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("y.htm")); })) << Seen(page);
  Choose("mnuSave");
  EXPECT_EQ(Bytes(File).toStdString(),
            "<HTML><HEAD>\r\n<TITLE>new</TITLE>\r\n</HEAD><BODY bgcolor=white>\r\n"
            "<TABLE border=1>\r\n<CAPTION>Prices</CAPTION>\r\n<TR><TD width=50%>one</TD></TR>\r\n"
            "</TABLE>\r\n<P>two <A HREF=y.htm>three</A></P>\r\n</BODY></HTML>\r\n");
  for (int step = 0; step < 4; ++step) Choose("mnuUndo");
  ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("x.htm")); })) << Seen(page);
}

TEST_F(RealPageEdits, TheElementsPathTakesATagOffAndGivesAClassOfTheLinkedStyleSheet) {
  Write(QStringLiteral("a.css"), "p.note { color: green } .wide, td.num { width: 9em }");
  frmMain &page = Open(File,
                       "<html><head><link rel=stylesheet href=a.css></head><body>\n"
                       "<P ALIGN=center>one <B>two</B></P>\n<P>three</P>\n</body></html>\n");
  const auto choose = [](QWidget &element, const QList<Qt::Key> &keys) {
    QContextMenuEvent request(QContextMenuEvent::Keyboard, QPoint(), element.mapToGlobal(QPoint()));
    QApplication::sendEvent(&element, &request);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    for (const Qt::Key key : keys) QTest::keyClick(QApplication::activePopupWidget(), key);
  };
  PutCaret(page, QStringLiteral("b"));
  ASSERT_TRUE(WaitFor([&] { return page.DHTML1().Document().Path().size() == 3; }));
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  auto *bar = Find<QWidget>("pathBar");
  for (int pane = 0; pane < 9 && !bar->isAncestorOf(QApplication::focusWidget()); ++pane)
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, Qt::ShiftModifier);
  ASSERT_TRUE(bar->isAncestorOf(QApplication::focusWidget()));
  choose(*QApplication::focusWidget(), {Qt::Key_R});
  ASSERT_TRUE(WaitFor([&] { return !Holds(page, QStringLiteral("<b>")); })) << Seen(page);
  Key(page, Qt::Key_A, Qt::ControlModifier);
  ASSERT_TRUE(WaitFor([&] { return page.DHTML1().Document().Path().size() == 1; }));
  Evaluate(EngineOf(page), QStringLiteral("{ const [p, q] = document.querySelectorAll('p');"
                                          "getSelection().setBaseAndExtent(p.firstChild, 1, "
                                          "q.firstChild, 2) }"));
  ASSERT_TRUE(WaitFor([&] { return page.DHTML1().Document().Path().size() == 2; }));
  choose(*Find<QWidget>("path_1"), {Qt::Key_C, Qt::Key_Return});
  ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("class=\"note\"")); })) << Seen(page);
  Choose("mnuSave");
  EXPECT_EQ(Bytes(File).toStdString(),
            "<html><head><link rel=stylesheet href=a.css></head><body>\n"
            "<P ALIGN=center CLASS=note>one two</P>\n<P CLASS=note>three</P>\n</body></html>\n");
}

TEST_F(RealPageEdits, CustomHtmlIsSeenInThePagesLooksAndGoesIntoTheFileAsOneStep) {
  Write(QStringLiteral("a.css"), "i { color: rgb(1, 2, 3) }");
  frmMain &page = Open(File,
                       "<html><head><link rel=stylesheet href=a.css></head><body>\n"
                       "<p>one two</p>\n</body></html>\n");
  PutCaret(page, QStringLiteral("p"));
  Key(page, Qt::Key_End);
  dialogs.ExpectModal([&](QWidget &dialog) {
    dialog.show();
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    auto *source = dialog.findChild<QWidget *>(QStringLiteral("Code"));
    QTest::keyClicks(source, QStringLiteral(" <I CLASS=x>three</I>"));
    auto *preview = dialog.findChild<QWidget *>(QStringLiteral("Preview"));
    EXPECT_TRUE(WaitFor([&] {
      const auto *view = preview->findChild<QWebEngineView *>();
      return view != nullptr &&
             Evaluate(*view->page(), QStringLiteral("{ const i = document.querySelector('i');"
                                                    "i ? getComputedStyle(i).color : '' }"))
                     .toString() == QStringLiteral("rgb(1, 2, 3)");
    }));
    EXPECT_TRUE(source->hasFocus()) << "the keyboard stays in the source";
    QTest::keyClick(source, Qt::Key_Return, Qt::ControlModifier);
  });
  Choose("extInHTML");
  ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("three")); })) << Seen(page);
  Choose("mnuSave");
  EXPECT_EQ(Bytes(File).toStdString(),
            "<html><head><link rel=stylesheet href=a.css></head><body>\n"
            "<p>one two <i class=x>three</i></p>\n</body></html>\n");
  Choose("mnuUndo");
  ASSERT_TRUE(WaitFor([&] { return !Holds(page, QStringLiteral("three")); })) << Seen(page);
}

TEST_F(RealPageEdits, AChosenCharacterIsItselfWhereTheCharsetHasItElseAReference) {
  frmMain &page = Open(File,
                       "<html><head><meta http-equiv=Content-Type "
                       "content=\"text/html; charset=iso-8859-1\"></head><body>\n"
                       "<p>one</p>\n</body></html>\n");
  PutCaret(page, QStringLiteral("p"));
  for (const char *name : {"e acute small", "snowman", "less-than sign"}) {
    dialogs.ExpectModal([name](QWidget &dialog) {
      dialog.show();
      auto *words = dialog.findChild<QWidget *>(QStringLiteral("txtWords"));
      QTest::keyClicks(words, QString::fromLatin1(name));
      QTest::keyClick(words, Qt::Key_Return);
    });
    Choose("mnuCharacter");
  }
  ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("&lt;ne")); })) << Seen(page);
  Choose("mnuSave");
  EXPECT_EQ(Bytes(File).toStdString(),
            "<html><head><meta http-equiv=Content-Type "
            "content=\"text/html; charset=iso-8859-1\"></head><body>\n"
            "<p>o\xE9&#9731;&lt;ne</p>\n</body></html>\n");
  Choose("mnuUndo");
  EXPECT_TRUE(WaitFor([&] { return !Holds(page, QStringLiteral("&lt;")); })) << Seen(page);
}

TEST_F(RealPageEdits, AKeyOfThePersonsGoesBeforeThePagesOwnAndWordsAreCounted) {
  frmMain &page = Open(File, "<html><body>\n<p>one two</p><!-- note -->\n</body></html>\n");
  dialogs.ExpectModal([](QWidget &shown) {
    shown.show();
    auto &list = *shown.findChild<QTreeWidget *>(QStringLiteral("lstCommands"));
    auto *box = shown.findChild<QWidget *>(QStringLiteral("txtKey"));
    const auto press = [&](const char *name, Qt::Key key) {
      list.setCurrentItem(list.findItems(QString::fromLatin1(name), Qt::MatchExactly).value(0));
      QTest::keyClick(box, key, Qt::ControlModifier);
    };
    press("Align Center", Qt::Key_B);
    press("Bold", Qt::Key_J);
    shown.findChild<QPushButton *>(QStringLiteral("cmdOK"))->click();
  });
  Choose("mnuShortcuts");
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  Select(page, QStringLiteral("p"));
  ASSERT_TRUE(WaitFor([this] { return Find<QAction>("tbrEdit_center")->isEnabled(); }));
  Key(page, Qt::Key_B, Qt::ControlModifier);
  EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("center")); })) << Seen(page);
  Key(page, Qt::Key_J, Qt::ControlModifier);
  EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("<b>")); })) << Seen(page);
  EXPECT_TRUE(Holds(page, QStringLiteral("center"))) << Seen(page);
  std::optional<TextCounts> counts;
  page.DHTML1().CountText([&](const TextCounts &counted) { counts = counted; });
  ASSERT_TRUE(WaitFor([&] { return counts.has_value(); }));
  EXPECT_EQ(counts->page, (TextCount{2, 7}));
  EXPECT_EQ(counts->selection, (TextCount{2, 7}));
}

TEST_F(RealPageEdits, WhatIsTypedWithATableSelectedGoesBehindIt) {
  frmMain &page = PageWithTable();
  Type(page, QStringLiteral("c"));
  Key(page, Qt::Key_Escape);
  ASSERT_TRUE(WaitFor([&] { return TableIsSelected(page); }));
  Type(page, QStringLiteral("x"));
  ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("x")); })) << Seen(page);
  const QString html = page.DHTML1().DocumentHTML();
  EXPECT_TRUE(html.contains(QStringLiteral("<td>c</td>"))) << Seen(page);
  EXPECT_GT(html.lastIndexOf(u'x'), html.indexOf(QStringLiteral("</table>"))) << Seen(page);
}

}  // namespace
}  // namespace velor
