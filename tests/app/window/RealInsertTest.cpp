// SPDX-License-Identifier: GPL-3.0-or-later
// A person at the whole window: pictures and tables put into pages, and what becomes of them.
#include "app/window/PageTabs.h"
#include "editor/PageSlots.h"
#include "editor/frmBrowser.h"
#include "editor/frmMain.h"
#include "editor/modWorkFlow.h"
#include "engine/BridgeScript.h"
#include "insert/LinkPaths.h"
#include "platform/Paths.h"
#include "tests/app/window/RealWindowFixture.h"
#include "tests/engine/ComponentFixture.h"
#include "tests/support/UnusualNames.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>
#include <QWebEnginePage>

#include <map>

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
  void InsertPicture(const QString &alternativeText,
                     const QString &file = QStringLiteral("img/a b.png")) {
    dialogs.ExpectModal([=, this](QWidget &dialog) {
      // The element dialog makes its file dialog at the first Browse, and keeps it.
      components.onFileDialog = [this, file](FakeFileDialog &person) {
        browse_ = &person;
        person.ExpectOpen(Logic(file));
      };
      if (browse_ != nullptr) browse_->ExpectOpen(Logic(file));
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
  /// Opens the dialog of a command, types into boxes by their names, and answers OK.
  void FillDialog(const char *command, const std::map<const char *, const char *> &boxes) {
    dialogs.ExpectModal([boxes](QWidget &dialog) {
      dialog.show();
      for (const auto &[name, text] : boxes) {
        auto *box = dialog.findChild<QLineEdit *>(QString::fromLatin1(name));
        ASSERT_NE(box, nullptr) << name;
        box->setText(QString::fromLatin1(text));
      }
      dialog.findChild<QPushButton *>(QStringLiteral("cmdOK"))->click();
    });
    Choose(command);
  }
  /// The page's file is this at the latest when a change has had its time.
  void ExpectSaved(frmMain &page, const QByteArray &wanted) {
    EXPECT_TRUE(WaitFor([&] {
      Choose("mnuSave");
      return Bytes(PageFile) == wanted;
    })) << Bytes(PageFile).constData()
        << Seen(page);
  }
  /// Selects a stretch of the text of the first element that the selector finds.
  static void SelectText(frmMain &page, const char *selector, int from, int to) {
    Evaluate(EngineOf(page), QStringLiteral("getSelection().setBaseAndExtent("
                                            "document.querySelector('%1').firstChild, %2, "
                                            "document.querySelector('%1').firstChild, %3)")
                                 .arg(QString::fromLatin1(selector))
                                 .arg(from)
                                 .arg(to));
  }
  /// Waits until the program knows the link that the selection is in.
  static bool KnowsLink(frmMain &page, const char *address) {
    return WaitFor([&] {
      return page.DHTML1().Document().Link().Attribute(QStringLiteral("href")) ==
             QString::fromLatin1(address);
    });
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

 private:
  FakeFileDialog *browse_ = nullptr;
};

TEST_F(RealInsert, APictureInASavedPageIsLinkedRelativelySavedReopenedAndPreviewed) {
  frmMain &page = Open(PageFile, Plain);
  Evaluate(EngineOf(page), QStringLiteral("getSelection().setBaseAndExtent(document.querySelector("
                                          "'p').firstChild, 4, document.querySelector('p')"
                                          ".firstChild, 7)"));
  InsertPicture(QStringLiteral("Tea & \"cake\""));
  const QString tag = QStringLiteral(
      "<p id=\"p\">One <img src=\"img/a b.png\" alt=\"Tea &amp; &quot;cake&quot;\" height=\"40\" "
      "width=\"60\"></p>");
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

TEST_F(RealInsert, LinksToFilesOfUnusualNamesLeadTheEngineToThem) {
  frmMain &page = NewPage();
  UnusualNames names(20240302);
  QVariantList cases;
  for (int i = 0; i < 2000; ++i) {
    const QString root = i % 10 == 0 ? QStringLiteral("C:") : QString();
    const QString from = names.Path(root);
    const QString to = names.Path(i % 20 == 0 ? QStringLiteral("D:") : root);
    const QByteArray base =
        (i % 10 == 0 ? "file:///" : "file://") + QUrl::toPercentEncoding(ToNative(from), "/:");
    const QString wanted = i % 10 == 0 ? u'/' + ToNative(to) : ToNative(to);
    cases << QVariant(QVariantList{QString::fromLatin1(base), LinkToFile(from, to), wanted});
    cases << QVariant(QVariantList{QStringLiteral("file:///tmp/"), LinkToFile({}, to), wanted});
  }
  const QString wrong = QStringLiteral(
                            "const wrong = %1.filter(([base, link, wanted]) => {"
                            "  const { pathname } = new URL(link, base);"
                            "  const path = decodeURIComponent("
                            "    pathname.replace(/%(?![0-9A-F]{2})/gi, '%25'));"
                            "  return path.replace(/^\\/\\//, '/') !== wanted; });"
                            "JSON.stringify(wrong.slice(0, 5))")
                            .arg(ScriptValue(cases));
  EXPECT_EQ(Evaluate(EngineOf(page), wrong).toString().toStdString(), "[]");
}

TEST_F(RealInsert, PicturesOfUnusualNamesShowInDesignViewAndPreview) {
  const QStringList names = {QStringLiteral("img/pic #1.png"), QStringLiteral("img/what?.png"),
                             QStringLiteral("img/50%25 off.png"), QStringLiteral("img/\"q\".png")};
  for (const QString &name : names)
    ASSERT_TRUE(QFile::copy(folder.FilePath(QStringLiteral("img/a b.png")), folder.FilePath(name)));
  frmMain &page = Open(PageFile, Plain);
  PutCaret(page, QStringLiteral("p"));
  qsizetype count = 0;
  for (const QString &name : names) {
    InsertPicture({}, name);
    ++count;
    ASSERT_TRUE(WaitFor([&] {
      return Evaluate(EngineOf(page), QStringLiteral("document.images.length")) == count;
    })) << Seen(page);
  }
  const auto areShown = [&](QWidget &shown) {
    return WaitFor([&] {
      return Evaluate(EngineOf(shown),
                      QStringLiteral("[...document.images].filter((image) => image.naturalWidth "
                                     "=== 60).length")) == names.size();
    });
  };
  EXPECT_TRUE(areShown(page)) << Seen(page);
  EXPECT_TRUE(Holds(page, QStringLiteral("src=\"img/pic %231.png\""))) << Seen(page);
  page.ChangeMode(4);
  EXPECT_TRUE(areShown(*window.Context().preview));
}

TEST_F(RealInsert, FullAddressesInANewPageBecomeRelativeAtItsFirstSaveAs) {
  frmMain &page = NewPage();
  const QString person = QStringLiteral("<p><a href=\"file:///elsewhere/x.htm\">x</a></p>");
  page.DHTML1().Document().Selection().CreateRange()->PasteHTML(person);
  InsertPicture({});
  const QString full =
      QStringLiteral("src=\"file:///%1\"").arg(folder.FilePath(QStringLiteral("img/a b.png")));
  ASSERT_TRUE(WaitFor([&] { return Holds(page, full); })) << Seen(page);
  QDir().mkpath(folder.FilePath(QStringLiteral("sub")));
  SharedDialog().ExpectSave(Logic(QStringLiteral("sub/new.htm")));
  Choose("mnuSaveAs");
  const QByteArray saved = Bytes(QStringLiteral("sub/new.htm"));
  EXPECT_TRUE(saved.contains("src=\"../img/a b.png\"")) << saved.constData();
  EXPECT_TRUE(saved.contains("file:///elsewhere/x.htm")) << saved.constData();
  EXPECT_EQ(
      window.statusBar()->currentMessage(),
      QStringLiteral("Saved %1. One link in it leads to its file by its way from the page now")
          .arg(folder.FilePath(QStringLiteral("sub/new.htm"))));
  const auto isShown = [&] {
    return Evaluate(EngineOf(page),
                    QStringLiteral("document.images[0] && document.images[0].naturalWidth")) == 60;
  };
  EXPECT_TRUE(WaitFor(isShown));
  Choose("mnuUndo");
  EXPECT_TRUE(WaitFor([&] { return Holds(page, full); })) << Seen(page);
  Choose("mnuRedo");
  EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("src=\"../img/a b.png\"")); }))
      << Seen(page);
  EXPECT_TRUE(WaitFor(isShown));
}

