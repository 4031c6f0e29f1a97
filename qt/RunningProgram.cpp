// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/RunningProgram.h"

#include "files/FileDescriptor.h"
#include "files/StateFolder.h"
#include "platform/RuntimeError.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalServer>
#include <QLocalSocket>
#include <QScopedValueRollback>
#include <QStandardPaths>
#include <QTimer>

#include <fcntl.h>
#include <sys/file.h>
#include <utility>

namespace velor {

namespace {

using namespace std::chrono_literals;

/// The toolkit reads it when a window is activated.
constexpr auto TokenVariable = "XDG_ACTIVATION_TOKEN";

constexpr int ConnectLimit = 2000;  // milliseconds
constexpr auto BusyPause = 100ms;

const QString Files = QStringLiteral("files");
const QString Line = QStringLiteral("line");
const QString Token = QStringLiteral("token");
const QString NotOpened = QStringLiteral("notOpened");

/// A request and its answer are a line each.
QByteArray AsLine(const QJsonObject &object) {
  return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

QStringList TextsOf(const QJsonValue &list) {
  QStringList texts;
  for (const QJsonValue &text : list.toArray()) texts += text.toString();
  return texts;
}

OpeningRequest RequestOf(const QByteArray &line) {
  const QJsonObject object = QJsonDocument::fromJson(line).object();
  return {TextsOf(object[Files]), object[Line].toInt(), object[Token].toString()};
}

/// Two programs that start at once claim one after the other. The kernel opens the lock of one that
/// is killed.
FileDescriptor LockStarts(const QString &socket) {
  FileDescriptor file(open(QFile::encodeName(socket + QStringLiteral(".lock")).constData(),
                           O_CREAT | O_RDWR | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR));
  if (file.IsOpen()) flock(file.Number(), LOCK_EX);
  return file;
}

}  // namespace

QString OwnActivationToken() {
  return qEnvironmentVariable(TokenVariable);
}

void UseActivationToken(const QString &token) {
  if (!token.isEmpty()) qputenv(TokenVariable, token.toUtf8());
}

QString SocketOfProgram(const QString &programFolder) {
  const QByteArray name =
      QCryptographicHash::hash(programFolder.toUtf8(), QCryptographicHash::Sha256);
  QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
  if (folder.isEmpty() || !QDir(folder).exists()) {
    folder = StateFolder();
    try {
      MakePrivateFolder(folder);
    } catch (const RuntimeError &) {
      // No socket can be made there.
    }
  }
  return QStringLiteral("%1/velor-web-creator-%2").arg(folder, name.left(8).toHex());
}

std::optional<QStringList> AskRunningProgram(const QString &programFolder,
                                             const OpeningRequest &request) {
  QLocalSocket socket;
  socket.connectToServer(SocketOfProgram(programFolder));
  if (!socket.waitForConnected(ConnectLimit)) return std::nullopt;
  socket.write(AsLine({{Files, QJsonArray::fromStringList(request.files)},
                       {Line, request.line},
                       {Token, request.activationToken}}));
  while (!socket.canReadLine())
    if (!socket.waitForReadyRead(-1)) return std::nullopt;
  return TextsOf(QJsonDocument::fromJson(socket.readLine()).object()[NotOpened]);
}

RunningProgram::RunningProgram(QString programFolder) : programFolder_(std::move(programFolder)) {}

RunningProgram::~RunningProgram() = default;

bool RunningProgram::Claim() {
  const QString socket = SocketOfProgram(programFolder_);
  const FileDescriptor lock = LockStarts(socket);
  QLocalSocket other;
  other.connectToServer(socket);
  if (other.waitForConnected(ConnectLimit)) return false;
  // What a killed program left.
  QLocalServer::removeServer(socket);
  server_ = std::make_unique<QLocalServer>();
  server_->setSocketOptions(QLocalServer::UserAccessOption);
  connect(server_.get(), &QLocalServer::newConnection, this, &RunningProgram::Accept);
  if (!server_->listen(socket)) server_.reset();
  return true;
}

void RunningProgram::Serve(Handler handler, std::function<bool()> isBusy) {
  handler_ = std::move(handler);
  isBusy_ = std::move(isBusy);
  AnswerWaiting();
}

void RunningProgram::Accept() {
  while (QLocalSocket *asker = server_->nextPendingConnection()) {
    connect(asker, &QLocalSocket::disconnected, asker, &QObject::deleteLater);
    connect(asker, &QLocalSocket::readyRead, this, [this, asker] { Read(*asker); });
    Read(*asker);
  }
}

void RunningProgram::Read(QLocalSocket &asker) {
  if (!asker.canReadLine()) return;
  Admit({&asker, RequestOf(asker.readLine())});
}

void RunningProgram::Take(const OpeningRequest &request) {
  QTimer::singleShot(0, this, [this, request] { Admit({nullptr, request}); });
}

void RunningProgram::Admit(const Waiting &asked) {
  if (handler_ && asked.request.files.isEmpty()) {
    Answer(asked);
  } else {
    waiting_.append(asked);
    AnswerWaiting();
  }
}

void RunningProgram::Answer(const Waiting &asked) {
  const QStringList notOpened = handler_(asked.request);
  if (asked.asker.isNull()) return;
  asked.asker->write(AsLine({{NotOpened, QJsonArray::fromStringList(notOpened)}}));
  asked.asker->flush();
}

void RunningProgram::AnswerWaiting() {
  if (!handler_ || isAnswering_) return;
  // Waiting for a page lets further requests in.
  const QScopedValueRollback<bool> answering(isAnswering_, true);
  while (!waiting_.isEmpty()) {
    if (isBusy_()) {
      // No event tells that every dialog is closed and every page is loaded.
      QTimer::singleShot(BusyPause, this, &RunningProgram::AnswerWaiting);
      return;
    }
    Answer(waiting_.takeFirst());
  }
}

}  // namespace velor
