// The SMC's keys, call records and number formats, row by row.
#include "collect/smc_decoding.h"

#include <gtest/gtest.h>

#include <cstring>
#include <initializer_list>
#include <vector>

namespace {

SMCValue valueOf(const char* type, std::initializer_list<std::uint8_t> bytes, std::uint32_t size)
{
    SMCValue value;
    std::memcpy(value.dataType.data(), type, std::min<std::size_t>(std::strlen(type), 4));
    std::size_t i = 0;
    for (std::uint8_t b : bytes)
        value.bytes[i++] = b;
    value.dataSize = size;
    return value;
}

struct DecodeRow {
    const char* what;
    SMCValue value;
    std::int64_t expected;
};

} // namespace

TEST(SmcDecoding, EachTypeDecodesOnlyAtItsOwnSize)
{
    float minusTwelveAndThreeQuarters = -12.75f;
    SMCValue flt = valueOf("flt ", {}, 4);
    std::memcpy(flt.bytes.data(), &minusTwelveAndThreeQuarters, 4);
    const DecodeRow rows[] = {
        {"ui16 keeps only its low byte", valueOf("ui16", {0x01, 0x2C}, 2), 44},
        {"ui8 counts signed", valueOf("ui8 ", {0xC8}, 1), -56},
        {"ui8 small", valueOf("ui8 ", {0x07}, 1), 7},
        {"fpe2 is 14.2 fixed point", valueOf("fpe2", {0x1F, 0x40}, 2), 2000},
        {"fpe2 with the top bit set is negative", valueOf("fpe2", {0x80, 0x00}, 2), -8192},
        {"sp78 whole degrees", valueOf("sp78", {0x2E, 0x80}, 2), 45},
        // Both bytes count signed in this format's rule, so 0xFF 0x80 is -384 >> 2 = -96, and
        // -96 / 64 truncates to -1 (a two's-complement reading of -0.5 would give 0).
        {"sp78 low byte counts signed", valueOf("sp78", {0xFF, 0x80}, 2), -1},
        {"flt is a native float, truncated toward zero", flt, -12},
        {"flt of the wrong size", valueOf("flt ", {}, 2), 0},
        {"a type of three letters and a NUL is another type", valueOf("flt", {0x00, 0x00, 0x80, 0x3F}, 4), 0},
        {"ui16 of the wrong size", valueOf("ui16", {0x01, 0x2C}, 1), 0},
        {"a missing key reads as size 0", valueOf("sp78", {}, 0), 0},
        {"an unknown type", valueOf("si16", {0x01, 0x02}, 2), 0},
    };
    for (const DecodeRow& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(convertToNumber(row.value), row.expected);
    }
}

TEST(SmcDecoding, ByteDecodersFollowTheirShiftRules)
{
    const std::uint8_t word[] = {0x01, 0x2C};
    EXPECT_EQ(SMCBytesToUnsigned(word, 2, 16), 300U);
    EXPECT_EQ(SMCBytesToUnsigned(word, 2, 10), 44U);
    // A negative leading byte sign-extends into the whole word with base 16.
    const std::uint8_t negative[] = {0xFF, 0x01};
    EXPECT_EQ(SMCBytesToUnsigned(negative, 2, 16), 0xFFFFFF01U);
    EXPECT_EQ(SMCBytesToUnsigned(negative, 2, 10), 0x01U);
    // The last byte's fraction bits are dropped before it is added.
    const std::uint8_t fixed[] = {0x00, 0x07};
    EXPECT_FLOAT_EQ(SMCBytesToFixed(fixed, 2, 2), 1.0f);
    EXPECT_FLOAT_EQ(SMCBytesToFixed(fixed, 0, 2), 0.0f);
}

TEST(SmcDecoding, KeysAndCallRecordsKeepTheirByteOrder)
{
    EXPECT_EQ(Smc::keyFromText("FNum"), 0x464E756DU);
    EXPECT_EQ(Smc::keyToText(0x54433050U), "TC0P");
    EXPECT_EQ(Smc::keyFromText("ui8 "), 0x75693820U);
    EXPECT_EQ(std::string(Smc::fieldFromKey(Smc::keyFromText("sp78")).data()), "sp78");

    SMCCallRecord record;
    record.key = Smc::keyFromText("TC0P");
    record.dataSize = 2;
    record.dataType = Smc::keyFromText("sp78");
    record.command = kSmcReadBytes;
    record.bytes[0] = 0x2E;
    record.bytes[31] = 0x80;
    const auto wire = Smc::encodeCallRecord(record);
    // Little-endian fields at their offsets; everything the driver does not use stays zero.
    EXPECT_EQ(wire[0], 0x50);
    EXPECT_EQ(wire[3], 0x54);
    EXPECT_EQ(wire[28], 2);
    EXPECT_EQ(wire[42], kSmcReadBytes);
    EXPECT_EQ(wire[48], 0x2E);
    EXPECT_EQ(wire[79], 0x80);
    for (std::size_t i : {4U, 10U, 16U, 36U, 41U, 43U, 44U})
        EXPECT_EQ(wire[i], 0) << "byte " << i;
    const SMCCallRecord back = Smc::decodeCallRecord(wire);
    EXPECT_EQ(back.key, record.key);
    EXPECT_EQ(back.dataType, record.dataType);
    EXPECT_EQ(back.bytes, record.bytes);
}
