// The HTTP handling, with real sockets on 127.0.0.1: what is answered, what is refused.
#include "export/metric_text.h"
#include "export/metrics_builder.h"
#include "export/metrics_server.h"
#include "export_test_figures.h"
#include "support/socket_answer.h"

#include <QTcpSocket>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace {

class MetricsServerTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        MetricsBuilder builder;
        server_.setFamilies(builder.update(fullTestFigures()));
        ASSERT_TRUE(server_.listen({QHostAddress(QHostAddress::LocalHost), 0})) << server_.errorString().toStdString();
    }

    std::unique_ptr<QTcpSocket> connectClient()
    {
        auto socket = std::make_unique<QTcpSocket>();
        socket->connectToHost(QHostAddress(QHostAddress::LocalHost), server_.port());
        EXPECT_TRUE(QTest::qWaitFor([&] { return socket->state() == QAbstractSocket::ConnectedState; }, 5000));
        return socket;
    }

    // Sends the pieces one after the other and reads until the server closes the connection.
    QByteArray exchange(const QList<QByteArray>& pieces) { return exchangeOn(*connectClient(), pieces); }

    static QByteArray exchangeOn(QTcpSocket& socket, const QList<QByteArray>& pieces)
    {
        for (const QByteArray& piece : pieces) {
            socket.write(piece);
            socket.flush();
            QTest::qWait(20);
        }
        return readUntilClosed(socket);
    }

    MetricsServer server_{{1024, 2, 60000}, nullptr};
};

QByteArray statusLine(const QByteArray& answer)
{
    return answer.left(answer.indexOf("\r\n"));
}

} // namespace

TEST_F(MetricsServerTest, ServesTheFormatTheScraperAsksFor)
{
    const QByteArray plain = exchange({"GET /metrics HTTP/1.1\r\nHost: x\r\n\r\n"});
    EXPECT_EQ(statusLine(plain), "HTTP/1.1 200 OK");
    EXPECT_TRUE(plain.contains(QByteArray(QByteArray("Content-Type: ") + MetricText::kPlainContentType + "\r\n")));
    EXPECT_TRUE(plain.contains("\r\n\r\n# HELP tarvel_cpu_seconds_total "));
    // The request may come in pieces, and a query is no other page.
    const QByteArray open = exchange({"GET /metrics?x=1 HTTP/1.1\r\nAccept: application/openmetrics-text;",
                                      "version=1.0.0,text/plain;q=0.5\r\n\r\n"});
    EXPECT_EQ(statusLine(open), "HTTP/1.1 200 OK");
    EXPECT_TRUE(open.contains(QByteArray(QByteArray("Content-Type: ") + MetricText::kOpenMetricsContentType + "\r\n")));
    EXPECT_TRUE(open.endsWith("# EOF\n"));
}

TEST_F(MetricsServerTest, RefusesOtherPagesMethodsAndMalformedRequests)
{
    EXPECT_EQ(statusLine(exchange({"GET / HTTP/1.1\r\n\r\n"})), "HTTP/1.1 404 Not Found");
    EXPECT_EQ(statusLine(exchange({"GET /metricsx HTTP/1.1\r\n\r\n"})), "HTTP/1.1 404 Not Found");
    const QByteArray post = exchange({"POST /metrics HTTP/1.1\r\nContent-Length: 3\r\n\r\nabc"});
    EXPECT_EQ(statusLine(post), "HTTP/1.1 405 Method Not Allowed");
    EXPECT_TRUE(post.contains("\r\nAllow: GET\r\n"));
    EXPECT_EQ(statusLine(exchange({"HEAD /metrics HTTP/1.1\r\n\r\n"})), "HTTP/1.1 405 Method Not Allowed");
    EXPECT_EQ(statusLine(exchange({"GET /metrics\r\n\r\n"})), "HTTP/1.1 400 Bad Request");
    EXPECT_EQ(statusLine(exchange({"\x16\x03\x01 binary \r\n\r\n"})), "HTTP/1.1 400 Bad Request");
}

TEST_F(MetricsServerTest, OversizedRequestsAreCutOff)
{
    // A head that never ends is answered once it passes the limit, not read on for ever.
    const QByteArray endless = "GET /metrics HTTP/1.1\r\nX-Filler: " + QByteArray(1100, 'a');
    EXPECT_EQ(statusLine(exchange({endless})), "HTTP/1.1 431 Request Header Fields Too Large");
    // A complete head over the limit, arriving at once, is refused all the same.
    const QByteArray whole = "GET /metrics HTTP/1.1\r\nX-Filler: " + QByteArray(1100, 'a') + "\r\n\r\n";
    EXPECT_EQ(statusLine(exchange({whole})), "HTTP/1.1 431 Request Header Fields Too Large");
}

TEST_F(MetricsServerTest, TooManyConnectionsAreTurnedAway)
{
    // Two clients that connect and say nothing hold both places.
    auto first = connectClient();
    auto second = connectClient();
    QTest::qWait(50);
    const QByteArray turnedAway = exchange({"GET /metrics HTTP/1.1\r\n\r\n"});
    EXPECT_EQ(statusLine(turnedAway), "HTTP/1.1 503 Service Unavailable");
    // Once one leaves, the next scraper is served.
    first->abort();
    QTest::qWait(50);
    EXPECT_EQ(statusLine(exchange({"GET /metrics HTTP/1.1\r\n\r\n"})), "HTTP/1.1 200 OK");
    EXPECT_EQ(statusLine(exchangeOn(*second, {"GET /metrics HTTP/1.1\r\n\r\n"})), "HTTP/1.1 200 OK");
}

TEST_F(MetricsServerTest, ATakenPortIsReported)
{
    MetricsServer other;
    EXPECT_FALSE(other.listen({QHostAddress(QHostAddress::LocalHost), server_.port()}));
    EXPECT_TRUE(other.addressInUse());
    EXPECT_FALSE(other.isListening());
}
