// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/EngineInUse.h"

#include <QtWebEngineCore/qtwebenginecoreglobal.h>

namespace velor {

EngineVersion EngineInUse() {
  return {QString::fromLatin1(qWebEngineChromiumVersion()),
          QString::fromLatin1(qWebEngineChromiumSecurityPatchVersion())};
}

}  // namespace velor
