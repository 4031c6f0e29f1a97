// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/text/CharsetIndex.h"

#include <algorithm>
#include <map>
#include <memory>
#include <string_view>
#include <unicode/ucnv.h>

namespace velor {

namespace {

struct Form {
  const char *charset;
  CharsetForm form;
  /// The library's table that is nearest to the standard's.
  const char *table;
};

/// Those that are not of one byte, and those whose tables have other names.
constexpr Form Forms[] = {
    {"utf-8", CharsetForm::Unicode, nullptr},
    {"utf-16le", CharsetForm::Unicode, nullptr},
    {"utf-16be", CharsetForm::Unicode, nullptr},
    {"big5", CharsetForm::Big5, "Big5-HKSCS"},
    {"gbk", CharsetForm::Gb, "gb18030"},
    {"gb18030", CharsetForm::Gb, "gb18030"},
    {"euc-jp", CharsetForm::EucJp, "euc-jp"},
    {"euc-kr", CharsetForm::EucKr, "windows-949"},
    {"shift_jis", CharsetForm::ShiftJis, "windows-31j"},
    {"iso-2022-jp", CharsetForm::Iso2022Jp, "euc-jp"},
    {"iso-8859-8-i", CharsetForm::SingleByte, "iso-8859-8"},
    {"iso-8859-10", CharsetForm::SingleByte, "iso-8859_10-1998"},
    {"iso-8859-14", CharsetForm::SingleByte, "iso-8859_14-1998"},
    {"iso-8859-16", CharsetForm::SingleByte, "iso-8859-1"},
    {"x-user-defined", CharsetForm::SingleByte, "windows-1252"},
};

/// Where the library's tables differ from the standard's indexes: the characters of these bytes and
/// of those after them, a NUL where there is none.
struct Correction {
  const char *charset;
  int bytes;
  std::u16string_view characters;
};

using namespace std::string_view_literals;

constexpr Correction Corrections[] = {
    {"iso-8859-16", 0xA1,
     u"\u0104\u0105\u0141\u20AC\u201E\u0160\u00A7\u0161\u00A9\u0218\u00AB\u0179\u00AD\u017A\u017B"
     u"\u00B0\u00B1\u010C\u0142\u017D\u201D\u00B6\u00B7\u017E\u010D\u0219\u00BB\u0152\u0153\u0178\u017C"sv},
    {"iso-8859-16", 0xC3, u"\u0102\u00C4\u0106"sv},
    {"iso-8859-16", 0xD0, u"\u0110\u0143"sv},
    {"iso-8859-16", 0xD5, u"\u0150\u00D6\u015A\u0170"sv},
    {"iso-8859-16", 0xDD, u"\u0118\u021A"sv},
    {"iso-8859-16", 0xE3, u"\u0103\u00E4\u0107"sv},
    {"iso-8859-16", 0xF0, u"\u0111\u0144"sv},
    {"iso-8859-16", 0xF5, u"\u0151\u00F6\u015B\u0171"sv},
    {"iso-8859-16", 0xFD, u"\u0119\u021B"sv},
    {"koi8-u", 0xAE, u"\u045E"sv},
    {"koi8-u", 0xBE, u"\u040E"sv},
    {"windows-874", 0xDB, u"\0\0\0\0"sv},
    {"windows-874", 0xFC, u"\0\0\0\0"sv},
    {"windows-1253", 0xAA, u"\0"sv},
    {"windows-1255", 0xCA, u"\u05BA"sv},
    // Both read with the characters of GB 18030-2022.
    {"gb18030", 0xA3A0, u"\u3000"sv},
    {"gb18030", 0xA6D9, u"\uFE10\uFE12\uFE11\uFE13\uFE14\uFE15\uFE16"sv},
    {"gb18030", 0xA6EC, u"\uFE17\uFE18"sv},
    {"gb18030", 0xA6F3, u"\uFE19"sv},
    {"gb18030", 0xFE59, u"\u9FB4"sv},
    {"gb18030", 0xFE61, u"\u9FB5"sv},
    {"gb18030", 0xFE66, u"\u9FB6\u9FB7"sv},
    {"gb18030", 0xFE6D, u"\u9FB8"sv},
    {"gb18030", 0xFE7E, u"\u9FB9"sv},
    {"gb18030", 0xFE90, u"\u9FBA"sv},
    {"gb18030", 0xFEA0, u"\u9FBB"sv},
    // A letter with an accent, which the decoder writes as two characters.
    {"big5", 0x8862, u"\0"sv},
    {"big5", 0x8864, u"\0"sv},
    {"big5", 0x88A3, u"\0"sv},
    {"big5", 0x88A5, u"\0"sv},
    {"big5", 0x87A4, u"\u9F97"sv},
    {"big5", 0x87AC, u"\u9F96"sv},
    {"big5", 0x8840, u"\u31C0\u31C1\u31C2\u31C3\u31C4"sv},
    {"big5", 0x8846, u"\u31C5"sv},
    {"big5", 0x8849, u"\u31C6\u31C7"sv},
    {"big5", 0x884D, u"\u31C8"sv},
    {"big5", 0x884F, u"\u31C9\u31CA\u31CB\u31CC"sv},
    {"big5", 0x8854, u"\u31CD\u31CE"sv},
    {"big5", 0x88A9, u"\u23DA\u23DB"sv},
    {"big5", 0x8C43, u"\u9FA6"sv},
    {"big5", 0x8C6D, u"\u9FA7"sv},
    {"big5", 0x8C74, u"\u9FA8"sv},
    {"big5", 0x8CB7, u"\u9FA9"sv},
    {"big5", 0x8CB9, u"\u9FAA"sv},
    {"big5", 0x8CBB, u"\u9FAB"sv},
    {"big5", 0x8CC0, u"\u9FAC"sv},
    {"big5", 0x8CD7, u"\u9FAD\u9FAE"sv},
    {"big5", 0x8CDA, u"\u9FAF"sv},
    {"big5", 0x8CED, u"\u9FB2"sv},
    {"big5", 0x8D48, u"\u9FB3"sv},
    {"big5", 0x8E69, u"\u7BB8"sv},
    {"big5", 0x8E6F, u"\u7C06"sv},
    {"big5", 0x8E7E, u"\u7CCE"sv},
    {"big5", 0x8EAB, u"\u7DD2"sv},
    {"big5", 0x8EB4, u"\u7E1D"sv},
    {"big5", 0x8ECD, u"\u8005"sv},
    {"big5", 0x8ED0, u"\u8028"sv},
    {"big5", 0x8F57, u"\u83C1"sv},
    {"big5", 0x8F69, u"\u84A8"sv},
    {"big5", 0x8F6E, u"\u840F"sv},
    {"big5", 0x8FCB, u"\u89A6\u89A9"sv},
    {"big5", 0x8FFE, u"\u8D77"sv},
    {"big5", 0x906D, u"\u90FD"sv},
    {"big5", 0x907A, u"\u92B9"sv},
    {"big5", 0x90DC, u"\u975C"sv},
    {"big5", 0x90F1, u"\u97FF"sv},
    {"big5", 0x91BF, u"\u9F16"sv},
    {"big5", 0x9244, u"\u8503"sv},
    {"big5", 0x92AF, u"\u5159\u515B\u515D\u515E"sv},
    {"big5", 0x92C8, u"\u936E"sv},
    {"big5", 0x92D1, u"\u7479"sv},
    {"big5", 0x9447, u"\u6D67"sv},
    {"big5", 0x94CA, u"\u799B"sv},
    {"big5", 0x95D9, u"\u9097"sv},
    {"big5", 0x9644, u"\u975D"sv},
    {"big5", 0x96ED, u"\u701E"sv},
    {"big5", 0x96FC, u"\u5B28"sv},
    {"big5", 0x9B76, u"\u7201"sv},
    {"big5", 0x9B78, u"\u77D7"sv},
    {"big5", 0x9B7B, u"\u7E87"sv},
    {"big5", 0x9BC6, u"\u99D6"sv},
    {"big5", 0x9BDE, u"\u91D4"sv},
    {"big5", 0x9BEC, u"\u60DE"sv},
    {"big5", 0x9BF6, u"\u6FB6"sv},
    {"big5", 0x9C42, u"\u8F36"sv},
    {"big5", 0x9C53, u"\u4FBB"sv},
    {"big5", 0x9C62, u"\u71DF"sv},
    {"big5", 0x9C68, u"\u9104"sv},
    {"big5", 0x9C6B, u"\u9DF0"sv},
    {"big5", 0x9C77, u"\u83CF"sv},
    {"big5", 0x9CBC, u"\u5C10\u79E3"sv},
    {"big5", 0x9CD0, u"\u5A67"sv},
    {"big5", 0x9D57, u"\u8F0B"sv},
    {"big5", 0x9D5A, u"\u7B51"sv},
    {"big5", 0x9DC4, u"\u62D0"sv},
    {"big5", 0x9EA9, u"\u6062"sv},
    {"big5", 0x9EEF, u"\u75F9"sv},
    {"big5", 0x9EFD, u"\u6C4A"sv},
    {"big5", 0x9F60, u"\u9B2E"sv},
    {"big5", 0x9F66, u"\u9F17"sv},
    {"big5", 0x9FCB, u"\u50ED"sv},
    {"big5", 0x9FD8, u"\u5F0C"sv},
    {"big5", 0xA063, u"\u880F"sv},
    {"big5", 0xA077, u"\u62CE"sv},
    {"big5", 0xA0D5, u"\u7468"sv},
    {"big5", 0xA0DF, u"\u7162"sv},
    {"big5", 0xA0E4, u"\u7250"sv},
    {"big5", 0xA3C0,
     u"\u2400\u2401\u2402\u2403\u2404\u2405\u2406\u2407\u2408\u2409\u240A\u240B\u240C\u240D\u240E"
     u"\u240F"
     u"\u2410\u2411\u2412\u2413\u2414\u2415\u2416\u2417\u2418\u2419\u241A\u241B\u241C\u241D\u241E\u241F\u2421"sv},
    {"big5", 0xC6CF, u"\u5EF4"sv},
    {"big5", 0xC6D3, u"\u65E0"sv},
    {"big5", 0xC6D5, u"\u7676"sv},
    {"big5", 0xC6D7, u"\u96B6"sv},
    {"big5", 0xC6DE, u"\u3003\u4EDD"sv},
    {"big5", 0xC879, u"\u31CF"sv},
    {"big5", 0xC8A1, u"\u9FB0"sv},
    {"big5", 0xC8A3, u"\u9FB1"sv},
    {"big5", 0xFA5F, u"\u5029"sv},
    {"big5", 0xFA66, u"\u507D"sv},
    {"big5", 0xFABD, u"\u5305"sv},
    {"big5", 0xFAC5, u"\u5344"sv},
    {"big5", 0xFAD5, u"\u537F"sv},
    {"big5", 0xFB48, u"\u5605"sv},
    {"big5", 0xFBB8, u"\u5A77"sv},
    {"big5", 0xFBF3, u"\u5E75"sv},
    {"big5", 0xFBF9, u"\u5ED0"sv},
    {"big5", 0xFC4F, u"\u5F58"sv},
    {"big5", 0xFC6C, u"\u60A4"sv},
    {"big5", 0xFCB9, u"\u6490"sv},
    {"big5", 0xFCE2, u"\u6674"sv},
    {"big5", 0xFCF1, u"\u675E"sv},
    {"big5", 0xFDB7, u"\u6C9C\u6E1D"sv},
    {"big5", 0xFDBB, u"\u6E2F"sv},
    {"big5", 0xFDF1, u"\u716E"sv},
    {"big5", 0xFE52, u"\u732A"sv},
    {"big5", 0xFE6F, u"\u745C"sv},
    {"big5", 0xFEAA, u"\u74E9"sv},
    {"big5", 0xFEDD, u"\u7809"sv},
};

/// The library's converter; closed at the end.
class Table {
 public:
  explicit Table(const char *name) {
    UErrorCode status = U_ZERO_ERROR;
    converter_ = ucnv_open(name, &status);
  }
  ~Table() { ucnv_close(converter_); }
  Table(const Table &) = delete;
  Table &operator=(const Table &) = delete;

