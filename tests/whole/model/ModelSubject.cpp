// SPDX-License-Identifier: GPL-3.0-or-later
// The program's window with real files, journals and settings, driven by lines on its standard
// input. Usage: velor-model-subject fake|real A line is a JSON object: `do` names the deed, `path`,
// `paths`, `text`, `answer` and `page` say more. Each is answered by one line, an object that tells
// what a person would see then (Tell). The program is meant to be killed between two lines.
#include "app/window/MfrmProgram.h"
#include "editor/OutsideChanges.h"
#include "editor/PageSlots.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "engine/PageScheme.h"
#include "files/QtFiles.h"
#include "files/ReplacedFiles.h"
#include "files/TemporaryCopyFiles.h"
#include "platform/Dialogs.h"
#include "platform/Paths.h"
#include "platform/Platform.h"
#include "platform/ProgramValues.h"
#include "platform/RuntimeError.h"
#include "qt/QtComponents.h"
#include "qt/QtRegistry.h"
#include "qt/QtRuntime.h"
#include "recovery/JournalFiles.h"
#include "tests/support/FakeBrowser.h"
#include "tests/support/FakeEditingComponent.h"
#include "tests/support/FakeFileWatches.h"
#include "tests/support/FakeSourceControl.h"
#include "tests/support/FaultyCalls.h"
#include "tests/support/Waiting.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMimeData>
#include <QPushButton>
#include <QStatusBar>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <iostream>
#include <string>

namespace velor {
namespace {

constexpr int Patience = 30'000;  // ms

/// A person whose answers are known beforehand.
class AnsweringDialogs final : public Dialogs {
 public:
  MessageAnswer answer = MessageAnswer::Yes;
  QJsonArray messages;  ///< texts shown since they were last told

  MessageAnswer ShowMessage(const Message &message) override {
    messages.append(message.text);
    if (message.buttons == MessageButtons::Ok) return MessageAnswer::Ok;
    if (message.buttons == MessageButtons::YesNo && answer == MessageAnswer::Cancel)
      return MessageAnswer::No;
    return answer;
  }
  int Choose(const Message &message, const QStringList &captions) override {
    messages.append(message.text);
    return answer == MessageAnswer::Yes ? 0 : static_cast<int>(captions.size()) - 1;
  }
  QString AskText(const QString &, const QString &, const QString &) override { return {}; }
  void RunModal(QWidget &dialog) override { messages.append(dialog.objectName()); }
};

/// A file dialog whose person chooses the path that is known beforehand; none: cancels.
class AnsweringFileDialog final : public FileDialog {
 public:
  explicit AnsweringFileDialog(const QString &chosen) : chosen_(chosen) {}
  QString ShowOpen() override { return Show(); }
  QString ShowSave() override { return Show(); }

 private:
  QString Show() {
    if (chosen_.isEmpty()) {
      if (CancelError) throw RuntimeError::Of(ErrorNumber::DialogCancelled, QStringLiteral("Show"));
      return {};
    }
    FileName = chosen_;
    return chosen_;
  }
  const QString &chosen_;
};

enum class Engine { StandIn, Real };

class ModelComponents final : public Components {
 public:
  ModelComponents(Files &files, const QString &programFolder, Engine engine)
      : files_(files), real_(files, programFolder), engine_(engine) {}

  QString chosenPath;  ///< what the next file dialogs answer

  std::unique_ptr<EditingComponent> CreateEditingComponent(QWidget *parent) override {
    if (engine_ == Engine::Real) return real_.CreateEditingComponent(parent);
    return std::make_unique<FakeEditingComponent>(files_, parent);
  }
  std::unique_ptr<SourceControl> CreateSourceControl(QWidget *parent,
                                                     SourceAccess access) override {
    if (engine_ == Engine::Real) return real_.CreateSourceControl(parent, access);
    return std::make_unique<FakeSourceControl>(parent, access);
  }
  std::unique_ptr<Browser> CreateBrowser(QWidget *parent) override {
    if (engine_ == Engine::Real) return real_.CreateBrowser(parent);
    return std::make_unique<FakeBrowser>(parent);
  }
  std::unique_ptr<FileDialog> CreateFileDialog() override {
    return std::make_unique<AnsweringFileDialog>(chosenPath);
  }
  std::unique_ptr<DatabaseConnection> CreateDatabaseConnection() override {
    return real_.CreateDatabaseConnection();
  }

