// Reads a client socket's answer until the server closes the connection.
#pragma once

#include <QByteArray>

class QTcpSocket;

// Everything the server sent before it closed; a failed expectation when it kept the
// connection open for five seconds.
QByteArray readUntilClosed(QTcpSocket& socket);
