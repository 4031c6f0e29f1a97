// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

class QLocalServer;
class QLocalSocket;

namespace velor {

/// What is asked of the program that runs: to open files, or without files to come to the front.
struct OpeningRequest {
  /// Absolute paths in native form.
  QStringList files;
  /// The line of the first file to show in its source editor, counted from 1; 0 for none.
  int line = 0;
  /// The desktop's leave to take the keyboard (XDG_ACTIVATION_TOKEN); may be empty.
  QString activationToken;
};

/// The token that this program was started with; empty where the desktop gave none.
QString OwnActivationToken();

/// Lets the window that is activated next take the keyboard.
void UseActivationToken(const QString &token);

/// The local socket by which the program of a program folder (native form) is reached. It lies in
/// `$XDG_RUNTIME_DIR`, or where there is none in the program's folder of `$XDG_STATE_HOME`, which
/// only the person can read.
QString SocketOfProgram(const QString &programFolder);

/// Sends a request to the program that runs on that program folder and waits for the end of it,
/// which may be a person's answer to a message. Gives a sentence for each file that was not opened;
/// nullopt where no program runs there or it ended meanwhile.
std::optional<QStringList> AskRunningProgram(const QString &programFolder,
                                             const OpeningRequest &request);

/// Makes this program the one of a program folder, so that a second start finds it. A killed
/// program leaves nothing that is in the way.
class RunningProgram final : public QObject {
  Q_OBJECT

 public:
  /// Opens the request's files and gives a sentence for each that was not opened.
  using Handler = std::function<QStringList(const OpeningRequest &request)>;

  explicit RunningProgram(QString programFolder);
  ~RunningProgram() override;

  /// False when another program is the one of the folder. Where no socket can be made the program
  /// goes without: true.
  bool Claim();

  /// From now on requests are answered, those that came since Claim too. Files wait while `isBusy`.
  void Serve(Handler handler, std::function<bool()> isBusy);

  /// Carries out a request that came in another way, from the event loop. Nobody gets its answer.
  void Take(const OpeningRequest &request);

 private:
  struct Waiting {
    QPointer<QLocalSocket> asker;
    OpeningRequest request;
  };

  void Accept();
  void Read(QLocalSocket &asker);
  void Admit(const Waiting &asked);
  void Answer(const Waiting &asked);
  void AnswerWaiting();

  const QString programFolder_;
  std::unique_ptr<QLocalServer> server_;
  QList<Waiting> waiting_;
  Handler handler_;
  std::function<bool()> isBusy_;
  bool isAnswering_ = false;
};

}  // namespace velor
