// SPDX-License-Identifier: GPL-3.0-or-later
// A libFuzzer program over the examination that the damage test makes. Without seeds of its own:
//   velor-jet-seeds DIR && velor-jet-fuzz -timeout=1 DIR
#include "tests/catalogue/jet/JetExamination.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  const auto result = velor::fixture::ExamineJetFile(
      QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
  if (result.broken.isEmpty()) return 0;
  std::fprintf(stderr, "%s\n", qPrintable(result.broken.join(u'\n')));
  std::abort();
}
