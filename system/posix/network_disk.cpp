#include "system/network_disk.hpp"

#include "system/path_text.hpp"
#include "system/posix/mounted_type.hpp"

#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/vfs.h>

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <sstream>

namespace kova::system {

namespace {

/// As the system numbers its kinds of file systems, in 32 bits.
constexpr std::uint32_t NetworkKinds[] = {
    0x00006969, // nfs
    0x0000517B, // smb
    0xFF534D42, // cifs
    0xFE534D42, // smb2
    0x0000564C, // ncp
    0x5346414F, // afs
    0x6B414653, // kafs
    0x73757245, // coda
    0x01021997, // 9p
    0x00C36400, // ceph
    0x0BD00BD0, // lustre
    0x01161970, // gfs2
    0x7461636F, // ocfs2
    0x47504653, // gpfs
    0x19830326, // beegfs
    0x786F4256, // vboxsf
};

/// Served by a program, which may have it from anywhere.
constexpr std::uint32_t ServedKind = 0x65735546;

constexpr std::string_view NetworkPrograms[] = {
    "fuse.sshfs", "fuse.gvfsd-fuse", "fuse.rclone",      "fuse.smbnetfs",    "fuse.curlftpfs",
    "fuse.davfs", "fuse.glusterfs",  "fuse.s3fs",        "fuse.ceph-fuse",   "fuse.kio-fuse",
    "virtiofs",   "fuse.mount.ceph", "fuse.nfs-ganesha", "fuse.vmhgfs-fuse",
};

std::string DeviceOf(const std::string& path)
{
    struct stat status { };
    if (::stat(path.c_str(), &status) != 0)
        return {};
    return std::to_string(major(status.st_dev)) + ":" + std::to_string(minor(status.st_dev));
}

template <class List, class Element> bool Holds(const List& list, const Element& element)
{
    return std::find(std::begin(list), std::end(list), element) != std::end(list);
}

} // namespace

std::string MountedType(const std::string& mounts, std::string_view device)
{
    std::ifstream file(PathOf(mounts));
    std::string type;
    for (std::string line; std::getline(file, line);) {
        std::istringstream words(line);
        std::string number, parent, found, word;
        words >> number >> parent >> found;
        if (found != device)
            continue;
        // Any number of words stand before this one, and the type behind it.
        while (words >> word && word != "-") { }
        words >> type;
    }
    return type;
}

bool ServesNetwork(std::string_view type) { return Holds(NetworkPrograms, type); }

bool IsOnNetworkDisk(const std::string& path)
{
    struct statfs status { };
    if (::statfs(path.c_str(), &status) != 0)
        return false;
    const auto kind = static_cast<std::uint32_t>(status.f_type);
    if (kind == ServedKind)
        return ServesNetwork(MountedType("/proc/self/mountinfo", DeviceOf(path)));
    return Holds(NetworkKinds, kind);
}

} // namespace kova::system
