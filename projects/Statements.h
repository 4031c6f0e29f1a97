// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVariant>

#include <cstdint>

/// All statements of the catalogue database. Their texts are published and never change: people's
/// databases answer to them. Identifiers are quoted literals, which the database converts to
/// numbers.
namespace velor::Statements {

/// A value as an SQL text literal: TextOf(value) between apostrophes, its own apostrophes doubled.
QString QuoteSql(const QVariant &value);

QString GeneratedProjects();
/// As GeneratedProjects, oldest change first.
QString GeneratedProjectsByDate();
QString ProjectById(const QVariant &projectId);

QString SetProjectFolder(const QString &folder, const QVariant &projectId);
QString SetPageFolders(const QString &folder, const QVariant &projectId);
QString SetCustomFolder(const QString &folder, const QVariant &projectId);

/// A project's pages by name, for the page chooser.
QString PagesOfProject(const QVariant &projectId);
/// As PagesOfProject, for the page list; the sort column is spelt differently.
QString PageListOfProject(const QVariant &projectId);
/// One page; its identifier stands unquoted, unlike those of the others.
QString PageById(std::int32_t pageId);

}  // namespace velor::Statements
