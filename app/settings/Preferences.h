// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <array>
#include <string_view>

namespace velor {

/// A preference as the store has it: a text in the section "option".
struct Preference {
  /// Colours are numbers with blue in the high byte of three and red in the low one.
  enum class Kind { Truth, Integer, Color, File, Name };
  /// From when on a change counts.
  enum class Effect { AtOnce, NextPage, NextStart };

  std::string_view name;
  Kind kind;
  /// Counts where nothing is stored, or nothing of that kind.
  std::string_view defaultValue;
  Effect effect;
  std::string_view readBy;  ///< the file with its reader

  QString Name() const { return QString::fromLatin1(name.data(), qsizetype(name.size())); }
  QString Default() const {
    return QString::fromLatin1(defaultValue.data(), qsizetype(defaultValue.size()));
  }
};

/// Every preference. The readers and the window of the settings take names and defaults from here.
inline constexpr auto PreferenceTable = [] {
  using enum Preference::Kind;
  using enum Preference::Effect;
  // clang-format off
  return std::to_array<Preference>({
      {"ShowDetails",        Truth,   "False",    NextPage,  "editor/frmMain.cpp"},
      {"SnapToGrid",         Truth,   "True",     NextPage,  "editor/frmMain.cpp"},
      {"showtoolbox",        Truth,   "True",     AtOnce,    "editor/frmMain.cpp"},
      {"WrapSource",         Truth,   "True",     AtOnce,    "editor/SourceWrap.cpp"},
      {"CheckSpelling",      Truth,   "True",     AtOnce,    "editor/PageWords.cpp"},
      {"CopyPictures",       Truth,   "True",     AtOnce,    "editor/PagePictures.cpp"},
      {"PhotosAsWebP",       Truth,   "False",    AtOnce,    "editor/PagePictures.cpp"},
      {"KeepPictureData",    Truth,   "False",    AtOnce,    "editor/PagePictures.cpp"},
      {"MenuStyle",          Integer, "2",        AtOnce,    "app/window/MenuSettings.cpp"},
      {"MenuBackground",     File,    "",         AtOnce,    "app/window/MenuSettings.cpp"},
      {"mnuFore",            Color,   "0",        AtOnce,    "app/window/MenuSettings.cpp"},
      {"mnuBorder",          Color,   "8388608",  AtOnce,    "app/window/MenuSettings.cpp"},
      {"mnuHighlight",       Color,   "16761024", AtOnce,    "app/window/MenuSettings.cpp"},
      {"mnuHighFore",        Color,   "0",        AtOnce,    "app/window/MenuSettings.cpp"},
      {"WholeTemplateSigns", Truth,   "True",     NextStart, "app/window/Additions.cpp"},
      {"Language",           Name,    "",         NextStart, "app/settings/Languages.cpp"},
      {"NewPageTemplate",    File,    "",         AtOnce,    "editor/PageTemplates.cpp"},
      {"SpellingLanguage",   Name,    "",         NextStart, "app/window/Additions.cpp"},
      {"PublishedOnly",      Truth,   "False",    NextStart, "app/settings/modSettingManager.cpp"},
  });
  // clang-format on
}();

/// The row of a name. A name that has none does not compile.
consteval const Preference &PreferenceOf(std::string_view name) {
  for (const Preference &preference : PreferenceTable)
    if (preference.name == name) return preference;
  throw "no such preference";
}

}  // namespace velor
