// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velor {

class Registry;

/// Whether behaviour beyond the published one is on. Rows of the menu and toolbar tables that are
/// beyond it have Reach::Beyond.
enum class Additions { Off, On };

/// Whether a menu, menu item or toolbar button is published. While additions are off, menus beyond
/// the published ones are not created, and items beyond them in published menus have no effect.
enum class Reach { Published, Beyond };

/// The preference PublishedOnly: "True" turns every addition off. Read at start.
Additions ReadAdditions(const Registry &registry);

/// Whether template signs in a page's text are deleted as a whole and never broken: the preference
/// WholeTemplateSigns ("True" or "False"), while additions are on. Read at start.
bool KeepsTemplateSignsWhole(const Registry &registry);

/// The language of pages that name none, as a tag: the preference SpellingLanguage, else the
/// system's, else English. Read at start.
QString OwnLanguage(const Registry &registry);

}  // namespace velor
