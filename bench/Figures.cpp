// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/Figures.h"

#include <cstdio>

namespace velor::bench {

namespace {

struct Entry {
  const char *name;
  void (*run)();
};

constexpr Entry Table[] = {
    {"start", StartFigure},
    {"open", OpeningFigures},
    {"key", KeyFigures},
    {"bridge", BridgeFigures},
    {"commands", CommandFigures},
    {"find", FindFigures},
    {"spelling", SpellingFigures},
    {"toolbar", ToolbarFigure},
    {"read", ReadingFigures},
    {"save", SavingFigures},
    {"save-after-edit", SavingAfterAnEditFigures},
    {"journal", JournalFigures},
    {"paste", PasteFigures},
    {"pictures", PictureFigures},
    {"preview", PreviewFigures},
    {"print", PrintFigures},
    {"source", SourceFillFigures},
    {"apply", ApplyFigures},
    {"memory", MemoryFigure},
    {"memory-closed", MemoryAfterClosingFigure},
    {"idle", IdleFigure},
    {"catalogue", CatalogueFigures},
    {"catalogue-memory", CatalogueMemoryFigure},
    {"child-pages", ChildReadPages},
    {"child-our-window", ChildOurWindow},
    {"child-bare-window", ChildBareWindow},
    {"child-our-five", ChildOurFivePages},
    {"child-our-one-closed", ChildOurOneClosed},
    {"child-our-fifty-closed", ChildOurFiftyClosed},
    {"child-bare-one-closed", ChildBareOneClosed},
    {"child-bare-fifty-closed", ChildBareFiftyClosed},
    {"child-bare-five", ChildBareFiveViews},
    {"child-our-resize", ChildOurResize},
    {"child-bare-resize", ChildBareResize},
};

}  // namespace

int RunFigures(const QStringList &names) {
  for (const QString &name : names) {
    bool known = false;
    for (const Entry &entry : Table) known = known || name == QLatin1String(entry.name);
    if (!known) {
      std::fprintf(stderr, "no figure is called %s\n", qPrintable(name));
      return 1;
    }
  }
  for (const Entry &entry : Table) {
    const QString name = QString::fromLatin1(entry.name);
    if (names.isEmpty() ? !name.startsWith(u"child-") : names.contains(name)) entry.run();
  }
  return 0;
}

}  // namespace velor::bench
