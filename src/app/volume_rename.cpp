// Rewrites the Volume history sample by sample for a rename, and finds renames between rebuilds.
#include "app/volume_rename.h"

History<VolumeSample> renameVolumeInHistory(const History<VolumeSample>& history, const VolumeRename& rename)
{
    std::vector<VolumeSample> samples;
    samples.reserve(history.size());
    for (std::size_t i = 0; i < history.size(); ++i) {
        const VolumeSample& sample = history[i];
        if (sample.empty())
            continue;
        VolumeSample rewritten;
        rewritten.all = sample.all;
        for (const auto& [path, usage] : sample.volumes) {
            if (path == rename.oldPath && usage.name == rename.oldName) {
                VolumeUsage renamed = usage;
                renamed.name = rename.newName;
                rewritten.volumes.insert_or_assign(rename.newPath, std::move(renamed));
            } else {
                rewritten.volumes.insert_or_assign(path, usage);
            }
        }
        samples.push_back(std::move(rewritten));
    }
    return History<VolumeSample>::fromSamples(std::move(samples));
}

std::vector<VolumeRename> renamedVolumes(const VolumeBaseDict& before, const VolumeBaseDict& after)
{
    std::vector<VolumeRename> renames;
    for (const auto& [path, volume] : after) {
        const auto earlier = before.find(path);
        if (earlier != before.end() && earlier->second.volumeName != volume.volumeName)
            renames.push_back({earlier->second.volumeName, volume.volumeName, path, path});
    }
    return renames;
}
