// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace velor {

/// A longer list helps nobody to choose.
constexpr int MostPagesAround = 500;

/// The other page files that a page's links may lead to, at most MostPagesAround: those below the
/// folder of its project; without a project those in the page's own folder. Paths in logic form; an
/// empty one is none.
QStringList PagesAround(const QString &pagePath, const QString &site);

}  // namespace velor
