// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/PagePrinting.h"

#include <array>

namespace velor {

class Registry;

/// What a person chose when a page was last printed.
struct PrintChoices {
  PaperForm form;
  bool hasEdgeLines = true;
};

struct Paper {
  const char *name;
  QPageSize::PageSizeId size;
};

/// The papers that can be chosen.
inline constexpr std::array<Paper, 5> Papers{{{"A4", QPageSize::A4},
                                              {"A3", QPageSize::A3},
                                              {"A5", QPageSize::A5},
                                              {"Letter", QPageSize::Letter},
                                              {"Legal", QPageSize::Legal}}};
/// Millimetres.
inline constexpr int WidestMargin = 50;
/// Per cent.
inline constexpr int LeastScale = 20;
inline constexpr int MostScale = 400;

/// The margin of all four sides in millimetres, and the scale in per cent, as whole numbers.
int MarginOf(const PaperForm &form);
int PercentOf(const PaperForm &form);
QPageLayout LayoutOf(QPageSize::PageSizeId paper, QPageLayout::Orientation orientation, int margin);

/// The choices are kept with the preferences, in the section "print". What is missing or means
/// nothing there is read as the default; only what was changed is stored.
PrintChoices ReadPrintChoices(const Registry &registry);
void StorePrintChoices(Registry &registry, const PrintChoices &choices);

}  // namespace velor
