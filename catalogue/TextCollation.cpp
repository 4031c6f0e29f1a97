// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/TextCollation.h"

#include "platform/RuntimeError.h"

#include <QString>

#include <algorithm>
#include <array>
#include <memory>
#include <sqlite3.h>
#include <string_view>
#include <unicode/ucol.h>

namespace velor {

namespace {

class TextCollation {
 public:
  TextCollation() {
    UErrorCode status = U_ZERO_ERROR;
    // The root locale: an order must not change with the person's language, or two machines would
    // list the same catalogue differently.
    collator_.reset(ucol_open("", &status));
    ucol_setStrength(collator_.get(), UCOL_SECONDARY);
    if (U_FAILURE(status) != 0) {
      throw RuntimeError::Of(ErrorNumber::DeviceIoError, QStringLiteral("TextCollation"),
                             QString::fromLatin1(u_errorName(status)));
    }
    RankAscii();
  }

  int Compare(std::string_view a, std::string_view b) const {
    // Printable ASCII has no marks, contractions or ignorable characters, so that its first
    // difference decides. Most names end here.
    const std::size_t length = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < length; ++i) {
      const int rankA = RankOf(a[i]);
      const int rankB = RankOf(b[i]);
      if (rankA == NoRank || rankB == NoRank) return CompareWhole(a, b);
      if (rankA != rankB) {
        // What follows may still be a mark that belongs to the character.
        const bool marked = IsMarked(a, i) || IsMarked(b, i);
        return marked ? CompareWhole(a, b) : rankA - rankB;
      }
    }
    if (a.size() == b.size()) return 0;
    const std::string_view rest = a.size() > b.size() ? a.substr(length) : b.substr(length);
    if (RankOf(rest.front()) == NoRank) return CompareWhole(a, b);
    return a.size() < b.size() ? -1 : 1;
  }

 private:
  static constexpr int NoRank = 0;
  static constexpr unsigned char FirstPrintable = 0x20;
  static constexpr unsigned char LastPrintable = 0x7E;

  int RankOf(char character) const { return ranks_[static_cast<unsigned char>(character)]; }

  bool IsMarked(std::string_view text, std::size_t at) const {
    return at + 1 < text.size() && RankOf(text[at + 1]) == NoRank;
  }

  int CompareWhole(std::string_view a, std::string_view b) const {
    UErrorCode status = U_ZERO_ERROR;
    return ucol_strcollUTF8(collator_.get(), a.data(), static_cast<int32_t>(a.size()), b.data(),
                            static_cast<int32_t>(b.size()), &status);
  }

  /// Gives each printable ASCII character its place in the collator's order; both cases of a letter
  /// share theirs.
  void RankAscii() {
    const auto less = [this](char a, char b) { return CompareWhole({&a, 1}, {&b, 1}) < 0; };
    std::array<char, LastPrintable - FirstPrintable + 1> sorted;
    for (std::size_t i = 0; i < sorted.size(); ++i) {
      sorted[i] = static_cast<char>(FirstPrintable + i);
    }
    std::stable_sort(sorted.begin(), sorted.end(), less);
    int rank = NoRank;
    for (std::size_t i = 0; i < sorted.size(); ++i) {
      if (i == 0 || less(sorted[i - 1], sorted[i])) ++rank;
      ranks_[static_cast<unsigned char>(sorted[i])] = rank;
    }
  }

  struct Close {
    void operator()(UCollator *collator) const { ucol_close(collator); }
  };

  std::unique_ptr<UCollator, Close> collator_;
  std::array<int, 256> ranks_ = {};
};

int Compare(void *collation, int lengthA, const void *a, int lengthB, const void *b) {
  return static_cast<const TextCollation *>(collation)->Compare(
      {static_cast<const char *>(a), static_cast<std::size_t>(lengthA)},
      {static_cast<const char *>(b), static_cast<std::size_t>(lengthB)});
}

void Delete(void *collation) {
  delete static_cast<TextCollation *>(collation);
}

}  // namespace

void AddTextCollation(sqlite3 *database) {
  auto collation = std::make_unique<TextCollation>();
  if (sqlite3_create_collation_v2(database, TextCollationName, SQLITE_UTF8, collation.get(),
                                  Compare, Delete) == SQLITE_OK) {
    static_cast<void>(collation.release());  // Delete is called with it
  }
}

}  // namespace velor
