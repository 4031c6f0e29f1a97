// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/PageSlots.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "tests/support/Checks.h"

#include <gtest/gtest.h>
#include <limits>

namespace velor {

TEST(PageSlotsTest, NumbersStartAtOneAndOnlyGrow) {
  PageSlots slots;
  EXPECT_EQ(slots.PageCount(), 0);
  EXPECT_EQ(slots.AddSlot(), 1);
  EXPECT_EQ(slots.AddSlot(), 2);
  EXPECT_EQ(slots.PageCount(), 2);
}

TEST(PageSlotsTest, GrowingKeepsWhatTheSlotsHold) {
  PageSlots slots;
  slots.AddSlot();
  slots.Record(1).Path = QStringLiteral("\\site\\a.htm");
  slots.AddSlot();
  EXPECT_EQ(slots.Record(1).Path, QStringLiteral("\\site\\a.htm"));
  EXPECT_TRUE(slots.Record(2).Path.isEmpty());
}

TEST(PageSlotsTest, ANewSlotIsEmptyInAllThreeLists) {
  PageSlots slots;
  slots.AddSlot();
  EXPECT_TRUE(slots.Page(1).isNull());
  EXPECT_TRUE(slots.CodeEditor(1).isNull());
  EXPECT_EQ(slots.Record(1).HasFile, False16);
}

TEST(PageSlotsTest, ANumberOutsideTheSlotsIsSubscriptOutOfRange) {
  PageSlots slots;
  EXPECT_EQ(ErrorOf([&] { slots.Record(1); }), ErrorNumber::SubscriptOutOfRange);
  slots.AddSlot();
  for (const int number : {-1, 0, 2}) {
    EXPECT_EQ(ErrorOf([&] { slots.Record(number); }), ErrorNumber::SubscriptOutOfRange) << number;
    EXPECT_EQ(ErrorOf([&] { slots.Page(number); }), ErrorNumber::SubscriptOutOfRange) << number;
    EXPECT_EQ(ErrorOf([&] { slots.CodeEditor(number); }), ErrorNumber::SubscriptOutOfRange)
        << number;
  }
}

TEST(PageSlotsTest, MoreSlotsThanA16BitNumberCountsOverflow) {
  PageSlots slots;
  for (int made = 0; made < std::numeric_limits<std::int16_t>::max(); ++made) slots.AddSlot();
  EXPECT_EQ(ErrorOf([&] { slots.AddSlot(); }), ErrorNumber::Overflow);
  EXPECT_EQ(slots.PageCount(), std::numeric_limits<std::int16_t>::max());
}

TEST(PageSlotsTest, ATabKeyIsKeyAndThePageNumber) {
  EXPECT_EQ(PageKey(3), QStringLiteral("key3"));
  EXPECT_EQ(PageKey(12), QStringLiteral("key12"));
}

TEST(PageRecordTest, TruthValuesAreSixteenBitsWithMinusOneForTrue) {
  const PageRecord record;
  EXPECT_EQ(sizeof(record.ReadOnly), 2U);
  EXPECT_EQ(True16, -1);
  // Four flags and then four texts, in this order.
  const auto &[readOnly, hasFile, editorOpen, spare, path, tempPath, caption, savedHtml] = record;
  EXPECT_EQ(&readOnly, &record.ReadOnly);
  EXPECT_EQ(&hasFile, &record.HasFile);
  EXPECT_EQ(&editorOpen, &record.EditorOpen);
  EXPECT_EQ(&spare, &record.Spare);
  EXPECT_EQ(&path, &record.Path);
  EXPECT_EQ(&tempPath, &record.TempPath);
  EXPECT_EQ(&caption, &record.Caption);
  EXPECT_EQ(&savedHtml, &record.SavedHTML);
}

}  // namespace velor
