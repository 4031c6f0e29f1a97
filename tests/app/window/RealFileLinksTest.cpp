// SPDX-License-Identifier: GPL-3.0-or-later
// Pages that name files by full addresses, on mapped drives too, in the whole window.
#include "editor/PageSlots.h"
#include "editor/frmBrowser.h"
#include "editor/frmMain.h"
#include "tests/app/window/RealWindowFixture.h"
#include "tests/engine/ComponentFixture.h"
#include "tests/support/MappedDrives.h"

#include <QDir>

namespace velor {
namespace {

const QByteArray Picture = "<svg xmlns='http://www.w3.org/2000/svg' width='23' height='10'/>";

class RealFileLinks : public RealWindow {
 protected:
  static bool Becomes(QWidget &shown, const char *expression, const char *wanted) {
    return WaitFor([&] {
      return Evaluate(EngineOf(shown), QString::fromLatin1(expression)).toString() ==
             QString::fromLatin1(wanted);
    });
  }
  QWidget &Preview(frmMain &page) {
    page.ChangeMode(4);
    return *window.Context().preview;
  }
};

constexpr const char *PictureWidth = "document.images[0] ? String(document.images[0].width) : ''";

TEST_F(RealFileLinks, PicturesOnMappedDrivesShowInDesignViewAndPreview) {
  const MappedDrives drives(QStringLiteral("D: ") + folder.FilePath(QStringLiteral("disk")));
  QDir().mkpath(folder.FilePath(QStringLiteral("disk/Site")));
  Write(QStringLiteral("disk/Site/a b.svg"), Picture);
  frmMain &page =
      Open(QStringLiteral("disk/Site/page.htm"), "<p>one</p><img src='file:///D:/Site/a%20b.svg'>");
  EXPECT_TRUE(Becomes(page, PictureWidth, "23"));
  EXPECT_TRUE(Becomes(Preview(page), PictureWidth, "23"));
}

TEST_F(RealFileLinks, WhatLiesInTheSiteShowsInThePreviewByItsFullAddress) {
  Write(QStringLiteral("a.svg"), Picture);
  Write(QStringLiteral("other.htm"), "<title>other</title>");
  Write(QStringLiteral("sheet.css"), "p { text-indent: 7px }");
  const QByteArray site = "file://" + folder.FilePath({}).toUtf8() + '/';
  frmMain &page = Open(QStringLiteral("page.htm"),
                       "<link rel=stylesheet href='" + site + "sheet.css'><body background='" +
                           site + "a.svg'><p style='background: url(" + site +
                           "a.svg)'>one</p><a href='" + site + "other.htm'>other</a>");
  QWidget &preview = Preview(page);
  EXPECT_TRUE(Becomes(preview,
                      "document.querySelector('p') ? getComputedStyle("
                      "document.querySelector('p')).textIndent : ''",
                      "7px"));
  const char *loads =
      "String(['p', 'body'].map((name) => getComputedStyle("
      "document.querySelector(name)).backgroundImage).every((value) => "
      "value.startsWith('url(\"velor-site:')))";
  EXPECT_TRUE(Becomes(preview, loads, "true"));
  Evaluate(EngineOf(preview), QStringLiteral("document.querySelector('a').click()"));
  EXPECT_TRUE(Becomes(preview, "document.title", "other"));
}

TEST_F(RealFileLinks, WhatRulesOfStyleSheetsNameByFullAddressesShowsInThePreview) {
  Write(QStringLiteral("a.svg"), Picture);
  Write(QStringLiteral("more.css"), "p { text-indent: 7px }");
  const QByteArray site = "file://" + folder.FilePath({}).toUtf8() + '/';
  Write(QStringLiteral("rules.css"), "/* \xE9 */ @import url(" + site +
                                         "more.css);\ndiv { background: url( '" + site +
                                         "a.svg') }\nb::after { content: \"file:///b\" }");
  frmMain &page = Open(QStringLiteral("page.htm"),
                       "<link rel=stylesheet href=rules.css><style>h1 { background: URL(\"" + site +
                           "a.svg\") }</style><h1>head</h1><div>two</div><p>one</p><b>bold</b>");
  QWidget &preview = Preview(page);
  EXPECT_TRUE(Becomes(preview,
                      "document.querySelector('p') ? getComputedStyle("
                      "document.querySelector('p')).textIndent : ''",
                      "7px"));
  EXPECT_TRUE(Becomes(preview,
                      "String(['h1', 'div'].map((name) => getComputedStyle("
                      "document.querySelector(name)).backgroundImage).every((value) => "
                      "value.startsWith('url(\"velor-site:') && value.endsWith('a.svg\")')))",
                      "true"));
  EXPECT_TRUE(Becomes(preview, "getComputedStyle(document.querySelector('b'), '::after').content",
                      "\"file:///b\""));
}

TEST_F(RealFileLinks, ASaveAsThatFailsAfterLinksWereAdaptedLeavesPageLinksAndUndoAsBefore) {
  Write(QStringLiteral("a.svg"), Picture);
  const QByteArray source = "<p>one</p><img src=a.svg>";
  frmMain &page = Open(QStringLiteral("page.htm"), source);
  PutCaret(page, QStringLiteral("p"));
  Type(page, QStringLiteral("X"));
  ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("oXne")); }));
  dialogs.ExpectChoice(
      QStringLiteral("From the new folder one picture of this page would lead nowhere."),
      QStringLiteral("Adapt"));
  dialogs.ExpectMessage(QStringLiteral("File saving error: 76"));
  SharedDialog().ExpectSave(Logic(QStringLiteral("none/page.htm")));
  Choose("mnuSaveAs");
  EXPECT_TRUE(Holds(page, QStringLiteral("<p>oXne</p><img src=\"a.svg\">"))) << Seen(page);
  EXPECT_TRUE(Becomes(page, PictureWidth, "23"));
  EXPECT_EQ(page.GetPageRecord().Path, Logic(QStringLiteral("page.htm")));
  EXPECT_TRUE(page.Journal().HasChanges());
  Choose("mnuUndo");
  EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("<p>one</p>")); })) << Seen(page);
  EXPECT_TRUE(Holds(page, QStringLiteral("<img src=\"a.svg\">"))) << Seen(page);
  Choose("mnuRedo");
  EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("<p>oXne</p>")); })) << Seen(page);
  EXPECT_TRUE(Becomes(page, PictureWidth, "23"));
  Choose("mnuSave");
  EXPECT_EQ(Bytes(QStringLiteral("page.htm")), "<p>oXne</p><img src=a.svg>");
}

