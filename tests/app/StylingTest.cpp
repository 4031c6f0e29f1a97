// SPDX-License-Identifier: GPL-3.0-or-later
// The windows of the program with their controls styled.
#include "chrome/HouseStyle.h"
#include "insert/frmInsertElement.h"
#include "platform/qt/QtWindowSystem.h"
#include "projects/frmProjectManager.h"
#include "tests/app/WindowFixture.h"

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

TEST_F(StylingTest, WithoutAWindowSystemNothingIsStyled) {
  EXPECT_FALSE(IsFlat(Find<QComboBox>("cobFormat")));
}

TEST_F(StylingTest, TheElementDialogThinsButtonsTextBoxesAndListsAndThenFlattensItsComboBoxes) {
  QStringList sweeps;
  FakeStylingSweeps recorded(&sweeps);
  frmInsertElement dialog(styledPlatform, &recorded);
  EXPECT_EQ(sweeps, (QStringList{QStringLiteral("ThinEdgeByType(frmInsertElement, commandbutton)"),
                                 QStringLiteral("ThinEdgeByType(frmInsertElement, textbox)"),
                                 QStringLiteral("ThinEdgeByType(frmInsertElement, listbox)"),
                                 QStringLiteral("FlatComboSweep(frmInsertElement)")}));
}

TEST_F(StylingTest, TheMainWindowFlattensItsComboBoxesAndThenThinsEdgesAndThenHasMenuPictures) {
  SteppedWindowSystem steps;
  Platform stepped{files, runtime, dialogs, registry, components, &steps};
  MfrmProgram window(stepped, values);
  steps.atThinEdge = [&] {
    EXPECT_TRUE(IsFlat(window.findChild<QComboBox *>(QStringLiteral("CmbPages"))));
    EXPECT_FALSE(window.PM->HasImages());
  };
  window.Load();
  EXPECT_GT(steps.thinEdges, 0);
  EXPECT_TRUE(window.PM->HasImages());
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
