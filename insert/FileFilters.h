// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Words.h"

/// The filters of file dialogs that fill address boxes, as FileDialog::Filter, to be translated.
namespace velor::FileFilters {

inline constexpr auto All = Words::Mark("All Files *.*|*.*");
inline constexpr auto Pictures = Words::Mark(
    "Image Files (*.jpg, *.png, *.gif, *.webp, *.svg)|*.jpg;*.jpeg;*.png;*.gif;*.webp;*.svg|"
    "All Files *.*|*.*");
inline constexpr auto Pages =
    Words::Mark("Web Pages (*.htm, *.html)|*.htm;*.html;*.xhtml;*.shtml;*.php|All Files *.*|*.*");
inline constexpr auto StyleSheets = Words::Mark("Style Sheets (*.css)|*.css|All Files *.*|*.*");
inline constexpr auto Icons =
    Words::Mark("Icons (*.ico, *.png, *.svg)|*.ico;*.png;*.svg;*.gif|All Files *.*|*.*");

}  // namespace velor::FileFilters
