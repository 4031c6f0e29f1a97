// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>

namespace velor {

class Spelling;
struct UnknownWord;

/// What is to stand in the place of an unknown word: a suggestion, or a text of the person's own.
class SuggestionBox final : public QComboBox {
  Q_OBJECT

 public:
  explicit SuggestionBox(const char *name);

  /// Holds the suggestions for a word, and the word itself where there are none.
  void Offer(const UnknownWord &unknown, Spelling &spelling);
};

}  // namespace velor
