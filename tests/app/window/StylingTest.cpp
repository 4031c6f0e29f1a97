// SPDX-License-Identifier: GPL-3.0-or-later
// The windows of the program with their controls styled.
#include "app/window/WindowStyling.h"
#include "chrome/HouseStyle.h"
#include "insert/frmInsertElement.h"
#include "projects/frmProjectManager.h"
#include "qt/QtWindowSystem.h"
#include "tests/app/window/WindowFixture.h"
#include "tests/support/FakeStylingSweeps.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

namespace velor {
namespace {

class StylingTest : public WindowFixture {
 protected:
  StylingTest() { styled.Load(); }
  ~StylingTest() override { DeleteClosedWindows(); }

  static bool IsFlat(const QWidget *control) {
    return control->property(HouseStyle::Flat).toBool();
  }
  static bool IsThin(const QWidget *control) {
    return control->property(ExtendedStyleProperty).toInt() == 0x20000;
  }

  QtWindowSystem system;
  Platform styledPlatform{files, runtime, dialogs, registry, components, &system};
  MfrmProgram styled{styledPlatform, values};
};

TEST_F(StylingTest, TheMainWindowsComboBoxesAreFlatOnceItIsLoaded) {
  for (const char *name : {"cobFormat", "cobSize", "Font1", "CmbPages"}) {
    auto *box = styled.findChild<QComboBox *>(QString::fromLatin1(name));
    ASSERT_NE(box, nullptr) << name;
    EXPECT_TRUE(IsFlat(box)) << name;
  }
}

TEST_F(StylingTest, TheProjectManagersButtonIsPaintedEachTimeOfAHundredAfterTheElementDialog) {
  values.DbConnection = database.ConnectEmptyCatalogue();
  styled.findChild<QAction *>(QStringLiteral("mnuNew"))->trigger();
  for (int time = 0; time < 100; ++time) {
    // The dialog with the most controls, as far as these are painted.
    dialogs.ExpectModal([](QWidget &element) {
      element.show();
      element.close();
    });
    styled.findChild<QAction *>(QStringLiteral("mnuISTimage"))->trigger();
    dialogs.ExpectModal([](QWidget &manager) {
      EXPECT_TRUE(IsFlat(manager.findChild<QPushButton *>(QStringLiteral("cmdOpen"))));
      manager.show();
      manager.close();
    });
    styled.findChild<QAction *>(QStringLiteral("mnuView_ProjectMan"))->trigger();
    DeleteClosedWindows();
  }
}

TEST_F(StylingTest, WithoutAWindowSystemNothingIsStyled) {
  EXPECT_FALSE(IsFlat(Find<QComboBox>("cobFormat")));
}

TEST_F(StylingTest, TheElementDialogThinsButtonsTextBoxesAndListsAndThenFlattensItsComboBoxes) {
  CallLog sweeps;
  FakeStylingSweeps recorded(&sweeps);
  frmInsertElement dialog(styledPlatform.runtime, styledPlatform.dialogs, styledPlatform.components,
                          &recorded);
  EXPECT_EQ(sweeps, (CallLog{QStringLiteral("ThinEdgeByType(frmInsertElement, commandbutton)"),
                             QStringLiteral("ThinEdgeByType(frmInsertElement, textbox)"),
                             QStringLiteral("ThinEdgeByType(frmInsertElement, listbox)"),
                             QStringLiteral("FlatComboSweep(frmInsertElement)")}));
}

/// Notes only when the menus' turn comes.
class NotingMenuPainter final : public MenuPainter {
 public:
  explicit NotingMenuPainter(CallLog *log) : log_(log) {}

  void SetBackground(const QPixmap &) override {}
  void SetTextColor(std::int32_t) override {}
  void SetBorderColor(std::int32_t) override {}
  void SetHighlightColor(std::int32_t) override {}
  void SetHighlightTextColor(std::int32_t) override {}
  void SetImageList(const ImageList &) override { Note(log_, QStringLiteral("SetImageList")); }
  void PaintMenusOf(QWidget &window) override {
    Note(log_, QStringLiteral("PaintMenusOf(%1)").arg(window.objectName()));
  }
  void SetItemPicture(const QString &, const QString &) override {}

 private:
  CallLog *log_;
};

TEST(MainWindowStyling, FlattensComboBoxesThenThinsEdgesThenGivesTheMenusTheirPictures) {
  QWidget window;
  window.setObjectName(QStringLiteral("MfrmProgram"));
  CallLog calls;
  FakeStylingSweeps sweeps(&calls);
  NotingMenuPainter menus(&calls);
  StyleMainWindow(window, &sweeps, {}, menus);
  EXPECT_EQ(calls,
            (CallLog{QStringLiteral("FlatComboSweep(MfrmProgram)"),
                     QStringLiteral("ThinEdgeSweep(MfrmProgram)"), QStringLiteral("SetImageList"),
                     QStringLiteral("PaintMenusOf(MfrmProgram)")}));
}

TEST_F(StylingTest, TheElementDialogHasThinEdgesAndFlatComboBoxes) {
  styled.Router().Run({CommandId::NewPage});
  dialogs.ExpectModal([](QWidget &dialog) {
    ASSERT_NE(dynamic_cast<frmInsertElement *>(&dialog), nullptr);
    EXPECT_TRUE(IsThin(dialog.findChild<QPushButton *>(QStringLiteral("cmdOK"))));
    EXPECT_TRUE(IsThin(dialog.findChild<QLineEdit *>(QStringLiteral("txtImgSource"))));
    auto *alignment = dialog.findChild<QComboBox *>(QStringLiteral("cobIMGAlign"));
    EXPECT_TRUE(IsFlat(alignment));
    EXPECT_FALSE(IsThin(alignment));
  });
  styled.Router().Run({CommandId::InsertImage});
}

}  // namespace
}  // namespace velor
