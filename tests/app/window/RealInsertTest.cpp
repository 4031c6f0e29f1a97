// SPDX-License-Identifier: GPL-3.0-or-later
// A person at the whole window: pictures and tables put into pages, and what becomes of them.
#include "app/window/PageTabs.h"
#include "editor/frmBrowser.h"
#include "editor/frmMain.h"
#include "tests/app/window/RealWindowFixture.h"
#include "tests/engine/ComponentFixture.h"

#include <QDir>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QWebEnginePage>

namespace velor {
namespace {

const QByteArray Plain = "<html><head></head><body>\r\n<p id=\"p\">One two</p>\r\n</body></html>";
const QString PageFile = QStringLiteral("page.htm");

class RealInsert : public RealWindow {
 protected:
  RealInsert() {
    QDir().mkpath(folder.FilePath(QStringLiteral("img")));
    QImage picture(60, 40, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    EXPECT_TRUE(picture.save(folder.FilePath(QStringLiteral("img/a b.png"))));
  }

  /// Chooses the picture in the element dialog, from the file dialog on, and answers OK.
  void InsertPicture(const QString &alternativeText) {
    dialogs.ExpectModal([=, this](QWidget &dialog) {
      components.onFileDialog = [this](FakeFileDialog &person) {
        person.ExpectOpen(Logic(QStringLiteral("img/a b.png")));
      };
      const auto press = [&](const char *name) {
        dialog.findChild<QPushButton *>(QString::fromLatin1(name))->click();
      };
      dialog.show();
      press("cmdBrowseIMG");
      dialog.findChild<QLineEdit *>(QStringLiteral("txtAlt"))->setText(alternativeText);
      press("cmdOK");
    });
    Choose("mnuISTimage");
  }
  void InsertTable() {
    dialogs.ExpectModal([](QWidget &dialog) {
      dialog.findChild<QPushButton *>(QStringLiteral("Command1"))->click();
    });
    Choose("mnuTBLnew");
  }
  QVariant InPreview(const QString &expression) {
    return Evaluate(EngineOf(*window.Context().preview), expression);
  }
  /// How the page's elements of that kind are drawn: their tag, size and attributes.
  static std::string Drawn(QWebEnginePage &page, const QString &selector) {
    return Evaluate(page,
                    QStringLiteral("[...document.querySelectorAll('%1')].map(e => e.outerHTML "
                                   "+ e.clientWidth + 'x' + e.clientHeight).join()")
                        .arg(selector))
        .toString()
        .toStdString();
  }
  /// The same once the design view has the size of its window.
  static std::string DrawnInDesign(frmMain &page, const QString &selector) {
    EXPECT_TRUE(WaitFor([&] {
      return Evaluate(EngineOf(page), QStringLiteral("innerWidth")) == InputOf(page)->width() &&
             InputOf(page)->width() > page.window()->width() * 9 / 10;
    }));
    return Drawn(EngineOf(page), selector);
  }
  bool PreviewDraws(const QString &selector, const std::string &drawn) {
    return WaitFor([&] { return Drawn(EngineOf(*window.Context().preview), selector) == drawn; });
  }
};

TEST_F(RealInsert, APictureInASavedPageIsLinkedRelativelySavedReopenedAndPreviewed) {
  frmMain &page = Open(PageFile, Plain);
  Evaluate(EngineOf(page), QStringLiteral("getSelection().setBaseAndExtent(document.querySelector("
                                          "'p').firstChild, 4, document.querySelector('p')"
                                          ".firstChild, 7)"));
  InsertPicture(QStringLiteral("Tea & \"cake\""));
  const QString tag = QStringLiteral(
      "<p id=\"p\">One <img src=\"img/a b.png\" alt=\"Tea &amp; &quot;cake&quot;\" lowsrc=\"\" "
      "border=\"0\" hspace=\"0\" vspace=\"0\" height=\"35\" width=\"52\"></p>");
  EXPECT_TRUE(WaitFor([&] { return Holds(page, tag); })) << Seen(page);
  Choose("mnuSave");
  EXPECT_TRUE(Bytes(PageFile).contains(tag.toUtf8())) << Bytes(PageFile).constData();
  EXPECT_TRUE(page.close());

  frmMain &again = Open(PageFile);
  EXPECT_TRUE(Holds(again, tag)) << Seen(again);
  const std::string drawn = DrawnInDesign(again, QStringLiteral("img"));
  again.ChangeMode(4);
  ASSERT_TRUE(WaitFor([&] {
    return InPreview(QStringLiteral("document.images[0] && document.images[0].naturalWidth")) == 60;
  }));
  EXPECT_TRUE(PreviewDraws(QStringLiteral("img"), drawn)) << drawn;
}

TEST_F(RealInsert, APictureInAnUnsavedPageIsLinkedAbsolutelyAndPreviewed) {
  frmMain &page = NewPage();
  InsertPicture({});
  const QString source =
      QStringLiteral("src=\"file:///%1\"").arg(folder.FilePath(QStringLiteral("img/a b.png")));
  EXPECT_TRUE(WaitFor([&] { return Holds(page, source); })) << Seen(page);
  page.ChangeMode(4);
  EXPECT_TRUE(WaitFor([&] {
    return InPreview(QStringLiteral("document.images[0] && document.images[0].naturalWidth")) == 60;
  }));
}

TEST_F(RealInsert, APictureIsUndoneInOneStep) {
  frmMain &page = Open(PageFile, Plain);
  Select(page, QStringLiteral("p"));
  InsertPicture({});
  ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("<img")); })) << Seen(page);
  Choose("mnuUndo");
  EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("<p id=\"p\">One two</p>")); }))
      << Seen(page);
  EXPECT_FALSE(Holds(page, QStringLiteral("<img")));
}

