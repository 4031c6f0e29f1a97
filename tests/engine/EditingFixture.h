// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/EditingCommands.h"
#include "tests/engine/ComponentFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>

namespace velor {

/// An editing component for keys and commands, with an empty clipboard.
class Editing : public WebEditorTest {
 protected:
  Editing() { QApplication::clipboard()->clear(); }

  QVariant Exec(EditingCommand command, const QVariant &value = {}) {
    return editor_->ExecCommand(command, ExecOption::Default, value);
  }
  CommandStatus Status(EditingCommand command) const { return editor_->QueryStatus(command); }
  bool Becomes(EditingCommand command, CommandStatus status) {
    return WaitFor([=, this] { return Status(command) == status; });
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(Input(), key, modifiers);
  }
  bool BecomesDocument(const QString &body) {
    const QString whole = QStringLiteral("<body>") + body + QStringLiteral("</body>");
    return WaitFor([&] { return DocumentHolds(whole); });
  }
  QByteArray Seen() { return editor_->DocumentHTML().toUtf8(); }
};

}  // namespace velor