TEST_F(RealInsert, AFirstSaveThatFailsLeavesTheFullAddresses) {
  frmMain &page = NewPage();
  InsertPicture({});
  const QString full =
      QStringLiteral("src=\"file:///%1\"").arg(folder.FilePath(QStringLiteral("img/a b.png")));
  ASSERT_TRUE(WaitFor([&] { return Holds(page, full); })) << Seen(page);
  dialogs.ExpectMessage(QStringLiteral("File saving error: 76"));
  SharedDialog().ExpectSave(Logic(QStringLiteral("none/new.htm")));
  Choose("mnuSaveAs");
  EXPECT_TRUE(Holds(page, full)) << Seen(page);
  SharedDialog().ExpectSave(Logic(QStringLiteral("new.htm")));
  Choose("mnuSaveAs");
  EXPECT_TRUE(Bytes(QStringLiteral("new.htm")).contains("src=\"img/a b.png\""));
}

TEST_F(RealInsert, APageOfAProjectHasRelativeLinksBeforeItsFirstSave) {
  Write(PageFile, Plain);
  modWorkFlow::OpenProjectPage(window.Context(), Logic(PageFile));
  frmMain &page = *window.Context().pages.Page(1);
  ASSERT_TRUE(WaitFor([&] { return page.PendingAction.isEmpty(); }));
  ASSERT_EQ(page.GetPageRecord().HasFile, False16);
  InsertPicture({});
  EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("src=\"img/a b.png\"")); }))
      << Seen(page);
}

