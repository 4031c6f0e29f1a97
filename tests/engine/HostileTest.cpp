// SPDX-License-Identifier: GPL-3.0-or-later
// Pages whose size or structure overloads the engine: the window keeps answering, and Escape stops
// the wait. Scripts and requests are in IsolationTest.
#include "tests/engine/ComponentFixture.h"
#include "tests/support/Checks.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <csignal>
#include <gmock/gmock.h>

namespace velor {
namespace {

constexpr qint64 LongestHang = 2000;  // ms
const QString Offer = QStringLiteral("Press Escape");

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
    return std::any_of(listener_.reports.begin(), listener_.reports.end(),
                       [](const QString &report) { return report.contains(Offer); });
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
  // Afterwards the window loads another page.
  beat_.stop();
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
        Shape{"CommentsNeverClosed", [] { return QByteArray("<!--").repeated(1'000'000); }},
        Shape{"UnclosedBold", [] { return QByteArray("<b>").repeated(1'000'000); }},
        Shape{"NestedFonts", [] { return QByteArray("<font>").repeated(500'000); }},
        Shape{"OneLongLine", [] { return QByteArray("word ").repeated(4'000'000); }},
        Shape{"CellsThatSpanEverything",
              [] {
                return "<table>" +
                       QByteArray("<tr><td colspan=1000 rowspan=65534>x").repeated(100'000);
              }},
        Shape{"Entities",
              [] {
                return "<!DOCTYPE x [<!ENTITY a 'aaaa'><!ENTITY b '&a;&a;'>]>" +
                       QByteArray("&b;&NotEqualTilde;").repeated(300'000);
              }},
        Shape{"Selectors",
              [] {
                return "<style>" +
                       QByteArray("div:has(p) div:not(:nth-child(2n+1)) ").repeated(1000) +
                       "{x:y}</style>" + QByteArray("<div><p>x</p></div>").repeated(10'000);
              }},
        Shape{"VariablesThatDouble",
              [] {
                QByteArray page("<style>p{--a0:xx;");
                for (int i = 1; i < 40; ++i)
                  page += "--a" + QByteArray::number(i) + ":" +
                          ("var(--a" + QByteArray::number(i - 1) + ")").repeated(2) + ";";
                return page + "content:var(--a39)}</style><p>x";
              }},
        Shape{"NestedSums",
              [] {
                return "<p style='width:" + QByteArray("calc(1px + ").repeated(20'000) + "1px" +
                       QByteArray(")").repeated(20'000) + "'>x";
              }},
        Shape{"TenThousandFrames",
              [] { return QByteArray("<iframe srcdoc='<p>x'></iframe>").repeated(10'000); }},
        Shape{"DrawingsOfDrawings",
              [] {
                QByteArray page("<svg><g id=a0><rect width=1 height=1 /></g>");
                for (int i = 1; i < 24; ++i)
                  page += "<g id=a" + QByteArray::number(i) + ">" +
                          ("<use href=#a" + QByteArray::number(i - 1) + " />").repeated(4) + "</g>";
                return page + "</svg>";
              }},
        Shape{"GiganticPictures",
              [] { return QByteArray("<img src=x.png width=65535 height=65535>").repeated(100); }},
        Shape{"QuotesInQuotes", [] { return QByteArray("<a b=\"<a b='").repeated(500'000); }},
        Shape{"NoscriptsNeverClosed", [] { return QByteArray("<noscript>").repeated(1'000'000); }},
        Shape{"ManyComments", [] { return QByteArray("<!---->").repeated(1'000'000); }},
        Shape{"ScriptsInScripts",
              [] { return QByteArray("<script><!--<script>").repeated(500'000); }}),
    [](const auto &shape) { return std::string(shape.param.name); });

/// A page whose process stops answering at some moment.
class Hanging : public Hostile {
 protected:
  Hanging() {
    LoadWithCaret("<html><head></head><body><p>One</p></body></html>", QStringLiteral("p"));
    TypeText(QStringLiteral("!"));
    EXPECT_TRUE(WaitFor([this] { return editor_->Memory().document.contains(typed_); }));
  }
  void Hang() {
    Page()->runJavaScript(QStringLiteral("for (;;);"), 1);
    isStopped_ = false;
    hang_ = 0;
    sinceBeat_.restart();
  }
  /// The person was asked, and the window answered all the time until then and afterwards.
  void ExpectStopped() {
    Beat();
    EXPECT_TRUE(isStopped_);
    EXPECT_LT(hang_, LongestHang);
    EXPECT_LT(sinceStop_.elapsed(), LongestHang);
  }
  /// The page comes back and is edited as before.
  void ExpectEditable() {
    ASSERT_TRUE(WaitFor([this] { return listener_.reports.back() == back_; }));
    EXPECT_EQ(Evaluate(QStringLiteral("document.body.innerHTML")).toString(), typed_);
    editor_->Document().Selection().CreateRange()->PasteHTML(QStringLiteral("<b>x</b>"));
    EXPECT_TRUE(DocumentHolds(QStringLiteral("<b>x</b>")));
  }

  const QString back_ = QStringLiteral("The page's display has been restored.");
  const QString typed_ = QStringLiteral("<p>One!</p>");
};

TEST_F(Hanging, IsReadAsItWasLastSeenWhenThePersonStopsIt) {
  Hang();
  EXPECT_TRUE(DocumentHolds(typed_));
  ExpectStopped();
  ExpectEditable();
}

TEST_F(Hanging, IsSavedAsItWasLastSeenWhenThePersonStopsIt) {
  Hang();
  editor_->SaveDocument(Logic(QStringLiteral("saved.htm")));
  ExpectStopped();
  EXPECT_EQ(Bytes(QStringLiteral("saved.htm")),
            "<html><head></head><body><p>One!</p></body></html>");
  ExpectEditable();
}

TEST_F(Hanging, KeepsItsDocumentWhenAnAppliedSourceIsStopped) {
  Hang();
  EXPECT_EQ(ErrorOf([&] {
              editor_->LoadText(QStringLiteral("<p>Two</p>"), Logic(QStringLiteral("page.htm")));
            }),
            ErrorNumber::DeviceIoError);
  ExpectStopped();
  ExpectEditable();
}

TEST_F(Hanging, IsClosedWithoutWaitingForIt) {
  Hang();
  editor_.reset();
  Beat();
  EXPECT_LT(hang_, LongestHang);
}

TEST_F(Hanging, IsWrittenAnewWhenTheCheckOfItIsStopped) {
  // Made once, and then stopped where nobody can see it.
  Engine().Verifier().Serialisation(QStringLiteral("<p>warm</p>"));
  const auto process = static_cast<pid_t>(Engine().Verifier().ProcessId());
  ASSERT_GT(process, 0);
  ASSERT_EQ(::kill(process, SIGSTOP), 0);
  editor_->Document().Selection().CreateRange()->PasteHTML(QStringLiteral("<b>x</b>"));
  ASSERT_TRUE(DocumentHolds(QStringLiteral("<b>x</b>")));
  editor_->SaveDocument(Logic(QStringLiteral("saved.htm")));
  ExpectStopped();
  EXPECT_EQ(Bytes(QStringLiteral("saved.htm")),
            "<html><head></head><body><p>One!<b>x</b></p></body></html>");
  // And the next save is checked again.
  EXPECT_TRUE(Engine().Verifier().Serialisation(QStringLiteral("<p>again</p>")).has_value());
}

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
