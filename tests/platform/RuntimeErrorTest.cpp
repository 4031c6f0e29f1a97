// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/RuntimeError.h"
#include "tests/support/Checks.h"

#include <cerrno>

namespace velor {
namespace {

TEST(RuntimeError, CarriesNumberSourceAndDescription) {
  const RuntimeError error = RuntimeError::Of(ErrorNumber::FileNotFound, "ReadAll", "/a.htm");
  EXPECT_EQ(error.Number(), ErrorNumber::FileNotFound);
  EXPECT_EQ(error.Code(), 53);
  EXPECT_EQ(error.Source(), "ReadAll");
  EXPECT_EQ(error.Description(), "File not found: /a.htm");
  EXPECT_STREQ(error.what(), "Error 53 in ReadAll: File not found: /a.htm");
}

TEST(RuntimeError, ShowsItselfInOneLine) {
  const RuntimeError error(ErrorNumber::DeviceIoError, "Open", "first\nsecond");
  EXPECT_STREQ(error.what(), "Error 57 in Open: first second");
}

TEST(RuntimeError, MapsTheSystemsNumbersAndNamesTheFile) {
  const auto number = [](int errnoValue) {
    return RuntimeError::FromErrno(errnoValue, "x", "/x").Code();
  };
  EXPECT_EQ(number(ENOENT), 53);
  EXPECT_EQ(number(ENOTDIR), 76);
  EXPECT_EQ(number(EACCES), 75);
  EXPECT_EQ(number(EPERM), 75);
  EXPECT_EQ(number(EROFS), 75);
  EXPECT_EQ(number(EISDIR), 75);
  EXPECT_EQ(number(ETXTBSY), 70);
  EXPECT_EQ(number(ENOSPC), 61);
  EXPECT_EQ(number(EDQUOT), 61);
  EXPECT_EQ(number(EIO), 57);
  EXPECT_TRUE(RuntimeError::FromErrno(ENOSPC, "x", R"(\home\a.htm)")
                  .Description()
                  .startsWith("Disk full: /home/a.htm ("));
}

TEST(Description, KnowsEveryNumberAndOneSentenceForTheRest) {
  for (const int number :
       {-2147220455, 5, 6, 9, 13, 14, 53, 57, 61, 62, 70, 75, 76, 91, 32755, 35600, 35601}) {
    EXPECT_NE(Description(number), Description(1)) << number;
  }
  EXPECT_EQ(Description(6), "Overflow");
  EXPECT_EQ(Description(75), "Path/File access error");
  EXPECT_EQ(Description(1), "Application-defined or object-defined error");
}

}  // namespace
}  // namespace velor
