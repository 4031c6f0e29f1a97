// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/frmInsertElement.h"
#include "platform/Browser.h"
#include "platform/Database.h"
#include "platform/EditingComponent.h"
#include "platform/Paths.h"
#include "platform/Platform.h"
#include "tests/support/Checks.h"
#include "tests/support/FakeDialogs.h"
#include "tests/support/FakeEditingComponent.h"
#include "tests/support/FakeFileDialog.h"
#include "tests/support/FakeFiles.h"
#include "tests/support/FakeRegistry.h"
#include "tests/support/FakeRuntime.h"
#include "tests/support/FakeStylingSweeps.h"
#include "tests/support/Forms.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

namespace velor {
namespace {

/// Makes one file dialog; the dialog under test owns it from then on.
class FileDialogSource final : public Components {
 public:
  FakeFileDialog *dialog = new FakeFileDialog;
  int made = 0;

  ~FileDialogSource() override {
    if (made == 0) delete dialog;
  }
  std::unique_ptr<EditingComponent> CreateEditingComponent(QWidget *) override { return {}; }
  std::unique_ptr<SourceControl> CreateSourceControl(QWidget *, SourceAccess) override {
    return {};
  }
  std::unique_ptr<Browser> CreateBrowser(QWidget *) override { return {}; }
  std::unique_ptr<FileDialog> CreateFileDialog() override {
    ++made;
    return std::unique_ptr<FileDialog>(dialog);
  }
  std::unique_ptr<DatabaseConnection> CreateDatabaseConnection() override { return {}; }
};

QString U(const char *text) {
  return QString::fromUtf8(text);
}

const QStringList Kinds = {QStringLiteral("image"), QStringLiteral("hyperlink"),
                           QStringLiteral("target"), QStringLiteral("video")};

class ElementDialogTest : public testing::Test {
 protected:
  ElementDialogTest() {
    component.SetDocumentHTML(U("<HTML><BODY>one two</BODY></HTML>"));
    component.selectionStart = component.DocumentHTML().indexOf(U("two"));
    component.selectionEnd = component.selectionStart + 3;
    component.ForgetCalls();
  }

  template <typename Widget>
  Widget *Get(const char *name) {
    return Control<Widget>(dialog, U(name));
  }
  QString Text(const char *box) { return Get<QLineEdit>(box)->text(); }
  void Type(const char *box, const char *text) { Get<QLineEdit>(box)->setText(U(text)); }
  void Click(const char *button) { Get<QAbstractButton>(button)->click(); }

  /// The dialog as the insert commands show it.
  void Show(const char *mode, const char *savedPath = "") {
    dialog.PrepareInsert(U(mode), component.Document(), U(savedPath));
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  }

  QString SavePicture(const QString &name, QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    EXPECT_TRUE(image.save(folder.filePath(name)));
    return ToLogic(folder.filePath(name));
  }

