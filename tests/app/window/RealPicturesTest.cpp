// SPDX-License-Identifier: GPL-3.0-or-later
// A person at the whole window: pictures from elsewhere become part of the site.
#include "app/settings/modSettingManager.h"
#include "editor/PictureBar.h"
#include "editor/PictureTextBox.h"
#include "editor/frmMain.h"
#include "platform/Paths.h"
#include "tests/app/window/RealWindowFixture.h"
#include "tests/engine/ComponentFixture.h"
#include "tests/pictures/PictureFiles.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QMouseEvent>
#include <QPushButton>
#include <QSpinBox>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

namespace velor {
namespace {

const QByteArray Source =
    "<!DOCTYPE html>\r\n<title>x</title>\r\n<body style=\"margin: 0\">\r\n"
    "<p id=\"p\" style=\"margin: 0\">One</p>\r\n";
const QString PageFile = QStringLiteral("site/page.htm");
const QPoint Place(500, 8);

/// A preference that is on while this lives: the settings are shared by all tests.
class SettingOn {
 public:
  explicit SettingOn(const char *name) : name_(QString::fromLatin1(name)) { Set("True"); }
  ~SettingOn() { Set("False"); }
  SettingOn(const SettingOn &) = delete;
  SettingOn &operator=(const SettingOn &) = delete;

 private:
  void Set(const char *value) const {
    QtRegistry registry;
    modSettingManager::SetOption(registry, name_, QString::fromLatin1(value));
  }

