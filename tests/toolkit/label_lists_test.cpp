// Label lists: English keys as fallback, the Japanese table, and bounds-safe selection.
#include "toolkit/label_lists.h"
#include "toolkit/localization.h"

#include <QCoreApplication>
#include <QTranslator>
#include <gtest/gtest.h>

using namespace PlistFunction;

namespace {

// Installs the Japanese table for the lifetime of one test.
class JapaneseTranslation {
public:
    JapaneseTranslation()
    {
        loaded_ = translator_.load(QStringLiteral(":/i18n/tarvel_ja.qm"))
                  && QCoreApplication::installTranslator(&translator_);
    }
    ~JapaneseTranslation() { QCoreApplication::removeTranslator(&translator_); }
    JapaneseTranslation(const JapaneseTranslation&) = delete;
    JapaneseTranslation& operator=(const JapaneseTranslation&) = delete;
    bool loaded() const { return loaded_; }

private:
    QTranslator translator_;
    bool loaded_ = false;
};

} // namespace

TEST(LabelLists, UntranslatedEntriesAreTheEnglishKeys)
{
    EXPECT_EQ(GeneralFunctions::retTempUnit(), (QStringList{"°C", "°F", "K"}));
    EXPECT_EQ(retGeneralGraphKind(),
              (QStringList{"Default", "Opposed", "Centered", "Line Graph", "Line Graph (Heavy line)"}));
    EXPECT_EQ(retMemoryUnit(), (QStringList{"Automatic", "Unify in MB", "Unify in GB"}));
    EXPECT_EQ(retNetworkBitOrByte(), (QStringList{QStringLiteral("KB/s（Bytes）"), "Kbps (Bits)"}));
    EXPECT_EQ(retVolumePercentKind(), (QStringList{"Show Used", "Show Free"}));
    const QList<QStringList> updown = retNetworkUdLabel();
    ASSERT_EQ(updown.size(), 4);
    EXPECT_EQ(updown[0], (QStringList{"Up", "Dw"}));
    EXPECT_EQ(updown[3], (QStringList{"Send", "Receive"}));
    EXPECT_EQ(retDiskReadWrite(), (QList<QStringList>{{"-", "-"}, {"R:", "W:"}, {"Read:", "Write:"}}));
    EXPECT_EQ(retVolumeUsedFree(), (QList<QStringList>{{"-", "-"}, {"U:", "F:"}, {"Used:", "Free:"}}));
}

TEST(LabelLists, JapaneseTableTranslatesLabelsAndSharedKeys)
{
    const JapaneseTranslation japanese;
    ASSERT_TRUE(japanese.loaded());
    EXPECT_EQ(retMemoryUnit().first(), QStringLiteral("自動"));
    EXPECT_EQ(retNetworkBitOrByte().first(), QStringLiteral("KB/s（バイト）"));
    EXPECT_EQ(retDiskReadWrite()[0], (QStringList{"-", "-"}));
    EXPECT_EQ(GeneralFunctions::retTempUnit(), (QStringList{"°C", "°F", "K"}));
    EXPECT_EQ(localized("%dday%@ %d:%02d:%02d"), QStringLiteral("%d日%@ %d:%02d:%02d"));
    // The empty plural suffix must win over the English "s" installed beneath it.
    EXPECT_EQ(localized("_dayS"), QString());
}

TEST(LabelForSetting, PicksOneBasedEntryAndFallsBackToTheFirst)
{
    const QStringList units = GeneralFunctions::retTempUnit();
    EXPECT_EQ(labelForSetting(units, 1), "°C");
    EXPECT_EQ(labelForSetting(units, 3), "K");
    EXPECT_EQ(labelForSetting(units, 0), "°C");
    EXPECT_EQ(labelForSetting(units, 4), "°C");
    EXPECT_EQ(labelForSetting(units, -2), "°C");
    EXPECT_EQ(labelForSetting(retDiskReadWrite(), 2), (QStringList{"R:", "W:"}));
    EXPECT_EQ(labelForSetting(QList<QStringList>{}, 1), QStringList());
}