  /// The one character that the bytes stand for; 0 where they do not.
  char32_t Character(QByteArrayView bytes) const {
    char16_t codeUnits[8];
    UErrorCode status = U_ZERO_ERROR;
    const auto length = static_cast<std::int32_t>(bytes.size());
    const std::int32_t count =
        ucnv_toUChars(converter_, codeUnits, 8, bytes.data(), length, &status);
    if (U_FAILURE(status) || codeUnits[0] == 0xFFFD) return 0;
    if (count == 2 && QChar::isHighSurrogate(codeUnits[0]))
      return QChar::surrogateToUcs4(codeUnits[0], codeUnits[1]);
    return count == 1 ? codeUnits[0] : 0;
  }
  QByteArray Bytes(char32_t character) const {
    char bytes[8];
    UErrorCode status = U_ZERO_ERROR;
    const auto codeUnits = QChar::fromUcs4(character);
    const std::int32_t count =
        ucnv_fromUChars(converter_, bytes, 8, QStringView(codeUnits).utf16(),
                        static_cast<std::int32_t>(QStringView(codeUnits).size()), &status);
    return U_FAILURE(status) ? QByteArray() : QByteArray(bytes, count);
  }

 private:
  UConverter *converter_;
};

const Table &FourBytes() {
  static const Table table("gb18030");
  return table;
}

bool IsPrivate(char32_t character) {
  return character >= 0xE000 && character <= 0xF8FF;
}

/// Whether the standard's index has two bytes that the library's table has.
bool IsIndexed(CharsetForm form, int lead, char32_t character) {
  switch (form) {
    case CharsetForm::Big5:
      return lead >= 0x87;
    case CharsetForm::EucJp:
    case CharsetForm::Iso2022Jp:
    case CharsetForm::EucKr:
      return !IsPrivate(character);
    default:
      return true;
  }
}

/// Whether two bytes are written. Some are only ever read: what is there twice, and what many
/// programs that read the charset do not know.
bool IsWritten(CharsetForm form, int lead) {
  switch (form) {
    case CharsetForm::Big5:
      return lead >= 0xA1;
    case CharsetForm::ShiftJis:
      return lead != 0xED && lead != 0xEE && (lead < 0xF0 || lead > 0xF9);
    default:
      return true;
  }
}

/// Whether Big5 has two forms of a character, of which the later is written.
bool IsLaterForm(char32_t character) {
  return std::u32string_view(U"\u2550\u255E\u2561\u256A\u5341\u5345").find(character) !=
         std::u32string_view::npos;
}

void FillSingles(CharsetForm form, const Table &table, CharsetIndex &index) {
  const auto single = [&](int byte) -> char16_t & {
    return index.singles[static_cast<std::size_t>(byte - 0x80)];
  };
  if (form == CharsetForm::Gb) single(0x80) = 0x20AC;
  if (form == CharsetForm::ShiftJis) {
    single(0x80) = 0x80;
    for (int byte = 0xA1; byte <= 0xDF; ++byte)
      single(byte) = static_cast<char16_t>(0xFF61 + byte - 0xA1);
  }
  if (form != CharsetForm::SingleByte) return;
  for (int byte = 0x80; byte <= 0xFF; ++byte) {
    const char bytes[] = {static_cast<char>(byte)};
    single(byte) = static_cast<char16_t>(table.Character({bytes, 1}));
  }
}

void FillPairs(CharsetForm form, const Table &table, CharsetIndex &index) {
  if (form == CharsetForm::SingleByte) return;
  index.pairs.resize(128 * 256);
  const bool isJapanese = form == CharsetForm::EucJp || form == CharsetForm::Iso2022Jp;
  if (isJapanese) index.triples.resize(128 * 256);
  for (int lead = 0x81; lead <= 0xFE; ++lead) {
    for (int trail = isJapanese ? 0xA1 : 0x40; trail <= 0xFE; ++trail) {
      const char bytes[] = {static_cast<char>(0x8F), static_cast<char>(lead),
                            static_cast<char>(trail)};
      const auto place =
          CharsetIndex::Pair(static_cast<unsigned char>(lead), static_cast<unsigned char>(trail));
      const char32_t character = table.Character({bytes + 1, 2});
      if (IsIndexed(form, lead, character)) index.pairs[place] = character;
      // The library's last rows are a maker's own.
      if (!isJapanese || lead < 0xA1 || lead >= 0xF3) continue;
      const char32_t third = table.Character({bytes, 3});
      if (!IsPrivate(third)) index.triples[place] = third;
    }
  }
  if (!isJapanese) return;
  // Half-width katakana end here.
  for (int trail = 0xE0; trail <= 0xFE; ++trail)
    index.pairs[CharsetIndex::Pair(0x8E, static_cast<unsigned char>(trail))] = 0;
}

void Correct(QLatin1String charset, CharsetIndex &index) {
  for (const Correction &correction : Corrections) {
    if (charset != QLatin1String(correction.charset)) continue;
    int bytes = correction.bytes;
    for (const char16_t character : correction.characters) {
      if (bytes < 0x100)
        index.singles[static_cast<std::size_t>(bytes - 0x80)] = character;
      else
        index.pairs[static_cast<std::size_t>(bytes - 0x8000)] = character;
      ++bytes;
    }
  }
}

void FillWritten(CharsetForm form, CharsetIndex &index) {
  index.written.resize(0x10000);
  for (std::size_t place = 0; place < index.pairs.size(); ++place) {
    const char32_t character = index.pairs[place];
    const int lead = static_cast<int>(place / 256) + 0x80;
    if (character == 0 || character > 0xFFFF || !IsWritten(form, lead)) continue;
    std::uint16_t &written = index.written[character];
    if (written == 0 || (form == CharsetForm::Big5 && IsLaterForm(character)))
      written = static_cast<std::uint16_t>(0x8000 + place);
  }
  for (std::size_t place = 0; place < index.singles.size(); ++place) {
    std::uint16_t &written = index.written[index.singles[place]];
    if (written == 0) written = static_cast<std::uint16_t>(0x80 + place);
  }
  index.written[0] = 0;
}

const Form *FindForm(const QString &charset) {
  const auto form = std::find_if(std::begin(Forms), std::end(Forms), [&](const Form &row) {
    return charset == QLatin1String(row.charset);
  });
  return form != std::end(Forms) ? form : nullptr;
}

std::unique_ptr<CharsetIndex> MakeIndex(const QString &charset) {
  const Form *row = FindForm(charset);
  const CharsetForm form = row != nullptr ? row->form : CharsetForm::SingleByte;
  const QByteArray name = charset.toLatin1();
  const Table table(row != nullptr ? row->table : name.constData());
  auto index = std::make_unique<CharsetIndex>();
  FillSingles(form, table, *index);
  FillPairs(form, table, *index);
  Correct(form == CharsetForm::Gb ? QLatin1String("gb18030") : QLatin1String(name), *index);
  FillWritten(form, *index);
  return index;
}

}  // namespace

CharsetForm FormOf(const QString &charset) {
  const Form *row = FindForm(charset);
  return row != nullptr ? row->form : CharsetForm::SingleByte;
}

const CharsetIndex &IndexOf(const QString &charset) {
  static std::map<QString, std::unique_ptr<CharsetIndex>> indexes;
  std::unique_ptr<CharsetIndex> &index = indexes[charset];
  if (index == nullptr) index = MakeIndex(charset);
  return *index;
}

char32_t FourByteCharacter(QByteArrayView bytes) {
  return FourBytes().Character(bytes);
}

QByteArray FourBytesOf(char32_t character) {
  const QByteArray bytes = FourBytes().Bytes(character);
  return bytes.size() == 4 && FourByteCharacter(bytes) == character ? bytes : QByteArray();
}

}  // namespace velor
