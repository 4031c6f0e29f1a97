// SPDX-License-Identifier: GPL-3.0-or-later
// How much the bridge has to do for a key, a move of the caret and a command does not depend on how
// long the page is, nor the list, the table or the paragraph that the caret is in.
#include "tests/engine/bridge/BridgePage.h"
#include "tests/support/Waiting.h"

#include <functional>
#include <gtest/gtest.h>

namespace velor {
namespace {

constexpr int FewParts = 20;
constexpr int ManyParts = 2000;
constexpr int Patience = 20000;  // milliseconds

/// A page of so many equal parts, by what they are.
struct Shape {
  const char *name;
  QString before;
  QString part;
  QString after;
};

void PrintTo(const Shape &shape, std::ostream *out) {
  *out << shape.name;
}

QString PageOf(const Shape &shape, int parts) {
  return shape.before + shape.part.repeated(parts) + shape.after;
}

class Work : public ::testing::TestWithParam<Shape> {
 protected:
  QVariant Evaluate(const QString &expression) { return page_.Evaluate(expression); }
  void Load(int parts) {
    page_.Load(PageOf(GetParam(), parts));
    Evaluate(TestScript("work.js"));
    Evaluate(QStringLiteral("work.begin(); work.place()"));
    Rest();
  }
  void Rest() {
    Evaluate(QStringLiteral("work.rest()"));
    ASSERT_TRUE(
        WaitFor([this] { return Evaluate(QStringLiteral("work.rested")).toBool(); }, Patience));
  }
  double CountOf(const std::function<void()> &deed) {
    Evaluate(QStringLiteral("work.reset()"));
    deed();
    Rest();
    return Evaluate(QStringLiteral("work.count()")).toDouble();
  }
  /// The count of each action, in their order, on a page of that many parts.
  std::vector<double> CountsOn(int parts, const std::vector<std::function<void()>> &deeds) {
    Load(parts);
    std::vector<double> counts;
    counts.reserve(deeds.size());
    for (const auto &deed : deeds) counts.push_back(CountOf(deed));
    return counts;
  }
  void ExpectNoGrowth(const std::vector<std::function<void()>> &deeds) {
    const std::vector<double> few = CountsOn(FewParts, deeds);
    const std::vector<double> many = CountsOn(ManyParts, deeds);
    for (size_t i = 0; i < deeds.size(); ++i) {
      EXPECT_GT(few[i], 0) << "deed " << i;
      EXPECT_LT(many[i], few[i] * 1.5 + 50) << "deed " << i << ", " << few[i] << " before";
    }
  }

  BridgePage page_;
};

TEST_P(Work, OfAKeyDoesNotGrowWithThePage) {
  ExpectNoGrowth({
      [this] { page_.Type(QStringLiteral("x")); },
      [this] { page_.Type(QStringLiteral(" ")); },
      [this] { page_.Press(Qt::Key_Backspace); },
      [this] { page_.Press(Qt::Key_Delete); },
  });
}

TEST_P(Work, OfAMoveOfTheCaretDoesNotGrowWithThePage) {
  ExpectNoGrowth({
      [this] { page_.Press(Qt::Key_Right); },
      [this] { page_.Press(Qt::Key_Down); },
      [this] { page_.Press(Qt::SHIFT | Qt::Key_Right); },
      [this] { Evaluate(QStringLiteral("work.selectWord()")); },
  });
}

TEST_P(Work, OfReadingTheStateOfEverythingSelectedIsBounded) {
  const auto selectAll = [this] { Evaluate(QStringLiteral("velor.exec(5035)")); };
  Load(ManyParts);
  const double many = CountOf(selectAll);
  Load(2 * ManyParts);
  EXPECT_LT(CountOf(selectAll), many * 1.3);
}

TEST_P(Work, OfACharacterFormatOnAWordDoesNotGrowWithThePage) {
  const auto on = [this](int command, const char *value) {
    return [this, command, value] {
      Evaluate(QStringLiteral("work.selectWord(); velor.exec(%1, '%2')")
                   .arg(command)
                   .arg(QString::fromLatin1(value)));
    };
  };
  const auto undo = [this] { Evaluate(QStringLiteral("velor.exec(5049)")); };
  ExpectNoGrowth({on(5000, ""), undo, on(5023, ""), undo, on(5048, ""), undo, on(5044, "Arial"),
                  undo, on(5045, "14"), undo, on(5046, "#FF0000"), undo, on(5042, "#FFFF00"),
                  undo});
}

const Shape Shapes[] = {
    {"Paragraphs", {}, QStringLiteral("<p>Some <b>bold</b> words in a paragraph.</p>\n"), {}},
    {"OneParagraphOfRuns", QStringLiteral("<p>"), QStringLiteral("words <b>bold words</b> "),
     QStringLiteral("</p>")},
    {"Lines", {}, QStringLiteral("a line of words<br>\n"), {}},
    {"OneList", QStringLiteral("<ul>"), QStringLiteral("<li>an item of words</li>\n"),
     QStringLiteral("</ul>")},
    {"OneTable", QStringLiteral("<table>"),
     QStringLiteral("<tr><td>a cell of words</td><td>another cell</td></tr>\n"),
     QStringLiteral("</table>")},
    {"OldMarkup", QStringLiteral("<center><font face=\"Arial\">"),
     QStringLiteral("<p><font size=\"2\">words <b>bold words</b></font>\n"),
     QStringLiteral("</font></center>")},
};

INSTANTIATE_TEST_SUITE_P(Of, Work, ::testing::ValuesIn(Shapes),
                         [](const auto &instance) { return std::string(instance.param.name); });

}  // namespace
}  // namespace velor
