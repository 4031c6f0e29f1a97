// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTcpServer>

#include <gtest/gtest.h>

namespace velor {

/// A server on this machine that counts connections.
class CountingServer {
 public:
  CountingServer() {
    EXPECT_TRUE(server_.listen(QHostAddress::LocalHost));
    QObject::connect(&server_, &QTcpServer::newConnection, [this] { ++visits; });
  }
  QByteArray Address() const {
    return "http://127.0.0.1:" + QByteArray::number(server_.serverPort());
  }

  int visits = 0;

 private:
  QTcpServer server_;
};

}  // namespace velor
