// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/FakeEditingComponent.h"

#include "platform/Paths.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QRegularExpression>
#include <QUrl>

#include <utility>

namespace velor {

namespace {

/// An unedited page is its own bytes; an edited one is written whole, in its own charset.
PageToWrite PageToSave(const PageOriginal &original, const QString &current) {
  const bool isUnedited = !original.baseline.isEmpty() && current == original.baseline;
  if (isUnedited) return {original.page.text, original.bytes};
  const PageEncoding &encoding = original.page.encoding;
  QString text = WithLineEnds(current, encoding.lineEnds);
  QByteArray bytes = EncodePage(text, encoding);
  return {std::move(text), std::move(bytes)};
}

QString InWords(const HtmlAttributes &attributes) {
  QStringList words;
  for (const auto &[name, value] : attributes) words << name + u'=' + value;
  return words.join(u' ');
}

}  // namespace

/// The fake's selection as a range.
class FakeTextRange final : public TextRange {
 public:
  explicit FakeTextRange(FakeEditingComponent &component)
      : component_(component), start_(component.selectionStart), end_(component.selectionEnd) {}

  void Collapse() override { end_ = start_; }
  HtmlElement ParentElement() const override { return component_.element; }
  void PasteHTML(const QString &html) override {
    component_.Log(QStringLiteral("PasteHTML(%1)").arg(html));
    component_.current_.replace(start_, end_ - start_, html);
    start_ = end_ = component_.selectionStart = component_.selectionEnd = start_ + html.size();
  }

