// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace velor::bench {

/// Runs the named figures, or all; 1 when a name is unknown. Names that begin with "child-" are the
/// halves of figures that need a process of their own.
int RunFigures(const QStringList &names);

// Figures about one page (PageFigures.cpp).
void OpeningFigures();
void KeyFigures();
void ReadingFigures();
void SavingFigures();
void SavingAfterAnEditFigures();

// Figures about what the bridge does in the page (BridgeFigures.cpp).
void BridgeFigures();
void CommandFigures();

/// What a key in the find bar costs, and counting the words (FindFigures.cpp).
void FindFigures();
/// What the waves under unknown words cost a key (SpellingFigures.cpp).
void SpellingFigures();
/// A key and the toolbar of the whole program (ToolbarFigures.cpp).
void ToolbarFigure();
/// What keeping a page for a recovery costs (JournalFigures.cpp).
void JournalFigures();

/// A long document pasted (PasteFigures.cpp).
void PasteFigures();
// Figures about a large picture made smaller (PictureFigures.cpp).
void PictureFigures();
void ChildOurResize();
void ChildBareResize();
/// The preview's first and later showings of a page (PreviewFigures.cpp).
void PreviewFigures();
/// A PDF of many sheets (PrintFigures.cpp).
void PrintFigures();
// Figures about the source editor (SourceFigures.cpp).
void SourceFillFigures();
void ApplyFigures();
// Figures about the catalogue (CatalogueFigures.cpp).
void CatalogueFigures();
void CatalogueMemoryFigure();
void ChildReadPages();

// Figures about whole processes (ProcessFigures.cpp).
void StartFigure();
void MemoryFigure();
void MemoryAfterClosingFigure();
void IdleFigure();
// What the child processes do; each says on standard output when it is ready.
void ChildOurWindow();
void ChildBareWindow();
void ChildOurFivePages();
void ChildOurOneClosed();
void ChildOurFiftyClosed();
void ChildBareOneClosed();
void ChildBareFiftyClosed();
void ChildBareFiveViews();

}  // namespace velor::bench
