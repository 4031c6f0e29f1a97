// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/FileTrace.h"
#include "editor/PageRecord.h"

#include <QPointer>

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace velor {

class frmCodeEditor;
class frmMain;

/// The key of a page's tab: "key" followed by the page number.
QString PageKey(int number);

/// The address of a file that the program put into a page without a path, in full.
struct PageFullAddress {
  QString address;
  /// The address of the same file from a page at that path.
  std::function<QString(const QString &pagePath)> fromPage;
};

/// The page slots of one run of the program. Slots are numbered from 1, only ever added, never
/// renumbered and never used twice: a page number names one page for as long as the program runs.
class PageSlots {
 public:
  /// Adds a slot to each of the three lists and returns its number. Raises Overflow (6) past 32767.
  std::int16_t AddSlot();

  /// The number of the slot made last; 0 before the first.
  std::int16_t PageCount() const { return pageCount_; }

  // Slot access by number; SubscriptOutOfRange (9) outside 1 to PageCount.
  PageRecord &Record(int number);
  const PageRecord &Record(int number) const;
  /// The file that the page was last loaded from or saved to, as it was then.
  FileTrace &Trace(int number);
  /// Source that was typed and not applied when the source editor was filled anew with the page's
  /// own.
  std::optional<QString> &DisplacedSource(int number);
  /// The folder of the project that the page was opened from, in logic form; empty for none.
  QString &Site(int number);
  /// Those in the page, and maybe others that it does not have any more.
  std::vector<PageFullAddress> &FullAddresses(int number);
  /// Empty before the window is made and after it is gone.
  QPointer<frmMain> &Page(int number);
  QPointer<frmCodeEditor> &CodeEditor(int number);

 private:
  std::vector<QPointer<frmMain>> pages_;
  std::vector<QPointer<frmCodeEditor>> codeEditors_;
  std::vector<PageRecord> records_;
  std::vector<FileTrace> traces_;
  std::vector<std::optional<QString>> displacedSources_;
  std::vector<QString> sites_;
  std::vector<std::vector<PageFullAddress>> fullAddresses_;
  std::int16_t pageCount_ = 0;
  /// The upper bound of codeEditors_; grows in step with pageCount_.
  std::int16_t codeEditorCount_ = 0;
};

}  // namespace velor
