// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/FakeFileDialog.h"

#include "platform/RuntimeError.h"

#include <gtest/gtest.h>

namespace velor {

FakeFileDialog::~FakeFileDialog() {
  EXPECT_TRUE(expected_.empty()) << expected_.size() << " foreseen file dialogs never came";
}

QString FakeFileDialog::Show(Kind kind) {
  const QString name = kind == Kind::Open ? QStringLiteral("ShowOpen") : QStringLiteral("ShowSave");
  Note(log_, QStringLiteral("%1(%2)").arg(name, Filter));
  shownFilter = Filter;
  shownFlags = Flags;
  shownCancelError = CancelError;
  QString chosen;
  if (expected_.empty() || expected_.front().kind != kind) {
    ADD_FAILURE() << "not foreseen: " << name.toStdString();
  } else {
    chosen = expected_.front().chosenPath;
    expected_.pop_front();
  }
  if (!chosen.isEmpty()) {
    FileName = chosen;
  } else if (CancelError) {
    throw RuntimeError::Of(ErrorNumber::DialogCancelled, name);
  }
  return chosen;
}

}  // namespace velor
