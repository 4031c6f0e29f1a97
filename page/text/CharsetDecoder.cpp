// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/text/CharsetDecoder.h"

namespace velor {

namespace {

constexpr char Escape = '\x1b';
constexpr qsizetype EscapeLength = 3;

constexpr bool IsAscii(unsigned char byte) {
  return byte < 0x80;
}
constexpr bool IsIn(unsigned char byte, int first, int last) {
  return byte >= first && byte <= last;
}

/// Collects the decoded text and its offsets; no form gives more code units than it has bytes.
class Sink {
 public:
  Sink(qsizetype bytes, std::vector<std::int32_t> *offsets)
      : text_(bytes, Qt::Uninitialized), offsets_(offsets), next_(text_.data()) {
    if (offsets_ != nullptr) offsets_->resize(static_cast<std::size_t>(bytes));
  }

  void Put(char32_t character, qsizetype place) {
    if (character > 0xFFFF) {
      CodeUnit(QChar::highSurrogate(character), place);
      CodeUnit(QChar::lowSurrogate(character), place);
    } else {
      CodeUnit(static_cast<char16_t>(character), place);
    }
  }
  QString Text() {
    const qsizetype size = next_ - text_.constData();
    text_.truncate(size);
    if (offsets_ != nullptr) offsets_->resize(static_cast<std::size_t>(size));
    return std::move(text_);
  }

 private:
  void CodeUnit(char16_t codeUnit, qsizetype place) {
    if (offsets_ != nullptr)
      (*offsets_)[static_cast<std::size_t>(next_ - text_.constData())] =
          static_cast<std::int32_t>(place);
    *next_++ = QChar(codeUnit);
  }

  QString text_;
  std::vector<std::int32_t> *offsets_;
  QChar *next_;
};

/// One decoder over one text. Each step takes bytes from `at_` on.
class Decoder {
 public:
  Decoder(CharsetForm form, const CharsetIndex &index, QByteArrayView bytes, Sink &sink)
      : form_(form), index_(index), bytes_(bytes), sink_(sink) {}

  void Run() {
    if (form_ == CharsetForm::Iso2022Jp) return RunWithStates();
    while (at_ < bytes_.size()) {
      const unsigned char byte = Byte(0);
      const char16_t single = IsAscii(byte) ? byte : index_.singles[byte - 0x80U];
      if (IsAscii(byte) || single != 0)
        Consume(single, 1);
      else if (!IsLead(byte))
        Consume(Replacement, 1);
      else if (form_ == CharsetForm::Gb && Left() > 1 && IsIn(Byte(1), '0', '9'))
        ConsumeFour();
      else if (form_ == CharsetForm::EucJp && byte == 0x8F && Left() > 1 &&
               IsIn(Byte(1), 0xA1, 0xFE))
        ConsumeThree();
      else
        ConsumePair();
    }
  }

 private:
  qsizetype Left() const { return bytes_.size() - at_; }
  unsigned char Byte(qsizetype offset) const {
    return static_cast<unsigned char>(bytes_[at_ + offset]);
  }
  void Consume(char32_t character, qsizetype count) {
    sink_.Put(character, at_);
    at_ += count;
  }
  /// An error of `count` bytes, without the last one if it is ASCII or beyond the end.
  void ConsumeBroken(qsizetype count) {
    if (count > Left()) return Consume(Replacement, Left());
    Consume(Replacement, IsAscii(Byte(count - 1)) ? count - 1 : count);
  }

  bool IsLead(unsigned char byte) const {
    switch (form_) {
      case CharsetForm::SingleByte:
        return false;
      case CharsetForm::ShiftJis:
        return IsIn(byte, 0x81, 0x9F) || IsIn(byte, 0xE0, 0xFC);
      case CharsetForm::EucJp:
        return IsIn(byte, 0xA1, 0xFE) || byte == 0x8E || byte == 0x8F;
      default:
        return IsIn(byte, 0x81, 0xFE);
    }
  }

  void ConsumePair() {
    const char32_t character = Left() > 1 ? index_.pairs[CharsetIndex::Pair(Byte(0), Byte(1))] : 0;
    if (character != 0) return Consume(character, 2);
    if (form_ == CharsetForm::Big5 && Left() > 1 && Byte(0) == 0x88) {
      // A letter and an accent, which have no character together.
      const bool isSmall = Byte(1) >= 0xA0;
      const int accent = Byte(1) - (isSmall ? 0xA3 : 0x62);
      if (accent == 0 || accent == 2) {
        sink_.Put(isSmall ? 0xEA : 0xCA, at_);
        return Consume(accent == 0 ? 0x304 : 0x30C, 2);
      }
    }
    ConsumeBroken(2);
  }

