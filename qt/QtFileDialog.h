// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Dialogs.h"

#include <QStringList>

namespace velor {

/// The desktop's file dialog where it has one, else Qt's own.
class QtFileDialog final : public FileDialog {
 public:
  QString ShowOpen() override;
  QString ShowSave() override;

 private:
  enum class Purpose { Open, Save };
  QString Show(Purpose purpose);
};

/// "Pages|*.htm;*.html|All|*.*" as Qt's name filters. Patterns are given in both letter cases,
/// since files of older systems are often named in capitals and some desktops tell them apart.
QStringList NameFilters(const QString &filter);

/// The suffix that a name typed without one gets when it is saved: that of the first pattern that
/// has one; empty when none has.
QString DefaultSuffix(const QString &filter);

}  // namespace velor
