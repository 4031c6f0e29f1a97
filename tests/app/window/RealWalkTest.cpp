// SPDX-License-Identifier: GPL-3.0-or-later
// A walk at random through the whole window, with what must be true after each step. A run names
// its seed; VELOR_WALK_SEED walks another one, VELOR_WALK_SECONDS for longer.
#include "tests/app/window/RealWalk.h"

#include <algorithm>
#include <iterator>

namespace velor {
namespace {

TEST_F(RealWalk, EveryStepLeavesTheKeysInFrontAndAllThatIsShownTrue) {
  constexpr RealWalk::Deed Deeds[] = {
      {"open a file", &RealWalk::OpenFile},
      {"make a page", &RealWalk::NewOne},
      {"click a tab", &RealWalk::ClickTab},
      {"go to the next window", &RealWalk::NextWindow},
      {"close what is in front", &RealWalk::CloseFront},
      {"minimise the page and click its tab", &RealWalk::MinimiseFront},
      {"change the mode", &RealWalk::ChangeMode},
      {"click a button", &RealWalk::ClickButton},
      {"click a format", &RealWalk::ClickFormat},
      {"choose in a box", &RealWalk::ChooseInBox},
      {"type a font", &RealWalk::TypeFont},
      {"choose a colour", &RealWalk::ChooseColor},
      {"click in the page", &RealWalk::ClickInPage},
      {"save under another name", &RealWalk::SaveUnderAnotherName},
      {"open a dialog and leave it", &RealWalk::OpenADialog},
      {"choose in the page's menu", &RealWalk::ChooseInPagesMenu},
      {"choose in the menu of tables", &RealWalk::ChooseInTableMenu},
      {"click an element of the path", &RealWalk::ClickInPath},
      {"find a letter", &RealWalk::FindALetter},
      {"show or hide the widths", &RealWalk::ChangeWidth},
      {"leave by F6 and come back", &RealWalk::LeaveByF6},
      {"move the caret", &RealWalk::MoveCaret},
      {"delete", &RealWalk::DeleteBack},
      {"undo", &RealWalk::UndoByKey},
      {"type a word", &RealWalk::TypeWord},
      {"type another word", &RealWalk::TypeWord},
      {"apply the source", &RealWalk::ApplySource},
  };
  const qint64 limit = 1000LL * Number("VELOR_WALK_SECONDS", 60);
  QElapsedTimer clock;
  clock.start();
  QStringList way;
  int typed = 0;
  while (clock.elapsed() < limit && !HasFailure()) {
    const Deed &deed = Deeds[Upto(static_cast<int>(std::size(Deeds)))];
    way.append(QString::fromLatin1(deed.name));
    if (deed.act == &RealWalk::TypeWord) ++typed;
    try {
      (this->*deed.act)();
    } catch (const std::exception &error) {
      ADD_FAILURE() << error.what();
    }
    EXPECT_TRUE(WaitFor([this] { return IsActive() && Trouble().isEmpty(); }))
        << Trouble().toStdString();
  }
  EXPECT_GT(typed, 0);
  if (HasFailure()) {
    ADD_FAILURE() << "seed " << Number("VELOR_WALK_SEED", 1) << ", step " << way.size() << ": "
                  << way.mid(std::max<qsizetype>(0, way.size() - 12)).join(u", ").toStdString();
  }
}

}  // namespace
}  // namespace velor
