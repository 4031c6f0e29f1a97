// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/PropertyDialogs.h"

#include "app/window/LinksOfPage.h"
#include "editor/EditorContext.h"
#include "editor/PageCharset.h"
#include "editor/PageSlots.h"
#include "editor/SitePages.h"
#include "editor/frmMain.h"
#include "insert/LinkPaths.h"
#include "platform/Dialogs.h"
#include "platform/Platform.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"
#include "properties/PropertyHost.h"
#include "properties/frmProperties.h"

#include <QPointer>

#include <memory>
#include <optional>

namespace velor {
namespace {

const QString Charset = QStringLiteral("charset");
/// Values that are addresses of pictures, which become part of the site.
const QStringList PictureFields = {QStringLiteral("src"), QStringLiteral("picture")};
/// Characters that a message lists.
constexpr int MostListed = 20;

/// The page that a dialog is about, and what is around it.
class PageAround final : public PropertyHost {
 public:
  explicit PageAround(frmMain &page)
      : page_(&page), path_(PathForLinks(page, Additions::On)), context_(page.Context()) {}

  QString Browse(const QString &filter) override {
    if (!fileDialog_) {
      fileDialog_ = context_.platform.components.CreateFileDialog();
      fileDialog_->FileName = path_;
    }
    const QString file = BrowseForFile(*fileDialog_, filter);
    if (file.isEmpty() || page_.isNull()) return {};
    const QString address = LinkToFile(path_, file);
    if (path_.isEmpty()) NoteFullAddress(*page_, address, file);
    return address;
  }

  QStringList Offers(const QString &address) override {
    if (page_.isNull()) return {};
    QStringList offers;
    const QString target = address.section(u'#', 0, 0);
    if (!target.isEmpty())
      for (const QString &name : PlacesOf(*page_, path_, target)) offers << target + u'#' + name;
    if (!ownPlaces_) ownPlaces_ = PlacesOf(*page_, path_, {});
    for (const QString &name : *ownPlaces_) offers << u'#' + name;
    if (!pages_) pages_ = PagesAround(path_, context_.pages.Site(page_->Number()));
    for (const QString &file : *pages_) offers << LinkToFile(path_, file);
    return offers;
  }

  QStringList Charsets() override { return CharsetsForPages(); }

  QString Objection(const PropertyValues &changed) override {
    const QString charset = changed.value(Charset);
    if (charset.isEmpty() || page_.isNull()) return {};
    try {
      EditingComponent &component = page_->DHTML1();
      if (const QString why = ReasonNotToConvert(component); !why.isEmpty()) return why;
      const QStringList lacking = CharactersLacking(component, charset);
      if (lacking.isEmpty() || Agrees(charset, lacking)) return {};
      return Words::tr("The page keeps its charset %1.").arg(component.Charset());
    } catch (const RuntimeError &error) {
      return error.Description();
    }
  }

  void Change(PropertyOwner owner, PropertyValues changed) {
    if (page_.isNull()) return;
    for (const QString &field : PictureFields) {
      const QString own = OwnPictureAddress(*page_, path_, changed.value(field));
      if (!own.isEmpty()) changed[field] = own;
    }
    try {
      page_->DHTML1().Document().SetProperties(owner, changed);
    } catch (const RuntimeError &error) {
      context_.platform.dialogs.ShowMessage({.text = error.Description()});
    }
  }

 private:
  /// Whether these characters may become references.
  bool Agrees(const QString &charset, const QStringList &lacking) {
    QString list = lacking.mid(0, MostListed).join(u'\n');
    const auto more = static_cast<int>(lacking.size()) - MostListed;
    if (more > 0) list += u'\n' + Words::tr("and %n more", nullptr, more);
    const Message question{
        .text = Words::tr("The charset %1 lacks these characters of the page. They become "
                          "references such as &#8364;, which browsers show as before.")
                    .arg(charset),
        .details = list,
        .icon = MessageIcon::Question};
    return context_.platform.dialogs.Choose(
               question, {Words::tr("Convert the Page"), Words::tr("Cancel")}) == 0;
  }

  QPointer<frmMain> page_;
  const QString path_;
  EditorContext &context_;
  std::unique_ptr<FileDialog> fileDialog_;
  std::optional<QStringList> ownPlaces_;
  std::optional<QStringList> pages_;
};

}  // namespace

bool ShowProperties(frmMain &page, PropertyOwner owner) {
  const QPointer<frmMain> alive = &page;
  const PropertyValues values = page.DHTML1().Document().Properties(owner);
  if (alive.isNull() || values.isEmpty()) return false;
  PageAround around(page);
  frmProperties dialog(SheetOf(owner.subject), values, page.window(), &around);
  QObject::connect(
      &dialog, &frmProperties::Changed, &dialog,
      [&around, owner](const PropertyValues &changed) { around.Change(owner, changed); });
  page.Context().platform.dialogs.RunModal(dialog);
  return true;
}

void ShowCaretElement(frmMain &page) {
  const HtmlDocument &document = page.DHTML1().Document();
  const auto count = static_cast<int>(document.Path().size());
  if (count > 0) ShowProperties(page, {PropertySubject::Element, document.PathElement(count - 1)});
}

}  // namespace velor
