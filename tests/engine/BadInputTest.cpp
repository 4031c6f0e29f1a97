// SPDX-License-Identifier: GPL-3.0-or-later
// Files that cannot be read or written end in an error that names them: the page stays as it is, it
// can be saved later, and no file has changed. Pages of odd names and contents are in LoadingTest.
#include "platform/Paths.h"
#include "tests/engine/ComponentFixture.h"
#include "tests/support/Checks.h"
#include "tests/support/Hindrances.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <sys/stat.h>

namespace velor {

namespace {

const QByteArray OriginalBytes("<html><head></head><body><p>kept</p></body></html>");
const QByteArray EditedBytes("<html><head></head><body><p><b>new</b>kept</p></body></html>");

/// The real files, with an obstacle (another user, a size limit) in place during each call. The
/// engine is not affected: pages are read before they are shown, and composed before they are
/// written.
template <typename Hindrance>
class HinderedFiles : public QtFiles {
 public:
  QByteArray ReadAll(const QString &path, NameOrigin origin) const override {
    const Hindrance hindrance;
    return QtFiles::ReadAll(path, origin);
  }
  void ReplaceAll(const QString &path, const QByteArray &content) override {
    const Hindrance hindrance;
    QtFiles::ReplaceAll(path, content);
  }
};

class BadInput : public WebEditorTest {
 protected:
  BadInput() { SetMode(QStringLiteral("."), 0777); }
  /// A folder that takes no change could not be removed either.
  ~BadInput() override { SetMode(QStringLiteral("."), 0777); }

