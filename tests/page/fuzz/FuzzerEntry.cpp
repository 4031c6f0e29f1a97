// SPDX-License-Identifier: GPL-3.0-or-later
// The entry of the fuzzing engine.
#include "tests/page/fuzz/FaithfulFuzz.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  velor::FuzzFaithfulPage(QByteArrayView(data, static_cast<qsizetype>(size)));
  return 0;
}
