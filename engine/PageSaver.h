// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/EngineVerifier.h"
#include "engine/LiveDocument.h"

namespace velor {

class Files;
class PageLoader;

/// Composes what a save of a LiveDocument writes, and writes it. What would be written is worked
/// out ahead while the person rests, so that a save seldom waits for the engine.
class PageSaver {
 public:
  PageSaver(LiveDocument &document, PageLoader &loader, NoticeQueue &notices, Files &files,
            EngineVerifier &verifier);

  /// What Save writes, and how much of the old source it could keep. Raises RuntimeError where the
  /// page lives and does not answer, since what was typed last would be missing. `this` may be gone
  /// afterwards.
  SavedPage Compose();
  /// Writes the document to a file, path in logic form; reports where the source could not be kept.
  /// Raises RuntimeError as Compose does, and where the file cannot be written. `this` may be gone
  /// afterwards.
  void Save(const QString &path);
  /// Begins to work out what a save would write, without waiting.
  void ComposeAhead();

 private:
  LiveDocument &document_;
  PageLoader &loader_;
  NoticeQueue &notices_;
  Files &files_;
  EngineVerifier &verifier_;
};

}  // namespace velor
