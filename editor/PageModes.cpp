// SPDX-License-Identifier: GPL-3.0-or-later
// frmMain: its four modes, and the page as text.
#include "chrome/ToolBarButtons.h"
#include "editor/FindBar.h"
#include "editor/MainWindow.h"
#include "editor/PageFrame.h"
#include "editor/PageSlots.h"
#include "editor/PageWidths.h"
#include "editor/SourceCaret.h"
#include "editor/SourceWrap.h"
#include "editor/SpellingBar.h"
#include "editor/frmBrowser.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "editor/modWorkFlow.h"
#include "platform/LinkUrl.h"
#include "platform/Paths.h"
#include "platform/Platform.h"
#include "platform/Runtime.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <QStackedLayout>

namespace velor {

namespace {

/// The base of relative links for the preview of a page without a temporary copy.
QUrl BaseOf(const PageRecord &record, const Runtime &runtime) {
  return record.Path.isEmpty() ? ToUrl(runtime.ProgramFolder() + QStringLiteral("\\"))
                               : ToUrl(record.Path);
}

}  // namespace

void frmMain::ChangeMode(std::int32_t mode) {
  switch (mode) {
    case 1:
      ShowDesign();
      break;
    case 2:
      ViewHtml();
      break;
    case 3:
      EditHtml();
      break;
    case 4:
      Preview();
      break;
    default:
      break;
  }
}

void frmMain::ShowDesign() {
  ReturnCaretFromSource();
  views_->setCurrentWidget(&widths_->Frame());
  setFocusProxy(component_->Widget());
  component_->SetFocus();
  ShowMode();
}

void frmMain::ViewHtml() {
  views_->setCurrentWidget(source_->Widget());
  RefreshSourceView();
  setFocusProxy(source_->Widget());
  source_->SetFocus();
  ShowMode();
}

void frmMain::RefreshSourceView() {
  if (View() != FrontView::SourceView) return;
  source_->SetLineWrap(ChosenLineWrap(context_.platform.registry));
  try {
    const ElementStretch places = component_->SelectedPlaces();
    source_->SetText(CreatorHTML());
    ShowStretchIn(*source_, places);
    shownCaret_ = CaretOf(*source_);
  } catch (const RuntimeError &error) {
    context_.mainWindow.status.Report(
        Words::tr("The page's HTML could not be read: %1").arg(error.Description()));
  }
}

void frmMain::ShowMode() {
  QuickButton(u"design")->ShowChecked(View() == FrontView::Design);
  QuickButton(u"viewcode")->ShowChecked(View() == FrontView::SourceView);
  if (View() == FrontView::Design)
    findBar_->SetTarget(component_->Search());
  else
    findBar_->SetTarget(sourceSearch_);
  spellingBar_->hide();
  widths_->ShowBar();
  if (!IsInFront()) return;
  context_.mainWindow.commands.Refresh();
  ShowState();
}

FrontView frmMain::View() const {
  return views_->currentWidget() == source_->Widget() ? FrontView::SourceView : FrontView::Design;
}

PageSpelling *frmMain::SpellCheck() {
  if (View() == FrontView::SourceView) return &sourceSpelling_;
  return component_->SpellCheck();
}

QString frmMain::ShownName() const {
  return windowTitle();
}

void frmMain::Edit(EditingCommand command) {
  if (View() == FrontView::Design) {
    component_->ExecCommand(command);
  } else if (command == EditingCommand::Copy || command == EditingCommand::SelectAll) {
    source_->Edit(command);
  }
}

void frmMain::ReturnCaretFromSource() {
  const bool moved = View() == FrontView::SourceView && CaretOf(*source_) != shownCaret_;
  if (moved) component_->ShowStretch(SelectedPlacesOf(*source_));
}

void frmMain::EditHtml() {
  const Bool16 before = context_.pages.Record(number_).EditorOpen;
  context_.pages.Record(number_).EditorOpen = True16;
  try {
    ShowEditor();
  } catch (...) {
    // The editor did not open: EditorOpen would keep the page from closing.
    context_.pages.Record(number_).EditorOpen = before;
    throw;
  }
}

void frmMain::ShowEditor() {
  frmCodeEditor &editor = modWorkFlow::SourceEditor(context_, number_);
  const std::optional<QString> typed = editor.UnappliedText();
  editor.AppliedText = CreatorHTML();
  const ElementStretch places = component_->SelectedPlaces();
  const QString source = CreatorHTML();
  if (typed) {
    editor.Refill(source, places, *typed);
  } else {
    editor.Fill(source, places);
  }
  editor.setWindowTitle(GetPageRecord().Caption);
  context_.mainWindow.windows.Show(&editor);
  editor.Code().SetFocus();
}

void frmMain::ReopenEditor(const QString &source) {
  EditHtml();
  modWorkFlow::SourceEditor(context_, number_).Fill(source, {});
}

void frmMain::FollowLink(const QString &address) {
  const PageRecord record = GetPageRecord();
  if (address.isEmpty()) {
    context_.mainWindow.status.Report(tr("There is no link at the caret"));
    return;
  }
  if (address.startsWith(u'#')) return Preview(address.sliced(1));
  const QUrl link = UrlOfLink(address);
  if (record.Path.isEmpty() && link.isRelative()) {
    context_.mainWindow.status.Report(tr("The link leads nowhere before the page is saved"));
    return;
  }
  const QUrl own = ToUrl(record.Path);
  const QUrl wanted = link.isRelative() ? own.resolved(link) : link;
  if (wanted.matches(own, QUrl::RemoveFragment)) return Preview(wanted.fragment());
  const bool isShown = wanted.isLocalFile() || wanted.scheme().startsWith(u"http");
  if (!isShown) {
    context_.mainWindow.status.Report(tr("%1 is for another program").arg(address));
    return;
  }
  frmBrowser &preview = PreviewWindow(context_);
  preview.SetPage(number_);
  preview.WebBrowser().SetSite(FindIgnoringCase(context_.pages.Site(number_)));
  context_.mainWindow.windows.Show(&preview);
  preview.WebBrowser().Navigate(UrlOfMappedDrive(wanted).value_or(wanted));
}

void frmMain::Preview(const QString &fragment) {
  const auto at = [&fragment](QUrl url) {
    url.setFragment(fragment.isEmpty() ? QString() : fragment);
    return url;
  };
  const PageRecord record = GetPageRecord();
  frmBrowser &preview = PreviewWindow(context_);
  preview.SetPage(number_);
  preview.WebBrowser().SetSite(FindIgnoringCase(context_.pages.Site(number_)));
  if (record.ReadOnly != False16) {
    context_.mainWindow.windows.Show(&preview);
    preview.WebBrowser().Navigate(at(ToUrl(record.Path)));
    return;
  }
  const QString text = CreatorHTML();
  const bool written = RenewTemporaryCopy(text, modWorkFlow::CopyEnd::LineBreak);
  context_.mainWindow.windows.Show(&preview);
  if (written) {
    preview.WebBrowser().Navigate(at(ToUrl(record.TempPath)));
  } else {
    preview.WebBrowser().NavigateToText(text, BaseOf(record, context_.platform.runtime));
  }
}

QString frmMain::CreatorHTML() {
  const QString text = component_->TextToSave();
  RenewTemporaryCopy(text, modWorkFlow::CopyEnd::Nothing);
  return text;
}

bool frmMain::RenewTemporaryCopy(const QString &text, modWorkFlow::CopyEnd end) {
  try {
    return modWorkFlow::WriteTemporaryCopy(context_, number_, text, end);
  } catch (const RuntimeError &) {
    return false;  // a full disk, say: the page's text does without the copy
  }
}

}  // namespace velor
