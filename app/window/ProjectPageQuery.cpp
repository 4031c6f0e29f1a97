// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/ProjectPageQuery.h"

#include "platform/Database.h"
#include "projects/Statements.h"

namespace velor {

ProjectPageQuery::ProjectPageQuery() = default;
ProjectPageQuery::~ProjectPageQuery() = default;

std::optional<ProjectPageQuery::Found> ProjectPageQuery::Find(int pageId,
                                                              DatabaseConnection &connection) {
  if (!recordset_) recordset_ = connection.CreateRecordset();
  if (recordset_->State() == ObjectState::Open) recordset_->Close();
  recordset_->SetCursorLocation(CursorLocation::Client);
  recordset_->Open(Statements::PageById(pageId), connection, CursorType::Static, LockType::ReadOnly,
                   CommandTypeUnspecified);
  if (recordset_->RecordCount() < 1) return std::nullopt;
  const QString folder = recordset_->Value(QStringLiteral("TPath")).toString();
  return Found{folder + recordset_->Value(QStringLiteral("Path")).toString(), folder};
}

}  // namespace velor
