// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonObject>
#include <QProcess>
#include <QString>

#include <optional>

namespace velor {

/// One life of the program: from its start to its exit or its violent end.
class Life {
 public:
  /// `engine`: "fake" or "real".
  explicit Life(const QString &engine);
  ~Life();
  Life(const Life &) = delete;
  Life &operator=(const Life &) = delete;

  /// What is seen after the start; nothing when the program did not come up.
  std::optional<QJsonObject> Start();
  /// What is seen after the deed; nothing when the program has ended.
  std::optional<QJsonObject> Do(const QJsonObject &deed);
  void Kill();
  /// Whether the program ended by itself without a failure.
  bool EndedWell();

 private:
  std::optional<QJsonObject> Hear();

  QProcess process_;
};

}  // namespace velor
