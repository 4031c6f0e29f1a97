// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace velor::bench {

/// A page such as people have: headings, paragraphs with inline markup, a table now and then.
/// `head` goes into its head as it stands.
QByteArray SamplePage(int bytes, const QByteArray &head = {});

}  // namespace velor::bench
