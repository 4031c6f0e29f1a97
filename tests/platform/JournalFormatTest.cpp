// SPDX-License-Identifier: GPL-3.0-or-later
// What is in a journal can be read after whatever happened to its end.
#include "platform/JournalFormat.h"
#include "tests/support/Checks.h"

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
  EXPECT_EQ(back->path, page.path);
  EXPECT_EQ(back->caption, page.caption);
  EXPECT_EQ(back->saving, page.saving);
  EXPECT_EQ(back->page, page.page);
  EXPECT_EQ(back->time, page.time);
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
      EXPECT_EQ(ReadJournal(journal)->page.document, document) << i;
    }
  }
  const auto back = ReadJournal(journal);
  EXPECT_EQ(back->page.document, document);
  EXPECT_EQ(back->time, QDateTime::fromMSecsSinceEpoch(1999));
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
    EXPECT_EQ(back->page.document, length == journal.size() ? two : one) << length;
  }
}

TEST(JournalFormat, ADamagedOrEmptiedEndIsNotTaken) {
  const QString one = QStringLiteral("<p>one</p>");
  const QByteArray first = JournalHead() + JournalRecord(Page(one));
  const QByteArray change = JournalChange(one, QStringLiteral("<p>two</p>"), {});
  for (qsizetype i = 0; i < change.size(); ++i) {
    QByteArray damaged = change;
    damaged[i] = static_cast<char>(~damaged[i]);
    EXPECT_EQ(ReadJournal(first + damaged)->page.document, one) << i;
  }
  EXPECT_EQ(ReadJournal(first + QByteArray(500, '\0'))->page.document, one);
  EXPECT_FALSE(ReadJournal(QByteArray(500, '\0')));
  EXPECT_FALSE(ReadJournal("something else"));
}

}  // namespace
}  // namespace velor
