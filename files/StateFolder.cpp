// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/StateFolder.h"

#include "platform/RuntimeError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace velor {

QString StateFolder() {
  QString states = qEnvironmentVariable("XDG_STATE_HOME");
  // A relative path counts as none, by the rules for these variables.
  if (!states.startsWith(u'/')) states = QDir::homePath() + QStringLiteral("/.local/state");
  return QDir::cleanPath(states) + QStringLiteral("/velor-web-creator");
}

void MakePrivateFolder(const QString &folder) {
  const QString source = QStringLiteral("MakeFolder");
  const QByteArray name = QFile::encodeName(folder);
  QDir().mkpath(QFileInfo(folder).path());
  if (mkdir(name.constData(), S_IRWXU) == 0) return;
  if (errno != EEXIST) throw RuntimeError::FromErrno(errno, source, folder);
  struct stat link {};
  struct stat status {};
  const bool isThere = lstat(name.constData(), &link) == 0 && stat(name.constData(), &status) == 0;
  const bool isOwn = isThere && link.st_uid == geteuid() && status.st_uid == geteuid();
  if (!isOwn || !S_ISDIR(status.st_mode))
    throw RuntimeError::Of(ErrorNumber::PathFileAccess, source, folder);
}

}  // namespace velor