 private:
  FakeEditingComponent &component_;
  qsizetype start_;
  qsizetype end_;
};

FakeEditingComponent::FakeEditingComponent(Files &files, QWidget *parent, std::vector<QString> *log)
    : files_(files), log_(log != nullptr ? log : &ownLog_), widget_(new QWidget(parent)) {
  widget_->setFocusPolicy(Qt::StrongFocus);
  completion_.setSingleShot(true);
  completion_.setInterval(1);
  QObject::connect(&completion_, &QTimer::timeout, [this] { CompleteDocument(); });
}

FakeEditingComponent::~FakeEditingComponent() {
  delete widget_;
}

void FakeEditingComponent::TypeText(const QString &text) {
  FakeTextRange(*this).PasteHTML(text);
  log_->pop_back();
  ChangeDisplay();
}

void FakeEditingComponent::KeepForUndo() {
  earlier_.push_back({original_, current_});
}

void FakeEditingComponent::Edit(const QString &html) {
  KeepForUndo();
  current_ = html;
  if (listener_ != nullptr) listener_->MemoryChanged();
}

void FakeEditingComponent::CompleteDocument() {
  completion_.stop();
  if (listener_ != nullptr) listener_->DocumentComplete();
}

void FakeEditingComponent::DeliverCompletion() {
  if (completion_.isActive()) CompleteDocument();
}

void FakeEditingComponent::ChangeDisplay() {
  if (listener_ != nullptr) listener_->DisplayChanged();
}

void FakeEditingComponent::RequestContextMenu(QPoint screenPosition) {
  if (listener_ != nullptr) listener_->ContextMenuRequested(screenPosition);
}

void FakeEditingComponent::NotifyMouse(int clientX, int clientY) {
  if (listener_ != nullptr) listener_->MouseNotified(clientX, clientY);
}

void FakeEditingComponent::Report(const QString &message) {
  if (listener_ != nullptr) listener_->ComponentReported(message);
}

QWidget *FakeEditingComponent::Widget() {
  return widget_;
}

void FakeEditingComponent::SetListener(EditingListener *listener) {
  listener_ = listener;
}

void FakeEditingComponent::SetFocus() {
  Log(QStringLiteral("SetFocus()"));
  if (widget_ != nullptr) widget_->setFocus();
}

void FakeEditingComponent::SetToolTip(const QString &text) {
  Log(QStringLiteral("SetToolTip(%1)").arg(text));
  toolTip = text;
  if (widget_ != nullptr) widget_->setToolTip(text);
}

QString FakeEditingComponent::DocumentHTML() {
  Log(QStringLiteral("DocumentHTML()"));
  return current_;
}

void FakeEditingComponent::SetDocumentHTML(const QString &html) {
  Log(QStringLiteral("SetDocumentHTML(%1)").arg(html));
  const PageEncoding encoding = DeclaredEncoding(html);
  Take({EncodePage(html, encoding), {html, encoding}, {}});
}

bool FakeEditingComponent::OutlivesTheWait() {
  const QPointer<QWidget> alive = Widget();
  if (const auto act = std::exchange(whileLoading, {})) act();
  return !alive.isNull();
}

void FakeEditingComponent::LoadDocument(const QString &path) {
  Log(QStringLiteral("LoadDocument(%1)").arg(path));
  if (const auto failure = std::exchange(nextLoadFailure, std::nullopt)) throw *failure;
  if (!OutlivesTheWait()) return;
  const QByteArray bytes = files_.ReadAll(path);
  base_ = path;
  Take({bytes, DecodePage(bytes), {}});
}

void FakeEditingComponent::LoadText(const QString &html, const QString &path) {
  Log(QStringLiteral("LoadText(%1)").arg(path));
  if (const auto failure = std::exchange(nextLoadFailure, std::nullopt)) throw *failure;
  const PageEncoding encoding = EncodingInPlaceOf(original_.page.encoding, html);
  Take({EncodePage(html, encoding), {html, encoding}, {}});
}

void FakeEditingComponent::SaveDocument(const QString &path) {
  Log(QStringLiteral("SaveDocument(%1)").arg(path));
  if (const auto failure = std::exchange(nextSaveFailure, std::nullopt)) throw *failure;
  files_.ReplaceAll(path, PageToSave(original_, current_).bytes);
}

QString FakeEditingComponent::TextToSave() {
  Log(QStringLiteral("TextToSave()"));
  return PageToSave(original_, current_).text;
}

PageMemory FakeEditingComponent::Memory() const {
  return {original_.bytes, base_, current_};
}

void FakeEditingComponent::Restore(const PageMemory &memory) {
  Log(QStringLiteral("Restore(%1)").arg(memory.base));
  if (const auto failure = std::exchange(nextLoadFailure, std::nullopt)) throw *failure;
  if (!OutlivesTheWait()) return;
  Take({memory.original, DecodePage(memory.original), {}});
  base_ = memory.base;
  current_ = memory.document;
}

QString FakeEditingComponent::Charset() const {
  return original_.page.encoding.charset;
}

QVariant FakeEditingComponent::ExecCommand(EditingCommand command, ExecOption option,
                                           const QVariant &value) {
  QString call = QStringLiteral("ExecCommand(%1").arg(Number(command));
  if (option != ExecOption::Default)
    call += QStringLiteral(", option %1").arg(static_cast<int>(option));
  if (value.isValid()) call += QStringLiteral(", %1").arg(value.toString());
  Log(call + u')');
  if (command == EditingCommand::Undo && !earlier_.empty()) {
    original_ = std::move(earlier_.back().original);
    current_ = std::move(earlier_.back().document);
    earlier_.pop_back();
    if (listener_ != nullptr) listener_->MemoryChanged();
  }
  if (command == EditingCommand::Paste) ReportCopiedFiles();
  const auto answer = values.find(command);
  return answer != values.end() ? answer->second : QVariant(QString());
}

void FakeEditingComponent::ReportCopiedFiles() {
  QStringList paths;
  if (const QMimeData *copied = QGuiApplication::clipboard()->mimeData())
    for (const QUrl &url : copied->urls()) paths += ToLogic(url.toLocalFile());
  if (paths.isEmpty()) return;
  QTimer::singleShot(0, Widget(), [this, paths] {
    if (listener_ != nullptr) listener_->FilesDropped(paths);
  });
}

CommandStatus FakeEditingComponent::QueryStatus(EditingCommand command) const {
  Log(QStringLiteral("QueryStatus(%1)").arg(Number(command)));
  const auto status = statuses.find(command);
  return status != statuses.end() ? status->second : CommandStatus::Enabled;
}

HtmlDocument &FakeEditingComponent::Document() {
  return *this;
}

bool FakeEditingComponent::ShowDetails() const {
  return showDetails_;
}

void FakeEditingComponent::SetShowDetails(bool on) {
  Log(QStringLiteral("SetShowDetails(%1)").arg(on ? u"True" : u"False"));
  showDetails_ = on;
}

bool FakeEditingComponent::SnapToGrid() const {
  return snapToGrid_;
}

void FakeEditingComponent::SetSnapToGrid(bool on) {
  Log(QStringLiteral("SetSnapToGrid(%1)").arg(on ? u"True" : u"False"));
  snapToGrid_ = on;
}

DocumentSelection &FakeEditingComponent::Selection() {
  return *this;
}

void FakeEditingComponent::SetLink(const HtmlAttributes &attributes, const QString &text) {
  Log(QStringLiteral("SetLink(%1, %2)").arg(InWords(attributes), text));
}

void FakeEditingComponent::SetBookmark(const QString &name) {
  Log(QStringLiteral("SetBookmark(%1)").arg(name));
}

void FakeEditingComponent::SetProperties(PropertyOwner owner, const PropertyValues &changed) {
  QStringList words;
  for (auto value = changed.begin(); value != changed.end(); ++value)
    words << value.key() + u'=' + value.value();
  const QString subject = QString::number(static_cast<int>(owner.subject));
  const bool isInPath = owner.subject == PropertySubject::Element;
  Log(QStringLiteral("SetProperties(%1, %2)")
          .arg(isInPath ? subject + u':' + QString::number(owner.element) : subject,
               words.join(u' ')));
}

void FakeEditingComponent::ActOnPath(int index, PathDeed deed) {
  Log(QStringLiteral("ActOnPath(%1, %2)").arg(index).arg(static_cast<int>(deed)));
}

void FakeEditingComponent::SetClassOnPath(int index, const QString &name, bool on) {
  Log(QStringLiteral("SetClassOnPath(%1, %2, %3)").arg(index).arg(name).arg(on));
}

void FakeEditingComponent::ChangeObject(const HtmlAttributes &attributes, ParagraphSide side) {
  Log(QStringLiteral("ChangeObject(%1, %2)").arg(InWords(attributes)).arg(static_cast<int>(side)));
}

SelectionType FakeEditingComponent::Type() const {
  return selectionType;
}

std::unique_ptr<TextRange> FakeEditingComponent::CreateRange() {
  return std::make_unique<FakeTextRange>(*this);
}

HtmlElement FakeEditingComponent::ControlElement() const {
  if (selectionType != SelectionType::Control) return {};
  return object.IsNull() ? element : object;
}

void FakeEditingComponent::Log(const QString &call) const {
  log_->push_back(call);
}

void FakeEditingComponent::Take(PageOriginal original) {
  const bool hasDocument = !original_.baseline.isEmpty();
  const QString document = WithLineEnds(original.page.text, LineEnds::Lf);
  // The file's document in the place of the same one leaves no step.
  if (hasDocument && document != current_) KeepForUndo();
  original_ = std::move(original);
  current_ = WithLineEnds(original_.page.text, LineEnds::Lf);
  original_.baseline = current_;
  static const QRegularExpression body(QStringLiteral("<body[^>]*>"),
                                       QRegularExpression::CaseInsensitiveOption);
  const QRegularExpressionMatch match = body.match(current_);
  selectionStart = selectionEnd = match.hasMatch() ? match.capturedEnd() : 0;
  completion_.start();
}

}  // namespace velor
