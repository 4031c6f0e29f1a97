// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/PicturePlaces.h"

#include "page/text/HtmlTokens.h"
#include "platform/Files.h"
#include "platform/LinkUrl.h"
#include "platform/Paths.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>
#include <QUrl>

#include <algorithm>
#include <map>

namespace velor {

namespace {

/// Maximum length of a stem, so that a number and an ending fit behind it on every system.
constexpr qsizetype LongestStem = 60;

/// The native path with links of the file system followed as far as it exists.
QString Followed(const QString &path) {
  const QFileInfo info(ToNative(path));
  const QString canonical = info.canonicalFilePath();
  if (!canonical.isEmpty()) return canonical;
  const QString folder = QFileInfo(info.path()).canonicalFilePath();
  return folder.isEmpty() ? QDir::cleanPath(info.filePath()) : folder + u'/' + info.fileName();
}

bool LiesBelow(const QString &folder, const QString &path) {
  if (folder.isEmpty()) return false;
  const QString root = Followed(folder);
  const QString place = Followed(path);
  return place == root || place.startsWith(root.endsWith(u'/') ? root : root + u'/');
}

/// Letters that have no decomposition into ASCII.
QString InAscii(const QString &text) {
  static const std::map<char16_t, const char *> letters = {{u'ß', "ss"}, {u'æ', "ae"}, {u'œ', "oe"},
                                                           {u'ø', "o"},  {u'đ', "d"},  {u'ł', "l"},
                                                           {u'þ', "th"}, {u'ð', "d"}};
  QString ascii;
  for (const QChar c : text.toLower().normalized(QString::NormalizationForm_KD)) {
    if (const auto letter = letters.find(c.unicode()); letter != letters.end()) {
      ascii += QLatin1String(letter->second);
    } else if (c.unicode() < 0x80 && c.isLetterOrNumber()) {
      ascii += c;
    } else if (!c.isMark()) {
      ascii += u'-';
    }
  }
  return ascii;
}

QString Stem(const QString &name) {
  const qsizetype dot = name.lastIndexOf(u'.');
  const QString ascii = InAscii(dot > 0 ? name.left(dot) : name);
  QString stem = ascii.split(u'-', Qt::SkipEmptyParts).join(u'-').left(LongestStem);
  while (stem.endsWith(u'-')) stem.chop(1);
  return stem;
}

/// These name devices on Windows, whatever ending follows.
bool IsDevice(const QString &stem) {
  static const QStringList devices = {QStringLiteral("con"), QStringLiteral("prn"),
                                      QStringLiteral("aux"), QStringLiteral("nul")};
  const bool isPort =
      stem.size() == 4 && stem.back().isDigit() &&
      (stem.startsWith(QStringLiteral("com")) || stem.startsWith(QStringLiteral("lpt")));
  return isPort || devices.contains(stem);
}

/// The addresses of the pictures in a page, in source order.
QStringList PicturesOf(const QString &html) {
  QStringList addresses;
  const std::uint32_t picture = HtmlNameKey(u"img");
  for (const HtmlToken &token : TokenizeHtml(html)) {
    if (token.kind != HtmlTokenKind::StartTag || token.name != picture) continue;
    for (const HtmlAttributeSlice &attribute : ReadHtmlTag(html, token.offset).attributes)
      if (attribute.NameIn(html).compare(u"src", Qt::CaseInsensitive) == 0)
        addresses << HtmlAttributeValue(attribute.ValueIn(html).trimmed());
  }
  return addresses;
}

}  // namespace

QString FolderOf(const QString &path) {
  return path.left(path.lastIndexOf(u'\\'));
}

bool LiesInSite(const PageSite &site, const QString &path) {
  return LiesBelow(FolderOf(site.page), path) || LiesBelow(site.project, path);
}

QString PictureFolder(const PageSite &site, const QString &html, const Files &files) {
  const auto isUsable = [&](const QString &folder) {
    return files.FolderExists(folder) && files.FolderWritable(folder + u'\\') &&
           LiesInSite(site, folder);
  };
  std::map<QString, int> counts;
  QString best;
  for (const QString &address : PicturesOf(html)) {
    const QString file = FileOfAddress(site.page, address);
    if (file.isEmpty() || !files.FileExists(file) || !LiesInSite(site, file)) continue;
    const QString folder = FolderOf(file);
    const int count = ++counts[folder];
    if ((best.isEmpty() || count > counts[best]) && isUsable(folder)) best = folder;
  }
  if (!best.isEmpty()) return best;
  for (const QString &parent : {FolderOf(site.page), site.project}) {
    const QString images = parent + QStringLiteral("\\images");
    if (!parent.isEmpty() && isUsable(images)) return images;
  }
  return FolderOf(site.page);
}

QString PictureStem(const QString &name, const QString &otherwise) {
  for (const QString &text : {name, otherwise}) {
    const QString stem = Stem(text);
    if (!stem.isEmpty()) return IsDevice(stem) ? stem + QStringLiteral("-picture") : stem;
  }
  return QStringLiteral("picture");
}

QString PictureAddress(const QString &page, const QString &path) {
  if (page.isEmpty()) return ToUrl(path).toString(QUrl::FullyEncoded);
  const QString way = QDir(QFileInfo(ToNative(page)).path()).relativeFilePath(ToNative(path));
  QStringList segments;
  for (const QString &segment : way.split(u'/'))
    segments << QString::fromLatin1(QUrl::toPercentEncoding(segment, "!$*+;=@"));
  return segments.join(u'/');
}

QString FileOfAddress(const QString &page, const QString &address) {
  if (address.isEmpty()) return {};
  QUrl url = UrlOfLink(address);
  if (url.isRelative()) {
    if (page.isEmpty()) return {};
    url = ToUrl(page).resolved(url);
  }
  if (const auto mapped = UrlOfMappedDrive(url)) url = *mapped;
  return url.isLocalFile() ? ToLogic(QDir::cleanPath(url.toLocalFile())) : QString();
}

}  // namespace velor