TEST_F(RealInsert, ATableIsSavedReopenedPreviewedAndUndoneInOneStep) {
  frmMain &page = Open(PageFile, Plain);
  PutCaret(page, QStringLiteral("p"));
  const QString before = page.DHTML1().DocumentHTML();
  InsertTable();
  ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("<table align=\"Left\"")); }))
      << Seen(page);
  const QString after = page.DHTML1().DocumentHTML();
  Choose("mnuUndo");
  EXPECT_TRUE(WaitFor([&] { return page.DHTML1().DocumentHTML() == before; })) << Seen(page);
  Choose("mnuRedo");
  EXPECT_TRUE(WaitFor([&] { return page.DHTML1().DocumentHTML() == after; })) << Seen(page);
  // Empty cells are held open in design view only.
  Evaluate(EngineOf(page),
           QStringLiteral("document.querySelectorAll('td').forEach((cell) => cell.append('x'))"));
  ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("x</td>")); })) << Seen(page);
  Choose("mnuSave");
  EXPECT_TRUE(page.close());

  frmMain &again = Open(PageFile);
  const std::string drawn = DrawnInDesign(again, QStringLiteral("table"));
  again.ChangeMode(4);
  ASSERT_TRUE(WaitFor(
      [&] { return InPreview(QStringLiteral("document.querySelectorAll('td').length")) == 9; }));
  EXPECT_TRUE(PreviewDraws(QStringLiteral("table"), drawn)) << drawn;
}

TEST_F(RealInsert, ATableDialogCancelledAtFirstUseRemovesTheSelection) {
  frmMain &page = Open(PageFile, Plain);
  Evaluate(EngineOf(page), QStringLiteral("getSelection().setBaseAndExtent(document.querySelector("
                                          "'p').firstChild, 0, document.querySelector('p')"
                                          ".firstChild, 4)"));
  dialogs.ExpectModal([](QWidget &dialog) {
    dialog.findChild<QPushButton *>(QStringLiteral("Command2"))->click();
  });
  Choose("mnuTBLnew");
  EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("<p id=\"p\">two</p>")); }))
      << Seen(page);
}

}  // namespace
}  // namespace velor
