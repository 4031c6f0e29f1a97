// SPDX-License-Identifier: GPL-3.0-or-later
// Where the frame of a selected object is seen, in the pixels of the view, whatever the page does
// to the places of its boxes; and what of the page is seen beside it.
#include "tests/engine/bridge/ObjectsFixture.h"
#include "tests/support/Waiting.h"

#include <QImage>

namespace velor {
namespace {

constexpr QRgb PictureColour = 0xff00ff00;
constexpr QRgb FrameColour = 0xff1a5fb4;

QRect BoundsOf(const QImage &image, QRgb colour) {
  QRect bounds;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixel(x, y) == colour) bounds |= QRect(x, y, 1, 1);
  return bounds;
}

class ObjectFrames : public Objects {
 protected:
  /// The box around everything of that colour in the view, once there is something.
  QRect Seen(QRgb colour) {
    QRect bounds;
    EXPECT_TRUE(WaitFor(
        [&] {
          bounds = BoundsOf(page_.Picture(), colour);
          return !bounds.isEmpty();
        },
        5000));
    return bounds;
  }
  void Select(const QString &selector) {
    Evaluate(
        QStringLiteral("inside.selection.selectNode(document.querySelector('%1'))").arg(selector));
  }
};

struct OddPage {
  const char *name;
  const char *head;
  const char *before;
  const char *after = "";
};

class ObjectFramesInOddPages : public ObjectFrames,
                               public ::testing::WithParamInterface<OddPage> {};

TEST_P(ObjectFramesInOddPages, LieAroundWhatIsSeen) {
  const auto &[name, head, before, after] = GetParam();
  page_.Load(
      QStringLiteral("<!DOCTYPE html><html><head>%1</head><body>%2<img width=\"80\" "
                     "height=\"50\" alt=\"\" style=\"background: #00ff00\">%3</body></html>")
          .arg(QString::fromLatin1(head), QString::fromLatin1(before), QString::fromLatin1(after)));
  const QRect picture = Seen(PictureColour);
  Select(QStringLiteral("img"));
  const QRect frame = Seen(FrameColour);
  const QRect wanted = picture.adjusted(-3, -3, 3, 3);
  EXPECT_LE(qAbs(frame.left() - wanted.left()), 1) << frame.left() << ' ' << wanted.left();
  EXPECT_LE(qAbs(frame.top() - wanted.top()), 1) << frame.top() << ' ' << wanted.top();
  EXPECT_LE(qAbs(frame.right() - wanted.right()), 1) << frame.right() << ' ' << wanted.right();
  EXPECT_LE(qAbs(frame.bottom() - wanted.bottom()), 1) << frame.bottom() << ' ' << wanted.bottom();
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, ObjectFramesInOddPages,
    ::testing::Values(
        OddPage{"PlacedBody", "<style>body { position: relative; left: 30px }</style>", "<p>x</p>"},
        OddPage{"MovedRoot", "<style>html { transform: translate(40px, 20px) }</style>",
                "<p>x</p>"},
        OddPage{"PlacedRoot",
                "<style>html { position: relative; margin: 30px; border: 5px solid }</style>",
                "<p>x</p>"},
        OddPage{"EnlargedRoot", "<style>html { zoom: 1.5 }</style>", "<p>x</p>"},
        OddPage{"EnlargedBody", "<style>body { zoom: 1.5 }</style>", "<p>x</p>"},
        OddPage{"MovedBody", "<style>body { transform: translate(40px, 20px) }</style>",
                "<p>x</p>"},
        OddPage{"EnlargedBox", "", "<p>x</p><div style='zoom: 2'>", "</div>"},
        OddPage{"ShrunkBox", "",
                "<div style='transform: scale(.5); transform-origin: 0 0; padding: 20px'>",
                "</div>"},
        OddPage{"ScrollingBox", "",
                "<div style='overflow: auto; width: 200px; height: 120px; margin: 20px'>",
                "<p style='height: 900px'>x</p></div>"},
        OddPage{"FixedBox", "<style>body { height: 3000px }</style>",
                "<div style='position: fixed; left: 90px; top: 60px'>", "</div>"},
        OddPage{"RightToLeft", "<style>html { direction: rtl } body { margin: 20px }</style>",
                "<p>x</p>"},
        OddPage{"ShownHead", "<style>head, title { display: block }</style><title>A title</title>",
                "<p>x</p>"},
        OddPage{"FlexibleRoot",
                "<style>html { display: flex; height: 100% } body { margin: auto }</style>",
                "<p>x</p>"},
        OddPage{"RootWithKeptBlanks", "<style>html { white-space: pre-wrap }</style>\n\n\n",
                "<p>x</p>"}),
    [](const auto &tested) { return std::string(tested.param.name); });

TEST_F(ObjectFrames, LeaveThePagesOwnPseudoElementsOfTheRootAsTheyAre) {
  page_.Load(
      QStringLiteral("<!DOCTYPE html><html><head><style>html::before { content: 'before' }"
                     "html::after { content: 'after' }</style></head><body><p>x</p>"
                     "<img width=\"80\" height=\"50\" alt=\"\"><!-- c --></body></html>"));
  Evaluate(QStringLiteral("velor.setDetails(true)"));
  Select(QStringLiteral("img"));
  ASSERT_TRUE(FrameComesAround(QStringLiteral("img")));
  const QString content =
      QStringLiteral("getComputedStyle(document.documentElement, '::%1').content");
  EXPECT_EQ(Text(content.arg(QStringLiteral("before"))), QStringLiteral("\"before\""));
  EXPECT_EQ(Text(content.arg(QStringLiteral("after"))), QStringLiteral("\"after\""));
}

TEST_F(ObjectFrames, MoveNothingOfThePage) {
  page_.Load(
      QStringLiteral("<!DOCTYPE html><html><head><title>A title</title>\n<style>head { display: "
                     "none }</style>\n</head><body><p>x</p><img width=\"80\" height=\"50\" "
                     "alt=\"\"></body></html>"));
  EXPECT_EQ(
      Evaluate(QStringLiteral("document.querySelector('p').getBoundingClientRect().top")).toInt(),
      16);
  EXPECT_EQ(Text(QStringLiteral("getComputedStyle(document.querySelector('title')).display")),
            QStringLiteral("none"));
}

TEST_F(ObjectFrames, AreAllThatTellsASelectedTableFromOthers) {
  Load(
      QStringLiteral("<p>one</p><table width='300' cellpadding='9'><tbody><tr><td><b>cell</b></td>"
                     "</tr></tbody></table>"));
  const QVariantList place = Evaluate(QStringLiteral("{ const r = document.querySelector('b')"
                                                     ".getBoundingClientRect();"
                                                     "[r.left, r.top, r.width, r.height] }"))
                                 .toList();
  const QRect word(place[0].toInt(), place[1].toInt(), place[2].toInt(), place[3].toInt());
  const auto shown = [&] { return page_.Picture().copy(word); };
  Evaluate(QStringLiteral("getSelection().collapse(document.body, 0)"));
  ASSERT_TRUE(WaitFor([&] { return !BoundsOf(shown(), 0xff000000).isEmpty(); }));
  const QImage plain = shown();
  Evaluate(QStringLiteral("getSelection().selectAllChildren(document.querySelector('b'))"));
  ASSERT_TRUE(WaitFor([&] { return shown() != plain; }));
  Select(QStringLiteral("table"));
  EXPECT_TRUE(WaitFor([&] { return shown() == plain; }));
  Evaluate(QStringLiteral("getSelection().selectAllChildren(document.querySelector('b'))"));
  EXPECT_TRUE(WaitFor([&] { return shown() != plain; }));
}

TEST_F(ObjectFrames, KeepTheTintOfSelectedTextWhereAllOfALongPageWouldBeStyledAnew) {
  Load(QStringLiteral("<table><tbody>%1</tbody></table>")
           .arg(QStringLiteral("<tr><td>x</td></tr>").repeated(3000)));
  Select(QStringLiteral("table"));
  ASSERT_TRUE(
      Comes(QStringLiteral("getComputedStyle(document.head, '::after').content"
                           " !== 'none'")));
  EXPECT_EQ(Evaluate(QStringLiteral("document.adoptedStyleSheets.filter((sheet) =>"
                                    "  sheet.cssRules[0]?.selectorText?.includes('selection'))"
                                    "  .length"))
                .toInt(),
            0);
}

}  // namespace
}  // namespace velor
