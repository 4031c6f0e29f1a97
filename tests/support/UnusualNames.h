// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <random>

namespace velor {

/// Names and paths of files with characters from all of Unicode, those that mean something in links
/// before all.
class UnusualNames {
 public:
  explicit UnusualNames(unsigned seed) : random_(seed) {}

  /// The name of a file or folder, in logic form.
  QString Name() {
    QString name;
    for (int length = Below(7) + 1; length > 0; --length) name += Character();
    return name == u"." || name == u".." ? QStringLiteral("..a") : name;
  }
  /// A full path of some folders below `root` ("", "C:"), the first ones often the same.
  QString Path(const QString &root) {
    QString path = root;
    for (int shared = Below(3); shared > 0; --shared) path += QStringLiteral("\\a b");
    for (int depth = Below(4); depth > 0; --depth) path += u'\\' + Name();
    return path + u'\\' + Name();
  }

 private:
  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
  QString Character() {
    static const QString reserved = QStringLiteral("#?%\"&'<>:;=+@,!$()*[]{}|^`~ .");
    static const QString hexadecimal = QStringLiteral("%%%0123456789abcdefABCDEF");
    switch (Below(8)) {
      case 0:
      case 1:
        return reserved[Below(static_cast<int>(reserved.size()))];
      case 2:
        return hexadecimal[Below(static_cast<int>(hexadecimal.size()))];
      case 3:
        return QChar(Below(0x1F) + 1);
      case 4:
        return QChar(0x7F + Below(0x181));
      case 5:
        // A backslash within a native name.
        return QChar(0xF05C);
      case 6: {
        const char32_t astral = 0x10000 + static_cast<char32_t>(Below(0x100000));
        return QString::fromUcs4(&astral, 1);
      }
      default: {
        const int unit = 0x300 + Below(0xFD00);
        return QChar(unit >= 0xD800 && unit < 0xE000 ? 0x4E00 : unit);
      }
    }
  }

  std::mt19937 random_;
};

}  // namespace velor
