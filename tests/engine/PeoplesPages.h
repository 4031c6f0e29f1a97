// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <cstdint>

namespace velor {

/// A page as people write them, a different one for each number: by hand in capitals with end tags
/// left out, without HTML, HEAD and BODY, as XHTML, laid out with tables, with style sheets and
/// scripts, with server code; in every kind of charset, with line ends of one form or several.
QByteArray PeoplesPage(std::uint32_t number);

}  // namespace velor
