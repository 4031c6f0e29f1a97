// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/whole/model/Walk.h"

#include "tests/whole/model/Model.h"

#include <array>

namespace velor {

namespace {

using Kind = Deed::Kind;

struct Habit {
  Kind kind;
  const char *name;
  int weight;  ///< how often among a hundred or so
};

constexpr std::array Habits = {
    Habit{Kind::New, "New", 5},
    Habit{Kind::Open, "Open", 12},
    Habit{Kind::Drop, "Drop", 4},
    Habit{Kind::PasteFiles, "PasteFiles", 2},
    Habit{Kind::Switch, "Switch", 12},
    Habit{Kind::Type, "Type", 24},
    Habit{Kind::Undo, "Undo", 7},
    Habit{Kind::Save, "Save", 16},
    Habit{Kind::SaveAs, "SaveAs", 4},
    Habit{Kind::ViewHtml, "ViewHtml", 3},
    Habit{Kind::Design, "Design", 2},
    Habit{Kind::Preview, "Preview", 3},
    Habit{Kind::EditHtml, "EditHtml", 4},
    Habit{Kind::TypeSource, "TypeSource", 5},
    Habit{Kind::Apply, "Apply", 4},
    Habit{Kind::CloseSource, "CloseSource", 4},
    Habit{Kind::Close, "Close", 9},
    Habit{Kind::DiskFull, "DiskFull", 1},
    Habit{Kind::DiskHasRoom, "DiskHasRoom", 3},
    Habit{Kind::MakeReadOnly, "MakeReadOnly", 1},
    Habit{Kind::MakeWritable, "MakeWritable", 1},
    Habit{Kind::ChangeOutside, "ChangeOutside", 4},
    Habit{Kind::TakeTheirs, "TakeTheirs", 2},
    Habit{Kind::Exit, "Exit", 1},
    Habit{Kind::Kill, "Kill", 1},
};

const Habit &HabitOf(Kind kind) {
  for (const Habit &habit : Habits)
    if (habit.kind == kind) return habit;
  return Habits.front();
}

Deed RandomDeed(QRandomGenerator &random) {
  int all = 0;
  for (const Habit &habit : Habits) all += habit.weight;
  int picked = static_cast<int>(random.bounded(all));
  Deed deed;
  for (const Habit &habit : Habits) {
    deed.kind = habit.kind;
    picked -= habit.weight;
    if (picked < 0) break;
  }
  deed.choice = static_cast<int>(random.bounded(1000));
  deed.answer = static_cast<Deed::Answer>(random.bounded(3));
  return deed;
}

}  // namespace

QString InWords(const Deed &deed) {
  constexpr std::array Answers = {"yes", "no", "cancel"};
  return QStringLiteral("%1 %2 %3")
      .arg(QString::fromLatin1(HabitOf(deed.kind).name))
      .arg(deed.choice)
      .arg(QString::fromLatin1(Answers.at(static_cast<std::size_t>(deed.answer))));
}

QString InWords(const std::vector<Deed> &walk) {
  QString words;
  for (const Deed &deed : walk) words += QStringLiteral("  ") + InWords(deed) + u'\n';
  return words;
}

std::vector<Deed> RandomWalk(QRandomGenerator &random, int length) {
  std::vector<Deed> walk;
  walk.reserve(static_cast<std::size_t>(length));
  for (int i = 0; i < length; ++i) walk.push_back(RandomDeed(random));
  return walk;
}

Outcome Carry(const std::vector<Deed> &walk, const QString &engine) {
  Model model(engine);
  Outcome outcome{model.Begin(), 0};
  for (const Deed &deed : walk) {
    if (!outcome.wrong.isEmpty()) break;
    ++outcome.deeds;
    outcome.wrong = model.Carry(deed);
  }
  return outcome;
}

std::vector<Deed> Shortened(std::vector<Deed> walk, const QString &engine, int tries) {
  for (std::size_t stretch = walk.size() / 2; stretch > 0; stretch /= 2) {
    for (std::size_t at = 0; at + stretch <= walk.size() && tries > 0; --tries) {
      std::vector<Deed> shorter = walk;
      const auto from = shorter.begin() + static_cast<std::ptrdiff_t>(at);
      shorter.erase(from, from + static_cast<std::ptrdiff_t>(stretch));
      const Outcome outcome = Carry(shorter, engine);
      if (outcome.wrong.isEmpty()) {
        at += stretch;
        continue;
      }
      shorter.resize(static_cast<std::size_t>(outcome.deeds));
      walk = std::move(shorter);
    }
  }
  return walk;
}

}  // namespace velor