 private:
  Files &files_;
  QtComponents real_;
  Engine engine_;
};

class Subject {
 public:
  explicit Subject(Engine engine)
      : engine_(engine), components_(files_, runtime_.ProgramFolder(), engine) {
    QObject::connect(&window_, &MfrmProgram::Unloaded, [this] { hasEnded_ = true; });
    copies_.RemoveAbandoned();
    window_.Load();
  }

  bool HasEnded() const { return hasEnded_; }

  void Do(const QJsonObject &deed) {
    const QString what = deed[QStringLiteral("do")].toString();
    const QString path = deed[QStringLiteral("path")].toString();
    const QString text = deed[QStringLiteral("text")].toString();
    components_.chosenPath = path.isEmpty() ? QString() : ToLogic(path);
    const QString answer = deed[QStringLiteral("answer")].toString();
    dialogs_.answer = answer == QStringLiteral("yes")  ? MessageAnswer::Yes
                      : answer == QStringLiteral("no") ? MessageAnswer::No
                                                       : MessageAnswer::Cancel;
    frmMain *page = ActivePage();
    if (what == QStringLiteral("new")) Choose("mnuNew");
    if (what == QStringLiteral("open")) Choose("mnuOpen");
    if (what == QStringLiteral("drop")) Drop(deed[QStringLiteral("paths")].toArray());
    if (what == QStringLiteral("switch")) Switch(deed[QStringLiteral("page")].toInt());
    if (what == QStringLiteral("save")) Choose("mnuSave");
    if (what == QStringLiteral("saveas")) Choose("mnuSaveAs");
    if (what == QStringLiteral("full")) calls_.Fail(FaultyCalls::Call::Write, ENOSPC);
    if (what == QStringLiteral("room")) calls_.Fail(FaultyCalls::Call::Write, ENOSPC, 1 << 30);
    if (what == QStringLiteral("restore")) RestoreFirst();
    if (what == QStringLiteral("exit")) window_.close();
    if (what == QStringLiteral("changed")) watches_.Change(ToLogic(path));
    if (page == nullptr) return;
    if (what == QStringLiteral("undo")) Undo(*page);
    if (what == QStringLiteral("theirs") && !page->Outside().isHidden())
      page->Outside().findChild<QPushButton *>(QStringLiteral("cmdTakeTheirs"))->click();
    if (what == QStringLiteral("type")) Type(*page, text);
    if (what == QStringLiteral("paste")) PasteFiles(*page, deed[QStringLiteral("paths")].toArray());
    if (what == QStringLiteral("view")) page->ChangeMode(2);
    if (what == QStringLiteral("design")) page->ChangeMode(1);
    if (what == QStringLiteral("preview")) page->ChangeMode(4);
    if (what == QStringLiteral("edit")) page->ChangeMode(3);
    if (what == QStringLiteral("source")) TypeSource(*page, text);
    if (what == QStringLiteral("apply")) Apply(*page);
    if (what == QStringLiteral("closesource")) CloseSource(*page);
    if (what == QStringLiteral("close")) page->close();
  }

