// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/PageSaver.h"

#include "engine/NoticeQueue.h"
#include "engine/PageLoader.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <utility>

namespace velor {

namespace {

constexpr auto LongCheck =
    Words::Mark("The page takes long to save. Press Escape to have it written anew as a whole.");
/// UTF-16 code units. Composing a larger page ahead would delay the next key.
constexpr qsizetype LargestAhead = 2'000'000;

QString WrittenAnew(const QString &reason) {
  const QString sentence = Words::tr(
      "The page's source could not be kept as it was written: the whole page is written anew");
  return sentence + (reason.isEmpty() ? QStringLiteral(".") : Words::tr(", since %1.").arg(reason));
}

}  // namespace

PageSaver::PageSaver(LiveDocument &document, PageLoader &loader, NoticeQueue &notices, Files &files,
                     EngineVerifier &verifier)
    : document_(document), loader_(loader), notices_(notices), files_(files), verifier_(verifier) {}

SavedPage PageSaver::Compose() {
  loader_.LoadBlankIfEmpty();
  const QString nativePath = document_.NativePath();
  EngineVerifier::Stoppable verifier(verifier_, document_.StoppableWith(Words::tr(LongCheck)));
  const LiveDocument::Reading reading = document_.Read();
  // A file without what was typed last would be worse than none.
  if (reading.isUnanswered)
    throw RuntimeError::Of(ErrorNumber::DeviceIoError, QStringLiteral("SaveDocument"), nativePath);
  return reading.original->Compose(reading.html, verifier);
}

void PageSaver::Save(const QString &path) {
  Files &files = files_;
  const Lifetime::Watch life = document_.WatchEditor();
  const SavedPage saved = Compose();
  if (saved.rung == SaveRung::Everything && !life.IsOver())
    notices_.Report(WrittenAnew(saved.reason));
  files.ReplaceAll(path, saved.page.bytes);
}

void PageSaver::ComposeAhead() {
  const DocumentHistory::Original original = document_.History().Current();
  const QString html = document_.Mirror().Html();
  if (loader_.IsLoading() || html.size() > LargestAhead) return;
  original->Prepare();
  const auto first = original->FirstTry(html);
  if (!first) return;
  EngineVerifier &verifier = verifier_;
  verifier.Precompute(*first, html, [original, html, &verifier] {
    EngineVerifier::KnownAnswers known(verifier);
    try {
      original->Precompute(html, known);
    } catch (const RuntimeError &) {
      // A page that cannot be written says so when it is saved.
    }
  });
}

}  // namespace velor
