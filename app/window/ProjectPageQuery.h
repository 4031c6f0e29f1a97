// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <memory>
#include <optional>

namespace velor {

class DatabaseConnection;
class Recordset;

/// Finds the file of a project's page by the page's identifier in the catalogue. Its recordset
/// stays open until the next query.
class ProjectPageQuery {
 public:
  ProjectPageQuery();
  ~ProjectPageQuery();

  struct Found {
    QString path;    ///< folder and file as the catalogue has them, joined as they stand
    QString folder;  ///< the project's
  };

  /// nullopt when no page has that identifier. Raises the database's RuntimeErrors.
  std::optional<Found> Find(int pageId, DatabaseConnection &connection);

 private:
  std::unique_ptr<Recordset> recordset_;
};

}  // namespace velor
