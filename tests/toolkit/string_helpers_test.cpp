// Digit widening, word capitalisation and control-character removal.
#include "toolkit/string_helpers.h"

#include <gtest/gtest.h>

using namespace TvlClasses;

TEST(RetEightNumber, ReplacesOnlyAsciiDigits)
{
    EXPECT_EQ(retEightNumber(QStringLiteral("12.5%")), QStringLiteral("88.8%"));
    EXPECT_EQ(retEightNumber(QStringLiteral("0 rpm ٣")), QStringLiteral("8 rpm ٣"));
    EXPECT_FALSE(retEightNumber(QString()).has_value());
    EXPECT_FALSE(retEightNumber(QStringLiteral("")).has_value());
}

TEST(TvlCollectString, RaisesFirstCharacterAndThoseAfterSpaces)
{
    EXPECT_EQ(tvlCollectString(QStringLiteral("hello  world")), "Hello  World");
    EXPECT_EQ(tvlCollectString(QStringLiteral("mIXED caSE")), "MIXED CaSE");
    EXPECT_EQ(tvlCollectString(QStringLiteral("ßtraße über")), "SStraße Über");
    EXPECT_EQ(tvlCollectString(QStringLiteral("a\tb c")), "A\tb C");
    EXPECT_EQ(tvlCollectString(QString::fromUtf8("\xF0\x90\x90\xA8x")),
              QString::fromUtf8("\xF0\x90\x90\x80x"));
    EXPECT_TRUE(tvlCollectString(QString()).isEmpty());
}

TEST(TvlRemoveNRTZ, DropsLineBreaksTabsAndNul)
{
    const QString dirty = QStringLiteral("Mac\r\nmini\t") + QChar(u'\0') + QStringLiteral(" 2018\n");
    EXPECT_EQ(TvlRemoveNRTZ(dirty), "Macmini 2018");
    EXPECT_EQ(TvlRemoveNRTZ(QStringLiteral("clean text")), "clean text");
    EXPECT_TRUE(TvlRemoveNRTZ(QString()).isEmpty());
    EXPECT_TRUE(TvlRemoveNRTZ(QStringLiteral("\n\n")).isEmpty());
}

TEST(EscapedForTerminal, ControlCharactersAreShownNotObeyed)
{
    const QString hostile = QStringLiteral("vol\x1b[2Jume") + QChar(u'\a') + QChar(u'\x9b') + QStringLiteral("\nnext");
    EXPECT_EQ(TvlClasses::escapedForTerminal(hostile), QStringLiteral("vol\\x1b[2Jume\\x07\\x9b\nnext"));
    EXPECT_EQ(TvlClasses::escapedForTerminal(QStringLiteral("Macintosh HD é")), QStringLiteral("Macintosh HD é"));
}
