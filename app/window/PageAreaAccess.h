// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velor {

/// Tells assistive technology of the child windows that a person sees: none that another one,
/// maximised, covers. To be called before assistive technology asks for a
/// PageArea.
void AnnounceSeenPages();

}  // namespace velor