  /// Until nothing is on its way any more.
  void Settle() {
    // What was put off until the event loop runs comes before this.
    bool hasComeRound = false;
    QTimer::singleShot(0, [&] { hasComeRound = true; });
    (void)WaitFor([&] { return hasComeRound; }, Patience);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    (void)WaitFor([this] { return EachPage([](frmMain &p) { return p.PendingAction.isEmpty(); }); },
                  Patience);
    EachPage([](frmMain &p) {
      p.Journal().Flush();
      return true;
    });
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  QJsonObject Tell() {
    QJsonArray pages;
    EachPage([&](frmMain &page) {
      const PageRecord record = page.GetPageRecord();
      QJsonObject told{{QStringLiteral("number"), page.Number()},
                       {QStringLiteral("tab"), TabOf(page)},
                       {QStringLiteral("path"), ToNative(record.Path)},
                       {QStringLiteral("text"), page.DHTML1().DocumentHTML()},
                       {QStringLiteral("active"), &page == ActivePage()}};
      if (frmCodeEditor *editor = Editor(page))
        told.insert(QStringLiteral("source"), editor->Code().Text());
      pages.append(told);
      return true;
    });
    const QJsonObject seen{
        {QStringLiteral("pages"), pages},
        {QStringLiteral("tabs"), Tabs().count()},
        {QStringLiteral("offers"), static_cast<int>(Offers().size())},
        {QStringLiteral("messages"), dialogs_.messages},
        {QStringLiteral("status"),
         window_.findChild<QStatusBar *>(QStringLiteral("Sta"))->currentMessage()}};
    dialogs_.messages = {};
    return seen;
  }

 private:
  template <typename Look>
  bool EachPage(Look look) {
    PageSlots &slots = window_.Context().pages;
    for (int number = 1; number <= slots.PageCount(); ++number) {
      frmMain *page = slots.Page(number);
      if (page != nullptr && page->Tag != QStringLiteral("kill") && !look(*page)) return false;
    }
    return true;
  }
  QTabBar &Tabs() { return *window_.findChild<QTabBar *>(QStringLiteral("FileTab")); }
  void Choose(const char *item) {
    window_.findChild<QAction *>(QString::fromLatin1(item))->trigger();
  }
  /// The page whose tab is chosen.
  frmMain *ActivePage() {
    const int tab = Tabs().currentIndex();
    frmMain *active = nullptr;
    EachPage([&](frmMain &page) {
      if (tab >= 0 && Tabs().tabData(tab).toString() == PageKey(page.Number())) active = &page;
      return true;
    });
    return active;
  }
  /// Its caption; empty for a page without a tab.
  QString TabOf(frmMain &page) {
    for (int tab = 0; tab < Tabs().count(); ++tab)
      if (Tabs().tabData(tab).toString() == PageKey(page.Number())) return Tabs().tabText(tab);
    return {};
  }
  frmCodeEditor *Editor(frmMain &page) {
    frmCodeEditor *editor = window_.Context().pages.CodeEditor(page.Number());
    return editor != nullptr && page.GetPageRecord().EditorOpen != False16 ? editor : nullptr;
  }
  void Switch(int index) {
    if (Tabs().count() > 0) window_.Opener().ActivatePage(NumberOfTab(index % Tabs().count()));
  }
  int NumberOfTab(int tab) {
    Tabs().setCurrentIndex(tab);
    return Tabs().tabData(tab).toString().mid(3).toInt();
  }
  void Drop(const QJsonArray &paths) {
    QStringList logic;
    for (const QJsonValue &path : paths) logic.append(ToLogic(path.toString()));
    window_.Opener().OpenDroppedFiles(logic, ActivePage());
  }
  /// At the start of the page's first paragraph.
  void Type(frmMain &page, const QString &word) {
    if (engine_ == Engine::StandIn) {
      auto &component = static_cast<FakeEditingComponent &>(page.DHTML1());
      QString text = component.Memory().document;
      const qsizetype body = text.indexOf(QStringLiteral("<p"), 0, Qt::CaseInsensitive);
      text.insert(text.indexOf(u'>', body) + 1, word);
      component.Edit(text);
      return;
    }
    page.DHTML1().SetFocus();
    QWidget *input = page.DHTML1().Widget();
    for (QWidget *child : input->findChildren<QWidget *>())
      if (child->focusProxy() != nullptr) input = child->focusProxy();
    QTest::keyClick(input, Qt::Key_Home, Qt::ControlModifier);
    QTest::keyClicks(input, word);
    (void)WaitFor([&] { return page.DHTML1().Memory().document.contains(word); }, Patience);
  }
  /// In design view: a shown source takes nothing back.
  void Undo(frmMain &page) {
    page.ChangeMode(1);
    Choose("mnuUndo");
    // Reading waits for the command.
    (void)page.DHTML1().DocumentHTML();
  }
  /// In design view: a shown source takes them as text.
  void PasteFiles(frmMain &page, const QJsonArray &paths) {
    page.ChangeMode(1);
    QList<QUrl> urls;
    for (const QJsonValue &path : paths) urls.append(QUrl::fromLocalFile(path.toString()));
    auto *copied = new QMimeData;
    copied->setUrls(urls);
    QApplication::clipboard()->setMimeData(copied);
    Choose("mnuPaste");
    const auto isOpen = [this](const QJsonValue &path) {
      return !EachPage(
          [&](frmMain &p) { return ToNative(p.GetPageRecord().Path) != path.toString(); });
    };
    (void)WaitFor(
        [&] { return !dialogs_.messages.isEmpty() || std::ranges::all_of(paths, isOpen); },
        Patience);
  }
  void TypeSource(frmMain &page, const QString &word) {
    frmCodeEditor *editor = Editor(page);
    if (editor == nullptr) return;
    const qsizetype place = editor->Code().Text().indexOf(QStringLiteral("</p>"));
    if (place < 0) return;
    editor->Code().Select({place, place});
    editor->Code().ReplaceSelection(word);
  }
  void Apply(frmMain &page) {
    if (frmCodeEditor *editor = Editor(page))
      editor->findChild<QPushButton *>(QStringLiteral("cmdApply"))->click();
  }
  void CloseSource(frmMain &page) {
    if (frmCodeEditor *editor = Editor(page)) editor->close();
  }
  QList<QPushButton *> Offers() {
    QList<QPushButton *> shown;
    for (QPushButton *button : window_.findChildren<QPushButton *>(QStringLiteral("cmdRestore")))
      if (button->isVisibleTo(&window_)) shown.append(button);
    return shown;
  }
  void RestoreFirst() {
    const int pages = Tabs().count();
    for (QPushButton *offer : Offers()) {
      offer->click();
      if (Tabs().count() > pages) return;
    }
  }

  Engine engine_;
  bool hasEnded_ = false;
  FaultyCalls calls_;
  AnsweringDialogs dialogs_;
  QtRuntime runtime_{0, nullptr};
  QtFiles files_{calls_};
  QtRegistry registry_;
  ModelComponents components_;
  JournalFiles journals_{calls_};
  ReplacedFiles replaced_{calls_};
  TemporaryCopyFiles copies_{calls_};
  FakeFileWatches watches_;
  Platform platform_{files_,  runtime_,   dialogs_,   registry_, components_,
                     nullptr, &journals_, &replaced_, &copies_,  &watches_};
  ProgramValues values_;
  MfrmProgram window_{platform_, values_};
};

void Answer(const QJsonObject &seen) {
  std::printf("%s\n", QJsonDocument(seen).toJson(QJsonDocument::Compact).constData());
  std::fflush(stdout);
}

}  // namespace
}  // namespace velor

int main(int argc, char **argv) {
  using namespace velor;
  RegisterSchemes();
  QApplication application(argc, argv);
  const bool isReal = QApplication::arguments().value(1) == QStringLiteral("real");
  Subject subject(isReal ? Engine::Real : Engine::StandIn);
  subject.Settle();
  Answer(subject.Tell());
  for (std::string line; !subject.HasEnded() && std::getline(std::cin, line);) {
    QString error;
    try {
      subject.Do(QJsonDocument::fromJson(QByteArray::fromStdString(line)).object());
    } catch (const RuntimeError &raised) {
      // The event boundary reports it and the program goes on.
      error = raised.Description();
    }
    if (subject.HasEnded()) break;
    subject.Settle();
    QJsonObject seen = subject.Tell();
    if (!error.isEmpty()) seen.insert(QStringLiteral("error"), error);
    Answer(seen);
  }
  return 0;
}
