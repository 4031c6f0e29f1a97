// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/jet/JetFixture.h"

#include <QByteArray>

namespace velor::fixture {

/// The bytes of a whole Jet 4 file: header, global usage map, catalogue of tables and the tables
/// themselves. The same description gives the same bytes. Every table needs a variable column.
QByteArray WriteJetFile(const FixtureFile &file);

}  // namespace velor::fixture
