// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/PageSlots.h"

#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "platform/RuntimeError.h"

#include <limits>

namespace velor {

namespace {

/// The index of slot `number` in a list of `bound` slots.
std::size_t Index(int number, std::int16_t bound) {
  if (number < 1 || number > bound) {
    throw RuntimeError::Of(ErrorNumber::SubscriptOutOfRange, QStringLiteral("PageSlots"),
                           QStringLiteral("page %1").arg(number));
  }
  return static_cast<std::size_t>(number - 1);
}

}  // namespace

QString PageKey(int number) {
  return QStringLiteral("key%1").arg(number);
}

std::int16_t PageSlots::AddSlot() {
  if (pageCount_ == std::numeric_limits<std::int16_t>::max()) {
    throw RuntimeError::Of(ErrorNumber::Overflow, QStringLiteral("PageSlots"));
  }
  pages_.emplace_back();
  records_.emplace_back();
  traces_.emplace_back();
  displacedSources_.emplace_back();
  sites_.emplace_back();
  fullAddresses_.emplace_back();
  ++pageCount_;
  codeEditors_.emplace_back();
  ++codeEditorCount_;
  return pageCount_;
}

PageRecord &PageSlots::Record(int number) {
  return records_[Index(number, pageCount_)];
}

const PageRecord &PageSlots::Record(int number) const {
  return records_[Index(number, pageCount_)];
}

FileTrace &PageSlots::Trace(int number) {
  return traces_[Index(number, pageCount_)];
}

std::optional<QString> &PageSlots::DisplacedSource(int number) {
  return displacedSources_[Index(number, pageCount_)];
}

QString &PageSlots::Site(int number) {
  return sites_[Index(number, pageCount_)];
}

std::vector<PageFullAddress> &PageSlots::FullAddresses(int number) {
  return fullAddresses_[Index(number, pageCount_)];
}

QPointer<frmMain> &PageSlots::Page(int number) {
  return pages_[Index(number, pageCount_)];
}

QPointer<frmCodeEditor> &PageSlots::CodeEditor(int number) {
  return codeEditors_[Index(number, codeEditorCount_)];
}

}  // namespace velor