TEST_F(RealInsert, ALinkIsMadeChangedAndTakenOffInOneStepEach) {
  frmMain &page = Open(PageFile, Plain);
  SelectText(page, "p", 4, 7);
  FillDialog("mnuISTlink", {{"txtHref", "other.htm#end"}, {"txtATitle", "A \"hint\""}});
  const QByteArray linked = QByteArray(Plain).replace(
      "two", R"(<a href="other.htm#end" title="A &quot;hint&quot;">two</a>)");
  ExpectSaved(page, linked);
  ASSERT_TRUE(KnowsLink(page, "other.htm#end"));
  FillDialog("mnuISTlink", {{"txtHref", "b.htm"}, {"txtATitle", ""}});
  ExpectSaved(page, QByteArray(Plain).replace("two", "<a href=\"b.htm\">two</a>"));
  Choose("mnuUndo");
  ExpectSaved(page, linked);
  ASSERT_TRUE(KnowsLink(page, "other.htm#end"));
  FillDialog("mnuISTlink", {{"txtHref", ""}});
  ExpectSaved(page, Plain);
}

TEST_F(RealInsert, CtrlKOpensTheHyperlinkPageFromWithinThePage) {
  frmMain &page = Open(PageFile, Plain);
  bool isOpened = false;
  dialogs.ExpectModal([&isOpened](QWidget &dialog) {
    isOpened = dialog.findChild<QLineEdit *>(QStringLiteral("txtHref")) != nullptr;
  });
  Key(page, Qt::Key_K, Qt::ControlModifier);
  EXPECT_TRUE(WaitFor([&] { return isOpened; }));
}

TEST_F(RealInsert, TheWordAtTheCaretAndAPictureBecomeLinks) {
  const QByteArray source =
      "<html><head></head><body>\r\n<p>One two</p>\r\n<p>a <IMG src='img/a b.png'></p>\r\n"
      "</body></html>";
  frmMain &page = Open(PageFile, source);
  PutCaret(page, QStringLiteral("p"));
  FillDialog("mnuISTlink", {{"txtHref", "mailto:a@b.org"}});
  const QByteArray first = QByteArray(source).replace("One", "<a href=\"mailto:a@b.org\">One</a>");
  ExpectSaved(page, first);
  Evaluate(EngineOf(page), QStringLiteral("getSelection().selectAllChildren(document.images[0]"
                                          ".parentNode); getSelection().setBaseAndExtent("
                                          "document.images[0].parentNode, 1, "
                                          "document.images[0].parentNode, 2)"));
  ASSERT_TRUE(WaitFor(
      [&] { return page.DHTML1().Document().Selection().Type() == SelectionType::Control; }));
  FillDialog("mnuISTlink", {{"txtHref", "b.htm"}});
  ExpectSaved(page, QByteArray(first).replace("<IMG src='img/a b.png'>",
                                              "<a href=\"b.htm\"><IMG src='img/a b.png'></a>"));
}

TEST_F(RealInsert, APlaceIsNamedAndOfferedToLinks) {
  Write(QStringLiteral("other.htm"), "<p id=there>x<a name='and here'>y</a>");
  const QByteArray source = "<html><head></head><body>\r\n<h1>One two</h1>\r\n</body></html>";
  frmMain &page = Open(PageFile, source);
  PutCaret(page, QStringLiteral("h1"));
  FillDialog("mnuBookmark", {{"txtBookmarkName", "start"}});
  ExpectSaved(page, QByteArray(source).replace("<h1>", "<h1 id=\"start\">"));
  dialogs.ExpectModal([](QWidget &dialog) {
    dialog.show();
    const auto *list = dialog.findChild<QListWidget *>(QStringLiteral("lstABookMark"));
    ASSERT_EQ(list->count(), 1);
    EXPECT_EQ(list->item(0)->text(), QStringLiteral("start"));
    dialog.findChild<QLineEdit *>(QStringLiteral("txtHref"))->setText(QStringLiteral("other.htm"));
    dialog.findChild<QPushButton *>(QStringLiteral("cmdRefreshA"))->click();
    ASSERT_EQ(list->count(), 2);
    EXPECT_EQ(list->item(1)->text(), QStringLiteral("and here"));
  });
  Choose("mnuISTlink");
}

TEST_F(RealInsert, TheSelectedPictureIsChangedAndNothingElseIsWritten) {
  const QByteArray source =
      "<!DOCTYPE html>\n<p>a <IMG class=x src='img/a b.png' ALT=old width=30 height=20> b</p>\n";
  frmMain &page = Open(PageFile, source);
  Evaluate(EngineOf(page), QStringLiteral("getSelection().setBaseAndExtent("
                                          "document.images[0].parentNode, 1, "
                                          "document.images[0].parentNode, 2)"));
  ASSERT_TRUE(WaitFor(
      [&] { return page.DHTML1().Document().Selection().Type() == SelectionType::Control; }));
  dialogs.ExpectModal([](QWidget &dialog) {
    dialog.show();
    const auto box = [&](const char *name) {
      return dialog.findChild<QLineEdit *>(QString::fromLatin1(name));
    };
    EXPECT_EQ(box("txtImgSource")->text(), QStringLiteral("img/a b.png"));
    EXPECT_EQ(box("txtIMGWidth")->text(), QStringLiteral("30"));
    box("txtAlt")->setText(QStringLiteral("new"));
    dialog.findChild<QComboBox *>(QStringLiteral("cobIMGAlign"))
        ->setCurrentText(QStringLiteral("Center"));
    dialog.findChild<QPushButton *>(QStringLiteral("cmdOK"))->click();
  });
  Choose("mnuISTimage");
  ExpectSaved(page, QByteArray(source)
                        .replace("ALT=old", "ALT=new")
                        .replace("height=20", "height=20 style='display: block; margin: 0 auto'"));
  Choose("mnuUndo");
  ExpectSaved(page, source);
}

TEST_F(RealInsert, ALinkIsFollowedInThePreviewByCtrlAndAClickAndByItsCommand) {
  Write(QStringLiteral("other #1.htm"), "<title>other</title><p id=there>x");
  frmMain &page = Open(PageFile,
                       "<title>own</title><body style='margin: 0'><p style='margin: 0'>"
                       "<a href='other%20%231.htm#there'>One two</a></p><p id=p>"
                       "<a href='#p'>three</a></p>");
  const QPoint inLink(10, 10);
  ASSERT_TRUE(WaitFor([&] {
    return Evaluate(EngineOf(page), QStringLiteral("document.elementFromPoint(10, 10).tagName")) ==
           QStringLiteral("A");
  }));
  QTest::mouseClick(InputOf(page), Qt::LeftButton, Qt::ControlModifier, inLink);
  const auto isThere = [&](const char *title, const char *place) {
    return WaitFor([&] {
      return !window.Context().preview.isNull() &&
             InPreview(QStringLiteral("document.title + location.hash")) ==
                 QString::fromLatin1(title) + QString::fromLatin1(place);
    });
  };
  EXPECT_TRUE(isThere("other", "#there"));
  page.ChangeMode(1);
  Parts().windows.Activate(&page);
  Evaluate(EngineOf(page), QStringLiteral("getSelection().collapse(document.querySelector('#p a')"
                                          ".firstChild, 2)"));
  ASSERT_TRUE(KnowsLink(page, "#p"));
  Choose("mnuFollowLink");
  EXPECT_TRUE(isThere("own", "#p"));
}

TEST_F(RealInsert, AVideoGoesIntoAnHtml5Page) {
  const QByteArray source = "<!DOCTYPE html>\n<p id=\"p\">One</p>\n";
  frmMain &page = Open(PageFile, source);
  Evaluate(EngineOf(page),
           QStringLiteral("getSelection().collapse(document.querySelector('p').firstChild, 3)"));
  FillDialog("mnuVideo", {{"txtVidSource", "film 1.mp4"}, {"txtVidPoster", "film.jpg"}});
  ExpectSaved(page,
              QByteArray(source).replace(
                  "One", R"(One<video src="film 1.mp4" poster="film.jpg" controls></video>)"));
  Choose("mnuUndo");
  ExpectSaved(page, source);
}

TEST_F(RealInsert, ATableHasHeadingsWhereAskedAndTheCaretInItsFirstCell) {
  frmMain &page = Open(PageFile, Plain);
  PutCaret(page, QStringLiteral("p"));
  dialogs.ExpectModal([](QWidget &dialog) {
    dialog.findChild<QCheckBox *>(QStringLiteral("chkHeadings"))->setChecked(true);
    dialog.findChild<QPushButton *>(QStringLiteral("Command1"))->click();
  });
  Choose("mnuTBLnew");
  ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("<table cellspacing=")); }));
  Type(page, QStringLiteral("Name"));
  EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("<th scope=\"col\">Name</th>")); }))
      << Seen(page);
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
  ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("<table cellspacing=")); }))
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

TEST_F(RealInsert, ATableInAnHtml5PageHasStylesAndNoOldAttributes) {
  frmMain &page = Open(PageFile, "<!DOCTYPE html>\r\n<title>x</title>\r\n<p>One</p>\r\n");
  PutCaret(page, QStringLiteral("p"));
  dialogs.ExpectModal([](QWidget &dialog) {
    for (const char *count : {"Text1", "Text2"})
      dialog.findChild<QLineEdit *>(QString::fromLatin1(count))->setText(QStringLiteral("1"));
    dialog.findChild<QPushButton *>(QStringLiteral("Command1"))->click();
  });
  Choose("mnuTBLnew");
  ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("<table")); }));
  Choose("mnuSave");
  const std::string saved = Bytes(PageFile).toStdString();
  EXPECT_NE(saved.find("<table style=\"border: 1px solid; border-spacing: 1px; width: 75%\">"),
            std::string::npos)
      << saved;
  EXPECT_NE(saved.find("<td style=\"border: 1px solid\">"), std::string::npos) << saved;
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
