// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/QtFiles.h"
#include "files/StateFolder.h"
#include "platform/Paths.h"
#include "tests/support/Checks.h"
#include "tests/support/FaultyCalls.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/wait.h>

namespace velor {

inline const QByteArray Old(3000, 'o');
inline const QByteArray New(5000, 'n');

/// The file "a.htm" that is to be replaced, where calls fail.
class FileFaults : public testing::Test {
 protected:
  FileFaults() {
    qputenv("XDG_STATE_HOME", folder_.filePath("state").toLocal8Bit());
    Write("a.htm", Old);
  }
  ~FileFaults() override { qputenv("XDG_STATE_HOME", stateHome_); }

  QByteArray Name(const QString &name) const { return QFile::encodeName(folder_.filePath(name)); }
  void Write(const QString &name, const QByteArray &content) const {
    QFile file(folder_.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  QByteArray Read(const QString &name) const {
    QFile file(folder_.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }
  void Replace() { files_.ReplaceAll(ToLogic(folder_.filePath("a.htm")), New); }
  ErrorNumber ErrorOfReplacing() {
    return ErrorOf([this] { Replace(); });
  }
  void GiveASecondName() const {
    ASSERT_EQ(link(Name("a.htm").constData(), Name("b.htm").constData()), 0);
  }
  /// The versions kept, oldest first.
  static QStringList Kept() {
    return QDir(StateFolder() + "/replaced").entryList({"*.htm"}, QDir::Files, QDir::Name);
  }
  static QByteArray Content(const QString &kept) {
    QFile file(StateFolder() + "/replaced/" + kept);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << kept.toStdString();
    return file.readAll();
  }
  QStringList Names() const {
    return QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
  }

  QByteArray stateHome_ = qgetenv("XDG_STATE_HOME");
  QTemporaryDir folder_;
  FaultyCalls calls_;
  QtFiles files_{calls_};
};

/// Replaces the file in a process that ends before its `step`-th call; false when it got through.
template <typename Replacing>
bool DiesAt(FaultyCalls &calls, int step, Replacing replace) {
  const pid_t child = fork();
  if (child == 0) {
    calls.KillBefore(step);
    replace();
    _exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  return WIFSIGNALED(status);
}

}  // namespace velor
