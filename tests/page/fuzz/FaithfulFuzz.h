// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

namespace velor {

/// Takes any bytes as a page with two serialisations and saves it; ends the process where a rule of
/// the decoders, the tokeniser, the masks or the patcher does not hold.
void FuzzFaithfulPage(QByteArrayView data);

}  // namespace velor
