// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings/Languages.h"

#include "app/settings/modSettingManager.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <algorithm>

namespace velor {

namespace {

bool IsSpoken(const QString &code) {
  return std::any_of(Languages.begin(), Languages.end(), [&code](const Language &language) {
    return code == QLatin1String(language.code);
  });
}

void Install(const QLocale &locale, const QString &name, const QString &folder) {
  auto *translator = new QTranslator(QCoreApplication::instance());
  if (translator->load(locale, name, QStringLiteral("_"), folder))
    QCoreApplication::installTranslator(translator);
}

}  // namespace

QString LanguageFor(const QStringList &wanted) {
  for (const QString &tag : wanted) {
    const QLocale locale(tag);
    // By script: Chinese of Hong Kong is read as that of Taiwan is.
    const bool isTraditional = locale.script() == QLocale::TraditionalHanScript;
    const QString code = isTraditional ? QStringLiteral("zh_TW") : tag.section(u'-', 0, 0);
    if (IsSpoken(code)) return code;
  }
  return QLatin1String(Languages[0].code);
}

void UseLanguage(const Registry &registry) {
  if (!modSettingManager::HasAdditions(registry)) return;
  const QString chosen = modSettingManager::GetOption(registry, PreferenceOf("Language"));
  const QString code = IsSpoken(chosen) ? chosen : LanguageFor(QLocale().uiLanguages());
  if (code == QLatin1String(Languages[0].code)) return;
  const QLocale locale(code);
  // Dates and the order of words follow the language; numbers in files are written without it.
  if (locale.language() != QLocale().language()) QLocale::setDefault(locale);
  // The buttons and dialogs of the toolkit first: what is installed later is asked first.
  Install(locale, QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
  Install(locale, QStringLiteral("velor"), QStringLiteral(":/velor/translations"));
}

}  // namespace velor
