// The dynamic DNS pieces without a network: line reading, labels, the service's verdicts and
// message filling.
#include "net/ddns_line.h"
#include "net/format_objects.h"
#include "net/tvl_send_ddns_value_domain.h"

#include <gtest/gtest.h>

TEST(DdnsLine, EachLineKindIsRecognised)
{
    using Kind = DdnsLine::Kind;
    const struct {
        const char* line;
        Kind kind;
        const char* firstPart;
    } cases[] = {
        {"", Kind::Blank, ""},
        {"#valuedomain&nas&home.example&pw1", Kind::Comment, ""},
        {"nonsense", Kind::NoSeparator, "nonsense"},
        {"valuedomain&nas&home.example&pw1", Kind::ValueDomain, "valuedomain"},
        {"tarvel&confirm", Kind::Confirm, "tarvel"},
        {"valuedomain&nas&&pw1", Kind::Malformed, "valuedomain"},
        {"valuedomain&nas&home.example&", Kind::Malformed, "valuedomain"},
        {"valuedomain&nas&home.example&pw1&more", Kind::Malformed, "valuedomain"},
        {"ValueDomain&nas&home.example&pw1", Kind::Malformed, "ValueDomain"},
        {"tarvel&confirm&again", Kind::Malformed, "tarvel"},
        {"tarvel&Confirm", Kind::Malformed, "tarvel"},
        {" #not a comment&x", Kind::Malformed, " #not a comment"},
        {"&", Kind::Malformed, ""},
    };
    for (const auto& c : cases) {
        const DdnsLine line = DdnsLine::parse(QString::fromUtf8(c.line));
        EXPECT_EQ(line.kind, c.kind) << c.line;
        EXPECT_EQ(line.firstPart, QString::fromUtf8(c.firstPart)) << c.line;
    }
    const DdnsLine update = DdnsLine::parse(QStringLiteral("valuedomain&nas&home.example&p w%1"));
    EXPECT_EQ(update.host, QStringLiteral("nas"));
    EXPECT_EQ(update.domain, QStringLiteral("home.example"));
    EXPECT_EQ(update.password, QStringLiteral("p w%1"));
}

TEST(DdnsLine, LabelsArePaddedToTheWidthOfTheLineCount)
{
    EXPECT_EQ(ddnsLineLabel(4, 12), QStringLiteral("Line 04"));
    EXPECT_EQ(ddnsLineLabel(12, 12), QStringLiteral("Line 12"));
    EXPECT_EQ(ddnsLineLabel(3, 9), QStringLiteral("Line 3"));
    EXPECT_EQ(ddnsLineLabel(7, 100), QStringLiteral("Line 007"));
}

TEST(DdnsLine, TheServicesVerdictComesFromTheFirstLineOfA200)
{
    const struct {
        QByteArray data;
        int status;
        const char* error;
        const char* text;
    } cases[] = {
        {"status=0\nOK\n", 200, "", "更新に成功しました"},
        {"status=1", 200, "", "不正なリクエストです"},
        {"status=2\n", 200, "", "不正なドメインとパスワードです"},
        {"status=3\n", 200, "", "不正なIPアドレスです"},
        {"status=4\n", 200, "", "パスワードが一致しません"},
        {"status=5\n", 200, "", "データベースサーバーが混雑しています"},
        {"status=9\r\n", 200, "", "その他のエラー"},
        {"status=7\n", 200, "", "Unknown Error"},
        {"OK\nstatus=0\n", 200, "", "Unknown Error"},
        {"status=0\n", 404, "", "Unknown Error"},
        {"", 200, "", "Unknown Error"},
        {"", 0, "Connection refused", "[0] Connection refused"},
        {"status=0\n", 200, "Operation canceled", "[200] Operation canceled"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(TvlSendDdnsValueDomain::retVdResponse(c.data, c.status, QString::fromLatin1(c.error)),
                  QString::fromUtf8(c.text))
            << c.data.constData();
}

TEST(DdnsLine, SlotsAreFilledInOrderAndValuesAreNotRescanned)
{
    EXPECT_EQ(fillObjects(QStringLiteral("%@ -> %@.%@"), {"203.0.113.7", "nas", "home.example"}),
              QStringLiteral("203.0.113.7 -> nas.home.example"));
    EXPECT_EQ(fillObjects(QStringLiteral("(%@) %@"), {"%@", "x"}), QStringLiteral("(%@) x"));
    EXPECT_EQ(fillObjects(QStringLiteral("%@ and %@"), {"one"}), QStringLiteral("one and %@"));
    EXPECT_EQ(fillObjects(QStringLiteral("none"), {"extra"}), QStringLiteral("none"));
}
