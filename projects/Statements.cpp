// SPDX-License-Identifier: GPL-3.0-or-later
#include "projects/Statements.h"

#include "projects/Values.h"

namespace velor::Statements {

QString QuoteSql(const QVariant &value) {
  return u'\'' + TextOf(value).replace(u'\'', QStringLiteral("''")) + u'\'';
}

QString GeneratedProjects() {
  return QStringLiteral("Select * from Project where Created = true");
}

QString GeneratedProjectsByDate() {
  return QStringLiteral("Select * from Project where Created = true Order by DtModified");
}

QString ProjectById(const QVariant &projectId) {
  return QStringLiteral("Select * from Project where IdProject = ") + QuoteSql(projectId);
}

QString SetProjectFolder(const QString &folder, const QVariant &projectId) {
  return QStringLiteral("Update Project set Path = ") + QuoteSql(folder) +
         QStringLiteral(" where IdProject = ") + QuoteSql(projectId);
}

QString SetPageFolders(const QString &folder, const QVariant &projectId) {
  return QStringLiteral("Update Page set TPath = ") + QuoteSql(folder) +
         QStringLiteral(" where ProjectId = ") + QuoteSql(projectId);
}

QString SetCustomFolder(const QString &folder, const QVariant &projectId) {
  return QStringLiteral("Update CustomCD set PPath = ") + QuoteSql(folder) +
         QStringLiteral(" where ProjectId = ") + QuoteSql(projectId);
}

QString PagesOfProject(const QVariant &projectId) {
  return QStringLiteral("Select * from Page where ProjectId = ") + QuoteSql(projectId) +
         QStringLiteral(" Order by Pagename");
}

QString PageListOfProject(const QVariant &projectId) {
  return QStringLiteral("Select * from Page where ProjectId = ") + QuoteSql(projectId) +
         QStringLiteral(" Order by PageName");
}

QString PageById(std::int32_t pageId) {
  return QStringLiteral("Select * from Page where PageId = ") + QString::number(pageId);
}

}  // namespace velor::Statements
