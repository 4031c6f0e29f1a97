// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <array>

namespace velor {

class Registry;

/// A language that the program speaks: as the preference `Language` and its translation are named,
/// and as people who speak it name it.
struct Language {
  const char *code;
  const char16_t *name;
};

/// English is the language of the texts in the program; the others have a translation in
/// resources/translations.
inline constexpr std::array<Language, 3> Languages{{
    {"en", u"English"},
    {"de", u"Deutsch"},
    {"zh_TW", u"\u6B63\u9AD4\u4E2D\u6587"},
}};

/// The code of the first of a person's languages (RFC 5646 tags, the most wanted first) that the
/// program speaks; "en" where it speaks none.
QString LanguageFor(const QStringList &wanted);

/// From here on the program speaks the language of the preference `Language`, or where that names
/// none the desktop's. It stays in English where only the published behaviour is wanted. Texts that
/// were taken before stay as they are.
void UseLanguage(const Registry &registry);

}  // namespace velor
