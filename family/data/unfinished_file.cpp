#include "family/data/unfinished_file.hpp"

#include "agenda/contracts/failure_detail.hpp"
#include "family/data/file_checks.hpp"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>

namespace kova::family {

namespace {

namespace fs = std::filesystem;

std::string AdviceFor(int cause)
{
    switch (cause) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG: return "O disco está cheio. Libere espaço e tente novamente.";
    case ENOENT: return "A pasta não existe. Verifique o caminho.";
    case EACCES:
    case EPERM:
    case EROFS: return "Verifique as permissões da pasta ou escolha outra.";
    default: return "Verifique o caminho e tente novamente.";
    }
}

[[noreturn]] void FailOn(const char* what, const std::string& path)
{
    throw fs::filesystem_error(what, path, std::error_code(errno, std::generic_category()));
}

/// File systems of other computers' disks and sticks may not know the renaming that never replaces.
void RenameWithoutReplacing(const std::string& from, const std::string& to)
{
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return;
    if (errno != EINVAL && errno != ENOSYS)
        FailOn("rename", to);
    if (fs::exists(fs::symlink_status(to))) {
        errno = EEXIST;
        FailOn("rename", to);
    }
    fs::rename(from, to);
}

void HardenFolderOf(const std::string& path)
{
    const fs::path folder = fs::path(path).parent_path();
    Harden(folder.empty() ? "." : folder.string());
}

/// Whether the opened file still is the one that bears the name: its maker may have finished it meanwhile.
bool Bears(int file, const std::string& name)
{
    struct stat opened {
    }, named{};
    return fstat(file, &opened) == 0 && stat(name.c_str(), &named) == 0 && opened.st_ino == named.st_ino
        && opened.st_dev == named.st_dev;
}

/// The open file with its lock; -1 with errno where there is none to be had.
int OpenLocked(const std::string& name, int flags)
{
    const int file = open(name.c_str(), flags | O_RDWR | O_CLOEXEC, 0666);
    if (file < 0)
        return -1;
    if (flock(file, LOCK_EX | LOCK_NB) == 0) {
        if (Bears(file, name))
            return file;
        errno = EWOULDBLOCK;
    }
    const int cause = errno;
    close(file);
    errno = cause;
    return -1;
}

/// With the log files that the engine may have put beside it. What cannot be removed stays.
void RemoveUnfinished(const std::string& path)
{
    std::error_code ignored;
    for (const char* companion : {"", "-wal", "-shm", "-journal"})
        fs::remove(UnfinishedName(path) + companion, ignored);
}

} // namespace

StoreFailure UnwritableFile(const std::string& path, int cause)
{
    if (cause == EEXIST)
        return DatabaseFailure("O arquivo \"" + path
                               + "\" já existe. Escolha outro nome ou apague o arquivo.");
    return DatabaseFailure(WithDetail("O arquivo \"" + path + "\" não pode ser gravado. " + AdviceFor(cause),
                                      std::generic_category().message(cause)));
}

std::string UnfinishedName(const std::string& path) { return path + ".parcial"; }

UnfinishedFile::UnfinishedFile(std::string path) : path_(std::move(path)), name_(UnfinishedName(path_))
{
    if (const auto refusal = CheckNewFile(path_))
        throw DatabaseFailure(*refusal);
    RemoveAbandoned(path_);
    file_ = OpenLocked(name_, O_CREAT);
    if (file_ >= 0)
        return;
    if (errno == EWOULDBLOCK)
        throw DatabaseFailure("O arquivo \"" + path_
                              + "\" está sendo feito por outro programa. Espere que ele termine.");
    throw UnwritableFile(path_, errno);
}

UnfinishedFile::~UnfinishedFile()
{
    if (!finished_)
        RemoveUnfinished(path_);
    close(file_);
}

void UnfinishedFile::Finish()
{
    try {
        Harden(name_);
        RenameWithoutReplacing(name_, path_);
        HardenFolderOf(path_);
    } catch (const fs::filesystem_error& cause) {
        throw UnwritableFile(path_, cause.code().value());
    }
    finished_ = true;
}

bool RemoveAbandoned(const std::string& path)
{
    const int file = OpenLocked(UnfinishedName(path), 0);
    if (file < 0)
        return errno == EWOULDBLOCK;
    RemoveUnfinished(path);
    close(file);
    return false;
}

} // namespace kova::family
