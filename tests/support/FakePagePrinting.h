// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/PagePrinting.h"

#include <utility>
#include <vector>

namespace velor {

/// Prints when the test says so.
class FakePagePrinting final : public PagePrinting {
 public:
  std::vector<PaperForm> forms;  ///< as MakePdf was called
  int stops = 0;

  bool IsUnderWay() const { return made_ != nullptr; }
  /// The PDF is made; empty where the engine fails.
  void Answer(const QByteArray &pdf) { std::exchange(made_, {})(pdf); }

  void MakePdf(const PaperForm &form, Made made) override {
    forms.push_back(form);
    made_ = std::move(made);
  }
  void StopPdf() override {
    ++stops;
    made_ = {};
  }

 private:
  Made made_;
};

}  // namespace velor
