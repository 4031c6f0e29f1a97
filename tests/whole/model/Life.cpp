// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/whole/model/Life.h"

#include <QJsonDocument>

namespace velor {

namespace {

constexpr int Patience = 120'000;  // ms; a loaded machine may take long

}  // namespace

Life::Life(const QString &engine) {
  process_.setStandardErrorFile(QProcess::nullDevice());
  process_.start(QStringLiteral(VELOR_MODEL_SUBJECT), {engine});
}

Life::~Life() {
  Kill();
}

std::optional<QJsonObject> Life::Start() {
  return Hear();
}

std::optional<QJsonObject> Life::Do(const QJsonObject &deed) {
  process_.write(QJsonDocument(deed).toJson(QJsonDocument::Compact) + '\n');
  return Hear();
}

void Life::Kill() {
  process_.kill();
  process_.waitForFinished(Patience);
}

bool Life::EndedWell() {
  const bool hasEnded =
      process_.state() == QProcess::NotRunning || process_.waitForFinished(Patience);
  return hasEnded && process_.exitStatus() == QProcess::NormalExit && process_.exitCode() == 0;
}

std::optional<QJsonObject> Life::Hear() {
  while (!process_.canReadLine()) {
    if (!process_.waitForReadyRead(Patience)) return std::nullopt;
  }
  return QJsonDocument::fromJson(process_.readLine()).object();
}

}  // namespace velor