  QTemporaryDir folder;
  CallLog log;
  FakeFiles files;
  FakeRuntime runtime;
  FakeDialogs dialogs;
  FakeRegistry registry;
  FileDialogSource components;
  Platform platform{files, runtime, dialogs, registry, components};
  FakeStylingSweeps sweeps{&log};
  FakeEditingComponent component{files, nullptr};
  frmInsertElement dialog{platform, &sweeps};
};

TEST_F(ElementDialogTest, ShowsItsPagesAndButtons) {
  EXPECT_EQ(dialog.windowTitle(), U("Element Information..."));
  EXPECT_TRUE(dialog.isModal());
  const struct {
    const char *tabs;
    QStringList pages;
  } strips[] = {{"SSTab1", {U("Image"), U("Hyperlink"), U("Target"), U("Video")}},
                {"SSTab2", {U("General"), U("Appearance")}},
                {"SSTab3", {U("General"), U("Appearance")}}};
  for (const auto &strip : strips) {
    auto *tabs = Get<QTabWidget>(strip.tabs);
    QStringList pages;
    for (int i = 0; i < tabs->count(); ++i) pages.append(tabs->tabText(i));
    EXPECT_EQ(pages, strip.pages);
  }
  EXPECT_TRUE(Get<QTabWidget>("SSTab1")->widget(0)->isAncestorOf(Get<QTabWidget>("SSTab2")));
  EXPECT_TRUE(Get<QTabWidget>("SSTab1")->widget(3)->isAncestorOf(Get<QTabWidget>("SSTab3")));
  EXPECT_EQ(Get<QPushButton>("cmdOK")->text(), U("OK"));
  EXPECT_EQ(Get<QPushButton>("cmdCancel")->text(), U("Cancel"));
}

struct BoxCase {
  const char *name;
  const char *label;
  const char *value;
};

constexpr BoxCase Boxes[] = {
    {"txtImgSource", "Image Source:", ""},       {"txtLowRes", "Low Resolution:", ""},
    {"txtAlt", "Alternative Text:", ""},         {"txtIMGBorder", "Border thickness:", "0"},
    {"txtIMGHSpac", "Horizontal Spacing:", "0"}, {"txtIMGVspac", "Vertical Spacing:", "0"},
    {"txtIMGHeight", "Height:", "32"},           {"txtIMGWidth", "Width:", "32"},
    {"txtHref", "Anchor Element Href:", ""},     {"txtBookmarkName", "Bookmark Name: ", ""},
    {"txtVidSource", "Video Source:", ""},       {"txtVidLoop", "&Loop:", "1"},
    {"txtVidLoopDelay", "Loop &delay:", "0"},    {"txtVIDBorder", "Border thickness:", "1"},
    {"txtVIDHSpac", "Horizontal Spacing:", "0"}, {"txtVIDVspac", "Vertical Spacing:", "0"},
    {"txtVIDHeight", "Height:", "32"},           {"txtVIDWidth", "Width:", "32"}};

TEST_F(ElementDialogTest, LabelsAndFillsItsEighteenTextBoxes) {
  EXPECT_EQ(std::size(Boxes), 18U);
  for (const BoxCase &box : Boxes) {
    auto *control = Get<QLineEdit>(box.name);
    EXPECT_EQ(LabelOf(dialog, control), U(box.label));
    EXPECT_EQ(control->accessibleName(), U(box.label).remove(u'&'));
    EXPECT_EQ(control->text(), U(box.value));
  }
  EXPECT_TRUE(HasLabel(dialog, U("Milliseconds")));
}

TEST_F(ElementDialogTest, EnablesTheVideoSizeAtStartButNotTheImageSize) {
  EXPECT_FALSE(Get<QLineEdit>("txtIMGHeight")->isEnabled());
  EXPECT_FALSE(Get<QLineEdit>("txtIMGWidth")->isEnabled());
  Show("video");
  EXPECT_TRUE(Get<QLineEdit>("txtVIDHeight")->isEnabled());
  EXPECT_TRUE(Get<QLineEdit>("txtVIDWidth")->isEnabled());
}

TEST_F(ElementDialogTest, ShowsItsCheckBoxesUnchecked) {
  const struct {
    const char *name, *caption;
  } checks[] = {{"chkIMGSize", "Use &Specific Size"},
                {"chkShowControl", "&Show controls in Browser"},
                {"chkForever", "Forever"},
                {"chkVidOnOpen", "On file open"},
                {"chkVidMouseOver", "On mouse over"},
                {"chkMouseOver", "Start on &Mouse Over"},
                {"chkVIDSize", "Use &Specific Size"}};
  for (const auto &check : checks) {
    EXPECT_EQ(Get<QCheckBox>(check.name)->text(), U(check.caption));
    EXPECT_FALSE(Get<QCheckBox>(check.name)->isChecked()) << check.name;
  }
}

TEST_F(ElementDialogTest, ShowsItsFramesAndButtons) {
  QStringList frames;
  for (const QGroupBox *frame : dialog.findChildren<QGroupBox *>()) frames.append(frame->title());
  for (const char *title : {"Alternative", "Layout", "Size", "Special Links:", "Repeat", "Start"}) {
    EXPECT_TRUE(frames.contains(U(title))) << title;
  }
  const struct {
    const char *name, *caption;
  } buttons[] = {{"cmdBrowseIMG", "&Browse..."},
                 {"cmdBrowseLowRes", "&Browse..."},
                 {"Command1", "&Browse..."},
                 {"cmdRefreshA", "&Refresh"},
                 {"cmdRefreshOther", "&Refresh"}};
  for (const auto &button : buttons) {
    EXPECT_EQ(Get<QPushButton>(button.name)->text(), U(button.caption));
  }
  EXPECT_EQ(Get<QPushButton>("cmdABrowse")->toolTip(),
            U("Browse from your computer and Link to a file"));
  EXPECT_EQ(Get<QPushButton>("cmdAEmail")->toolTip(), U("Link to a E-mail Address"));
  EXPECT_EQ(LabelOf(dialog, Get<QListWidget>("lstABookMark")), U("Link to a Bookmark (Target):"));
  EXPECT_EQ(LabelOf(dialog, Get<QListWidget>("lstOtherBookmark")),
            U("Other bookmarks in this page:"));
}

TEST_F(ElementDialogTest, OffersElevenAlignmentsAndFiveFrames) {
  const QStringList alignments = {U("Default"), U("Left"),      U("Right"),     U("Top"),
                                  U("Texttop"), U("Middle"),    U("Absmiddle"), U("Baseline"),
                                  U("Botton"),  U("Absbottom"), U("Center")};
  const QStringList frames = {U("None"), U("_self"), U("_top"), U("_blank"), U("_parent")};
  const struct {
    const char *name, *label;
    QStringList items;
  } lists[] = {{"cobIMGAlign", "Alignment:", alignments},
               {"cobVIDAlign", "Alignment:", alignments},
               {"cobATarget", "Target Frame:", frames}};
  for (const auto &list : lists) {
    auto *box = Get<QComboBox>(list.name);
    QStringList items;
    for (int i = 0; i < box->count(); ++i) items.append(box->itemText(i));
    EXPECT_EQ(items, list.items);
    EXPECT_EQ(LabelOf(dialog, box), U(list.label));
    EXPECT_EQ(box->currentIndex(), 0);
  }
}

TEST_F(ElementDialogTest, IsStyledOnceWhenItLoads) {
  const CallLog once = {U("ThinEdgeByType(frmInsertElement, commandbutton)"),
                        U("ThinEdgeByType(frmInsertElement, textbox)"),
                        U("ThinEdgeByType(frmInsertElement, listbox)"),
                        U("FlatComboSweep(frmInsertElement)")};
  Show("image");
  dialog.hide();
  Show("video");
  EXPECT_EQ(log, once);
}

TEST_F(ElementDialogTest, SwitchesOffTheTargetAndVideoPagesWhenItLoads) {
  auto *pages = Get<QTabWidget>("SSTab1");
  EXPECT_TRUE(pages->isTabEnabled(0));
  EXPECT_TRUE(pages->isTabEnabled(1));
  EXPECT_FALSE(pages->isTabEnabled(2));
  EXPECT_FALSE(pages->isTabEnabled(3));
}

TEST_F(ElementDialogTest, BringsUpThePageOfTheKindAlone) {
  auto *pages = Get<QTabWidget>("SSTab1");
  for (const char *mode : {"video", "image", "target", "hyperlink", "image"}) {
    dialog.PrepareInsert(U(mode), component.Document(), {});
    const int page = static_cast<int>(Kinds.indexOf(U(mode)));
    EXPECT_EQ(pages->currentIndex(), page);
    for (int i = 0; i < pages->count(); ++i) EXPECT_EQ(pages->isTabEnabled(i), i == page);
  }
}

TEST_F(ElementDialogTest, TellsSavedPagesFromUnsavedOnes) {
  dialog.PrepareInsert(U("hyperlink"), component.Document(), U("\\site\\page.htm"));
  EXPECT_EQ(dialog.SavedMode, U("true"));
  EXPECT_EQ(dialog.FilePath, U("\\site\\page.htm"));
  EXPECT_EQ(dialog.InsertMode, U("true"));
  EXPECT_EQ(dialog.ElementMode, U("hyperlink"));
  EXPECT_TRUE(dialog.IsCreator);
  EXPECT_EQ(dialog.TheDOM, &component.Document());

  dialog.PrepareInsert(U("image"), component.Document(), {});
  EXPECT_EQ(dialog.SavedMode, U("false"));
  EXPECT_EQ(dialog.FilePath, U("\\site\\page.htm"));
}

TEST_F(ElementDialogTest, LetsTypingStartInThePagesFirstBox) {
  Show("image");
  EXPECT_EQ(dialog.focusWidget(), Get<QLineEdit>("txtImgSource"));
  dialog.hide();
  Show("target");
  EXPECT_EQ(dialog.focusWidget(), Get<QLineEdit>("txtBookmarkName"));
}

TEST_F(ElementDialogTest, RepairsTheSevenBoxesThatAreRepairedAndNoOthers) {
  const std::map<std::string, QString> repaired = {
      {"txtIMGBorder", U("0")},  {"txtIMGHSpac", U("0")},  {"txtIMGVspac", U("0")},
      {"txtIMGHeight", U("32")}, {"txtIMGWidth", U("32")}, {"txtVIDHeight", U("32")},
      {"txtVIDWidth", U("32")}};
  for (const BoxCase &box : Boxes) {
    auto *control = Get<QLineEdit>(box.name);
    control->setText(U("abc"));
    QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(control, &out);
    const auto found = repaired.find(box.name);
    EXPECT_EQ(control->text(), found == repaired.end() ? U("abc") : found->second) << box.name;
  }
}

TEST_F(ElementDialogTest, SelectsTheWholeTextOfEveryBoxThatGetsTheFocus) {
  for (const BoxCase &box : Boxes) {
    auto *control = Get<QLineEdit>(box.name);
    control->setText(U("some text"));
    QFocusEvent in(QEvent::FocusIn, Qt::OtherFocusReason);
    QApplication::sendEvent(control, &in);
    EXPECT_EQ(control->selectedText(), U("some text")) << box.name;
  }
}

TEST_F(ElementDialogTest, EnablesTheSizeBoxesExactlyWhenChecked) {
  const struct {
    const char *mode, *check, *height, *width;
  } sizes[] = {{"image", "chkIMGSize", "txtIMGHeight", "txtIMGWidth"},
               {"video", "chkVIDSize", "txtVIDHeight", "txtVIDWidth"}};
  for (const auto &size : sizes) {
    Show(size.mode);
    for (bool checked : {true, false}) {
      Click(size.check);
      EXPECT_EQ(Get<QCheckBox>(size.check)->isChecked(), checked);
      EXPECT_EQ(Get<QLineEdit>(size.height)->isEnabled(), checked);
      EXPECT_EQ(Get<QLineEdit>(size.width)->isEnabled(), checked);
    }
  }
}

TEST_F(ElementDialogTest, DisablesTheLoopCountWhileForever) {
  Show("video");
  Click("chkForever");
  EXPECT_FALSE(Get<QLineEdit>("txtVidLoop")->isEnabled());
  Click("chkForever");
  EXPECT_TRUE(Get<QLineEdit>("txtVidLoop")->isEnabled());
}

TEST_F(ElementDialogTest, LinksAPictureRelativeToTheSavedPage) {
  const QString picture = SavePicture(U("a b.png"), {640, 480});
  const QString page = ToLogic(folder.filePath(U("page.htm")));
  dialog.PrepareInsert(U("image"), component.Document(), page);
  components.dialog->ExpectOpen(picture);
  Click("cmdBrowseIMG");
  EXPECT_EQ(Text("txtImgSource"), U("a b.png"));
  EXPECT_EQ(components.dialog->shownFilter,
            U("All Image Files (*.jpg, *.gif, *.bmp, *.png, *.tif, *.wmf, *.tga)|"
              "*.jpg;*.jpeg;*.gif;*.bmp;*.png;*.tif;*.tiff;*.wmf;*.tga;*.ras;*.pcd;*.pcx;*.eps"));
  EXPECT_FALSE(Get<QLabel>("picPreview")->pixmap(Qt::ReturnByValue).isNull());
  EXPECT_EQ(Get<QLabel>("lblPreviewSize")->text(), U("640 × 480 pixels"));
}

TEST_F(ElementDialogTest, KeepsThePreviewOfThePictureInStepWithTheSource) {
  dialog.PrepareInsert(U("image"), component.Document(), {});
  const QString small = SavePicture(U("a.png"), {20, 10});
  const QString large = SavePicture(U("b.png"), {2000, 1000});
  for (const QString &picture : {large, small}) {
    components.dialog->ExpectOpen(picture);
    Click("cmdBrowseIMG");
    const QSize shown = Get<QLabel>("picPreview")->pixmap(Qt::ReturnByValue).size();
    EXPECT_EQ(shown.width(), 2 * shown.height());
    EXPECT_LE(shown.width(), Get<QLabel>("picPreview")->width());
  }
  EXPECT_EQ(Get<QLabel>("lblPreviewSize")->text(), U("20 × 10 pixels"));
}

TEST_F(ElementDialogTest, LinksAPictureAbsolutelyFromAnUnsavedPage) {
  const QString picture = SavePicture(U("a.png"), {10, 10});
  dialog.PrepareInsert(U("image"), component.Document(), {});
  components.dialog->ExpectOpen(picture);
  Click("cmdBrowseIMG");
  EXPECT_EQ(Text("txtImgSource"), U("file:///") + folder.filePath(U("a.png")));
}

TEST_F(ElementDialogTest, LoadsThePictureButFillsNothingForAnUnknownSavedMode) {
  const QString picture = SavePicture(U("a.png"), {10, 20});
  dialog.SavedMode = U("maybe");
  Type("txtImgSource", "before");
  components.dialog->ExpectOpen(picture);
  Click("cmdBrowseIMG");
  EXPECT_EQ(Text("txtImgSource"), U("before"));
  EXPECT_EQ(Get<QLabel>("lblPreviewSize")->text(), U("10 × 20 pixels"));
}

TEST_F(ElementDialogTest, EndsSilentlyWhenThePictureCannotBeLoaded) {
  QFile file(folder.filePath(U("bad.png")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("no picture");
  file.close();
  dialog.PrepareInsert(U("image"), component.Document(), {});
  Type("txtImgSource", "before");
  QSignalSpy reports(&dialog, &frmInsertElement::Reported);
  for (const char *name : {"bad.png", "missing.png"}) {
    components.dialog->ExpectOpen(ToLogic(folder.filePath(U(name))));
    Click("cmdBrowseIMG");
    EXPECT_EQ(Text("txtImgSource"), U("before"));
  }
  EXPECT_EQ(reports.count(), 2);
}

TEST_F(ElementDialogTest, TakesACancelledDialogAsTheEmptyName) {
  const QString picture = SavePicture(U("a.png"), {100, 100});
  for (const char *saved : {"\\site\\page.htm", ""}) {
    dialog.PrepareInsert(U("image"), component.Document(), U(saved));
    components.dialog->ExpectOpen(picture);
    components.dialog->ExpectCancelledOpen();
    Click("cmdBrowseIMG");
    Click("cmdBrowseIMG");
    EXPECT_EQ(Text("txtImgSource"), U("file:///"));
    EXPECT_TRUE(Get<QLabel>("picPreview")->pixmap(Qt::ReturnByValue).isNull());
    EXPECT_EQ(Get<QLabel>("lblPreviewSize")->text(), QString());
    std::int32_t image = 1;
    EXPECT_TRUE(dialog.GenerateCode(image).endsWith(U(" height=0 width=0>")));
  }
  EXPECT_EQ(components.made, 1);
}

TEST_F(ElementDialogTest, LinksToAnyFileWithoutLoadingIt) {
  dialog.PrepareInsert(U("hyperlink"), component.Document(), U("\\site\\page.htm"));
  components.dialog->ExpectOpen(U("\\site\\docs\\a.pdf"));
  Click("cmdABrowse");
  EXPECT_EQ(Text("txtHref"), U("docs/a.pdf"));
  EXPECT_EQ(components.dialog->shownFilter, U("All Files *.*|*.*"));
  EXPECT_EQ(Text("txtImgSource"), QString());

  dialog.PrepareInsert(U("hyperlink"), component.Document(), {});
  components.dialog->ExpectCancelledOpen();
  Click("cmdABrowse");
  EXPECT_EQ(Text("txtHref"), U("file:///"));
}

TEST_F(ElementDialogTest, DoesNothingForItsInertButtons) {
  const struct {
    const char *mode, *name;
  } buttons[] = {{"image", "cmdBrowseLowRes"},
                 {"video", "Command1"},
                 {"hyperlink", "cmdRefreshA"},
                 {"target", "cmdRefreshOther"}};
  for (const auto &button : buttons) {
    Show(button.mode);
    EXPECT_TRUE(Get<QPushButton>(button.name)->isEnabled()) << button.name;
    Click(button.name);
  }
  EXPECT_EQ(Text("txtLowRes"), QString());
  EXPECT_EQ(Text("txtVidSource"), QString());
  EXPECT_EQ(Get<QListWidget>("lstABookMark")->count(), 0);
  EXPECT_EQ(Get<QListWidget>("lstOtherBookmark")->count(), 0);
  EXPECT_TRUE(dialog.isVisible());
}

TEST_F(ElementDialogTest, LinksToAMailAddressUnlessTheAnswerIsEmpty) {
  Show("hyperlink");
  dialogs.ExpectQuestion(U("Please enter the E-mail Address."), U("x"));
  dialogs.ExpectQuestion(U("Please enter the E-mail Address."), QString());
  Click("cmdAEmail");
  EXPECT_EQ(Text("txtHref"), U("mailto:x"));
  Click("cmdAEmail");
  EXPECT_EQ(Text("txtHref"), U("mailto:x"));
}

TEST_F(ElementDialogTest, GeneratesThePictureFromItsBoxes) {
  Show("image");
  Type("txtImgSource", "a.gif");
  Type("txtAlt", "A picture");
  Type("txtLowRes", "low.gif");
  Get<QComboBox>("cobIMGAlign")->setCurrentText(U("Botton"));
  Type("txtIMGBorder", "1");
  Type("txtIMGHSpac", "2");
  Type("txtIMGVspac", "3");
  Click("chkIMGSize");
  Type("txtIMGHeight", "4");
  Type("txtIMGWidth", "5");
  std::int32_t image = 1;
  EXPECT_EQ(dialog.GenerateCode(image),
            U("<IMG src=a.gif alt=\"A picture\" lowsrc=low.gif align=Botton border=1 hspace=2 "
              "vspace=3 height=4 width=5>"));
}

TEST_F(ElementDialogTest, SizesThePictureByTheOneLoadedUnlessTheBoxesAreUsed) {
  const QString picture = SavePicture(U("a.png"), {200, 100});
  dialog.PrepareInsert(U("image"), component.Document(), {});
  components.dialog->ExpectOpen(picture);
  Click("cmdBrowseIMG");
  std::int32_t image = 1;
  EXPECT_TRUE(dialog.GenerateCode(image).endsWith(U(" height=88 width=176>")));
}

TEST_F(ElementDialogTest, MakesFreshElementsForTheOtherKinds) {
  Type("txtImgSource", "a.gif");
  for (std::int32_t kind : {0, 2, 3, 4, 5, -1}) EXPECT_EQ(dialog.GenerateCode(kind), QString());
  EXPECT_EQ(dialog.inHyperlink.tagName, U("A"));
  EXPECT_EQ(dialog.inTarget.tagName, U("A"));
  EXPECT_EQ(dialog.inVideo.tagName, U("IMG"));
  EXPECT_TRUE(dialog.inImage.IsNull());
}

TEST_F(ElementDialogTest, PutsThePictureInPlaceOfTheSelectionAndHides) {
  Show("image");
  Type("txtImgSource", "a.gif");
  Click("cmdOK");
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_TRUE(component.DocumentHTML().contains(U(
      "one <IMG src=a.gif alt=\"\" lowsrc=\"\" border=0 hspace=0 vspace=0 height=0 width=0></B")));
}

TEST_F(ElementDialogTest, RemovesTheSelectionWithoutASource) {
  Show("image");
  Click("cmdOK");
  EXPECT_TRUE(component.DocumentHTML().contains(U("one </B")));
}

TEST_F(ElementDialogTest, LeavesThePageAloneForEverythingElse) {
  const QString before = component.DocumentHTML();
  for (const QString &mode : Kinds) {
    dialog.PrepareInsert(mode, component.Document(), {});
    if (mode == u"image") dialog.InsertMode = U("false");
    dialog.show();
    Type("txtImgSource", "a.gif");
    Click("cmdOK");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(component.DocumentHTML(), before);
  }
}

TEST_F(ElementDialogTest, HidesWithoutAChangeWhenCancelled) {
  const QString before = component.DocumentHTML();
  Show("image");
  Type("txtImgSource", "a.gif");
  Click("cmdCancel");
  EXPECT_FALSE(dialog.isVisible());
  Show("image");
  QTest::keyClick(&dialog, Qt::Key_Escape);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(component.DocumentHTML(), before);
}

TEST_F(ElementDialogTest, IsFoundAsItWasLeft) {
  Show("image");
  components.dialog->ExpectOpen(SavePicture(U("a.png"), {30, 40}));
  Click("cmdBrowseIMG");
  Type("txtAlt", "left here");
  Type("txtIMGBorder", "abc");
  Click("chkIMGSize");
  Get<QComboBox>("cobIMGAlign")->setCurrentIndex(3);
  Get<QTabWidget>("SSTab2")->setCurrentIndex(1);
  Click("cmdOK");
  Show("image");
  EXPECT_EQ(Text("txtAlt"), U("left here"));
  EXPECT_EQ(Text("txtIMGBorder"), U("abc"));
  EXPECT_TRUE(Get<QCheckBox>("chkIMGSize")->isChecked());
  EXPECT_EQ(Get<QComboBox>("cobIMGAlign")->currentText(), U("Top"));
  EXPECT_EQ(Get<QLabel>("lblPreviewSize")->text(), U("30 × 40 pixels"));
  EXPECT_EQ(Get<QTabWidget>("SSTab2")->currentIndex(), 1);
}

TEST_F(ElementDialogTest, SaysWhatFailedWhenThePageCannotTakeThePicture) {
  Show("image");
  dialog.TheDOM = nullptr;
  QSignalSpy reports(&dialog, &frmInsertElement::Reported);
  Click("cmdOK");
  EXPECT_EQ(reports.count(), 1);
  EXPECT_FALSE(dialog.isVisible());
}

TEST_F(ElementDialogTest, GoesThroughItsControlsInTheOrderOfTheEye) {
  const QStringList order = TabOrder(dialog);
  const QStringList image = {U("txtImgSource"),    U("cmdBrowseIMG"), U("txtLowRes"),
                             U("cmdBrowseLowRes"), U("txtAlt"),       U("cobIMGAlign"),
                             U("txtIMGBorder"),    U("txtIMGHSpac"),  U("txtIMGVspac"),
                             U("chkIMGSize"),      U("txtIMGHeight"), U("txtIMGWidth")};
  const auto start = order.indexOf(image.first());
  EXPECT_EQ(order.mid(start, image.size()), image) << order.join(u' ').toStdString();
  EXPECT_EQ(order.mid(order.size() - 2), (QStringList{U("cmdOK"), U("cmdCancel")}));
}

}  // namespace
}  // namespace velor
