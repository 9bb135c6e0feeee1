// Parses mountinfo with libmount (which decodes the \040-style escapes) and polls for changes.
#include "collect/linux/linux_mount_source.h"

#include "collect/collect_log.h"

#include <algorithm>
#include <cerrno>
#include <libmount/libmount.h>
#include <memory>
#include <poll.h>
#include <sys/statvfs.h>
#include <sys/sysmacros.h>

namespace {
std::string text(const char* value)
{
    return value ? std::string(value) : std::string();
}

// A malformed line is skipped rather than failing the whole table.
int skipBadLine(libmnt_table*, const char*, int)
{
    return 1;
}
} // namespace

LinuxMountSource::LinuxMountSource(const SysRoot& root, std::string_view table)
    : root_(root)
    , path_(root.join(table))
    , watch_(path_)
{
    // Opened now, so that a change between construction and the first check is not missed.
    watch_.descriptor();
}

std::optional<std::vector<MountRecord>> LinuxMountSource::mounts()
{
    const std::unique_ptr<libmnt_table, void (*)(libmnt_table*)> table(mnt_new_table(), &mnt_unref_table);
    if (!table)
        return std::nullopt;
    mnt_table_set_parser_errcb(table.get(), &skipBadLine);
    if (const int rc = mnt_table_parse_file(table.get(), path_.c_str()); rc != 0) {
        qCDebug(lcCollect) << "cannot parse mount table" << path_.c_str() << rc;
        return std::nullopt;
    }
    const std::unique_ptr<libmnt_iter, void (*)(libmnt_iter*)> iter(mnt_new_iter(MNT_ITER_FORWARD), &mnt_free_iter);
    if (!iter)
        return std::nullopt;

    std::vector<MountRecord> records;
    libmnt_fs* fs = nullptr;
    while (mnt_table_next_fs(table.get(), iter.get(), &fs) == 0) {
        MountRecord record;
        record.mountPoint = text(mnt_fs_get_target(fs));
        record.source = text(mnt_fs_get_source(fs));
        record.fsType = text(mnt_fs_get_fstype(fs));
        record.options = text(mnt_fs_get_options(fs));
        const dev_t device = mnt_fs_get_devno(fs);
        record.major = major(device);
        record.minor = minor(device);
        record.root = text(mnt_fs_get_root(fs));
        records.push_back(std::move(record));
    }
    return records;
}

bool LinuxMountSource::changed()
{
    const std::lock_guard guard(lock_);
    const int fd = watch_.descriptor();
    if (fd < 0)
        return false;
    pollfd watch{fd, POLLPRI, 0};
    // Each poll takes the change event, so a change is reported once.
    return ::poll(&watch, 1, 0) > 0 && (watch.revents & (POLLPRI | POLLERR)) != 0;
}

int LinuxMountSource::changeDescriptor()
{
    const std::lock_guard guard(lock_);
    return watch_.descriptor();
}

std::optional<FileSystemSpace> LinuxMountSource::space(const std::string& mountPoint)
{
    const std::optional<struct statvfs> answer = statvfs_.query(root_.join(mountPoint));
    if (!answer)
        return std::nullopt;
    const struct statvfs& info = *answer;
    // Sizes count in fragments; a file system that leaves the fragment size out means blocks.
    const std::uint64_t unit = info.f_frsize != 0 ? info.f_frsize : info.f_bsize;
    // Blocks kept back for root are neither used nor free to the user: as df counts, used is what
    // is taken and the size is used plus available, so that used = size - free still holds and the
    // share shown is df's.
    const std::uint64_t blocks = info.f_blocks;
    const std::uint64_t available = std::min<std::uint64_t>(info.f_bavail, blocks);
    const std::uint64_t used =
        blocks - std::min<std::uint64_t>(std::max<std::uint64_t>(info.f_bfree, available), blocks);
    return FileSystemSpace{(used + available) * unit, available * unit};
}
