// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Dialogs.h"

namespace velor {

/// Message boxes, questions and modal windows, over the active window of the program. Where the
/// program ends behind a box, its answer is that of Escape.
class QtDialogs final : public Dialogs {
 public:
  MessageAnswer ShowMessage(const Message &message) override;
  int Choose(const Message &message, const QStringList &captions) override;
  QString AskText(const QString &prompt, const QString &title,
                  const QString &defaultAnswer) override;
  void RunModal(QWidget &dialog) override;
};

}  // namespace velor
