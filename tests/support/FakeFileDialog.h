// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Dialogs.h"
#include "tests/support/CallLog.h"

#include <deque>

namespace velor {

/// A file dialog in which the person chooses the paths that the test expects, in that order. A
/// showing that was not expected fails the test, and so does an expected one that never came.
class FakeFileDialog final : public FileDialog {
 public:
  explicit FakeFileDialog(CallLog *log = nullptr) : log_(log) {}
  ~FakeFileDialog() override;
  FakeFileDialog(const FakeFileDialog &) = delete;
  FakeFileDialog &operator=(const FakeFileDialog &) = delete;

  void ExpectOpen(const QString &chosenPath) { expected_.push_back({Kind::Open, chosenPath}); }
  void ExpectSave(const QString &chosenPath) { expected_.push_back({Kind::Save, chosenPath}); }
  void ExpectCancelledOpen() { expected_.push_back({Kind::Open, {}}); }
  void ExpectCancelledSave() { expected_.push_back({Kind::Save, {}}); }

  // What the fields were when the dialog was last shown.
  QString shownFilter;
  int shownFlags = 0;
  bool shownCancelError = false;

  QString ShowOpen() override { return Show(Kind::Open); }
  QString ShowSave() override { return Show(Kind::Save); }

 private:
  enum class Kind { Open, Save };
  struct Expected {
    Kind kind;
    QString chosenPath;  ///< empty: cancelled
  };

  QString Show(Kind kind);

  std::deque<Expected> expected_;
  CallLog *log_;
};

}  // namespace velor
