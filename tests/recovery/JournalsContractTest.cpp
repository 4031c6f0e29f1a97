// SPDX-License-Identifier: GPL-3.0-or-later
// What every implementation of Journals promises, run against the real one and the fake.
#include "recovery/JournalFiles.h"
#include "tests/support/Checks.h"
#include "tests/support/FakeJournals.h"

#include <QTemporaryDir>

namespace velor {
namespace {

class JournalsWorld {
 public:
  virtual ~JournalsWorld() = default;
  virtual Journals &Subject() = 0;
  /// The process ends and another begins.
  virtual void NextRun() = 0;
};

class FakeWorld : public JournalsWorld {
 public:
  Journals &Subject() override { return journals_; }
  void NextRun() override { journals_.EndRun(); }

 private:
  FakeJournals journals_;
};

class RealWorld : public JournalsWorld {
 public:
  RealWorld() {
    qputenv("XDG_STATE_HOME", folder_.path().toLocal8Bit());
    NextRun();
  }
  ~RealWorld() override { qputenv("XDG_STATE_HOME", stateHome_); }
  Journals &Subject() override { return *journals_; }
  void NextRun() override {
    journals_.reset();
    journals_ = std::make_unique<JournalFiles>();
  }

 private:
  QByteArray stateHome_ = qgetenv("XDG_STATE_HOME");
  QTemporaryDir folder_;
  std::unique_ptr<JournalFiles> journals_;
};

enum class Implementation { Fake, Real };

class JournalsContract : public testing::TestWithParam<Implementation> {
 protected:
  JournalsContract() {
    if (GetParam() == Implementation::Fake) {
      world_ = std::make_unique<FakeWorld>();
    } else {
      world_ = std::make_unique<RealWorld>();
    }
  }

  Journals &Subject() { return world_->Subject(); }
  std::vector<AbandonedPage> AfterTheEnd() {
    world_->NextRun();
    return Subject().Abandoned();
  }
  QString Document(const AbandonedPage &page) { return Subject().Read(page.id).page.page.document; }
  static JournalledPage Page(const QString &document, qint64 time = 0) {
    JournalledPage page;
    page.caption = QStringLiteral("Untitled 1");
    page.page = {"<p>", QStringLiteral("/home/"), document};
    page.time = QDateTime::fromMSecsSinceEpoch(time);
    return page;
  }

  std::unique_ptr<JournalsWorld> world_;
};

INSTANTIATE_TEST_SUITE_P(All, JournalsContract,
                         testing::Values(Implementation::Fake, Implementation::Real),
                         [](const auto &test) {
                           return test.param == Implementation::Fake ? "Fake" : "Real";
                         });

TEST_P(JournalsContract, WhatWasWrittenLastIsAnAbandonedPageOfTheNextRun) {
  const auto journal = Subject().Begin();
  journal->Write(Page(QStringLiteral("a")));
  journal->Write(Page(QStringLiteral("ab")));
  JournalledPage other = Page(QStringLiteral("abc"), 5000);
  other.path = QStringLiteral("\\site\\a.htm");
  other.page.original = "another";
  journal->Write(other);
  const auto pages = AfterTheEnd();
  ASSERT_EQ(pages.size(), 1);
  const JournalReading reading = Subject().Read(pages[0].id);
  EXPECT_EQ(reading.page.page, other.page);
  EXPECT_EQ(reading.page.path, other.path);
  EXPECT_EQ(reading.page.time, other.time);
  EXPECT_FALSE(reading.endIsMissing);
  EXPECT_EQ(pages[0].path, other.path);
  EXPECT_EQ(pages[0].caption, other.caption);
  EXPECT_EQ(pages[0].time, other.time);
  EXPECT_EQ(pages[0].defect, QString());
}

TEST_P(JournalsContract, AJournalNeverWrittenOrRemovedLeavesNothing) {
  const auto never = Subject().Begin();
  const auto removed = Subject().Begin();
  removed->Write(Page(QStringLiteral("a")));
  removed->Compact();
  removed->Remove();
  removed->Remove();
  removed->Compact();
  EXPECT_TRUE(AfterTheEnd().empty());
}

TEST_P(JournalsContract, ARemovedJournalBeginsAnew) {
  const auto journal = Subject().Begin();
  journal->Write(Page(QStringLiteral("a")));
  journal->Remove();
  journal->Write(Page(QStringLiteral("b")));
  const auto pages = AfterTheEnd();
  ASSERT_EQ(pages.size(), 1);
  EXPECT_EQ(Document(pages[0]), QStringLiteral("b"));
}

TEST_P(JournalsContract, AnAbandonedPageStaysUntilItIsDiscarded) {
  const auto one = Subject().Begin();
  const auto two = Subject().Begin();
  one->Write(Page(QStringLiteral("one"), 1000));
  two->Write(Page(QStringLiteral("two"), 2000));
  ASSERT_EQ(AfterTheEnd().size(), 2);
  const auto pages = AfterTheEnd();
  ASSERT_EQ(pages.size(), 2);
  EXPECT_EQ(Document(pages[1]), QStringLiteral("one"));
  EXPECT_EQ(Document(pages[0]), QStringLiteral("two"));
  Subject().Discard(pages[1].id);
  const auto left = AfterTheEnd();
  ASSERT_EQ(left.size(), 1);
  EXPECT_EQ(Document(left[0]), QStringLiteral("two"));
  Subject().Discard(left[0].id);
  EXPECT_TRUE(AfterTheEnd().empty());
}

TEST_P(JournalsContract, ASourceThatWasNotAppliedIsKeptUntilItIs) {
  const auto journal = Subject().Begin();
  JournalledPage page = Page(QStringLiteral("a"));
  journal->Write(page);
  page.source = QStringLiteral("<p>s</p>");
  journal->Write(page);
  page.source = QStringLiteral("<p>source</p>");
  journal->Write(page);
  auto pages = AfterTheEnd();
  ASSERT_EQ(pages.size(), 1);
  EXPECT_TRUE(pages[0].hasSource);
  EXPECT_EQ(Subject().Read(pages[0].id).page.source, page.source);

  const auto other = Subject().Begin();
  other->Write(page);
  page.source.reset();
  other->Write(page);
  pages = AfterTheEnd();
  ASSERT_EQ(pages.size(), 2);
  EXPECT_FALSE(pages[0].hasSource && pages[1].hasSource);
  EXPECT_NE(Subject().Read(pages[0].id).page.source, Subject().Read(pages[1].id).page.source);
}

TEST_P(JournalsContract, APageThatIsGoneCannotBeRead) {
  const auto journal = Subject().Begin();
  journal->Write(Page(QStringLiteral("a")));
  const auto pages = AfterTheEnd();
  ASSERT_EQ(pages.size(), 1);
  Subject().Discard(pages[0].id);
  EXPECT_NE(ErrorOf([&] { Subject().Read(pages[0].id); }), ErrorNumber::None);
}

TEST_P(JournalsContract, ThisRunsOwnPagesAreNotAbandoned) {
  const auto journal = Subject().Begin();
  journal->Write(Page(QStringLiteral("a")));
  EXPECT_TRUE(Subject().Abandoned().empty());
}

}  // namespace
}  // namespace velor
