// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <memory>
#include <optional>

namespace velor {

class DatabaseConnection;
class Recordset;

/// Finds the file of a project's page by the page's identifier in the catalogue. The one recordset
/// stays open from one choice to the next.
class ProjectPageQuery {
 public:
  ProjectPageQuery();
  ~ProjectPageQuery();

  struct Found {
    QString path;    ///< folder and file as the catalogue has them, joined as they stand
    QString folder;  ///< the project's
  };

  /// Nothing when no page has that identifier.
  std::optional<Found> Find(int pageId, DatabaseConnection &connection);

 private:
  std::unique_ptr<Recordset> recordset_;
};

}  // namespace velor
