// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/EmbeddedPictures.h"

#include "editor/MainWindow.h"
#include "editor/PageLinks.h"
#include "editor/PagePictures.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "page/text/HtmlTokens.h"
#include "platform/Words.h"

#include <QUrl>

#include <algorithm>
#include <array>

namespace velor {

namespace {

const QString Scheme = QStringLiteral("data:image/");

bool NamesAPicture(QStringView attribute) {
  static const std::array names = {u"src", u"background", u"poster"};
  return std::any_of(names.begin(), names.end(), [attribute](const char16_t *name) {
    return attribute.compare(QStringView(name), Qt::CaseInsensitive) == 0;
  });
}

/// What a data: address holds; empty where it is damaged.
QByteArray ContentOf(const QString &address) {
  const qsizetype comma = address.indexOf(u',');
  if (comma < 0) return {};
  const QByteArray data = QByteArray::fromPercentEncoding(address.sliced(comma + 1).toUtf8());
  if (!address.left(comma).endsWith(QStringLiteral(";base64"), Qt::CaseInsensitive)) return data;
  const auto decoded = QByteArray::fromBase64Encoding(
      data.simplified().replace(' ', ""),
      QByteArray::Base64Encoding | QByteArray::AbortOnBase64DecodingErrors);
  return decoded ? *decoded : QByteArray();
}

}  // namespace

std::vector<EmbeddedPicture> EmbeddedPicturesOf(const QString &html) {
  std::vector<EmbeddedPicture> pictures;
  if (!html.contains(Scheme, Qt::CaseInsensitive)) return pictures;
  for (const HtmlToken &token : TokenizeHtml(html)) {
    if (token.kind != HtmlTokenKind::StartTag) continue;
    for (const HtmlAttributeSlice &attribute : ReadHtmlTag(html, token.offset).attributes) {
      const QStringView slice = attribute.ValueIn(html).trimmed();
      if (!NamesAPicture(attribute.NameIn(html)) || !slice.startsWith(Scheme, Qt::CaseInsensitive))
        continue;
      const QByteArray content = ContentOf(HtmlAttributeValue(slice));
      if (!content.isEmpty())
        pictures.push_back({slice.data() - html.constData(), slice.size(), content});
    }
  }
  return pictures;
}

void TakePicturesOut(frmMain &page) {
  const QString html = page.DHTML1().TextToSave();
  std::vector<BrokenLink> links;
  for (const EmbeddedPicture &picture : EmbeddedPicturesOf(html)) {
    const QString address = page.Pictures().TakeBytes(picture.content).address;
    if (address.isEmpty()) continue;  // the status bar says why
    links.push_back({.offset = picture.offset,
                     .length = picture.length,
                     .isPicture = true,
                     .target = {},
                     .adapted = address});
  }
  StatusDisplay &status = page.Context().mainWindow.status;
  if (links.empty()) {
    if (!status.HasNotice())
      status.ReportOn(page.Number(), Words::tr("No picture stands in this page's text"));
    return;
  }
  const PageRecord record = page.GetPageRecord();
  page.DHTML1().LoadText(WithAdapted(html, links),
                         record.Path.isEmpty() ? record.TempPath : record.Path);
  status.ReportOn(page.Number(), links.size() == 1
                                     ? Words::tr("One picture of this page is a file now")
                                     : Words::tr("%n pictures of this page are files now", nullptr,
                                                 static_cast<int>(links.size())));
}

}  // namespace velor
