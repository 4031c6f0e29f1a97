// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/ElementHtml.h"
#include "tests/support/Checks.h"
#include "tests/support/FakeRuntime.h"
#include "tests/support/FakeSourceControl.h"

#include <cmath>

namespace velor {
namespace {

/// The dialog's values when a source has been typed and nothing else.
ImageValues Defaults() {
  return {.source = QStringLiteral("a.gif"),
          .alternativeText = {},
          .lowResolutionSource = {},
          .alignment = QStringLiteral("Default"),
          .border = QStringLiteral("0"),
          .horizontalSpacing = QStringLiteral("0"),
          .verticalSpacing = QStringLiteral("0"),
          .sizeSource = SizeSource::Picture,
          .height = QStringLiteral("32"),
          .width = QStringLiteral("32"),
          .picture = {}};
}

TEST(ScratchElement, IsAnElementOfNoPage) {
  const HtmlElement element = CreateScratchElement(QStringLiteral("img"));
  EXPECT_EQ(element.tagName, QStringLiteral("IMG"));
  EXPECT_TRUE(element.attributes.empty());
  EXPECT_EQ(OuterHTML(element), QStringLiteral("<IMG>"));
}

struct QuotingCase {
  const char *value;
  const char *written;
};

class AttributeQuoting : public testing::TestWithParam<QuotingCase> {};

TEST_P(AttributeQuoting, KeepsTheValueInOnePiece) {
  const HtmlElement element{QStringLiteral("A"),
                            {{QStringLiteral("href"), QString::fromUtf8(GetParam().value)}}};
  EXPECT_EQ(OuterHTML(element),
            QStringLiteral("<A href=%1>").arg(QString::fromUtf8(GetParam().written)));
}

INSTANTIATE_TEST_SUITE_P(AnyText, AttributeQuoting,
                         testing::Values(QuotingCase{"a-B.c_1:2", "a-B.c_1:2"},
                                         QuotingCase{"", "\"\""}, QuotingCase{"a b", "\"a b\""},
                                         QuotingCase{"img/a.gif", "\"img/a.gif\""},
                                         QuotingCase{"a&b", "\"a&amp;b\""},
                                         QuotingCase{"a\"b", "\"a&quot;b\""},
                                         QuotingCase{"50%", "\"50%\""}, QuotingCase{"猫", "\"猫\""},
                                         QuotingCase{"<x>", "\"<x>\""}));

TEST(ImageHtml, IsEmptyWithoutASource) {
  ImageValues values = Defaults();
  values.source.clear();
  EXPECT_EQ(ImageHtml(values), QString());
}

TEST(ImageHtml, WritesAlternativesEvenWhenEmptyAndNoSizeAsNought) {
  EXPECT_EQ(
      ImageHtml(Defaults()),
      QStringLiteral(
          "<IMG src=a.gif alt=\"\" lowsrc=\"\" border=0 hspace=0 vspace=0 height=0 width=0>"));
}

TEST(ImageHtml, WritesEveryAttributeInItsOrder) {
  ImageValues values = Defaults();
  values.source = QStringLiteral("img/a b.gif");
  values.alternativeText = QStringLiteral("Tea & \"cake\"");
  values.lowResolutionSource = QStringLiteral("low.gif");
  values.alignment = QStringLiteral("Botton");
  values.border = QStringLiteral("2");
  values.horizontalSpacing = QStringLiteral("3");
  values.verticalSpacing = QStringLiteral("4");
  values.sizeSource = SizeSource::Boxes;
  values.height = QStringLiteral("50");
  values.width = QStringLiteral("60");
  EXPECT_EQ(ImageHtml(values),
            QStringLiteral("<IMG src=\"img/a b.gif\" alt=\"Tea &amp; &quot;cake&quot;\" "
                           "lowsrc=low.gif align=Botton border=2 hspace=3 vspace=4 height=50 "
                           "width=60>"));
}

TEST(ImageHtml, RoundsSpacingTiesToEven) {
  ImageValues values = Defaults();
  values.horizontalSpacing = QStringLiteral("2.5");
  values.verticalSpacing = QStringLiteral(" 3.5 ");
  EXPECT_TRUE(ImageHtml(values).contains(QStringLiteral(" hspace=2 vspace=4 ")));
}

TEST(ImageHtml, LeavesOutOnlyWhatDoesNotConvert) {
  for (const char *bad : {"", "abc", "1e20", "3000000000"}) {
    ImageValues values = Defaults();
    values.horizontalSpacing = QString::fromUtf8(bad);
    values.sizeSource = SizeSource::Boxes;
    values.height = QString::fromUtf8(bad);
    EXPECT_EQ(ImageHtml(values),
              QStringLiteral("<IMG src=a.gif alt=\"\" lowsrc=\"\" border=0 vspace=0 width=32>"))
        << bad;
  }
}

TEST(ImageHtml, LeavesOutABorderThatIsNoNumber) {
  for (const char *bad : {"", "abc", "thin"}) {
    ImageValues values = Defaults();
    values.border = QString::fromUtf8(bad);
    EXPECT_FALSE(ImageHtml(values).contains(QStringLiteral("border"))) << bad;
  }
}

TEST(ImageHtml, WritesTheBorderAsTyped) {
  ImageValues values = Defaults();
  values.border = QStringLiteral("2.50");
  EXPECT_TRUE(ImageHtml(values).contains(QStringLiteral(" border=2.50 ")));
}

TEST(ImageHtml, KeepsNegativeSizes) {
  ImageValues values = Defaults();
  values.sizeSource = SizeSource::Boxes;
  values.height = QStringLiteral("-5");
  EXPECT_TRUE(ImageHtml(values).contains(QStringLiteral(" height=-5 ")));
}

TEST(ImageHtml, RoundsSizesTiesToEven) {
  ImageValues values = Defaults();
  values.sizeSource = SizeSource::Boxes;
  values.height = QStringLiteral("2.5");
  values.width = QStringLiteral("3.5");
  EXPECT_TRUE(ImageHtml(values).endsWith(QStringLiteral(" height=2 width=4>")));
}

TEST(ImageHtml, TakesTheSizeFromThePicture) {
  ImageValues values = Defaults();
  values.picture = PictureSize::OfPixels(100, 200);
  EXPECT_TRUE(ImageHtml(values).endsWith(QStringLiteral(" height=88 width=176>")));
}

TEST(PictureSize, IsInHundredthsOfAMillimetreAtNinetySixPixelsAnInch) {
  EXPECT_EQ(PictureSize::OfPixels(100, 96), (PictureSize{.height = 2646, .width = 2540}));
  EXPECT_EQ(PictureSize::OfPixels(0, 0), PictureSize());
}

TEST(DefaultLength, IsHalfOfTheLengthDividedByTheTwipsOfAPixel) {
  EXPECT_EQ(DefaultLength(2646), 88);
  EXPECT_EQ(DefaultLength(0), 0);
  EXPECT_EQ(DefaultLength(44), 1);
}

TEST(DefaultLength, CutsBothDivisionsTowardsNought) {
  EXPECT_EQ(DefaultLength(59), 1);
  EXPECT_EQ(DefaultLength(-59), -1);
}

TEST(DefaultLength, RoundsTheTwipsFirst) {
  EXPECT_EQ(DefaultLength(2646, 14.6), 88);
  EXPECT_EQ(DefaultLength(2646, 12.0), 110);
}

/// A document whose selection notes what happens to it.
class NotedDocument final : public HtmlDocument, public DocumentSelection {
 public:
  explicit NotedDocument(CallLog &log) : log_(log) {}
  bool refuses = false;

