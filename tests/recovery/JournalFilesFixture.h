// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/StateFolder.h"
#include "recovery/JournalFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace velor {

/// Journals in a state folder of the test's own.
class JournalFilesTest : public testing::Test {
 protected:
  JournalFilesTest() { qputenv("XDG_STATE_HOME", folder_.path().toLocal8Bit()); }
  ~JournalFilesTest() override { qputenv("XDG_STATE_HOME", stateHome_); }

  static JournalledPage Page(const QString &document) {
    JournalledPage page;
    page.page.document = document;
    page.time = QDateTime::currentDateTime();
    return page;
  }
  /// What lies in the recovery folder, below the folders of the runs.
  QStringList Files() const {
    QStringList files;
    const QDir root(StateFolder() + "/recovery");
    for (const QString &run : root.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
      for (const QString &name : QDir(root.filePath(run)).entryList(QDir::Files | QDir::Hidden))
        files << root.filePath(run + u'/' + name);
    }
    return files;
  }
  static mode_t ModeOf(const QString &path) {
    struct stat status {};
    EXPECT_EQ(stat(QFile::encodeName(path).constData(), &status), 0);
    return status.st_mode & 07777;
  }
  static std::vector<QString> Documents(Journals &journals) {
    std::vector<QString> documents;
    for (const AbandonedPage &page : journals.Abandoned())
      documents.push_back(journals.Read(page.id).page.page.document);
    return documents;
  }

  QByteArray stateHome_ = qgetenv("XDG_STATE_HOME");
  QTemporaryDir folder_;
};

}  // namespace velor
