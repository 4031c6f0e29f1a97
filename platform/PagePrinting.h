// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QPageLayout>

#include <functional>

namespace velor {

/// How a page is put on paper. The page's own rules (`@page`) go before paper and margins.
struct PaperForm {
  enum class Backgrounds { Printed, LeftOut };

  QPageLayout layout{QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(15, 15, 15, 15),
                     QPageLayout::Millimeter};
  double scale = 1;
  Backgrounds backgrounds = Backgrounds::Printed;
};

/// Prints the page of a component as it is now, unsaved edits included, into a PDF, without the
/// marks of editing. Text can be selected there, and links lead to files by their full addresses.
class PagePrinting {
 public:
  /// Takes the bytes of the PDF; none where the page could not be printed.
  using Made = std::function<void(const QByteArray &pdf)>;

  virtual ~PagePrinting() = default;
  /// Begins to make the PDF and returns; `made` is called once, from the event loop. What an
  /// earlier call began is stopped.
  virtual void MakePdf(const PaperForm &form, Made made) = 0;
  /// Stops what MakePdf began: `made` is not called.
  virtual void StopPdf() = 0;
};

}  // namespace velor
