// The ATA identify and SMART data pages over hand-built 512-byte buffers, and the blob around them.
#include "collect/ata_smart_data.h"

#include <gtest/gtest.h>

#include <numeric>
#include <vector>

namespace {

// An identify page with the model written as the drive stores it (bytes swapped in each word),
// the SMART bit set and the signature and check byte that make it whole.
AtaPage identifyPage(const std::string& model, bool smart = true)
{
    AtaPage page{};
    for (std::size_t i = 0; i < 40; ++i) {
        const char c = i < model.size() ? model[i] : ' ';
        page[54 + (i ^ 1U)] = static_cast<std::uint8_t>(c);
    }
    page[164] = smart ? 0x01 : 0x00;
    page[510] = 0xA5;
    const unsigned sum = std::accumulate(page.begin(), page.end() - 1, 0U);
    page[511] = static_cast<std::uint8_t>((256 - sum % 256) % 256);
    return page;
}

struct Attribute {
    std::uint8_t id;
    std::uint8_t firstRaw;
};

AtaPage smartPage(const std::vector<Attribute>& attributes)
{
    AtaPage page{};
    for (std::size_t n = 0; n < attributes.size(); ++n) {
        page[2 + n * 12] = attributes[n].id;
        page[2 + n * 12 + 3] = 100; // normalised value, not looked at
        page[2 + n * 12 + 5] = attributes[n].firstRaw;
    }
    const unsigned sum = std::accumulate(page.begin(), page.end() - 1, 0U);
    page[511] = static_cast<std::uint8_t>((256 - sum % 256) % 256);
    return page;
}

void appendSection(std::vector<std::uint8_t>& blob, const char* tag, const std::uint8_t* data, std::uint32_t size)
{
    blob.insert(blob.end(), tag, tag + 4);
    for (int shift = 24; shift >= 0; shift -= 8)
        blob.push_back(static_cast<std::uint8_t>(size >> shift));
    blob.insert(blob.end(), data, data + size);
}

} // namespace

TEST(AtaIdentify, UsedOnlyWhenSignedSummedAndSmartCapable)
{
    const AtaPage good = identifyPage("Samsung SSD 860 EVO 500GB");
    AtaPage unsigned_ = good;
    unsigned_[510] = 0x00;
    unsigned_[511] = static_cast<std::uint8_t>(unsigned_[511] + 0xA5);
    AtaPage badSum = good;
    badSum[100] ^= 0x10;
    struct Row {
        const char* what;
        AtaPage page;
        bool valid;
    } rows[] = {
        {"whole", good, true},
        {"no signature, though it sums to zero", unsigned_, false},
        {"a byte changed", badSum, false},
        {"no SMART feature set", identifyPage("Old Drive", false), false},
        {"all zero", AtaPage{}, false},
    };
    for (const Row& row : rows)
        EXPECT_EQ(ataIdentifyValid(row.page), row.valid) << row.what;
}

TEST(AtaIdentify, ModelIsTheSwappedWordsUpToTheFirstNulUntrimmed)
{
    EXPECT_EQ(ataModelName(identifyPage("WDC WD40EFRX-68N32N0")), "WDC WD40EFRX-68N32N0                    ");
    AtaPage odd = identifyPage("ABC");
    odd[54 + (3 ^ 1U)] = 0; // a NUL after "ABC"
    EXPECT_EQ(ataModelName(odd), "ABC");
    EXPECT_EQ(ataModelName(identifyPage(std::string(40, 'x'))), std::string(40, 'x'));
    EXPECT_EQ(ataModelName(AtaPage{}), "");
}

TEST(AtaSmart, TemperatureFromTheAttributeEntries)
{
    struct Row {
        const char* what;
        std::vector<Attribute> attributes;
        int expected;
    } rows[] = {
        {"194 returns at once", {{9, 50}, {194, 36}, {190, 40}}, 36},
        {"190 when there is no 194", {{5, 1}, {190, 41}}, 41},
        {"a later 231 replaces an earlier 190", {{190, 41}, {231, 44}}, 44},
        {"a later 190 replaces an earlier 231", {{231, 44}, {190, 39}}, 39},
        {"194 with a zero raw byte is passed over", {{190, 38}, {194, 0}}, 38},
        {"id 0 ends nothing: later entries still count", {{0, 55}, {194, 33}}, 33},
        {"nothing that tells the temperature", {{9, 100}, {12, 5}}, 0},
    };
    for (const Row& row : rows)
        EXPECT_EQ(ataTemperature(smartPage(row.attributes)), row.expected) << row.what;

    std::vector<Attribute> thirtyOne(30, Attribute{9, 1});
    thirtyOne.back() = {194, 47}; // the thirtieth entry is the last one read
    EXPECT_EQ(ataTemperature(smartPage(thirtyOne)), 47);
    EXPECT_TRUE(ataSmartDataValid(smartPage(thirtyOne)));
    AtaPage broken = smartPage(thirtyOne);
    broken[7] ^= 1;
    EXPECT_FALSE(ataSmartDataValid(broken));
}

TEST(AtaBlob, SectionsByTagAndSize)
{
    const AtaPage identify = identifyPage("Drive");
    const AtaPage smart = smartPage({{194, 30}});
    const std::uint8_t status[4] = {0, 0, 0, 1};
    std::vector<std::uint8_t> blob;
    appendSection(blob, "IDFY", identify.data(), 512);
    appendSection(blob, "SMST", status, 4);
    appendSection(blob, "SMDT", smart.data(), 512);
    appendSection(blob, "SMTH", smart.data(), 512);

    const AtaPages pages = ataPagesFromBlob(blob);
    ASSERT_TRUE(pages.identify);
    ASSERT_TRUE(pages.smartData);
    EXPECT_EQ(*pages.identify, identify);
    EXPECT_EQ(*pages.smartData, smart);

    // Cut inside the SMART data: what came before is kept.
    const AtaPages cut = ataPagesFromBlob(std::span(blob).first(8 + 512 + 12 + 100));
    EXPECT_TRUE(cut.identify);
    EXPECT_FALSE(cut.smartData);
    EXPECT_FALSE(ataPagesFromBlob({}).identify);
}
