// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVariant>

#include <cstdint>

/// Every statement that is put to the catalogue database. The texts are part of the contract with
/// the databases people have; identifiers travel as quoted literals and the database converts them.
namespace velor::Statements {

/// A value as an SQL text literal: its text with every apostrophe doubled, between apostrophes.
/// Null is the empty text, a number its shortest decimal text.
QString QuoteSql(const QVariant &value);

QString GeneratedProjects();
/// The same, oldest change first.
QString GeneratedProjectsByDate();
QString ProjectById(const QVariant &projectId);

QString SetProjectFolder(const QString &folder, const QVariant &projectId);
QString SetPageFolders(const QString &folder, const QVariant &projectId);
QString SetCustomFolder(const QString &folder, const QVariant &projectId);

/// A project's pages by name, for the page chooser.
QString PagesOfProject(const QVariant &projectId);
/// The same for the page list; it spells the sort column differently.
QString PageListOfProject(const QVariant &projectId);
/// The one statement whose identifier stands unquoted.
QString PageById(std::int32_t pageId);

}  // namespace velor::Statements
