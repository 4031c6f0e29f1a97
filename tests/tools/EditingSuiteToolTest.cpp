// SPDX-License-Identifier: GPL-3.0-or-later
// The program velor-editing-suite as a person runs it: on folders, by its exit status.
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace velor {
namespace {

class SuiteTool : public ::testing::Test {
 protected:
  void Write(const QString &name, const QByteArray &data) {
    QFile file(folder_.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(data);
  }

  /// Runs the program and keeps what it says; returns its exit status.
  int Run(const QStringList &arguments) {
    QProcess tool;
    tool.start(QStringLiteral(VELOR_EDITING_SUITE), arguments);
    EXPECT_TRUE(tool.waitForFinished(60000));
    output_ = QString::fromUtf8(tool.readAllStandardOutput());
    errors_ = QString::fromUtf8(tool.readAllStandardError());
    return tool.exitCode();
  }
  /// The words of the line that begins with that name.
  QStringList Line(const QString &name) const {
    for (const QString &line : output_.split(QLatin1Char('\n'))) {
      if (line.startsWith(name + QLatin1Char(' ')))
        return line.simplified().split(QLatin1Char(' '));
    }
    return {};
  }

  QTemporaryDir folder_;
  QString output_;
  QString errors_;
};

const QByteArray Bold =
    "var browserTests = [['<p>[one]</p>', [['bold', '']], '<p><b>one</b></p>', [true],"
    " {bold: [false, false, '', false, true, '']}],"
    "['<p>[one]</p>', [['strikethrough', '']], '<p><s>one</s></p>', [true], {}]]";

TEST_F(SuiteTool, PrintsALineForEachFileAndOneForAll) {
  Write(QStringLiteral("bold.js"), Bold);
  Write(QStringLiteral("empty.js"), "");
  Write(QStringLiteral("README"), "no data");
  EXPECT_EQ(Run({folder_.path()}), 0);
  const QStringList figures = {"1", "/", "1", "/",   "1",    "states",
                               "1", "/", "1", "not", "ours", "1"};
  EXPECT_EQ(Line(QStringLiteral("bold.js")).mid(1), figures);
  EXPECT_EQ(Line(QStringLiteral("all")).mid(1), figures);
  EXPECT_EQ(Line(QStringLiteral("empty.js")).mid(1, 5), QStringList({"0", "/", "0", "/", "0"}));
  EXPECT_TRUE(Line(QStringLiteral("README")).isEmpty());
}

TEST_F(SuiteTool, GoesOnBehindAFileThatIsNoScriptAndSaysSo) {
  Write(QStringLiteral("a.js"), "var browserTests = [[");
  Write(QStringLiteral("bold.js"), Bold);
  EXPECT_EQ(Run({folder_.path()}), 1);
  EXPECT_TRUE(errors_.contains(QStringLiteral("a.js")));
  EXPECT_EQ(Line(QStringLiteral("bold.js")).value(1), QStringLiteral("1"));
}

TEST_F(SuiteTool, TakesASingleFileAndPrintsTheRowsThatDoNotHold) {
  Write(QStringLiteral("italic.js"),
        "var browserTests = [['<p>[one]</p>', [['italic', '']], '<p><em>[one]</em></p>', [true]]]");
  EXPECT_EQ(Run({folder_.filePath(QStringLiteral("italic.js")), QStringLiteral("--differences")}),
            0);
  EXPECT_TRUE(output_.contains(QStringLiteral("expected  <p><em>one</em></p>")));
  EXPECT_TRUE(output_.contains(QStringLiteral("ours      <p><i>one</i></p>")));
}

TEST_F(SuiteTool, TellsHowItIsUsedWhereItHasNothingToRun) {
  EXPECT_EQ(Run({folder_.path()}), 2);
  EXPECT_TRUE(errors_.contains(QStringLiteral("Usage")));
  EXPECT_EQ(Run({}), 2);
  EXPECT_EQ(Run({QStringLiteral("--help")}), 0);
  EXPECT_TRUE(output_.contains(QStringLiteral("--differences")));
}

}  // namespace
}  // namespace velor
