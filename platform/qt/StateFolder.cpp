// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/StateFolder.h"

#include "platform/RuntimeError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <sys/stat.h>

namespace velor {

QString StateFolder() {
  QString states = qEnvironmentVariable("XDG_STATE_HOME");
  // A relative path counts as none, by the rules for these variables.
  if (!states.startsWith(u'/')) states = QDir::homePath() + QStringLiteral("/.local/state");
  return QDir::cleanPath(states) + QStringLiteral("/velor-web-creator");
}

void MakePrivateFolder(const QString &folder) {
  QDir().mkpath(QFileInfo(folder).path());
  if (mkdir(QFile::encodeName(folder).constData(), S_IRWXU) == 0 || errno == EEXIST) return;
  throw RuntimeError::FromErrno(errno, QStringLiteral("MakeFolder"), folder);
}

}  // namespace velor
