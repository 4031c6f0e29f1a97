// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/jet/JetCipher.h"

#include "catalogue/jet/JetBytes.h"

#include <array>
#include <numeric>
#include <utility>

namespace velor {

void ApplyRc4(std::span<const unsigned char> key, std::span<unsigned char> bytes) {
  std::array<unsigned char, 256> state;
  std::iota(state.begin(), state.end(), static_cast<unsigned char>(0));
  unsigned char swapWith = 0;
  for (std::size_t index = 0; index < state.size(); ++index) {
    swapWith = static_cast<unsigned char>(swapWith + state[index] + key[index % key.size()]);
    std::swap(state[index], state[swapWith]);
  }
  unsigned char first = 0;
  unsigned char second = 0;
  for (unsigned char &byte : bytes) {
    ++first;
    second = static_cast<unsigned char>(second + state[first]);
    std::swap(state[first], state[second]);
    byte ^= state[static_cast<unsigned char>(state[first] + state[second])];
  }
}

void ApplyRc4(quint32 key, std::span<unsigned char> bytes) {
  std::array<unsigned char, sizeof key> keyBytes;
  jet::Put(keyBytes.data(), key);
  ApplyRc4(keyBytes, bytes);
}

}  // namespace velor