  DocumentSelection &Selection() override {
    log_.push_back(QStringLiteral("Selection"));
    return *this;
  }
  SelectionType Type() const override { return SelectionType::Text; }
  HtmlElement ControlElement() const override { return {}; }
  std::unique_ptr<TextRange> CreateRange() override;

 private:
  friend class NotedRange;
  CallLog &log_;
};

class NotedRange final : public TextRange {
 public:
  explicit NotedRange(NotedDocument &document) : document_(document) {}
  void Collapse() override {}
  HtmlElement ParentElement() const override { return {}; }
  void PasteHTML(const QString &html) override {
    document_.log_.push_back(QStringLiteral("PasteHTML(%1)").arg(html));
    if (document_.refuses) {
      throw RuntimeError(ErrorNumber::ObjectNotSet, QStringLiteral("test"),
                         QStringLiteral("Nothing to paste into"));
    }
  }

 private:
  NotedDocument &document_;
};

std::unique_ptr<TextRange> NotedDocument::CreateRange() {
  log_.push_back(QStringLiteral("CreateRange"));
  return std::make_unique<NotedRange>(*this);
}

TEST(InsertHtmlAtSelection, LetsEventsRunOnceBetweenTheSelectionAndThePaste) {
  CallLog log;
  FakeRuntime runtime(&log);
  NotedDocument document(log);
  EXPECT_EQ(InsertHtmlAtSelection(runtime, true, QStringLiteral("<B>"), &document, nullptr),
            QString());
  EXPECT_EQ(log,
            (CallLog{QStringLiteral("Selection"), QStringLiteral("CreateRange"),
                     QStringLiteral("ProcessPendingEvents()"), QStringLiteral("PasteHTML(<B>)")}));
}

TEST(InsertHtmlAtSelection, WritesIntoTheSourceOtherwise) {
  CallLog log;
  FakeRuntime runtime(&log);
  NotedDocument document(log);
  FakeSourceControl source(nullptr, SourceAccess::Edit);
  source.text = QStringLiteral("one two");
  source.selectionStart = 4;
  source.selectionEnd = 7;
  InsertHtmlAtSelection(runtime, false, QStringLiteral("<B>"), &document, &source);
  EXPECT_EQ(source.text, QStringLiteral("one <B>"));
  EXPECT_TRUE(log.empty());
}

TEST(InsertHtmlAtSelection, SwallowsFailuresAndSaysWhatFailed) {
  CallLog log;
  FakeRuntime runtime(&log);
  NotedDocument document(log);
  document.refuses = true;
  EXPECT_EQ(InsertHtmlAtSelection(runtime, true, {}, &document, nullptr),
            QStringLiteral("Nothing to paste into"));
  EXPECT_NE(InsertHtmlAtSelection(runtime, true, {}, nullptr, nullptr), QString());
  EXPECT_NE(InsertHtmlAtSelection(runtime, false, {}, nullptr, nullptr), QString());
}

}  // namespace
}  // namespace velor
