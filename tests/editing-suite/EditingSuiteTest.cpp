// SPDX-License-Identifier: GPL-3.0-or-later
// The runner of editing suites, on rows of our own.
#include "platform/RuntimeError.h"
#include "tools/editing-suite/EditingSuite.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace velor {
namespace {

class Suite : public ::testing::Test {
 protected:
  SuiteResult Run(const QByteArray &data) {
    QFile file(folder_.filePath(QStringLiteral("rows.js")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(data);
    file.close();
    return suite_.Run(file.fileName());
  }

  QTemporaryDir folder_;
  EditingSuite suite_;
};

TEST_F(Suite, CountsTheRowsThatHoldAndThoseThatDoNot) {
  const SuiteResult result =
      Run("// rows\nvar browserTests = [\n"
          "['<p>one [two]</p>', [['bold', '']], '<p>one <b>[two]</b></p>', [true], {}],\n"
          "['<p>one [two]</p>', [['italic', '']], '<p>one <em>[two]</em></p>', [true], {}],\n"
          "]");
  EXPECT_EQ(result.total, 2);
  EXPECT_EQ(result.held, 1);
  EXPECT_EQ(result.heldByEngine, 1);
  ASSERT_EQ(result.differences.size(), 1u);
  EXPECT_EQ(result.differences[0].ours, QStringLiteral("<p>one <i>two</i></p>"));
}

TEST_F(Suite, TakesAnyOfSeveralExpectationsAndPlacesBetweenNodes) {
  const SuiteResult result =
      Run("var browserTests = [['<p>{one}</p>', [['bold', '']], ['<p>no</p>', '<p><b>one</b></p>'],"
          " [true], {}]]");
  EXPECT_EQ(result.held, 1);
}

TEST_F(Suite, LeavesRowsOutWhoseCommandsTheProgramDoesNotHave) {
  const SuiteResult result =
      Run("var browserTests = [['[one]', [['subscript', '']], '<sub>one</sub>', [true], {}],"
          "['[one]', [['fontsize', '+1']], '', [true], {}]]");
  EXPECT_EQ(result.total, 0);
  EXPECT_EQ(result.foreign, 2);
}

TEST_F(Suite, TriesRowsThatAskForStylesOnAnHtml5Page) {
  const SuiteResult result = Run(
      "var browserTests = [['<p>[one]</p>', [['stylewithcss', 'true'], ['forecolor', '#ff0000']],"
      " '<p><span style=\"color:rgb(255, 0, 0)\">one</span></p>', [true, true], {}],"
      "['<p>[one]</p>', [['stylewithcss', 'false'], ['forecolor', '#ff0000']],"
      " '<p><font color=\"#ff0000\">one</font></p>', [true, true], {}]]");
  EXPECT_EQ(result.held, 2);
}

TEST_F(Suite, RaisesAnErrorForAFileThatIsNoSuite) {
  EXPECT_THROW(Run("var other = 1;"), RuntimeError);
  EXPECT_THROW(suite_.Run(QStringLiteral("/none/such.js")), RuntimeError);
}

}  // namespace
}  // namespace velor
