// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/saving/ByteSplice.h"
#include "page/saving/PageEdits.h"
#include "page/saving/PageMask.h"
#include "page/saving/SourcePatches.h"
#include "page/text/PageText.h"

#include <memory>
#include <optional>

namespace velor {

class PageVerifier;

/// How much of a page was written for its edits, from nothing to everything.
enum class SaveRung {
  Unedited,     ///< the bytes that were loaded
  Edits,        ///< the edits alone
  ImpliedTags,  ///< also tags beside them that the file leaves out
  Elements,     ///< the content of elements around them
  Everything,   ///< the engine's serialisation
};

struct SavedPage {
  PageToWrite page;
  SaveRung rung = SaveRung::Unedited;
  /// At Everything: why the page's source could not be kept, in words that go on from "since".
  /// Empty for a page that came from no source.
  QString reason;
};

/// Decides what text the engine loads for a page, and what bytes a save writes for the document
/// that the engine has. Bytes outside the person's edits stay as they are in the file.
///
/// All serialisations are the engine's, of the masked text, with LF line breaks.
class FaithfulPage {
 public:
  explicit FaithfulPage(PageOriginal original = {});

  const PageOriginal &Original() const { return original_; }
  /// The text that the engine is to load: the page's, with what must not reach the engine masked.
  const QString &TextToLoad() const { return mask_.MaskedText(); }
  /// The serialisation right after loading; empty until SetBaseline.
  const QString &Baseline() const { return original_.baseline; }
  void SetBaseline(const QString &serialisation);
  /// A serialisation with the original pieces in place of their masks.
  QString Unmasked(const QString &serialisation) const { return mask_.Unmask(serialisation); }

  /// What a save writes when the engine's serialisation is `current`. Tries to patch the source,
  /// the smallest patches first, until the verifier parses the result to the same document. Raises
  /// InvalidProcedureCall for a character that the charset has no way to write, and where the page
  /// would have to be written anew without server code or template signs that it has.
  SavedPage Compose(const QString &current, PageVerifier &verifier);
  /// The text that Compose(current) will ask the verifier for first; nothing for an unedited page.
  std::optional<QString> FirstTry(const QString &current);

  /// Computes ahead of time the tokens and alignment that every save of an edited page needs.
  void Prepare();
  /// Composes ahead of time, with one try: keeps the result for Compose if the verifier confirms
  /// it.
  void Precompute(const QString &current, PageVerifier &verifier);
  /// Frees what Prepare and Precompute hold; it is computed again when it is needed.
  void DropCaches();

 private:
  /// The edits that lead to one serialisation, the rung of each, and the result once it is known.
  struct Plan;

  PageForm Form() const;
  /// The plan for a serialisation, made where the last one was for another.
  Plan &PlanFor(const QString &current);
  enum class Tries { First, All };
  /// Tries the edits alone, then higher rungs for the edit at the first difference. Nothing where
  /// no try gave the document.
  std::optional<SavedPage> TryRungs(Plan &plan, PageVerifier &verifier, Tries tries) const;
  /// Tries to write the edits where the parser moves them to, for a document that no markup gives
  /// (a picture between two table rows). `wantedAgain` is what the document's own serialisation is
  /// parsed to.
  std::optional<SavedPage> TryAsParsed(const QString &wantedAgain, PageVerifier &verifier) const;
  /// The patches less those without which the document is the same.
  std::vector<TextPatch> WithoutNeedless(const std::vector<TextPatch> &patches,
                                         const QString &document, PageVerifier &verifier) const;
  /// Writes patches of the masked text into the page's bytes.
  SavedPage Splice(const std::vector<TextPatch> &patches, SaveRung rung) const;
  /// Writes the serialisation itself, unmasked, in the page's charset and line ends.
  SavedPage WriteEverything(const QString &current, const QString &reason) const;
  /// Whether two serialisations are of one document. Implied tags of HTML, HEAD and BODY make no
  /// difference where the source has none of those.
  bool IsSameDocument(const QString &one, const QString &other) const;

  PageOriginal original_;
  PageMask mask_;
  std::optional<TokenText> source_;
  bool hasFrameTags_ = true;  ///< of `source_`: HTML, HEAD or BODY
  std::optional<TokenText> before_;
  TokenAlignment sourceToBefore_;
  std::shared_ptr<Plan> plan_;  ///< for the serialisation composed last
};

}  // namespace velor