  void SetMode(const QString &name, mode_t mode) const {
    ASSERT_EQ(chmod(QFile::encodeName(Native(name)).constData(), mode), 0);
  }
  static void Edit(WebEditor &editor) {
    editor.Document().Selection().CreateRange()->PasteHTML(QStringLiteral("<b>new</b>"));
  }
  /// An editor of its own, as every document window has one.
  std::unique_ptr<WebEditor> EditorOn(Files &files, const QString &path) {
    auto editor =
        std::make_unique<WebEditor>(Engine(), files, ToLogic(folder_.path()), window_.get());
    editor->LoadDocument(path);
    return editor;
  }
  QString WritePage(const QByteArray &content = OriginalBytes) const {
    return Write(QStringLiteral("page.htm"), content);
  }
  QByteArray PageBytes() const { return Bytes(QStringLiteral("page.htm")); }
  /// Everything in the folder, so that nothing half written can hide.
  QStringList Names() const {
    return QDir(folder_.path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                   QDir::Name);
  }
};

struct Unreadable {
  QString name;  ///< beside the page, or a whole path in logic form
  ErrorNumber number;
};

void PrintTo(const Unreadable &file, std::ostream *out) {
  PrintTo(file.name, out);
}

class UnreadableFiles : public BadInput, public ::testing::WithParamInterface<Unreadable> {
 protected:
  UnreadableFiles() {
    QDir(folder_.path()).mkdir(QStringLiteral("folder.htm"));
    mkfifo(QFile::encodeName(Native(QStringLiteral("pipe.htm"))).constData(), 0666);
    QFile::link(QStringLiteral("loop.htm"), Native(QStringLiteral("loop.htm")));
    QFile::link(QStringLiteral("gone.htm"), Native(QStringLiteral("dangling.htm")));
  }
};

TEST_P(UnreadableFiles, AreAnErrorThatLeavesThePage) {
  const QString page = WritePage();
  editor_->LoadDocument(page);
  ASSERT_TRUE(WaitFor([&] { return listener_.completions == 1; }));
  const QString name = GetParam().name;
  try {
    editor_->LoadDocument(name.contains(u'\\') ? name : Logic(name));
    ADD_FAILURE() << "nothing was raised";
  } catch (const RuntimeError &error) {
    EXPECT_EQ(error.Number(), GetParam().number);
    EXPECT_TRUE(error.Description().contains(
        name.section(QRegularExpression(QStringLiteral("[/\\\\]")), -1)))
        << error.what();
  }
  EXPECT_EQ(editor_->DocumentHTML().toUtf8(), OriginalBytes);
  Edit(*editor_);
  editor_->SaveDocument(page);
  EXPECT_EQ(PageBytes(), EditedBytes);
  EXPECT_EQ(listener_.completions, 1);
}

INSTANTIATE_TEST_SUITE_P(Kinds, UnreadableFiles,
                         ::testing::Values(Unreadable{"missing.htm", ErrorNumber::FileNotFound},
                                           Unreadable{"dangling.htm", ErrorNumber::FileNotFound},
                                           Unreadable{"no folder/a.htm", ErrorNumber::PathNotFound},
                                           Unreadable{"page.htm/a.htm", ErrorNumber::PathNotFound},
                                           Unreadable{"Z:\\a.htm", ErrorNumber::PathNotFound},
                                           Unreadable{"loop.htm", ErrorNumber::PathNotFound},
                                           Unreadable{QString(300, u'x'),
                                                      ErrorNumber::PathNotFound},
                                           Unreadable{"folder.htm", ErrorNumber::PathFileAccess},
                                           Unreadable{"pipe.htm", ErrorNumber::PathFileAccess},
                                           Unreadable{"\\dev\\zero", ErrorNumber::PathFileAccess}));

TEST_F(BadInput, AFileThatTheUserMayNotReadIsAnError) {
  const QString page = WritePage();
  HinderedFiles<AsOrdinaryUser> files;
  const auto editor = EditorOn(files, page);
  const QString secret = Write(QStringLiteral("secret.htm"), "<p>secret</p>");
  SetMode(QStringLiteral("secret.htm"), 0000);
  EXPECT_EQ(ErrorOf([&] { editor->LoadDocument(secret); }), ErrorNumber::PathFileAccess);
  EXPECT_EQ(editor->DocumentHTML().toUtf8(), OriginalBytes);
}

TEST_F(BadInput, AFullDiskLeavesTheFileWholeAndThePageToBeSavedElsewhere) {
  const QByteArray filling(5000, 'x');
  const QByteArray old = QByteArray(OriginalBytes).replace("kept", filling);
  const QString page = WritePage(old);
  HinderedFiles<FileSizeLimit> files;
  const auto editor = EditorOn(files, page);
  Edit(*editor);
  EXPECT_EQ(ErrorOf([&] { editor->SaveDocument(page); }), ErrorNumber::DiskFull);
  EXPECT_EQ(ErrorOf([&] { editor->SaveDocument(Logic(QStringLiteral("new.htm"))); }),
            ErrorNumber::DiskFull);
  EXPECT_EQ(PageBytes(), old);
  EXPECT_EQ(Names(), QStringList(QStringLiteral("page.htm")));
  files_.ReplaceAll(page, editor->TextToSave().toUtf8());
  EXPECT_EQ(PageBytes(), QByteArray(EditedBytes).replace("kept", filling));
}

TEST_F(BadInput, AFullDiskLeavesAFileWithASecondNameWhole) {
  const QByteArray old = QByteArray(OriginalBytes).replace("kept", QByteArray(5000, 'x'));
  const QString page = WritePage(old);
  ASSERT_EQ(link(QFile::encodeName(Native(QStringLiteral("page.htm"))).constData(),
                 QFile::encodeName(Native(QStringLiteral("second.htm"))).constData()),
            0);
  HinderedFiles<FileSizeLimit> files;
  const auto editor = EditorOn(files, page);
  Edit(*editor);
  EXPECT_EQ(ErrorOf([&] { editor->SaveDocument(page); }), ErrorNumber::DiskFull);
  EXPECT_EQ(PageBytes(), old);
  EXPECT_EQ(Bytes(QStringLiteral("second.htm")), old);
}

TEST_F(BadInput, AReadOnlyFolderTakesNoNewPageButThePagesInIt) {
  const QString page = WritePage();
  SetMode(QStringLiteral("page.htm"), 0666);
  SetMode(QStringLiteral("."), 0555);
  HinderedFiles<AsOrdinaryUser> files;
  const auto editor = EditorOn(files, page);
  Edit(*editor);
  EXPECT_EQ(ErrorOf([&] { editor->SaveDocument(Logic(QStringLiteral("new.htm"))); }),
            ErrorNumber::PathFileAccess);
  EXPECT_EQ(PageBytes(), OriginalBytes);
  editor->SaveDocument(page);
  EXPECT_EQ(PageBytes(), EditedBytes);
  EXPECT_EQ(Names(), QStringList(QStringLiteral("page.htm")));
}

TEST_F(BadInput, AReadOnlyFileIsShownAndNotReplaced) {
  const QString page = WritePage();
  SetMode(QStringLiteral("page.htm"), 0444);
  editor_->LoadDocument(page);
  Edit(*editor_);
  EXPECT_EQ(ErrorOf([&] { editor_->SaveDocument(page); }), ErrorNumber::PathFileAccess);
  EXPECT_EQ(PageBytes(), OriginalBytes);
  EXPECT_TRUE(DocumentHolds(QStringLiteral("<b>new</b>")));
}

TEST_F(BadInput, OfTwoWindowsOnOneFileTheLastToSaveHasItWhole) {
  const QString page = WritePage();
  editor_->LoadDocument(page);
  const auto second = EditorOn(files_, page);
  Edit(*editor_);
  editor_->SaveDocument(page);
  EXPECT_EQ(second->DocumentHTML().toUtf8(), OriginalBytes);
  EXPECT_EQ(PageBytes(), EditedBytes);
  second->SaveDocument(page);
  EXPECT_EQ(PageBytes(), OriginalBytes);
  EXPECT_EQ(editor_->DocumentHTML().toUtf8(), EditedBytes);
}

TEST_F(BadInput, AFileThatIsDeletedUnderThePageIsSavedAnew) {
  const QString page = WritePage();
  editor_->LoadDocument(page);
  files_.Delete(page);
  EXPECT_EQ(editor_->DocumentHTML().toUtf8(), OriginalBytes);
  editor_->SaveDocument(page);
  EXPECT_EQ(PageBytes(), OriginalBytes);
}

TEST_F(BadInput, AFolderThatIsDeletedUnderThePageIsAnErrorWhenSaving) {
  ASSERT_TRUE(QDir(folder_.path()).mkdir(QStringLiteral("site.old")));
  const QString page = Write(QStringLiteral("site.old/page.htm"), OriginalBytes);
  editor_->LoadDocument(page);
  ASSERT_TRUE(QDir(Native(QStringLiteral("site.old"))).removeRecursively());
  EXPECT_EQ(ErrorOf([&] { editor_->SaveDocument(page); }), ErrorNumber::PathNotFound);
  EXPECT_EQ(editor_->DocumentHTML().toUtf8(), OriginalBytes);
}

TEST_F(BadInput, AnEditedPageOfAnUnknownCharsetKeepsItsOtherBytes) {
  const QString page = WritePage(
      "<html><head><meta charset=\"no-such\"></head><body><p>\x80\xe9\xff</p></body></html>");
  editor_->LoadDocument(page);
  Edit(*editor_);
  editor_->SaveDocument(page);
  EXPECT_EQ(PageBytes(),
            "<html><head><meta charset=\"no-such\"></head><body><p><b>new</b>\x80\xe9\xff</p>"
            "</body></html>");
}

}  // namespace

}  // namespace velor
