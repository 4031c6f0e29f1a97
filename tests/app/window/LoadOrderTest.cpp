// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings/modSettingManager.h"
#include "app/window/ChoiceBox.h"
#include "app/window/LoadOrder.h"
#include "chrome/FontPicker.h"
#include "tests/app/window/WindowFixture.h"

#include <QCoreApplication>
#include <QScreen>
#include <QTest>

namespace velor {
namespace {

class RecordingSteps final : public LoadSteps {
 public:
  explicit RecordingSteps(CallLog &log) : log_(log) {}

  void InitialiseHiddenComponent() override { Add("DE1"); }
  void InitialiseFontPicker() override { Add("Font1"); }
  void CreateBlockFormatNames() override { Add("names"); }
  void SetFontSizeList() override { Add("sizes"); }
  void PrepareControlsAndMenus() override { Add("prepare"); }
  void ShowWithoutWaiting() override { Add("show"); }
  void FinishPreparation() override { Add("finish"); }

 private:
  void Add(const char *step) { log_.push_back(QString::fromLatin1(step)); }

  CallLog &log_;
};

TEST(LoadOrder, EventsRunBetweenTheStepsAsPublished) {
  CallLog log;
  FakeRuntime runtime(&log);
  RecordingSteps steps(log);
  RunLoadSteps(steps, runtime);
  QStringList order;
  for (const QString &call : log) {
    order.append(call == QStringLiteral("ProcessPendingEvents()") ? QStringLiteral("events")
                                                                  : call);
  }
  EXPECT_EQ(order.join(u' ').toStdString(),
            "events events DE1 events Font1 events names sizes events prepare show finish");
}

/// The window at each moment in which pending events run.
class LoadingWindow : public ::testing::Test {
 protected:
  LoadingWindow() {
    runtime.pendingEvents = [this] {
      moments.append(QStringLiteral("DE1 %1, fonts %2, formats %3, sizes %4, shown %5")
                         .arg(window.findChild<QWidget *>(QStringLiteral("DE1")) != nullptr)
                         .arg(Count<FontPicker>("Font1") > 0)
                         .arg(Count<ChoiceBox>("cobFormat") > 0)
                         .arg(Count<ChoiceBox>("cobSize") > 0)
                         .arg(window.isVisible()));
    };
  }

  template <typename Box>
  int Count(const char *name) {
    return window.findChild<Box *>(QString::fromLatin1(name))->count();
  }

  FakeFiles files;
  FakeRegistry registry;
  FakeRuntime runtime;
  FakeDialogs dialogs;
  FakeComponents components{files};
  Platform platform{files, runtime, dialogs, registry, components};
  ProgramValues values;
  QStringList moments;
  MfrmProgram window{platform, values};
};

TEST_F(LoadingWindow, ListsTheBlockFormatsThatTheHiddenComponentNames) {
  components.onEditingComponent = [](FakeEditingComponent &component) {
    component.blockFormats = {QStringLiteral("Normal"), QStringLiteral("Verse")};
  };
  window.Load();
  auto *formats = window.findChild<ChoiceBox *>(QStringLiteral("cobFormat"));
  ASSERT_EQ(formats->count(), 2);
  EXPECT_EQ(formats->itemText(1), QStringLiteral("Verse"));
}

TEST_F(LoadingWindow, FillsItsPartsStepByStepAndShowsLast) {
  window.Load();
  EXPECT_EQ(moments.join(u'\n').toStdString(),
            "DE1 0, fonts 0, formats 0, sizes 0, shown 0\n"
            "DE1 0, fonts 0, formats 0, sizes 0, shown 0\n"
            "DE1 1, fonts 0, formats 0, sizes 0, shown 0\n"
            "DE1 1, fonts 1, formats 0, sizes 0, shown 0\n"
            "DE1 1, fonts 1, formats 1, sizes 1, shown 0");
  EXPECT_TRUE(window.isVisible());
}

TEST_F(LoadingWindow, LeavesRoomForItsFrameOnTheScreen) {
  window.Load();
  const QSize titleBarAndEdges(8, 32);
  const QSize room = window.screen()->availableSize() - titleBarAndEdges;
  EXPECT_LE(window.width(), room.width());
  EXPECT_LE(window.height(), room.height());
}

TEST_F(LoadingWindow, ComesUpInSpiteOfAPreferenceThatCannotBeReadAndReportsItAfterwards) {
  modSettingManager::SetOption(registry, QStringLiteral("MenuStyle"), QStringLiteral("blue"));
  window.Load();
  EXPECT_TRUE(window.isVisible());
  EXPECT_EQ(ErrorOf([] {
              QCoreApplication::sendPostedEvents();
              QTest::qWait(0);
            }),
            ErrorNumber::TypeMismatch);
}

}  // namespace
}  // namespace velor
