// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <span>

class QWidget;

namespace velor {

/// A window, or a part of one, and the place of the manual that is about it.
struct HelpTopic {
  const char *widget;   ///< object name, or class name of a window of the toolkit
  const char *visible;  ///< object name of something in it that must be seen; null for nothing
  const char *place;    ///< "page.html" or "page.html#anchor"
  /// Title that the window must have (Words::Mark); null for any. The toolkit's windows for a
  /// question differ in nothing else.
  const char *title = nullptr;
};

/// The first row that fits counts.
std::span<const HelpTopic> HelpTopics();

/// The place for a widget, or for the nearest one around it that has a row. The first page where
/// none has.
QString HelpPlaceFor(const QWidget *widget);

}  // namespace velor
