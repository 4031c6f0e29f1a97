// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/jet/JetFixture.h"

#include <QString>

namespace velor {

/// The two kinds of file that a catalogue can be.
enum class CatalogueFormat { Sqlite, Jet };

/// Writes the tables as a file of that format, the same rows in either: what runs on one must run
/// on the other. `nativePath` in native form.
void WriteCatalogue(const QString &nativePath, CatalogueFormat format,
                    const fixture::FixtureFile &content);

/// Projects 1 "Younger", 2 "Older" and 3, which is not generated, in the folders \old\one, \old\two
/// and \old\three; pages 10 "prices" and 11 "About" of project 2 and 12 "Other" of project 1; a
/// CustomCD row for projects 1 and 2.
fixture::FixtureFile SmallCatalogue();

/// A date as the format's files hold it.
fixture::Days DaysOf(int year, int month, int day);

}  // namespace velor
