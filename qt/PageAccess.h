// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velor {

/// Lets assistive technology read pages: headings, paragraphs, links, tables. On Linux the
/// toolkit's engine keeps them to itself unless the environment says otherwise; where nobody reads,
/// nothing is made for it. To be called before the application object is made; what the environment
/// says already stays.
void ShowPagesToAssistiveTechnology();

}  // namespace velor
