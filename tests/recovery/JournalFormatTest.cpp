// SPDX-License-Identifier: GPL-3.0-or-later
// A journal whose end is cut off or damaged is read up to there.
#include "recovery/JournalFormat.h"
#include "tests/support/Checks.h"

#include <QBuffer>
#include <QRandomGenerator>

namespace velor {
namespace {

JournalledPage Page(const QString &document) {
  JournalledPage page;
  page.path = QStringLiteral("\\site\\a.htm");
  page.caption = QStringLiteral("a.htm");
  page.saving = JournalledPage::Saving::ToItsFile;
  page.page = {QByteArray("<p>\xA4\xE5\0</p>", 10), QStringLiteral("/site/a.htm"), document};
  page.time = QDateTime::fromMSecsSinceEpoch(1'000'000);
  return page;
}

TEST(JournalFormat, AWholePageComesBack) {
  const JournalledPage page = Page(QStringLiteral("<p>文 \U0001F600</p>") + QChar(0xD800));
  const auto back = ReadJournal(JournalHead() + JournalRecord(page));
  ASSERT_TRUE(back);
  EXPECT_EQ(back->page.path, page.path);
  EXPECT_EQ(back->page.caption, page.caption);
  EXPECT_EQ(back->page.saving, page.saving);
  EXPECT_EQ(back->page.page, page.page);
  EXPECT_EQ(back->page.time, page.time);
}

TEST(JournalFormat, RandomChangesComeBackOneByOne) {
  QRandomGenerator random(7);
  QString document = QStringLiteral("<p>abcabcabc</p>");
  QByteArray journal = JournalHead() + JournalRecord(Page(document));
  for (int i = 0; i < 2000; ++i) {
    QString next = document;
    const qsizetype start = random.bounded(static_cast<quint32>(next.size() + 1));
    next.remove(start, random.bounded(4));
    next.insert(start, QStringLiteral("ab").repeated(static_cast<int>(random.bounded(3))));
    journal += JournalChange(document, next, QDateTime::fromMSecsSinceEpoch(i));
    document = next;
    if (i % 100 == 0) {
      EXPECT_EQ(ReadJournal(journal)->page.page.document, document) << i;
    }
  }
  const auto back = ReadJournal(journal);
  EXPECT_EQ(back->page.page.document, document);
  EXPECT_EQ(back->page.time, QDateTime::fromMSecsSinceEpoch(1999));
}

TEST(JournalFormat, AChangeIsSmallHoweverLargeThePageIs) {
  const QString before(1'000'000, u'x');
  QString after = before;
  after.insert(500'000, u'y');
  EXPECT_LT(JournalChange(before, after, {}).size(), 80);
}

TEST(JournalFormat, AJournalCutOffAnywhereGivesWhatWasWhole) {
  const QString one = QStringLiteral("<p>one</p>");
  const QString two = QStringLiteral("<p>one two</p>");
  const QByteArray first = JournalHead() + JournalRecord(Page(one));
  const QByteArray journal = first + JournalChange(one, two, {});
  for (qsizetype length = 0; length <= journal.size(); ++length) {
    const auto back = ReadJournal(journal.left(length));
    ASSERT_EQ(back.has_value(), length >= first.size()) << length;
    if (!back) continue;
    EXPECT_EQ(back->page.page.document, length == journal.size() ? two : one) << length;
  }
}

TEST(JournalFormat, ADamagedOrEmptiedEndIsNotTaken) {
  const QString one = QStringLiteral("<p>one</p>");
  const QByteArray first = JournalHead() + JournalRecord(Page(one));
  const QByteArray change = JournalChange(one, QStringLiteral("<p>two</p>"), {});
  for (qsizetype i = 0; i < change.size(); ++i) {
    QByteArray damaged = change;
    damaged[i] = static_cast<char>(~damaged[i]);
    EXPECT_EQ(ReadJournal(first + damaged)->page.page.document, one) << i;
  }
  EXPECT_EQ(ReadJournal(first + QByteArray(500, '\0'))->page.page.document, one);
  EXPECT_FALSE(ReadJournal(QByteArray(500, '\0')));
  EXPECT_FALSE(ReadJournal("something else"));
}

TEST(JournalFormat, ASourceThatWasNotAppliedComesBackAndGoes) {
  JournalledPage page = Page(QStringLiteral("<p>a</p>"));
  page.source = QStringLiteral("<p>source</p>");
  QByteArray journal = JournalHead() + JournalRecord(page);
  EXPECT_EQ(ReadJournal(journal)->page.source, page.source);
  const auto step = [&](const std::optional<QString> &next) {
    journal += JournalSourceChange(page.source, next, {});
    page.source = next;
    EXPECT_EQ(ReadJournal(journal)->page.source, next);
  };
  step(QStringLiteral("<p>the source</p>"));
  step(QString());
  step(std::nullopt);
  step(QStringLiteral("again"));
  EXPECT_EQ(ReadJournal(journal)->page.page.document, QStringLiteral("<p>a</p>"));
}

AbandonedPage SummaryOf(QByteArray journal) {
  QBuffer buffer(&journal);
  buffer.open(QIODevice::ReadOnly);
  return SummariseJournal(buffer).value_or(AbandonedPage());
}

TEST(JournalFormat, PicturesThatAreNotInTheSavedPageComeBackAndGo) {
  JournalledPage page = Page(QStringLiteral("<p>a</p>"));
  page.pictures = {{QStringLiteral("\\site\\rose.png"), QStringLiteral("rose.png"), "digest"},
                   {QStringLiteral("\\far.png"), QStringLiteral("file:///far.png")},
                   {QStringLiteral("\\site\\cut.png"),
                    {},
                    "cut",
                    QStringLiteral("\\site\\cut-original.png"),
                    "whole",
                    7}};
  page.source = QStringLiteral("source");
  QByteArray journal = JournalHead() + JournalRecord(page);
  EXPECT_EQ(ReadJournal(journal)->page.pictures, page.pictures);
  EXPECT_TRUE(SummaryOf(journal).hasSource);
  journal += JournalPictures(page.pictures, page.pictures, {});
  journal += JournalPictures(page.pictures, {page.pictures.front()}, {});
  EXPECT_EQ(ReadJournal(journal)->page.pictures, QList{page.pictures.front()});
  journal += JournalPictures({page.pictures.front()}, {}, {});
  const auto back = ReadJournal(journal);
  EXPECT_TRUE(back->page.pictures.isEmpty());
  EXPECT_EQ(back->page.source, page.source);
  EXPECT_FALSE(back->endIsMissing);
}

TEST(JournalFormat, ASummarySaysWhatTheWholeSays) {
  JournalledPage page = Page(QString(100'000, u'x'));
  QByteArray journal = JournalHead() + JournalRecord(page);
  journal += JournalChange(page.page.document, QStringLiteral("y"),
                           QDateTime::fromMSecsSinceEpoch(2'000'000));
  AbandonedPage summary = SummaryOf(journal);
  EXPECT_EQ(summary.path, page.path);
  EXPECT_EQ(summary.caption, page.caption);
  EXPECT_EQ(summary.time, QDateTime::fromMSecsSinceEpoch(2'000'000));
  EXPECT_FALSE(summary.hasSource);
  journal += JournalSourceChange({}, QStringLiteral("s"), page.time);
  EXPECT_TRUE(SummaryOf(journal).hasSource);
  journal += JournalChange({}, QStringLiteral("z"), page.time);
  EXPECT_TRUE(SummaryOf(journal).hasSource);
  journal += JournalSourceChange(QStringLiteral("s"), {}, page.time);
  EXPECT_FALSE(SummaryOf(journal).hasSource);
  page.source = QStringLiteral("s");
  EXPECT_TRUE(SummaryOf(JournalHead() + JournalRecord(page)).hasSource);
}

TEST(JournalFormat, ASummaryOfAJournalCutOffAnywhereSaysWhatIsLeft) {
  const JournalledPage page = Page(QStringLiteral("<p>one</p>"));
  const QByteArray first = JournalHead() + JournalRecord(page);
  const QByteArray journal = first + JournalSourceChange({}, QStringLiteral("s"), page.time);
  for (qsizetype length = 0; length <= journal.size(); ++length) {
    const AbandonedPage summary = SummaryOf(journal.left(length));
    EXPECT_EQ(summary.path, length >= first.size() ? page.path : QString()) << length;
    EXPECT_EQ(summary.hasSource, length == journal.size()) << length;
  }
}

TEST(JournalFormat, WhateverBitFlipsNothingCrashesAndNoDamageIsTakenForText) {
  const QString one = QStringLiteral("<p>one</p>");
  const QString two = QStringLiteral("<p>one two</p>");
  const QByteArray journal = JournalHead() + JournalRecord(Page(one)) +
                             JournalChange(one, two, {}) +
                             JournalSourceChange({}, QStringLiteral("s"), {});
  for (qsizetype bit = 0; bit < 8 * journal.size(); ++bit) {
    QByteArray damaged = journal;
    damaged[bit / 8] = static_cast<char>(damaged[bit / 8] ^ (1 << bit % 8));
    const auto reading = ReadJournal(damaged);
    SummaryOf(damaged);
    if (!reading) continue;
    EXPECT_TRUE(reading->endIsMissing) << bit;
    const QString document = reading->page.page.document;
    EXPECT_TRUE(document == one || document == two) << bit;
  }
  EXPECT_FALSE(ReadJournal(journal)->endIsMissing);
}

TEST(JournalFormat, AStretchOutsideTheTextIsNotTaken) {
  const QString one = QStringLiteral("<p>one</p>");
  const QByteArray first = JournalHead() + JournalRecord(Page(one));
  const QByteArray beyond = JournalChange(QString(100, u'x'), QString(90, u'x') + u'y', {});
  const auto reading = ReadJournal(first + beyond);
  ASSERT_TRUE(reading);
  EXPECT_EQ(reading->page.page.document, one);
  EXPECT_TRUE(reading->endIsMissing);
}

}  // namespace
}  // namespace velor
