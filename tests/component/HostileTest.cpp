// SPDX-License-Identifier: GPL-3.0-or-later
// Pages made to do harm by their size and shape: the window goes on living, and who has waited long
// enough stops it. What they would run or fetch is in IsolationTest.
#include "tests/component/ComponentFixture.h"
#include "tests/support/Checks.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <gmock/gmock.h>

namespace velor {
namespace {

constexpr qint64 LongestHang = 2000;  // ms
const QString LongLoad =
    QStringLiteral("The page takes long to show. Press Escape to stop loading it.");

class Hostile : public WebEditorTest {
 protected:
  Hostile() {
    QObject::connect(&beat_, &QTimer::timeout, [this] {
      Beat();
      if (!isStopped_ && WasTold()) {
        isStopped_ = true;
        sinceStop_.start();
        QTest::keyClick(window_.get(), Qt::Key_Escape);
      }
    });
    sinceBeat_.start();
    beat_.start(5);
  }

  /// Opens the page as a person does who presses Escape as soon as that is offered.
  ErrorNumber Open(const QByteArray &page) {
    const QString path = Write(QStringLiteral("page.htm"), page);
    sinceBeat_.restart();
    const ErrorNumber error = ErrorOf([&] { editor_->LoadDocument(path); });
    Beat();
    return error;
  }
  bool WasTold() const {
    return std::count(listener_.reports.begin(), listener_.reports.end(), LongLoad) > 0;
  }
  void Beat() { hang_ = std::max(hang_, sinceBeat_.restart()); }

  QTimer beat_;
  QElapsedTimer sinceBeat_;
  QElapsedTimer sinceStop_;
  bool isStopped_ = false;
  qint64 hang_ = 0;
};

struct Shape {
  const char *name;
  QByteArray (*page)();
};

void PrintTo(const Shape &shape, std::ostream *out) {
  *out << shape.name;
}

class HostileShapes : public Hostile, public ::testing::WithParamInterface<Shape> {};

TEST_P(HostileShapes, NeverHoldTheWindowUpWithoutAWayToStop) {
  const QByteArray page = GetParam().page();
  const ErrorNumber error = Open(page);
  EXPECT_LT(hang_, LongestHang);
  if (isStopped_) {
    EXPECT_EQ(error, ErrorNumber::DeviceIoError);
    EXPECT_LT(sinceStop_.elapsed(), LongestHang);
  } else {
    EXPECT_EQ(error, ErrorNumber::None);
  }
  EXPECT_EQ(Bytes(QStringLiteral("page.htm")), page);
  if (WasTold()) {
    EXPECT_EQ(listener_.reports.back(), QString()) << "what is over is no longer said";
  }
  // And then the window takes another page.
  listener_.reports.clear();
  editor_->LoadDocument(Write(QStringLiteral("next.htm"), "<p>next</p>"));
  EXPECT_TRUE(DocumentHolds(QStringLiteral("<p>next</p>")));
}

INSTANTIATE_TEST_SUITE_P(
    All, HostileShapes,
    ::testing::Values(
        Shape{"NestedBoxes", [] { return QByteArray("<div>").repeated(200'000); }},
        Shape{"TwentyMegabytesOfNestedBoxes",
              [] { return QByteArray("<div>").repeated(4'000'000); }},
        Shape{"NestedTables", [] { return QByteArray("<table><tr><td>").repeated(50'000); }},
        Shape{"FormattingThatIsOpenedAnewInEveryParagraph",
              [] {
                return QByteArray("<b><i><font>").repeated(20'000) +
                       QByteArray("<p>x").repeated(2000);
              }},
        Shape{"ManyAttributes",
              [] {
                QByteArray page("<p");
                for (int i = 0; i < 300'000; ++i) page += " a" + QByteArray::number(i) + "=1";
                return page + ">x";
              }},
        Shape{"OneHugeAttribute", [] { return "<p a=\"" + QByteArray(20'000'000, 'x') + "\">x"; }},
        Shape{"CommentsNeverClosed", [] { return QByteArray("<!--").repeated(1'000'000); }}),
    [](const auto &shape) { return std::string(shape.param.name); });

TEST_F(Hostile, APageTooLargeToBeEditedIsRefusedAtOnce) {
  editor_->LoadDocument(Write(QStringLiteral("small.htm"), "<p>kept</p>"));
  EXPECT_EQ(Open(QByteArray(40'000'000, 'x')), ErrorNumber::OutOfStringSpace);
  EXPECT_LT(hang_, LongestHang);
  EXPECT_TRUE(DocumentHolds(QStringLiteral("<p>kept</p>")));
}

TEST_F(Hostile, AFileOfAGigabyteIsNotEvenRead) {
  QFile file(Native(QStringLiteral("huge.htm")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  // Without a block on the disk.
  ASSERT_TRUE(file.resize(1'000'000'000));
  sinceBeat_.restart();
  EXPECT_EQ(ErrorOf([&] { editor_->LoadDocument(Logic(QStringLiteral("huge.htm"))); }),
            ErrorNumber::OutOfStringSpace);
  Beat();
  EXPECT_LT(hang_, LongestHang);
}

}  // namespace
}  // namespace velor