  const QString name_;
};

class PublishedOnly : SettingOn {
 public:
  PublishedOnly() : SettingOn("PublishedOnly") {}
};

class RealPictures : public RealWindow {
 protected:
  RealPictures() {
    QDir().mkpath(folder.FilePath(QStringLiteral("site")));
    WriteOutside("My Rose.PNG", CodedAs("PNG", PlainPicture(60, 40)));
  }
  QString Outside(const char *name) const { return outside_.filePath(QString::fromLatin1(name)); }
  void WriteOutside(const char *name, const QByteArray &content) const {
    QFile file(Outside(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  QByteArray BytesOutside(const char *name) const {
    QFile file(Outside(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }
  QStringList Site() const {
    return QDir(folder.FilePath(QStringLiteral("site"))).entryList(QDir::Files, QDir::Name);
  }
  static QStringList Names(std::initializer_list<const char *> names) {
    QStringList list;
    for (const char *name : names) list << QString::fromLatin1(name);
    return list;
  }
  bool Becomes(frmMain &page, const char *markup) {
    return WaitFor([&] { return Holds(page, QString::fromLatin1(markup)); });
  }
  bool SiteBecomes(std::initializer_list<const char *> names) {
    return WaitFor([&] { return Site() == Names(names); });
  }
  template <typename Control>
  Control &InBox(frmMain &page, const char *name) {
    return *page.findChild<PictureTextBox *>()->findChild<Control *>(QString::fromLatin1(name));
  }
  template <typename Control>
  Control &InBar(frmMain &page, const char *name) {
    return *page.findChild<PictureBar *>()->findChild<Control *>(QString::fromLatin1(name));
  }
  frmMain &OpenSource() {
    frmMain &page = Open(PageFile, Source);
    PutCaret(page, QStringLiteral("p"));
    return page;
  }
  void Paste(frmMain &page, const QImage &image) {
    QGuiApplication::clipboard()->setImage(image);
    page.DHTML1().SetFocus();
    Choose("mnuPaste");
  }

 private:
  QTemporaryDir outside_;
};

TEST_F(RealPictures, ADroppedPictureFromOutsideIsCopiedAndTheKeyboardStaysInThePage) {
  frmMain &page = OpenSource();
  DropFiles(ViewOf(page), {Outside("My Rose.PNG")}, Place);
  EXPECT_TRUE(Becomes(page, "<img src=\"my-rose.png\" width=\"60\" height=\"40\">")) << Seen(page);
  EXPECT_EQ(Bytes(QStringLiteral("site/my-rose.png")), BytesOutside("My Rose.PNG"));
  EXPECT_TRUE(WaitFor([&] { return page.findChild<PictureBar *>()->isVisible(); }));
  EXPECT_EQ(InBar<QLabel>(page, "lblPicture").text(),
            QStringLiteral("My Rose.PNG was copied into the site: my-rose.png."));
  EXPECT_TRUE(dialogs.messages.empty());
  Type(page, QStringLiteral("xy"));
  EXPECT_TRUE(Becomes(page, "height=\"40\">xy")) << Seen(page);
}

TEST_F(RealPictures, UndoTakesTheFileAwayRedoBringsItBackAndASaveKeepsIt) {
  frmMain &page = OpenSource();
  DropFiles(ViewOf(page), {Outside("My Rose.PNG")}, Place);
  ASSERT_TRUE(Becomes(page, "my-rose.png"));
  ASSERT_TRUE(SiteBecomes({"my-rose.png", "page.htm"}));
  Choose("mnuUndo");
  EXPECT_TRUE(SiteBecomes({"page.htm"}));
  Choose("mnuRedo");
  EXPECT_TRUE(SiteBecomes({"my-rose.png", "page.htm"}));
  Choose("mnuSave");
  const QByteArray tag = R"(One<img src="my-rose.png" width="60" height="40">)";
  EXPECT_EQ(Bytes(PageFile).toStdString(), QByteArray(Source).replace("One", tag).toStdString());
  EXPECT_TRUE(page.close());
  EXPECT_EQ(Site(), Names({"my-rose.png", "page.htm"}));
}

TEST_F(RealPictures, PicturesInPastedMarkupComeIntoTheSiteInTheStepOfThePaste) {
  frmMain &page = OpenSource();
  const QByteArray held = CodedAs("PNG", PlainPicture(30, 20)).toBase64();
  auto *data = new QMimeData;
  data->setHtml(
      QStringLiteral("<p>two <img src=\"%1\" width=60 height=40> <img src=\"data:image/png;"
                     "base64,%2\"> <img src=\"http://example.com/c.png\"></p><p>three</p>")
          .arg(QUrl::fromLocalFile(Outside("My Rose.PNG")).toString(QUrl::FullyEncoded),
               QString::fromLatin1(held)));
  QGuiApplication::clipboard()->setMimeData(data);
  page.DHTML1().SetFocus();
  Choose("mnuPaste");
  EXPECT_TRUE(Becomes(page,
                      "<p>two <img src=\"my-rose.png\" width=\"60\" height=\"40\"> <img src=\""
                      "page-1.png\"> <img src=\"http://example.com/c.png\"></p>"))
      << Seen(page);
  EXPECT_EQ(Find<QStatusBar>("Sta")->currentMessage(),
            QStringLiteral("One picture stays on the web."));
  EXPECT_TRUE(SiteBecomes({"my-rose.png", "page-1.png", "page.htm"}));
  EXPECT_EQ(Bytes(QStringLiteral("site/my-rose.png")), BytesOutside("My Rose.PNG"));
  Choose("mnuUndo");
  EXPECT_TRUE(SiteBecomes({"page.htm"}));
  EXPECT_TRUE(WaitFor([&] { return !Holds(page, QStringLiteral("<img")); })) << Seen(page);
  Choose("mnuSave");
  EXPECT_EQ(Bytes(PageFile).toStdString(), Source.toStdString());
}

/// A window that was started with the preference.
class PublishedPictures : private PublishedOnly, public RealPictures {};

TEST_F(PublishedPictures, AreNotCopiedFromElsewhereAndNoBarAppears) {
  frmMain &page = OpenSource();
  DropFiles(ViewOf(page), {Outside("My Rose.PNG")}, Place);
  EXPECT_TRUE(Becomes(page, "My Rose.PNG\"")) << Seen(page);
  dialogs.ExpectModal([&](QWidget &dialog) {
    dialog.show();
    const QString link = QStringLiteral("file://") + Outside("My Rose.PNG");
    dialog.findChild<QLineEdit *>(QStringLiteral("txtImgSource"))->setText(link);
    dialog.findChild<QLineEdit *>(QStringLiteral("txtAlt"))->setText(QStringLiteral("chosen"));
    dialog.findChild<QPushButton *>(QStringLiteral("cmdOK"))->click();
  });
  Choose("mnuISTimage");
  EXPECT_TRUE(Becomes(page, "alt=\"chosen\"")) << Seen(page);
  EXPECT_EQ(Site(), Names({"page.htm"}));
  // What has no file has to become one; it is the component that names it.
  Paste(page, RedAndBlue(30, 20));
  EXPECT_TRUE(Becomes(page, "src=\"picture1.png\"")) << Seen(page);
  EXPECT_FALSE(page.findChild<PictureBar *>()->isVisible());
}

TEST_F(RealPictures, TheSettingIsReadAtTheStartAlone) {
  const PublishedOnly setting;
  frmMain &page = OpenSource();
  DropFiles(ViewOf(page), {Outside("My Rose.PNG")}, Place);
  EXPECT_TRUE(Becomes(page, "my-rose.png")) << Seen(page);
  EXPECT_TRUE(SiteBecomes({"my-rose.png", "page.htm"}));
}

TEST_F(RealPictures, ClosingWithoutSavingLeavesNoFileInTheSite) {
  frmMain &page = OpenSource();
  DropFiles(ViewOf(page), {Outside("My Rose.PNG")}, Place);
  ASSERT_TRUE(Becomes(page, "my-rose.png"));
  CloseUnsaved(page);
  EXPECT_EQ(Site(), Names({"page.htm"}));
  EXPECT_EQ(Bytes(PageFile), Source);
}

TEST_F(RealPictures, AFileThatAnotherSavedPageHasStaysWhenItsPageClosesWithoutSaving) {
  frmMain &page = OpenSource();
  DropFiles(ViewOf(page), {Outside("My Rose.PNG")}, Place);
  ASSERT_TRUE(SiteBecomes({"my-rose.png", "page.htm"}));
  ASSERT_TRUE(Becomes(page, "my-rose.png"));
  frmMain &other = Open(QStringLiteral("site/other.htm"), Source);
  DropFiles(ViewOf(other), {Outside("My Rose.PNG")}, Place);
  ASSERT_TRUE(Becomes(other, "my-rose.png")) << Seen(other);
  Choose("mnuSave");
  EXPECT_TRUE(other.close());
  CloseUnsaved(page);
  EXPECT_EQ(Site(), Names({"my-rose.png", "other.htm", "page.htm"}));
}

TEST_F(RealPictures, LinkedWhereItLiesItIsNoFileOfTheSiteAndThatIsRemembered) {
  frmMain &page = OpenSource();
  DropFiles(ViewOf(page), {Outside("My Rose.PNG")}, Place);
  ASSERT_TRUE(WaitFor([&] { return page.findChild<PictureBar *>()->isVisible(); }));
  InBar<QPushButton>(page, "cmdLinkPicture").click();
  EXPECT_TRUE(Becomes(page, "/My%20Rose.PNG\" width=\"60\"")) << Seen(page);
  EXPECT_TRUE(SiteBecomes({"page.htm"}));
  EXPECT_EQ(modSettingManager::GetOption(registry, PreferenceOf("CopyPictures")),
            QStringLiteral("False"));
  ASSERT_TRUE(WaitFor([&] { return InBar<QPushButton>(page, "cmdCopyPicture").isVisible(); }));
  InBar<QPushButton>(page, "cmdCopyPicture").click();
  EXPECT_TRUE(Becomes(page, "<img src=\"my-rose.png\"")) << Seen(page);
  EXPECT_TRUE(SiteBecomes({"my-rose.png", "page.htm"}));
  InBar<QPushButton>(page, "cmdUndoPicture").click();
  EXPECT_TRUE(SiteBecomes({"page.htm"}));
  EXPECT_FALSE(Holds(page, QStringLiteral("<img")));
}

TEST_F(RealPictures, TheBoxGivesThePictureItsTextAndADecorativeOneAnEmptyOne) {
  frmMain &page = OpenSource();
  DropFiles(ViewOf(page), {Outside("My Rose.PNG")}, Place);
  ASSERT_TRUE(Becomes(page, "height=\"40\">")) << Seen(page);
  ASSERT_TRUE(WaitFor([&] { return page.findChild<PictureBar *>()->isVisible(); }));
  Type(page, QStringLiteral("typed "));
  auto &text = InBox<QLineEdit>(page, "txtPictureAlt");
  text.setText(QStringLiteral("A \"red\" rose"));
  QTest::keyClick(&text, Qt::Key_Return);
  EXPECT_TRUE(Becomes(page, "height=\"40\" alt=\"A &quot;red&quot; rose\">typed ")) << Seen(page);
  InBox<QCheckBox>(page, "chkPictureDecorative").click();
  EXPECT_TRUE(Becomes(page, "height=\"40\" alt=\"\">typed ")) << Seen(page);
  Choose("mnuUndo");
  EXPECT_TRUE(Becomes(page, "alt=\"A &quot;red&quot; rose\">")) << Seen(page);
}

TEST_F(RealPictures, TheBoxStandsBesideThePictureFollowsItAndGoesByEscape) {
  frmMain &page = Open(PageFile,
                       "<!DOCTYPE html><body style=\"margin: 0\"><p id=p style=\"margin: 0\">"
                       "One</p><div style=\"height: 3000px\"></div>");
  PutCaret(page, QStringLiteral("p"));
  DropFiles(ViewOf(page), {Outside("My Rose.PNG")}, Place);
  auto &box = *page.findChild<PictureTextBox *>();
  ASSERT_TRUE(WaitFor([&] { return box.isVisible(); })) << Seen(page);
  const auto picture = [&] {
    const QVariantList told =
        Evaluate(EngineOf(page),
                 QStringLiteral("(({ left, top, width, height }) => [left, top, width, height])"
                                "(document.images[0].getBoundingClientRect())"))
            .toList();
    return QRect(told[0].toInt(), told[1].toInt(), told[2].toInt(), told[3].toInt());
  };
  EXPECT_TRUE(WaitFor([&] { return box.geometry().top() == picture().bottom() + 5; }))
      << box.geometry().top();
  EXPECT_TRUE(InputOf(page)->hasFocus());
  Evaluate(EngineOf(page), QStringLiteral("scrollTo(0, 20)"));
  EXPECT_TRUE(WaitFor([&] { return box.geometry().top() == picture().bottom() + 5; }))
      << box.geometry().top();
  Evaluate(EngineOf(page), QStringLiteral("scrollTo(0, 2000)"));
  EXPECT_TRUE(WaitFor([&] { return !box.isVisible(); }));
  Evaluate(EngineOf(page), QStringLiteral("scrollTo(0, 0)"));
  EXPECT_TRUE(WaitFor([&] { return box.isVisible(); }));
  Key(page, Qt::Key_F6);
  for (int step = 0; step < 20 && !box.isAncestorOf(QApplication::focusWidget()); ++step)
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
  ASSERT_EQ(QApplication::focusWidget(), &InBox<QLineEdit>(page, "txtPictureAlt"));
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Rose"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  EXPECT_FALSE(box.isVisible());
  EXPECT_TRUE(WaitFor([&] { return InputOf(page)->hasFocus(); }));
  EXPECT_TRUE(Becomes(page, "alt=\"Rose\"")) << Seen(page);
}

TEST(PictureTextBoxes, StandBesideTheirPictureWithinTheView) {
  const QRect view(0, 0, 400, 300);
  const QSize box(200, 40);
  EXPECT_EQ(PlaceBeside({10, 10, 60, 40}, box, view), QRect(10, 54, 200, 40));
  EXPECT_EQ(PlaceBeside({350, 10, 60, 40}, box, view), QRect(200, 54, 200, 40));
  EXPECT_EQ(PlaceBeside({10, 250, 60, 40}, box, view), QRect(10, 206, 200, 40));
  EXPECT_EQ(PlaceBeside({10, -20, 60, 310}, box, view), QRect(74, 0, 200, 40));
  EXPECT_TRUE(view.contains(PlaceBeside({-10, -10, 500, 400}, box, view)));
  EXPECT_TRUE(PlaceBeside({10, 400, 60, 40}, box, view).isEmpty());
}

TEST_F(RealPictures, AScreenshotIsPastedAsPngUnderThePagesName) {
  frmMain &page = OpenSource();
  Paste(page, RedAndBlue(30, 20));
  EXPECT_TRUE(Becomes(page, "<img src=\"page-1.png\" width=\"30\" height=\"20\">")) << Seen(page);
  EXPECT_EQ(QImage(folder.FilePath(QStringLiteral("site/page-1.png")))
                .convertToFormat(QImage::Format_RGB32),
            RedAndBlue(30, 20));
}

TEST_F(RealPictures, ANewPagesPicturesMoveIntoTheSiteAtItsFirstSave) {
  frmMain &page = NewPage();
  Paste(page, RedAndBlue(30, 20));
  ASSERT_TRUE(Becomes(page, "<img src=\"file:///")) << Seen(page);
  EXPECT_FALSE(Holds(page, QStringLiteral("data:")));
  DropFiles(ViewOf(page), {Outside("My Rose.PNG")}, {20, 20});
  ASSERT_TRUE(Becomes(page, "/My%20Rose.PNG")) << Seen(page);
  const auto besideCopies = [this] {
    return QDir(folder.FilePath({})).entryList({QStringLiteral("*.png")});
  };
  EXPECT_EQ(besideCopies().size(), 1);
  SharedDialog().ExpectSave(Logic(QStringLiteral("site/garden.htm")));
  Choose("mnuSave");
  EXPECT_TRUE(SiteBecomes({"garden-1.png", "garden.htm", "my-rose.png"}));
  const QByteArray saved = Bytes(QStringLiteral("site/garden.htm"));
  EXPECT_TRUE(saved.contains("<IMG src=garden-1.png ")) << saved.constData();
  EXPECT_TRUE(saved.contains("<IMG src=my-rose.png ")) << saved.constData();
  EXPECT_FALSE(saved.contains("file:"));
  EXPECT_TRUE(WaitFor([&] { return besideCopies().isEmpty(); }));
}

TEST_F(RealPictures, APictureChosenInTheDialogIsCopiedInTheSameStep) {
  frmMain &page = OpenSource();
  dialogs.ExpectModal([&](QWidget &dialog) {
    dialog.show();
    const QString link = QStringLiteral("file://") + Outside("My Rose.PNG");
    dialog.findChild<QLineEdit *>(QStringLiteral("txtImgSource"))->setText(link);
    dialog.findChild<QLineEdit *>(QStringLiteral("txtAlt"))->setText(QStringLiteral("rose"));
    dialog.findChild<QPushButton *>(QStringLiteral("cmdOK"))->click();
  });
  Choose("mnuISTimage");
  EXPECT_TRUE(Becomes(page, "<img src=\"my-rose.png\" alt=\"rose\"")) << Seen(page);
  EXPECT_EQ(Site(), Names({"my-rose.png", "page.htm"}));
  Choose("mnuUndo");
  EXPECT_TRUE(SiteBecomes({"page.htm"}));
}

TEST_F(RealPictures, WhatIsNoPictureIsLinkedWhereItLies) {
  WriteOutside("no.png", "text");
  frmMain &page = OpenSource();
  DropFiles(ViewOf(page), {Outside("no.png")}, Place);
  EXPECT_TRUE(Becomes(page, "/no.png\">")) << Seen(page);
  EXPECT_EQ(Site(), Names({"page.htm"}));
}

TEST_F(RealPictures, WhatBrowsersDoNotShowOrRunIsConvertedAndTold) {
  WriteOutside("scan.tif", CodedAs("TIFF", PlainPicture(30, 20)));
  WriteOutside("drawing.svg",
               "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"><script>x()"
               "</script></svg>");
  frmMain &page = OpenSource();
  const auto tells = [&](const char *words) {
    return WaitFor([&] {
      return InBar<QLabel>(page, "lblPicture").text().contains(QString::fromLatin1(words));
    });
  };
  DropFiles(ViewOf(page), {Outside("scan.tif")}, Place);
  EXPECT_TRUE(Becomes(page, "<img src=\"scan.png\" width=\"30\" height=\"20\">")) << Seen(page);
  EXPECT_TRUE(tells("It was a TIFF file, which browsers do not show, and is PNG now."));
  DropFiles(ViewOf(page), {Outside("drawing.svg")}, Place);
  EXPECT_TRUE(Becomes(page, "<img src=\"drawing.svg\"")) << Seen(page);
  EXPECT_TRUE(tells("It holds scripts, which browsers do not run in a picture."));
  EXPECT_EQ(Bytes(QStringLiteral("site/drawing.svg")), BytesOutside("drawing.svg"));
}

TEST_F(RealPictures, TheSettingsSayWhatPhotosBecomeAndWhetherTheyKeepTheirDetails) {
  WriteOutside("photo.jpg", JpegWith(CodedAs("JPG", Photo(64, 32)), ExifSegment(1)));
  frmMain &page = OpenSource();
  DropFiles(ViewOf(page), {Outside("photo.jpg")}, Place);
  EXPECT_TRUE(Becomes(page, "photo.jpg")) << Seen(page);
  EXPECT_FALSE(Bytes(QStringLiteral("site/photo.jpg")).contains("Exif"));
  const SettingOn keeps("KeepPictureData");
  DropFiles(ViewOf(page), {Outside("photo.jpg")}, Place);
  EXPECT_TRUE(Becomes(page, "photo-1.jpg")) << Seen(page);
  EXPECT_EQ(Bytes(QStringLiteral("site/photo-1.jpg")), BytesOutside("photo.jpg"));
  const SettingOn webp("PhotosAsWebP");
  Paste(page, Photo(60, 40));
  EXPECT_TRUE(Becomes(page, "page-1.webp")) << Seen(page);
}

TEST_F(RealPictures, EmbeddedPicturesBecomeFilesInOneStep) {
  const QByteArray png = CodedAs("PNG", RedAndBlue(30, 20));
  const QByteArray source = QByteArray(Source).replace(
      "One", "One<img class=x src=\"data:image/png;base64," + png.toBase64() +
                 "\"><IMG SRC='data:image/svg+xml,%3Csvg xmlns=\"http://www.w3.org/2000/svg\" "
                 "width=\"9\" height=\"9\"/%3E'><img src='data:image/png;base64,?'>");
  frmMain &page = Open(PageFile, source);
  Choose("mnuTakePicturesOut");
  EXPECT_TRUE(SiteBecomes({"page-1.png", "page-1.svg", "page.htm"}));
  EXPECT_EQ(Bytes(QStringLiteral("site/page-1.png")), png);
  EXPECT_TRUE(Becomes(page, "<img class=\"x\" src=\"page-1.png\"><img src=\"page-1.svg\">"))
      << Seen(page);
  Choose("mnuUndo");
  EXPECT_TRUE(Becomes(page, "base64,iVBOR")) << Seen(page);
  EXPECT_TRUE(SiteBecomes({"page.htm"}));
  Choose("mnuRedo");
  EXPECT_TRUE(SiteBecomes({"page-1.png", "page-1.svg", "page.htm"}));
  Choose("mnuSave");
  EXPECT_EQ(Bytes(PageFile), QByteArray(Source).replace("One",
                                                        "One<img class=x src=\"page-1.png\"><IMG "
                                                        "SRC='page-1.svg'><img "
                                                        "src='data:image/png;base64,?'>"));
}

TEST_F(RealPictures, AFileMuchLargerThanShownIsFittedAndTheOriginalKept) {
  const QByteArray large = CodedAs("PNG", RedAndBlue(400, 200));
  Write(QStringLiteral("site/a.png"), large);
  frmMain &page = Open(PageFile, "<!DOCTYPE html><p>x<img src=a.png width=60 height=30></p>");
  SelectPicture(page, 400);
  auto &bar = *page.findChild<QWidget *>(QStringLiteral("picFitting"));
  ASSERT_TRUE(WaitFor([&] { return bar.isVisible(); }));
  EXPECT_EQ(bar.findChild<QLabel *>(QStringLiteral("lblFitting"))->text(),
            QStringLiteral("a.png has 400 × 200 pixels and is shown at 60 × 30."));
  bar.findChild<QPushButton *>(QStringLiteral("cmdFit"))->click();
  EXPECT_EQ(QImage(folder.FilePath(QStringLiteral("site/a.png"))).size(), QSize(60, 30));
  EXPECT_EQ(Bytes(QStringLiteral("site/a-original.png")), large);
  bar.findChild<QPushButton *>(QStringLiteral("cmdUndoFitting"))->click();
  EXPECT_EQ(Bytes(QStringLiteral("site/a.png")), large);
  EXPECT_EQ(Site(), Names({"a.png", "page.htm"}));
  bar.findChild<QPushButton *>(QStringLiteral("cmdFitTwice"))->click();
  EXPECT_TRUE(Becomes(page, "height=\"30\" srcset=\"a-2x.png 2x\">")) << Seen(page);
  EXPECT_EQ(QImage(folder.FilePath(QStringLiteral("site/a.png"))).size(), QSize(60, 30));
  EXPECT_EQ(QImage(folder.FilePath(QStringLiteral("site/a-2x.png"))).size(), QSize(120, 60));
}

TEST_F(RealPictures, ACroppedPicturesFileAndSizeGoAndComeBackTogether) {
  const QByteArray whole = CodedAs("PNG", RedAndBlue(60, 40));
  Write(QStringLiteral("site/a.png"), whole);
  const QByteArray source = "<!DOCTYPE html><p>x<img src=a.png width=120 height=80></p>";
  frmMain &page = Open(PageFile, source);
  SelectPicture(page, 60);
  const auto size = [this] { return QImage(folder.FilePath(QStringLiteral("site/a.png"))).size(); };
  dialogs.ExpectModal([](QWidget &dialog) {
    dialog.show();
    dialog.findChild<QSpinBox *>(QStringLiteral("txtCropWidth"))->setValue(30);
    dialog.findChild<QPushButton *>(QStringLiteral("cmdCropTurnRight"))->click();
    dialog.findChild<QPushButton *>(QStringLiteral("cmdOK"))->click();
  });
  Choose("mnuCropPicture");
  EXPECT_TRUE(Becomes(page, "width=\"80\" height=\"60\"")) << Seen(page);
  EXPECT_EQ(size(), QSize(40, 30));
  EXPECT_EQ(Bytes(QStringLiteral("site/a-original.png")), whole);
  Choose("mnuUndo");
  EXPECT_TRUE(WaitFor([&] { return size() == QSize(60, 40); }));
  EXPECT_TRUE(Becomes(page, "width=\"120\" height=\"80\"")) << Seen(page);
  EXPECT_EQ(Site(), Names({"a.png", "page.htm"}));
  Choose("mnuRedo");
  EXPECT_TRUE(WaitFor([&] { return size() == QSize(40, 30); }));
  CloseUnsaved(page);
  EXPECT_EQ(Bytes(QStringLiteral("site/a.png")), whole);
  EXPECT_EQ(Site(), Names({"a.png", "page.htm"}));
}

TEST_F(RealPictures, ACropIsAStepOfThePagesUndoWhereThePageDoesNotSayThePicturesSize) {
  const QByteArray whole = CodedAs("PNG", RedAndBlue(60, 40));
  Write(QStringLiteral("site/a.png"), whole);
  frmMain &page = Open(PageFile, "<!DOCTYPE html><p>x<img src=a.png></p>");
  SelectPicture(page, 60);
  dialogs.ExpectModal([](QWidget &dialog) {
    dialog.show();
    dialog.findChild<QSpinBox *>(QStringLiteral("txtCropHeight"))->setValue(30);
    dialog.findChild<QPushButton *>(QStringLiteral("cmdOK"))->click();
  });
  Choose("mnuCropPicture");
  EXPECT_TRUE(Becomes(page, "<img src=\"a.png\" width=\"60\">")) << Seen(page);
  EXPECT_NE(Bytes(QStringLiteral("site/a.png")), whole);
  Choose("mnuUndo");
  EXPECT_TRUE(Becomes(page, "<img src=\"a.png\">")) << Seen(page);
  EXPECT_TRUE(WaitFor([&] { return Bytes(QStringLiteral("site/a.png")) == whole; }));
  Choose("mnuRedo");
  EXPECT_TRUE(WaitFor([&] { return Bytes(QStringLiteral("site/a.png")) != whole; }));
  page.findChild<QPushButton *>(QStringLiteral("cmdUndoFitting"))->click();
  EXPECT_TRUE(Becomes(page, "<img src=\"a.png\">")) << Seen(page);
  EXPECT_EQ(Bytes(QStringLiteral("site/a.png")), whole);
  EXPECT_EQ(Site(), Names({"a.png", "page.htm"}));
}

TEST_F(RealPictures, ATurnedPictureIsNotDistorted) {
  Write(QStringLiteral("site/a.png"), CodedAs("PNG", RedAndBlue(400, 200)));
  frmMain &page =
      Open(PageFile, "<!DOCTYPE html><p>x<img src=a.png style='width: 60px; height: 30px'>");
  SelectPicture(page, 400);
  auto &bar = *page.findChild<QWidget *>(QStringLiteral("picFitting"));
  ASSERT_TRUE(WaitFor([&] { return bar.isVisible(); }));
  bar.findChild<QPushButton *>(QStringLiteral("cmdTurnLeft"))->click();
  EXPECT_TRUE(Becomes(page, "width: 30px; height: 60px")) << Seen(page);
  EXPECT_EQ(QImage(folder.FilePath(QStringLiteral("site/a.png"))).size(), QSize(200, 400));
  bar.findChild<QPushButton *>(QStringLiteral("cmdUndoFitting"))->click();
  EXPECT_TRUE(Becomes(page, "width: 60px; height: 30px")) << Seen(page);
  EXPECT_EQ(Site(), Names({"a.png", "page.htm"}));
}

/// QTest's clicks are too far apart for the engine, which counts them by their times.
void DoubleClick(QWidget &widget, QPoint place) {
  quint64 time = 1'000'000;
  constexpr quint64 Pace = 30;  // milliseconds
  for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                  QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
    const auto held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, place, widget.mapToGlobal(place), Qt::LeftButton, held, {});
    event.setTimestamp(time += Pace);
    QCoreApplication::sendEvent(&widget, &event);
  }
}

TEST_F(RealPictures, ADoubleClickedPictureShowsItsProperties) {
  Write(QStringLiteral("site/a.png"), CodedAs("PNG", PlainPicture(60, 40)));
  frmMain &page = Open(PageFile, "<!DOCTYPE html><body style='margin: 0'><img src=a.png alt=old>");
  ASSERT_TRUE(WaitFor([&] {
    return Evaluate(EngineOf(page), QStringLiteral("document.images[0].naturalWidth")) == 60;
  }));
  bool isShown = false;
  dialogs.ExpectModal([&](QWidget &dialog) {
    dialog.show();
    isShown = true;
    EXPECT_EQ(dialog.findChild<QLineEdit *>(QStringLiteral("txtAlt"))->text(),
              QStringLiteral("old"));
    dialog.findChild<QPushButton *>(QStringLiteral("cmdCancel"))->click();
  });
  DoubleClick(*InputOf(page), {30, 20});
  EXPECT_TRUE(WaitFor([&] { return isShown; }));
}

}  // namespace
}  // namespace velor