  /// JIS X 0212: 0x8F and two bytes.
  void ConsumeThree() {
    const char32_t character =
        Left() > 2 ? index_.triples[CharsetIndex::Pair(Byte(1), Byte(2))] : 0;
    if (character != 0) return Consume(character, 3);
    ConsumeBroken(3);
  }

  /// A character of GB 18030 in four bytes, of which the second and fourth are digits.
  void ConsumeFour() {
    const qsizetype left = Left();
    if (left < 4 && (left < 3 || IsIn(Byte(2), 0x81, 0xFE))) return Consume(Replacement, left);
    if (!IsIn(Byte(2), 0x81, 0xFE) || !IsIn(Byte(3), '0', '9')) return Consume(Replacement, 1);
    const char32_t character = FourByteCharacter({bytes_.data() + at_, 4});
    // Four bytes that stand for no character are one error.
    Consume(character != 0 ? character : Replacement, 4);
  }

  /// What an escape sequence of ISO-2022-JP sets; None for bytes that are no such sequence.
  enum class State { None, Ascii, Roman, Katakana, Kanji };
  static State StateOf(QByteArrayView rest);
  void RunWithStates();
  void ConsumeIn(State state);
  void ConsumeKanji();

  CharsetForm form_;
  const CharsetIndex &index_;
  QByteArrayView bytes_;
  Sink &sink_;
  qsizetype at_ = 0;
};

Decoder::State Decoder::StateOf(QByteArrayView rest) {
  if (rest.startsWith("\x1b(B")) return State::Ascii;
  if (rest.startsWith("\x1b(J")) return State::Roman;
  if (rest.startsWith("\x1b(I")) return State::Katakana;
  const bool isKanji = rest.startsWith("\x1b$@") || rest.startsWith("\x1b$B");
  return isKanji ? State::Kanji : State::None;
}

void Decoder::RunWithStates() {
  State state = State::Ascii;
  bool isAfterEscape = false;
  while (at_ < bytes_.size()) {
    const State next = bytes_[at_] == Escape ? StateOf(bytes_.sliced(at_)) : State::None;
    if (next == State::None) {
      isAfterEscape = false;
      ConsumeIn(state);
      continue;
    }
    // Two escape sequences in a row decode to U+FFFD (Encoding Standard, ISO-2022-JP).
    if (isAfterEscape) sink_.Put(Replacement, at_);
    isAfterEscape = true;
    state = next;
    at_ += EscapeLength;
  }
}

/// Takes one character in the given state; an escape byte that begins no known sequence is an
/// error.
void Decoder::ConsumeIn(State state) {
  const unsigned char byte = Byte(0);
  if (bytes_[at_] == Escape) return Consume(Replacement, 1);
  switch (state) {
    case State::Kanji:
      return ConsumeKanji();
    case State::Katakana:
      return Consume(
          IsIn(byte, 0x21, 0x5F) ? static_cast<char32_t>(0xFF61 + byte - 0x21) : Replacement, 1);
    default:
      break;
  }
  const bool isShift = byte == 0x0E || byte == 0x0F;
  if (!IsAscii(byte) || isShift) return Consume(Replacement, 1);
  if (state == State::Roman && byte == '\\') return Consume(0xA5, 1);
  if (state == State::Roman && byte == '~') return Consume(0x203E, 1);
  Consume(byte, 1);
}

/// JIS X 0208: two bytes.
void Decoder::ConsumeKanji() {
  const unsigned char byte = Byte(0);
  if (!IsIn(byte, 0x21, 0x7E) || Left() == 1 || bytes_[at_ + 1] == Escape)
    return Consume(Replacement, 1);
  const char32_t character =
      IsIn(Byte(1), 0x21, 0x7E) ? index_.pairs[CharsetIndex::Pair(byte | 0x80, Byte(1) | 0x80)] : 0;
  Consume(character != 0 ? character : Replacement, 2);
}

}  // namespace

QString DecodeByIndex(CharsetForm form, const CharsetIndex &index, QByteArrayView bytes,
                      std::vector<std::int32_t> *offsets) {
  Sink sink(bytes.size(), offsets);
  Decoder(form, index, bytes, sink).Run();
  return sink.Text();
}

}  // namespace velor
