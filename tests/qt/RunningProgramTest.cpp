// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/RunningProgram.h"
#include "tests/support/Waiting.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QTemporaryDir>

#include <future>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace velor {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Running : public ::testing::Test {
 protected:
  Running() { qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder_.path())); }
  ~Running() override { qunsetenv("XDG_RUNTIME_DIR"); }

  /// Asks as another program does, while this one answers.
  static std::optional<QStringList> Ask(const OpeningRequest &request) {
    auto answer =
        std::async(std::launch::async, [&] { return AskRunningProgram(Folder, request); });
    const bool isAnswered = WaitFor(
        [&] { return answer.wait_for(std::chrono::seconds(0)) == std::future_status::ready; },
        10000);
    EXPECT_TRUE(isAnswered);
    return answer.get();
  }

  static inline const QString Folder = QStringLiteral("/home/person/pages");
  QTemporaryDir folder_;
  bool isBusy_ = false;
  QList<OpeningRequest> asked_;
};

TEST_F(Running, NobodyAnswersWhereNoProgramRuns) {
  EXPECT_FALSE(AskRunningProgram(Folder, {{QStringLiteral("/a.htm")}, 0, {}}));
}

TEST_F(Running, TheSecondProgramOfAFolderFindsTheFirst) {
  RunningProgram first(Folder);
  RunningProgram second(Folder);
  EXPECT_TRUE(first.Claim());
  EXPECT_FALSE(second.Claim());
}

TEST_F(Running, AProgramOnAnotherFolderIsAnotherProgram) {
  RunningProgram first(Folder);
  RunningProgram other(QStringLiteral("/home/person/more"));
  EXPECT_TRUE(first.Claim());
  EXPECT_TRUE(other.Claim());
}

TEST_F(Running, AProgramThatEndedIsFollowedByTheNext) {
  std::make_unique<RunningProgram>(Folder)->Claim();
  EXPECT_TRUE(RunningProgram(Folder).Claim());
}

TEST_F(Running, WhatAKilledProgramLeftIsNotInTheWay) {
  sockaddr_un address = {};
  address.sun_family = AF_UNIX;
  const QByteArray name = QFile::encodeName(SocketOfProgram(Folder));
  ASSERT_LT(static_cast<std::size_t>(name.size()), sizeof address.sun_path);
  std::copy(name.begin(), name.end(), address.sun_path);
  const int left = socket(AF_UNIX, SOCK_STREAM, 0);
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the form of the system's call
  ASSERT_EQ(bind(left, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
  close(left);
  ASSERT_TRUE(QFileInfo::exists(SocketOfProgram(Folder)));
  RunningProgram next(Folder);
  EXPECT_TRUE(next.Claim());
  RunningProgram second(Folder);
  EXPECT_FALSE(second.Claim());
}

TEST_F(Running, OnlyThePersonReachesIt) {
  RunningProgram program(Folder);
  ASSERT_TRUE(program.Claim());
  const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
  EXPECT_EQ(QFileInfo(SocketOfProgram(Folder)).permissions() & others, QFile::Permissions());
}

TEST_F(Running, FilesLineAndTokenArriveAndRefusalsComeBack) {
  RunningProgram program(Folder);
  ASSERT_TRUE(program.Claim());
  program.Serve(
      [&](const OpeningRequest &request) {
        asked_ += request;
        return QStringList(QStringLiteral("ä.htm could not be opened"));
      },
      [] { return false; });
  const QStringList files = {QStringLiteral("/ä b#%20.htm"), QStringLiteral("/line\nend.htm")};
  const auto answer = Ask({files, 12, QStringLiteral("token")});
  ASSERT_TRUE(answer);
  EXPECT_THAT(*answer, ElementsAre(QStringLiteral("ä.htm could not be opened")));
  ASSERT_EQ(asked_.size(), 1);
  EXPECT_EQ(asked_[0].files, files);
  EXPECT_EQ(asked_[0].line, 12);
  EXPECT_EQ(asked_[0].activationToken, QStringLiteral("token"));
}

TEST_F(Running, WhatIsAskedDuringTheStartIsAnsweredAfterIt) {
  RunningProgram program(Folder);
  ASSERT_TRUE(program.Claim());
  QTimer::singleShot(0, &program, [&] {
    program.Serve(
        [&](const OpeningRequest &request) {
          asked_ += request;
          return QStringList();
        },
        [] { return false; });
  });
  const auto answer = Ask({{QStringLiteral("/a.htm")}, 0, {}});
  ASSERT_TRUE(answer);
  EXPECT_THAT(*answer, IsEmpty());
}

TEST_F(Running, FilesWaitWhileADialogIsOpenAndComingToTheFrontDoesNot) {
  RunningProgram program(Folder);
  ASSERT_TRUE(program.Claim());
  isBusy_ = true;
  program.Serve(
      [&](const OpeningRequest &request) {
        // The front is asked for second and gets there first.
        if (request.files.isEmpty()) isBusy_ = false;
        asked_ += request;
        return QStringList();
      },
      [&] { return isBusy_; });
  auto files = std::async(std::launch::async, [] {
    return AskRunningProgram(Folder, {{QStringLiteral("/a.htm")}, 0, {}});
  });
  EXPECT_TRUE(Ask({}));
  EXPECT_TRUE(WaitFor([&] { return asked_.size() == 2; }));
  EXPECT_TRUE(files.get());
  EXPECT_THAT(asked_[0].files, IsEmpty());
}

TEST_F(Running, NonsenseOpensNothing) {
  RunningProgram program(Folder);
  ASSERT_TRUE(program.Claim());
  program.Serve(
      [&](const OpeningRequest &request) {
        asked_ += request;
        return QStringList();
      },
      [] { return false; });
  QLocalSocket socket;
  socket.connectToServer(SocketOfProgram(Folder));
  ASSERT_TRUE(socket.waitForConnected());
  socket.write("[1, 2\n");
  EXPECT_TRUE(WaitFor([&] { return socket.canReadLine(); }));
  ASSERT_EQ(asked_.size(), 1);
  EXPECT_THAT(asked_[0].files, IsEmpty());
}

}  // namespace
}  // namespace velor
