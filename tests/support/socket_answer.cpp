// Reads a client socket's answer until the server closes the connection.
#include "support/socket_answer.h"

#include <QTcpSocket>
#include <QTest>

#include <gtest/gtest.h>

QByteArray readUntilClosed(QTcpSocket& socket)
{
    QByteArray answer;
    const bool closed = QTest::qWaitFor(
        [&] {
            answer += socket.readAll();
            return socket.state() == QAbstractSocket::UnconnectedState;
        },
        5000);
    EXPECT_TRUE(closed) << "the server left the connection open";
    return answer + socket.readAll();
}
