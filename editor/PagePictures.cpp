// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/PagePictures.h"

#include "app/settings/modSettingManager.h"
#include "editor/MainWindow.h"
#include "editor/PageSlots.h"
#include "editor/PictureBar.h"
#include "editor/PictureTextBox.h"
#include "editor/frmMain.h"
#include "editor/modGeneral.h"
#include "platform/Files.h"
#include "platform/Platform.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <QImage>
#include <QPointer>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <optional>
#include <utility>
#include <vector>

namespace velor {

namespace {

constexpr const Preference &CopyPictures = PreferenceOf("CopyPictures");

/// How often, and after how long, a page's text is looked at for a picture that was put into it.
/// One that is not in it then was taken out again.
constexpr int MostLooks = 4;
constexpr std::chrono::milliseconds LookAgain{300};

PictureChoices ChoicesOf(const Registry &registry) {
  using modSettingManager::IsOn;
  return {IsOn(registry, PreferenceOf("PhotosAsWebP")) ? PhotoFormat::WebP : PhotoFormat::Jpeg,
          IsOn(registry, PreferenceOf("KeepPictureData")) ? PictureDetails::Keep
                                                          : PictureDetails::Remove};
}

std::vector<frmMain *> OtherPages(EditorContext &context, int number) {
  std::vector<frmMain *> pages;
  for (int other = 1; other <= context.pages.PageCount(); ++other) {
    frmMain *page = context.pages.Page(other);
    if (other != number && page != nullptr) pages.push_back(page);
  }
  return pages;
}

/// The file that a data: address holds; nothing for another address.
std::optional<QByteArray> ContentOfAddress(const QString &address) {
  if (!address.startsWith(u"data:", Qt::CaseInsensitive)) return {};
  const QString form = address.section(u',', 0, 0);
  const QByteArray content = QByteArray::fromPercentEncoding(address.section(u',', 1).toUtf8());
  return form.endsWith(u";base64", Qt::CaseInsensitive) ? QByteArray::fromBase64(content) : content;
}

QString PictureTag(const PagePictures::InPage &picture) {
  QString tag = QStringLiteral("<img src=\"%1\"").arg(picture.address);
  if (!picture.size.isEmpty())
    tag += QStringLiteral(" width=\"%1\" height=\"%2\"")
               .arg(picture.size.width())
               .arg(picture.size.height());
  return tag + u'>';
}

}  // namespace

bool NamesFile(const QString &html, const QString &path) {
  return html.contains(modGeneral::FileNameOfPath(path));
}

bool IsNamedByOpenPage(EditorContext &context, int but, const QString &path) {
  const std::vector<frmMain *> pages = OtherPages(context, but);
  return std::any_of(pages.begin(), pages.end(), [&](frmMain *page) {
    return NamesFile(page->DHTML1().Memory().document, path);
  });
}

PagePictures::PagePictures(EditorContext &context, frmMain &page)
    : context_(context),
      page_(page),
      bar_(new PictureBar(&page)),
      textBox_(new PictureTextBox(*page.DHTML1().Widget())),
      copied_(context.platform.files, context.platform.replaced,
              [&context, number = page.Number()](const QString &path) {
                return IsNamedByOpenPage(context, number, path);
              }),
      rewritten_(context.platform.files, context.platform.replaced) {
  QObject::connect(bar_, &PictureBar::CopyChosen, [this] { CopyAll(); });
  QObject::connect(bar_, &PictureBar::LinkChosen, [this] { LinkAll(); });
  QObject::connect(bar_, &PictureBar::UndoChosen, [this] { UndoAll(); });
  QObject::connect(textBox_, &PictureTextBox::Left, [this] {
    AskForText({});
    page_.DHTML1().SetFocus();
  });
  QObject::connect(textBox_, &PictureTextBox::TextGiven, [this](const QString &text) {
    if (!arrivals_.empty())
      page_.DHTML1().Document().ChangePicture(arrivals_.front().address,
                                              {{QStringLiteral("alt"), text}});
  });
}

PagePictures::~PagePictures() {
  // These are children of the page's widgets and may outlive this.
  bar_->disconnect();
  if (textBox_ != nullptr) textBox_->disconnect();
}

QWidget &PagePictures::Bar() {
  return *bar_;
}

bool PagePictures::HasPath() const {
  return !context_.pages.Record(page_.Number()).Path.isEmpty();
}

PageSite PagePictures::Site() const {
  const PageRecord &record = context_.pages.Record(page_.Number());
  if (!HasPath()) return {record.TempPath};
  return {record.Path, context_.pages.Site(page_.Number())};
}

PictureCopier PagePictures::Copier() const {
  return {context_.platform.files, Site(), HasPath() ? page_.DHTML1().Memory().document : QString(),
          ChoicesOf(context_.platform.registry)};
}

template <typename Take>
PagePictures::InPage PagePictures::Have(const QString &source, Asks asks, Take take) {
  try {
    SitePicture picture = take(Copier());
    if (!HasPath()) {
      picture.address = PictureAddress({}, picture.path);
      NoteHomeless(picture.address, picture.path, Place::BesideTheCopy);
    }
    copied_.Add(picture);
    const QString copy = picture.path == source ? QString() : picture.path;
    Announce({source, copy, picture.address, picture.notice, asks});
    return {picture.address, picture.size};
  } catch (const RuntimeError &error) {
    Report(Words::tr("The picture could not be put into the site: %1").arg(error.Description()));
    return {};
  }
}

PagePictures::InPage PagePictures::HaveFile(const QString &path, Asks asks) {
  const bool isCopied = modSettingManager::IsOn(context_.platform.registry, CopyPictures);
  if (!HasPath() || (!isCopied && !LiesInSite(Site(), path))) return Link(path, asks);
  const InPage picture =
      Have(path, asks, [&](PictureCopier copier) { return copier.TakeFile(path); });
  return picture.address.isEmpty() ? Link(path, asks) : picture;
}

PagePictures::InPage PagePictures::Link(const QString &path, Asks asks) {
  const QString page = context_.pages.Record(page_.Number()).Path;
  const QString address = PictureAddress(page, path);
  if (page.isEmpty()) NoteHomeless(address, path, Place::WhereItLies);
  Announce({path, {}, address, {}, asks});
  return {address, SizeOfPicture(path)};
}

PagePictures::InPage PagePictures::TakeFile(const QString &path) {
  return context_.hasAdditions ? HaveFile(path, Asks::ForText) : InPage();
}

PagePictures::InPage PagePictures::TakeChosenFile(const QString &path) {
  if (!context_.hasAdditions || !HasPath() || LiesInSite(Site(), path)) return {};
  return HaveFile(path, Asks::Nothing);
}

PagePictures::InPage PagePictures::TakeBytes(const QByteArray &content) {
  if (!context_.hasAdditions) return {};
  return Have({}, Asks::ForText, [&](PictureCopier copier) { return copier.TakeBytes(content); });
}

bool PagePictures::PutIn(const QImage &image) {
  if (!context_.hasAdditions) return false;
  const InPage picture =
      Have({}, Asks::ForText, [&](PictureCopier copier) { return copier.TakeImage(image); });
  if (!picture.address.isEmpty())
    page_.DHTML1().Document().Selection().CreateRange()->PasteHTML(PictureTag(picture));
  return true;
}

void PagePictures::NoteHomeless(const QString &address, const QString &path, Place place) {
  const auto now = std::make_shared<QString>(path);
  homeless_.push_back({address, path, now, place});
  context_.pages.FullAddresses(page_.Number()).push_back({address, [now](const QString &page) {
                                                            return PictureAddress(page, *now);
                                                          }});
}

void PagePictures::TakePasted(const QStringList &addresses) {
  if (!context_.hasAdditions) return;
  for (const QString &address : addresses) {
    InPage picture;
    if (const auto content = ContentOfAddress(address)) {
      picture = TakeBytes(*content);
    } else {
      const QString path = FileOfAddress(context_.pages.Record(page_.Number()).Path, address);
      if (path.isEmpty() || !context_.platform.files.FileExists(path)) continue;
      picture = TakeFile(path);
    }
    if (picture.address.isEmpty() || picture.address == address) continue;
    page_.DHTML1().Document().ChangePicture(address, {{QStringLiteral("src"), picture.address}});
  }
}

void PagePictures::Announce(const Arrival &arrival) {
  if (!std::exchange(isGathering_, true)) {
    arrivals_.clear();
    QTimer::singleShot(0, bar_, [this] { NoteArrivals(); });
  }
  arrivals_.push_back(arrival);
}

void PagePictures::NoteArrivals() {
  isGathering_ = false;
  if (!arrivals_.empty()) ShowBar();
  FollowArrivals(MostLooks);
}

void PagePictures::FollowArrivals(int looks) {
  if (!page_.DHTML1().IsWaiting()) {
    const QPointer<frmMain> alive = &page_;
    const QString html = page_.DHTML1().DocumentHTML();
    if (alive == nullptr) return;
    if (--looks == 0) copied_.ExpectAll();
    copied_.Follow(html);
  }
  // A picture that is on its way into the page may be behind what is typed.
  if (copied_.AwaitsAny())
    QTimer::singleShot(LookAgain, bar_, [this, looks] { FollowArrivals(looks); });
}

void PagePictures::ShowBar() {
  using Offer = PictureBar::Offer;
  const auto isCopy = [](const Arrival &one) {
    return !one.source.isEmpty() && !one.path.isEmpty();
  };
  const auto isLink = [this](const Arrival &one) {
    return one.path.isEmpty() && HasPath() && !LiesInSite(Site(), one.source);
  };
  Offer offer = Offer::Nothing;
  if (std::any_of(arrivals_.begin(), arrivals_.end(), isLink)) offer = Offer::Copy;
  if (std::any_of(arrivals_.begin(), arrivals_.end(), isCopy)) offer = Offer::Link;

  const Arrival &first = arrivals_.front();
  const QString file =
      modGeneral::FileNameOfPath(first.source.isEmpty() ? first.path : first.source);
  QString text;
  if (arrivals_.size() > 1) {
    const int count = static_cast<int>(arrivals_.size());
    text = offer == Offer::Link   ? Words::tr("%n pictures are in the site now.", nullptr, count)
           : offer == Offer::Copy ? Words::tr("%n pictures lie outside the site.", nullptr, count)
                                  : Words::tr("%n pictures were put in.", nullptr, count);
  } else if (offer == Offer::Link) {
    text = Words::tr("%1 was copied into the site: %2.").arg(file, first.address);
  } else if (offer == Offer::Copy) {
    text = Words::tr("%1 lies outside the site.").arg(file);
  } else {
    text = Words::tr("%1 was put in.").arg(file);
  }
  if (arrivals_.size() == 1 && !first.notice.isEmpty()) text += u' ' + first.notice;
  const bool asks = arrivals_.size() == 1 && first.asks == Asks::ForText;
  bar_->ShowArrival(text, offer);
  AskForText(asks ? first.address : QString());
}

void PagePictures::AskForText(const QString &address) {
  address.isEmpty() ? textBox_->End() : textBox_->Begin();
  page_.DHTML1().Document().AskAboutPicture(address);
}

void PagePictures::PlaceTextBox() {
  const QRect picture = page_.DHTML1().Document().AskedPicture();
  const double zoom = page_.DHTML1().Zoom();
  textBox_->PlaceAt(
      QRectF(picture.topLeft() * zoom, QSizeF(picture.size()) * zoom).toAlignedRect());
}

void PagePictures::LinkAll() {
  modSettingManager::SetOption(context_.platform.registry, CopyPictures.Name(),
                               QStringLiteral("False"));
  for (const Arrival &arrival : std::exchange(arrivals_, {})) {
    if (arrival.source.isEmpty()) continue;
    const QString address = Link(arrival.source, arrival.asks).address;
    page_.DHTML1().Document().ChangePicture(arrival.address, {{QStringLiteral("src"), address}});
  }
}

void PagePictures::CopyAll() {
  modSettingManager::SetOption(context_.platform.registry, CopyPictures.Name(),
                               QStringLiteral("True"));
  for (const Arrival &arrival : std::exchange(arrivals_, {})) {
    if (arrival.source.isEmpty()) continue;
    const QString address = HaveFile(arrival.source, arrival.asks).address;
    page_.DHTML1().Document().ChangePicture(arrival.address, {{QStringLiteral("src"), address}});
  }
}

void PagePictures::UndoAll() {
  for (const Arrival &arrival : std::exchange(arrivals_, {}))
    page_.DHTML1().Document().RemovePicture(arrival.address);
  AskForText({});
  bar_->hide();
}

void PagePictures::Follow() {
  if (copied_.IsEmpty() && rewritten_.IsEmpty()) return;
  const QString text = page_.DHTML1().Memory().document;
  rewritten_.Follow(text);
  copied_.Follow(text);
}

void PagePictures::MarkSaved() {
  rewritten_.MarkSaved();
  const QString &html = context_.pages.Record(page_.Number()).SavedHTML;
  copied_.MarkSaved(html);
  for (frmMain *page : OtherPages(context_, page_.Number())) {
    page->Pictures().copied_.LeaveToSite(
        [&](const QString &path) { return NamesFile(html, path); });
  }
}

void PagePictures::RemoveUnsaved() {
  // First: a copy that holds what it was made with can go.
  rewritten_.RemoveUnsaved();
  copied_.RemoveUnsaved();
}

void PagePictures::MoveInto(const QString &to, const QString &html) {
  if (!context_.hasAdditions) return;
  PictureCopier copier(context_.platform.files, {to}, {}, ChoicesOf(context_.platform.registry));
  const bool isCopied = modSettingManager::IsOn(context_.platform.registry, CopyPictures);
  for (const Homeless &picture : homeless_) {
    const bool isOurs = picture.place == Place::BesideTheCopy;
    if (!html.contains(picture.address) || (!isOurs && !isCopied)) continue;
    try {
      const SitePicture moved =
          isOurs ? copier.TakeBytes(context_.platform.files.ReadAll(picture.path))
                 : copier.TakeFile(picture.path);
      *picture.now = moved.path;
      copied_.Add(moved);
    } catch (const RuntimeError &error) {
      Report(Words::tr("A picture could not be put into the site: %1").arg(error.Description()));
    }
  }
}

void PagePictures::MoveBack() {
  for (const Homeless &picture : homeless_) *picture.now = picture.path;
  copied_.RemoveUnseen();
}

void PagePictures::Report(const QString &message) const {
  context_.mainWindow.status.ReportOn(page_.Number(), message);
}

}  // namespace velor
