// SPDX-License-Identifier: GPL-3.0-or-later
#include "spelling/Dictionary.h"

#include <QFile>

#include <hunspell.hxx>
#include <unicode/ucnv.h>
#include <vector>

namespace velor {

namespace {

/// Answers that are kept; a page of 1 MB has some ten thousand different words.
constexpr qsizetype MostAnswers = 100'000;

/// ICU's name of a charset that an affix file names.
std::string CharsetName(std::string name) {
  static const std::string vendor = "microsoft-";
  if (name.rfind(vendor, 0) == 0) name.erase(0, vendor.size());
  return name;
}

}  // namespace

void Dictionary::CloseConverter::operator()(UConverter *converter) const {
  ucnv_close(converter);
}

Dictionary::Dictionary(const QString &affixFile, const QString &wordFile)
    : hunspell_(std::make_unique<Hunspell>(QFile::encodeName(affixFile).constData(),
                                           QFile::encodeName(wordFile).constData())) {
  UErrorCode error = U_ZERO_ERROR;
  converter_.reset(ucnv_open(CharsetName(hunspell_->get_dict_encoding()).c_str(), &error));
  if (U_FAILURE(error)) {
    error = U_ZERO_ERROR;
    converter_.reset(ucnv_open("UTF-8", &error));
  }
  // A character that the charset lacks ends the conversion.
  ucnv_setFromUCallBack(converter_.get(), UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr,
                        &error);
}

Dictionary::~Dictionary() = default;

std::string Dictionary::Encoded(const QString &word) {
  std::vector<char> bytes(
      static_cast<std::size_t>(UCNV_GET_MAX_BYTES_FOR_STRING(word.size() + 1, 4)));
  UErrorCode error = U_ZERO_ERROR;
  const std::int32_t length =
      ucnv_fromUChars(converter_.get(), bytes.data(), static_cast<std::int32_t>(bytes.size()),
                      reinterpret_cast<const UChar *>(word.utf16()),
                      static_cast<std::int32_t>(word.size()), &error);
  return U_FAILURE(error) ? std::string() : std::string(bytes.data(), std::size_t(length));
}

QString Dictionary::Decoded(const std::string &bytes) {
  QString text(static_cast<qsizetype>(2 * bytes.size() + 1), Qt::Uninitialized);
  UErrorCode error = U_ZERO_ERROR;
  const std::int32_t length =
      ucnv_toUChars(converter_.get(), reinterpret_cast<UChar *>(text.data()),
                    static_cast<std::int32_t>(text.size()), bytes.data(),
                    static_cast<std::int32_t>(bytes.size()), &error);
  if (U_FAILURE(error)) return {};
  text.truncate(length);
  return text;
}

bool Dictionary::Has(const QString &word) {
  if (const auto known = answers_.constFind(word); known != answers_.constEnd()) return *known;
  const std::string bytes = Encoded(word);
  const bool answer = !bytes.empty() && hunspell_->spell(bytes);
  if (answers_.size() >= MostAnswers) answers_.clear();
  answers_.insert(word, answer);
  return answer;
}

QStringList Dictionary::Suggestions(const QString &word) {
  QStringList words;
  const std::string bytes = Encoded(word);
  if (bytes.empty()) return words;
  for (const std::string &each : hunspell_->suggest(bytes)) words << Decoded(each);
  words.removeAll(QString());
  return words;
}

}  // namespace velor
