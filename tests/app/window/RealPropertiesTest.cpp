// SPDX-License-Identifier: GPL-3.0-or-later
// Each field of each properties window, from the key that opens the menu to the file: what a
// careful author would write there in an HTML5 page and in an older one, and not a byte besides.
#include "editor/frmMain.h"
#include "platform/EditingComponent.h"
#include "properties/PropertySheets.h"
#include "tests/app/window/RealWindowFixture.h"
#include "tests/engine/ComponentFixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

#include <algorithm>
#include <iterator>
#include <utility>

namespace velor {
namespace {

using enum PropertySubject;

const QString File = QStringLiteral("a.htm");

enum class Dialect { Html5, Html4 };

QByteArray PageIn(Dialect dialect) {
  return QByteArray(dialect == Dialect::Html5
                        ? "<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n"
                        : R"(<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.01//EN" )"
                          "\"http://www.w3.org/TR/html4/strict.dtd\">\n<html>\n<head>\n"
                          R"(<meta http-equiv="Content-Type" )"
                          "content=\"text/html; charset=utf-8\">\n") +
         "<title>Prices</title>\n</head>\n<body>\n"
         "<p>Caf\xC3\xA9 <a href=\"x.htm\">menu</a> &copy;</p>\n<p><img src=\"i.png\"></p>\n"
         "<p>today</p>\n<table border=\"1\">\n<tr><td>a</td><td>b</td></tr>\n"
         "<tr><td>c</td><td>d</td></tr>\n</table>\n</body>\n</html>\n";
}

/// Where a window is opened: the caret in an element, or all that the element holds selected.
struct Window {
  PropertySubject subject;
  const char *item;
  const char *element;
  bool isSelected;
  const char *lastOfPath;
};
constexpr Window Windows[] = {
    {Page, "extPagePro", "p", false, "p"},     {Image, "extImagePro", "p+p", true, "img"},
    {Table, "extTablePro", "td", false, "td"}, {Cell, "extTDPro", "td", false, "td"},
    {Link, "extAPro", "a", false, "a"},        {Fonts, "extFontsPro", "p+p+p", true, "p"},
    {Element, "extGetTag", "p", false, "p"},
};

/// What comes of a value: `before` becomes `html5` in a page of styles and `html4` in an older one.
struct Change {
  PropertySubject subject;
  const char *field;  ///< or the button that takes the whole thing off
  const char *value;
  const char *before;
  const char *html5;
  const char *html4;
};

constexpr Change Same(PropertySubject subject, const char *field, const char *value,
                      const char *before, const char *after) {
  return {subject, field, value, before, after, after};
}
constexpr Change InHead(const char *field, const char *value, const char *after) {
  return Same(Page, field, value, "</head>", after);
}

constexpr auto Heads = "<td>a</td><td>b</td>";
constexpr auto Cells = "\"1\">\n<tr><td>a</td><td>b</td></tr>\n<tr><td>c</td><td>d</td></tr>";
constexpr auto FirstColumn = "<td>a</td><td>b</td></tr>\n<tr><td>c</td>";

constexpr Change Changes[] = {
    Same(Page, "title", "New", "Prices", "New"),
    Same(Page, "language", "de", "<html>", R"(<html lang="de">)"),
    Same(Page, "direction", "rtl", "<html>", R"(<html dir="rtl">)"),
    InHead("description", "All", "<meta name=\"description\" content=\"All\">\n</head>"),
    InHead("author", "Us", "<meta name=\"author\" content=\"Us\">\n</head>"),
    InHead("viewport", "width=device-width",
           "<meta name=\"viewport\" content=\"width=device-width\">\n</head>"),
    InHead("icon", "i.ico", "<link rel=\"icon\" href=\"i.ico\">\n</head>"),
    // The bytes as well: see Expected.
    Same(Page, "charset", "windows-1252", "utf-8", "windows-1252"),
    {Page, "text", "#112233", "<body>", R"(<body style="color: #112233">)",
     R"(<body text="#112233">)"},
    {Page, "background", "#EEEEEE", "<body>", R"(<body style="background-color: #EEEEEE">)",
     R"(<body bgcolor="#EEEEEE">)"},
    {Page, "picture", "b.png", "<body>", R"x(<body style="background-image: url('b.png')">)x",
     R"(<body background="b.png">)"},
    {Page, "link", "#112233", "</head>\n<body>",
     "<style>\na:link { color: #112233 }\n</style>\n</head>\n<body>",
     "</head>\n<body link=\"#112233\">"},
    {Page, "vlink", "#112233", "</head>\n<body>",
     "<style>\na:visited { color: #112233 }\n</style>\n</head>\n<body>",
     "</head>\n<body vlink=\"#112233\">"},
    {Page, "alink", "#112233", "</head>\n<body>",
     "<style>\na:active { color: #112233 }\n</style>\n</head>\n<body>",
     "</head>\n<body alink=\"#112233\">"},
    InHead("sheets", "a.css\nb.css",
           "<link rel=\"stylesheet\" href=\"a.css\">\n<link rel=\"stylesheet\" href=\"b.css\">\n"
           "</head>"),

    Same(Image, "src", "j.png", "i.png", "j.png"),
    Same(Image, "lowsrc", "l.png", R"("i.png")", R"("i.png" lowsrc="l.png")"),
    Same(Image, "alt", "Tea", R"("i.png")", R"("i.png" alt="Tea")"),
    Same(Image, "decorative", "true", R"("i.png")", R"("i.png" alt="")"),
    Same(Image, "link", "y.htm", R"(<img src="i.png">)",
         R"(<a href="y.htm"><img src="i.png"></a>)"),
    Same(Image, "title", "Tea", R"("i.png")", R"("i.png" title="Tea")"),
    Same(Image, "loading", "lazy", R"("i.png")", R"("i.png" loading="lazy")"),
    {Image, "width", "40", R"("i.png")", R"("i.png" style="width: 40px")", R"("i.png" width="40")"},
    {Image, "height", "50%", R"("i.png")", R"("i.png" style="height: 50%")",
     R"("i.png" height="50%")"},
    {Image, "border", "2", R"("i.png")", R"("i.png" style="border: 2px solid")",
     R"("i.png" border="2")"},
    {Image, "align", "right", R"("i.png")", R"("i.png" style="float: right")",
     R"("i.png" align="right")"},
    {Image, "hspace", "4", R"("i.png")", R"("i.png" style="margin-left: 4px; margin-right: 4px")",
     R"("i.png" hspace="4")"},
    {Image, "vspace", "4", R"("i.png")", R"("i.png" style="margin-top: 4px; margin-bottom: 4px")",
     R"("i.png" vspace="4")"},
    Same(Image, "class", "wide", R"("i.png")", R"("i.png" class="wide")"),
    Same(Image, "id", "tea", R"("i.png")", R"("i.png" id="tea")"),

    Same(Table, "caption", "All", "\"1\">\n", "\"1\">\n<caption>All</caption>\n"),
    Same(Table, "headRow", "true", Heads, R"(<th scope="col">a</th><th scope="col">b</th>)"),
    Same(Table, "headColumn", "true", FirstColumn,
         "<th scope=\"row\">a</th><td>b</td></tr>\n<tr><th scope=\"row\">c</th>"),
    {Table, "width", "50%", R"("1">)", R"("1" style="width: 50%">)", R"("1" width="50%">)"},
    {Table, "align", "center", R"("1">)", R"("1" style="margin-left: auto; margin-right: auto">)",
     R"("1" align="center">)"},
    // An attribute that the page has stays one.
    Same(Table, "border", "2", R"("1">)", R"("2">)"),
    {Table, "cellpadding", "4", Cells,
     "\"1\">\n<tr><td style=\"padding: 4px\">a</td><td style=\"padding: 4px\">b</td></tr>\n"
     R"(<tr><td style="padding: 4px">c</td><td style="padding: 4px">d</td></tr>)",
     "\"1\" cellpadding=\"4\">\n<tr><td>a</td><td>b</td></tr>\n<tr><td>c</td><td>d</td></tr>"},
    {Table, "cellspacing", "0", R"("1">)", R"("1" style="border-collapse: collapse">)",
     R"("1" cellspacing="0">)"},
    {Table, "background", "#EEEEEE", R"("1">)", R"("1" style="background-color: #EEEEEE">)",
     R"("1" bgcolor="#EEEEEE">)"},
    {Table, "bordercolor", "navy", R"("1">)", R"("1" style="border-color: navy">)",
     R"("1" bordercolor="navy">)"},
    Same(Table, "class", "wide", R"("1">)", R"("1" class="wide">)"),
    Same(Table, "id", "list", R"("1">)", R"("1" id="list">)"),

    Same(Cell, "heading", "true", "<td>a</td>", "<th>a</th>"),
    {Cell, "width", "50%", "<td>a", R"(<td style="width: 50%">a)", R"(<td width="50%">a)"},
    {Cell, "height", "40", "<td>a", R"(<td style="height: 40px">a)", R"(<td height="40">a)"},
    {Cell, "align", "right", "<td>a", R"(<td style="text-align: right">a)",
     R"(<td align="right">a)"},
    {Cell, "valign", "top", "<td>a", R"(<td style="vertical-align: top">a)",
     R"(<td valign="top">a)"},
    {Cell, "noWrap", "true", "<td>a", R"(<td style="white-space: nowrap">a)", "<td nowrap>a"},
    {Cell, "background", "#EEEEEE", "<td>a", R"(<td style="background-color: #EEEEEE">a)",
     R"(<td bgcolor="#EEEEEE">a)"},
    // No attribute of a cell says it.
    Same(Cell, "color", "navy", "<td>a", R"(<td style="color: navy">a)"),
    Same(Cell, "class", "wide", "<td>a", R"(<td class="wide">a)"),
    Same(Cell, "id", "first", "<td>a", R"(<td id="first">a)"),

    Same(Link, "href", "y.htm", "x.htm", "y.htm"),
    Same(Link, "title", "All", R"("x.htm")", R"("x.htm" title="All")"),
    Same(Link, "target", "_blank", R"("x.htm")", R"("x.htm" target="_blank")"),
    Same(Link, "rel", "nofollow", R"("x.htm")", R"("x.htm" rel="nofollow")"),
    Same(Link, "class", "wide", R"("x.htm")", R"("x.htm" class="wide")"),
    Same(Link, "id", "go", R"("x.htm")", R"("x.htm" id="go")"),
    Same(Link, "cmdRemove", "", R"(<a href="x.htm">menu</a>)", "menu"),

    {Fonts, "fontName", "Arial", "today", R"(<span style="font-family: Arial">today</span>)",
     R"(<font face="Arial">today</font>)"},
    {Fonts, "fontSize", "14", "today", R"(<span style="font-size: 14pt">today</span>)",
     R"(<font size="4">today</font>)"},
    {Fonts, "color", "#112233", "today", R"(<span style="color: #112233">today</span>)",
     R"(<font color="#112233">today</font>)"},
    Same(Fonts, "background", "#EEEEEE", "today",
         R"(<span style="background-color: #EEEEEE">today</span>)"),
    Same(Fonts, "bold", "true", "today", "<b>today</b>"),
    Same(Fonts, "italic", "true", "today", "<i>today</i>"),
    Same(Fonts, "underline", "true", "today", "<u>today</u>"),
    Same(Fonts, "strike", "true", "today", "<s>today</s>"),
    Same(Fonts, "sub", "true", "today", "<sub>today</sub>"),
    Same(Fonts, "sup", "true", "today", "<sup>today</sup>"),
    Same(Fonts, "code", "true", "today", "<code>today</code>"),

    Same(Element, "class", "wide", "<p>Caf", R"(<p class="wide">Caf)"),
    Same(Element, "id", "first", "<p>Caf", R"(<p id="first">Caf)"),
    Same(Element, "title", "All", "<p>Caf", R"(<p title="All">Caf)"),
    Same(Element, "language", "fr", "<p>Caf", R"(<p lang="fr">Caf)"),
    Same(Element, "direction", "rtl", "<p>Caf", R"(<p dir="rtl">Caf)"),
    Same(Element, "style", "color: navy", "<p>Caf", R"(<p style="color: navy">Caf)"),
};

QByteArray Expected(const Change &change, Dialect dialect) {
  QByteArray page = PageIn(dialect);
  EXPECT_EQ(page.count(change.before), 1) << change.before;
  page.replace(change.before, dialect == Dialect::Html5 ? change.html5 : change.html4);
  if (QLatin1String(change.field) == QLatin1String("charset")) page.replace("\xC3\xA9", "\xE9");
  return page;
}

class RealProperties : public RealWindow,
                       public ::testing::WithParamInterface<std::pair<Dialect, Window>> {
 protected:
  /// Goes through an open menu by the arrow keys.
  static void GoTo(QMenu &menu, const QAction &item) {
    for (int step = 0; step < 40 && menu.activeAction() != &item; ++step)
      QTest::keyClick(&menu, Qt::Key_Down);
    ASSERT_EQ(menu.activeAction(), &item);
  }

  /// Opens the page's menu by its key and chooses an item of it or of its menus.
  void ChooseByKeys(frmMain &page, const char *name) {
    QMenu &menu = *Find<QMenu>("mnuExt");
    QAction &item = *Find<QAction>(name);
    Key(page, Qt::Key_Menu);
    ASSERT_TRUE(WaitFor([&] { return menu.isVisible(); }));
    ASSERT_TRUE(item.isEnabled());
    QMenu *last = &menu;
    if (!menu.actions().contains(&item)) {
      const auto inner = menu.findChildren<QMenu *>();
      last = *std::find_if(inner.begin(), inner.end(),
                           [&](const QMenu *each) { return each->actions().contains(&item); });
      GoTo(menu, *last->menuAction());
      QTest::keyClick(&menu, Qt::Key_Right);
    }
    GoTo(*last, item);
    QTest::keyClick(last, Qt::Key_Return);
  }

  /// Gives a control of a field its value as a person's keys do.
  static void TypeInto(QWidget &control, const QString &value) {
    if (auto *choice = qobject_cast<QComboBox *>(&control)) {
      QTest::keyClick(choice, Qt::Key_Home);
      for (int step = 0; step < choice->count() && choice->currentData() != value; ++step)
        QTest::keyClick(choice, Qt::Key_Down);
      EXPECT_EQ(choice->currentData().toString(), value);
    } else if (qobject_cast<QCheckBox *>(&control) != nullptr) {
      QTest::keyClick(&control, Qt::Key_Space);
    } else {
      QTest::keyClick(&control, Qt::Key_A, Qt::ControlModifier);
      for (const QChar sign : value) {
        if (sign == u'\n')
          QTest::keyClick(&control, Qt::Key_Return);
        else
          QTest::keyClick(&control, sign.toLatin1());
      }
    }
  }

  void Make(frmMain &page, const Window &place, const Change &change) {
    if (place.isSelected)
      Select(page, QLatin1String(place.element));
    else
      PutCaret(page, QLatin1String(place.element));
    ASSERT_TRUE(WaitFor([&] {
      const QStringList path = page.DHTML1().Document().Path();
      return !path.isEmpty() && path.last() == QLatin1String(place.lastOfPath);
    }));
    bool wasOpen = false;
    dialogs.ExpectModal([&](QWidget &dialog) {
      wasOpen = true;
      auto *button = dialog.findChild<QPushButton *>(QLatin1String(change.field));
      if (button == nullptr) {
        auto *control =
            dialog.findChild<QWidget *>(QStringLiteral("prp_") + QLatin1String(change.field));
        ASSERT_NE(control, nullptr);
        TypeInto(*control, QString::fromLatin1(change.value));
        button = dialog.findChild<QPushButton *>(QStringLiteral("cmdOK"));
      }
      QTest::keyClick(button, Qt::Key_Space);
      EXPECT_FALSE(dialog.isVisible());
    });
    ChooseByKeys(page, place.item);
    ASSERT_TRUE(wasOpen);
  }
};

TEST_P(RealProperties, EachFieldGoesIntoTheFileAloneAndUndoBringsTheOldBytesBack) {
  const auto &[dialect, place] = GetParam();
  const QByteArray before = PageIn(dialect);
  frmMain &page = Open(File, before);
  for (const Change &change : Changes) {
    if (change.subject != place.subject) continue;
    SCOPED_TRACE(change.field);
    ASSERT_NO_FATAL_FAILURE(Make(page, place, change));
    Choose("mnuSave");
    EXPECT_EQ(Bytes(File).toStdString(), Expected(change, dialect).toStdString());
    Choose("mnuUndo");
    Choose("mnuSave");
    EXPECT_EQ(Bytes(File).toStdString(), before.toStdString());
  }
}

std::vector<std::pair<Dialect, Window>> InBothDialects() {
  std::vector<std::pair<Dialect, Window>> all;
  for (const Window &window : Windows)
    for (const Dialect dialect : {Dialect::Html5, Dialect::Html4})
      all.emplace_back(dialect, window);
  return all;
}

std::string NameOf(const ::testing::TestParamInfo<std::pair<Dialect, Window>> &tried) {
  const auto &[dialect, place] = tried.param;
  return std::string(place.item) + (dialect == Dialect::Html5 ? "Html5" : "Html4");
}

INSTANTIATE_TEST_SUITE_P(OfEachWindow, RealProperties, ::testing::ValuesIn(InBothDialects()),
                         NameOf);

TEST(RealPropertiesOfAll, EveryFieldThatAWindowHasIsChangedHere) {
  for (const Window &window : Windows) {
    const PropertySheet &sheet = SheetOf(window.subject);
    const auto isChanged = [&](const char *field) {
      return std::any_of(std::begin(Changes), std::end(Changes), [&](const Change &change) {
        return change.subject == window.subject &&
               QLatin1String(change.field) == QLatin1String(field);
      });
    };
    for (const PropertyField &field : sheet.fields) {
      const bool isChangeable = field.kind != FieldKind::Told && field.kind != FieldKind::Part;
      EXPECT_TRUE(!isChangeable || isChanged(field.name)) << sheet.title << ": " << field.name;
    }
    EXPECT_TRUE(sheet.remover == nullptr || isChanged("cmdRemove")) << sheet.title;
  }
}

}  // namespace
}  // namespace velor
