// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/PagesAtExit.h"
#include "editor/modWorkFlow.h"
#include "tests/editor/EditorWorld.h"
#include "tests/support/FakeJournals.h"
#include "tests/support/Waiting.h"

namespace velor {

inline const QString IndexFile = QStringLiteral("\\site\\index.htm");
inline const QString Changed = QStringLiteral("<p>changed</p>");
constexpr bool AsBefore = false;
constexpr bool UnderNewName = true;
/// In milliseconds, from the change on; what the component itself is behind comes on top of it.
constexpr int LongestDelay = 1000;

/// Page windows whose changes go to journals in memory.
class PageJournals : public EditorWorld {
 protected:
  PageJournals() { platform.journals = &journals; }

  bool IsWritten(const QString &document) const {
    const auto written = journals.Written();
    return !written.empty() && written.back().page.document == document;
  }
  bool ComesToBeWritten(const QString &document) const {
    return WaitFor([&] { return IsWritten(document); }, LongestDelay);
  }
  void Change(int number, const QString &document = Changed) {
    Component(number).Edit(document);
    ASSERT_TRUE(ComesToBeWritten(document));
  }
  bool IsEmpty() const { return journals.Written().empty(); }
  /// What the person says when asked whether to save.
  void Answer(MessageAnswer answer) {
    dialogs.ExpectMessage(
        QStringLiteral("You have made changes to this document. Do you want to save it?"), answer);
  }

  FakeJournals journals;
};

}  // namespace velor
