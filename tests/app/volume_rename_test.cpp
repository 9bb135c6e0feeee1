// A volume's rename carries its Volume history over; nothing else in the history moves.
#include "app/volume_rename.h"

#include <gtest/gtest.h>

namespace {

VolumeSample sample(std::initializer_list<std::pair<const QString, VolumeUsage>> volumes)
{
    VolumeSample s;
    s.volumes = volumes;
    s.all = VolumeUsage{900, 600, 300, {}};
    return s;
}

} // namespace

TEST(VolumeRename, MovesOnlyEntriesUnderTheOldPathThatCarryTheOldName)
{
    const auto history = History<VolumeSample>::fromSamples({
        sample({{"/media/a", {100, 60, 40, "Holiday"}}, {"/", {800, 540, 260, "Root"}}}),
        VolumeSample{},                                 // a sample without entries
        sample({{"/media/a", {100, 70, 30, "Older"}}}), // another volume mounted there before
        sample({{"/media/a", {100, 80, 20, "Holiday"}}}),
    });
    const History<VolumeSample> renamed = renameVolumeInHistory(history, {"Holiday", "Summer", "/media/a", "/media/b"});

    ASSERT_EQ(renamed.size(), 3u);
    EXPECT_EQ(renamed[0], sample({{"/media/b", {100, 60, 40, "Summer"}}, {"/", {800, 540, 260, "Root"}}}));
    EXPECT_EQ(renamed[1], sample({{"/media/a", {100, 70, 30, "Older"}}}));
    EXPECT_EQ(renamed[2], sample({{"/media/b", {100, 80, 20, "Summer"}}}));
    // A new history: a status item still drawing from the old one sees it unchanged.
    EXPECT_NE(renamed.identity(), history.identity());
    EXPECT_EQ(history.size(), 4u);
    EXPECT_EQ(history[0].volumes.at("/media/a").name, "Holiday");

    // "/" keeps its path; a volume the history never saw leaves every entry as it was.
    const History<VolumeSample> root = renameVolumeInHistory(history, {"Root", "tower", "/", "/"});
    EXPECT_EQ(root[0].volumes.at("/").name, "tower");
    const History<VolumeSample> unknown = renameVolumeInHistory(history, {"Nope", "Other", "/mnt/x", "/mnt/y"});
    ASSERT_EQ(unknown.size(), 3u);
    EXPECT_EQ(unknown[0], history[0]);
    EXPECT_EQ(unknown[2], history[3]);
}

TEST(VolumeRename, FoundBetweenTwoDescriptionsOfTheSameMounts)
{
    VolumeBaseDict before;
    before["/media/user/STICK"].volumeName = "STICK";
    before["/mnt/gone"].volumeName = "Gone";
    VolumeBaseDict after;
    after["/media/user/STICK"].volumeName = "Photos";
    after["/mnt/new"].volumeName = "New";
    EXPECT_EQ(renamedVolumes(before, after),
              (std::vector<VolumeRename>{{"STICK", "Photos", "/media/user/STICK", "/media/user/STICK"}}));
}
