// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

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
#include "tests/support/FakeRuntime.h"
#include "tests/support/FakeStylingSweeps.h"
#include "tests/support/Forms.h"

#include <QAbstractButton>
#include <QImage>
#include <QLineEdit>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

namespace velor {

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

inline QString U(const char *text) {
  return QString::fromUtf8(text);
}

inline const QStringList Kinds = {QStringLiteral("image"), QStringLiteral("hyperlink"),
                                  QStringLiteral("target"), QStringLiteral("video")};

class ElementDialogTest : public testing::Test {
 protected:
  explicit ElementDialogTest(DialogScope scope = DialogScope::Published)
      : dialog(runtime, dialogs, components, &sweeps, nullptr, scope) {
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
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  }

  /// The dialog with that box in sight and ready for typing.
  void ShowBox(const QLineEdit &box) {
    auto *pages = Get<QTabWidget>("SSTab1");
    for (int page = 0; page < pages->count(); ++page) {
      if (!pages->widget(page)->isAncestorOf(&box)) continue;
      Show(Kinds[page].toUtf8().constData());
      for (auto *halves : pages->widget(page)->findChildren<QTabWidget *>()) {
        halves->setCurrentIndex(halves->widget(1)->isAncestorOf(&box) ? 1 : 0);
      }
    }
    for (const char *check : {"chkIMGSize", "chkVIDSize"}) {
      if (!Get<QAbstractButton>(check)->isChecked()) Click(check);
    }
    ASSERT_TRUE(box.isVisible() && box.isEnabled());
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
  FakeDialogs dialogs{&log};
  FileDialogSource components;
  FakeStylingSweeps sweeps{&log};
  FakeEditingComponent component{files, nullptr};
  frmInsertElement dialog;
};

/// The dialog with what goes beyond the published behaviour.
class ExtendedElementDialogTest : public ElementDialogTest {
 protected:
  ExtendedElementDialogTest() : ElementDialogTest(DialogScope::Extended) {}
};

}  // namespace velor
