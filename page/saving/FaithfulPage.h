// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/saving/ByteSplice.h"
#include "page/saving/PageEdits.h"
#include "page/saving/PageMask.h"
#include "page/text/PageText.h"

#include <memory>
#include <optional>

namespace velor {

class PageVerifier;

/// How much of a page had to be written for its edits, from nothing to everything.
enum class SaveRung {
  Unedited,     ///< the bytes that were loaded
  Edits,        ///< the edits alone
  ImpliedTags,  ///< also tags that the parser implied beside them
  Elements,     ///< the content of elements around them
  Everything,   ///< the engine's serialisation
};

struct SavedPage {
  PageToWrite page;
  SaveRung rung = SaveRung::Unedited;
};

/// A page between its file and the engine: what the engine is given, and what is written for what
/// the engine has. Whatever was not edited stays as the person wrote it, to the byte.
///
/// Serialisations are the engine's, of the text that it was given (with masks, LF line breaks).
class FaithfulPage {
 public:
  explicit FaithfulPage(PageOriginal original = {});

  const PageOriginal &Original() const { return original_; }
  /// The text for the engine.
  const QString &TextToLoad() const { return mask_.MaskedText(); }
  /// What the engine made of it, right after loading; empty until then.
  const QString &Baseline() const { return original_.baseline; }
  void SetBaseline(const QString &serialisation);
  /// A serialisation as a person may see it.
  QString Unmasked(const QString &serialisation) const { return mask_.Unmask(serialisation); }

  /// What is written when the engine has `current`. Each way of writing the edits is tried on the
  /// verifier, from the smallest, until its document is the one at hand. Raises
  /// InvalidProcedureCall for a character that the charset has no way to write.
  SavedPage Compose(const QString &current, PageVerifier &verifier);
  /// The text whose document is asked for first when `current` is composed; nothing for an unedited
  /// page. To have the verifier's answer ready before it is needed.
  std::optional<QString> FirstTry(const QString &current);

  /// Finds out ahead of time what every save of an edited page needs.
  void MakeReady();
  /// Composes ahead of time where the verifier confirms the first try; else nothing happens.
  void Foresee(const QString &current, PageVerifier &verifier);
  /// Lets go of what can be found out again.
  void Rest();

 private:
  struct Plan;

  void Prepare();
  Plan &PlanFor(const QString &current);
  enum class Tries { First, All };
  /// Nothing where the tries did not lead to the document.
  std::optional<SavedPage> Climb(Plan &plan, PageVerifier &verifier, Tries tries) const;
  std::optional<SavedPage> Moved(const QString &wantedAgain, PageVerifier &verifier) const;
  std::vector<TextPatch> Smallest(const std::vector<TextPatch> &patches, const QString &document,
                                  PageVerifier &verifier) const;
  SavedPage Splice(const std::vector<TextPatch> &patches, SaveRung rung) const;
  SavedPage Everything(const QString &current) const;

  PageOriginal original_;
  PageMask mask_;
  std::optional<TokenText> source_;
  std::optional<TokenText> before_;
  TokenAlignment sourceToBefore_;
  std::shared_ptr<Plan> plan_;  ///< for the serialisation composed last
};

}  // namespace velor
