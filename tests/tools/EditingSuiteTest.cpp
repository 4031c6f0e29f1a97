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
  void Write(const QByteArray &data) {
    QFile file(path_);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(data);
  }
  SuiteResult Run(const QByteArray &data) {
    Write(data);
    return suite_.Run(path_);
  }

  QTemporaryDir folder_;
  const QString path_ = folder_.filePath(QStringLiteral("rows.js"));
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

TEST_F(Suite, CountsTheRowsWhoseButtonsAndBoxesShowWhatIsExpected) {
  const SuiteResult result = Run(
      "var browserTests = ["
      "['<p>[one]</p>', [['bold', '']], '', [true], {bold: [false, false, '', false, true, '']}],"
      "['<p>[one]</p>', [['bold', '']], '', [true], {bold: [false, true, '', false, true, '']}],"
      "['<p>[a<b>b</b>]</p>', [['bold', '']], '', [true],"
      " {bold: [true, false, '', false, true, '']}],"
      "['<p>[one]</p>', [['forecolor', '#ff0000']], '', [true],"
      " {forecolor: [false, false, 'rgb(0, 0, 0)', false, false, 'rgb(255, 0, 0)']}],"
      "['<p>[one]</p>', [['formatblock', '<h2>']], '', [true],"
      " {formatblock: [false, false, 'p', false, false, 'h2']}],"
      "['<p>[one]</p>', [['indent', '']], '', [true],"
      " {indent: [false, false, '', false, false, '']}]]");
  EXPECT_EQ(result.states, 5);
  EXPECT_EQ(result.statesHeld, 4);
}

TEST_F(Suite, RunsTheKeysAndTheInsertionsOfPicturesToo) {
  const SuiteResult result = Run(
      "var browserTests = ["
      "['<p>on[]e</p>', [['delete', '']], '<p>oe</p>', [true], {}],"
      "['<p>on[]e</p>', [['forwarddelete', '']], '<p>on</p>', [true], {}],"
      "['<p>on[]e</p>', [['inserttext', 'x']], '<p>onxe</p>', [true], {}],"
      "['<p>on[]e</p>', [['insertlinebreak', '']], '<p>on<br>e</p>', [true], {}],"
      "['<p>on[]e</p>', [['insertimage', 'a.png']], '<p>on<img src=\"a.png\">e</p>', [true], {}],"
      "['<p>on[]e</p>', [['bold', ''], ['inserttext', 'x'], ['undo', '']], '<p>one</p>', [], {}]]");
  EXPECT_EQ(result.total, 6);
  EXPECT_EQ(result.held, 6);
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

TEST_F(Suite, ReadsFilesThatHoldMoreThanRows) {
  const SuiteResult result =
      Run("class Own extends HTMLElement {};\ncustomElements.define('own-element', Own);\n"
          "// one\nlet browserTests = ['a heading', null, {},\n"
          "  ['<p>[one]</p>', [['bold', '']], `<p><b>one</b></p>`,], /* two */\n"
          "  ['<p>[one]</p>', [['selectall']], '<p>one</p>', [true]],\n"
          "  ['<p>[one]</p>', [['stylewithcss', 'true']], '<p>one</p>', [true], {}],\n];");
  EXPECT_EQ(result.total, 2);
  EXPECT_EQ(result.held, 2);
  EXPECT_EQ(result.foreign, 1);
}

TEST_F(Suite, CountsNoRowsInAFileThatHasNone) {
  EXPECT_EQ(Run("").total, 0);
  EXPECT_EQ(Run("var other = 1;").total, 0);
  EXPECT_EQ(Run("var browserTests = [];").total, 0);
}

TEST_F(Suite, GoesOnBehindARowThatNeverComesToAnEnd) {
  EditingSuite impatient(std::chrono::milliseconds(1500));
  Write(
      "var endless = ['<p>[one]</p>', [['bold', '']], 0, [true], {}];\n"
      "Object.defineProperty(endless, 2, {get() { for (;;); }});\n"
      "var browserTests = ["
      "['<p>[one]</p>', [['bold', '']], '<p><b>one</b></p>', [true], {}], endless,"
      "['<p>[two]</p>', [['bold', '']], '<p><b>two</b></p>', [true], {}]]");
  const SuiteResult result = impatient.Run(path_);
  EXPECT_EQ(result.total, 3);
  EXPECT_EQ(result.held, 2);
  EXPECT_EQ(result.lost, 1);
}

TEST_F(Suite, RaisesAnErrorForAFileThatIsNoScript) {
  EXPECT_THROW(Run("var browserTests = [["), RuntimeError);
  EXPECT_THROW(suite_.Run(QStringLiteral("/none/such.js")), RuntimeError);
}

}  // namespace
}  // namespace velor