TEST_F(RealFileLinks, InAnotherFolderListsOfPicturesAndStylesLeadWhereTheyLed) {
  Write(QStringLiteral("a.svg"), Picture);
  QDir().mkpath(folder.FilePath(QStringLiteral("sub")));
  const QByteArray source =
      "<style>\nh1 { background: url(a.svg) }\n</style>\n<h1>head</h1>\n"
      "<IMG srcset='a.svg 1x' SRC=a.svg>\n<p style='background: url(a.svg)'>one\n";
  frmMain &page = Open(QStringLiteral("page.htm"), source);
  dialogs.ExpectChoice(
      QStringLiteral("From the new folder 4 pictures of this page would lead nowhere."),
      QStringLiteral("Adapt"));
  SharedDialog().ExpectSave(Logic(QStringLiteral("sub/page.htm")));
  Choose("mnuSaveAs");
  QByteArray adapted = source;
  EXPECT_EQ(Bytes(QStringLiteral("sub/page.htm")).toStdString(),
            adapted.replace("a.svg", "../a.svg").toStdString());
  EXPECT_EQ(Bytes(QStringLiteral("page.htm")), source);
  EXPECT_TRUE(Becomes(page, PictureWidth, "23"));
  EXPECT_TRUE(
      Becomes(page,
              "new URL(document.images[0].currentSrc).pathname.split('/').at(-2) === 'sub' ? "
              "'' : 'above'",
              "above"));
}

}  // namespace
}  // namespace velor
