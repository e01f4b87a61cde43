#include "tools/agenda-data/csv/whole_file.hpp"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <stdexcept>
#include <system_error>

namespace kova::data {

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

std::runtime_error AlreadyThere(const std::string& path)
{
    return std::runtime_error("O arquivo \"" + path
                              + "\" já existe. Escolha outro nome ou apague o arquivo.");
}

/// Answers the cause of a failure, or 0. A file system that cannot rename this way replaces nothing either:
/// it has been looked at before.
int RenameToNewName(const std::string& from, const std::string& to)
{
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    return std::rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
}

} // namespace

WholeFile::WholeFile(std::string path) : path_(std::move(path)), unfinished_(path_ + ".parcial")
{
    std::error_code error;
    if (fs::exists(fs::symlink_status(path_, error)))
        throw AlreadyThere(path_);
    file_ = std::fopen(unfinished_.c_str(), "wbe");
    if (!file_)
        Fail(errno);
}

WholeFile::~WholeFile()
{
    if (!file_)
        return;
    std::fclose(file_);
    std::remove(unfinished_.c_str());
}

void WholeFile::Write(std::string_view bytes)
{
    if (std::fwrite(bytes.data(), 1, bytes.size(), file_) != bytes.size())
        Fail(errno);
}

void WholeFile::Finish()
{
    if (std::fflush(file_) != 0 || fsync(fileno(file_)) != 0)
        Fail(errno);
    const int cause = RenameToNewName(unfinished_, path_);
    if (cause == EEXIST)
        throw AlreadyThere(path_);
    if (cause != 0)
        Fail(cause);
    std::fclose(file_);
    file_ = nullptr;
}

void WholeFile::Fail(int cause) const
{
    throw std::runtime_error("O arquivo \"" + path_ + "\" não pode ser gravado. " + AdviceFor(cause) + " ("
                             + std::generic_category().message(cause) + ")");
}

} // namespace kova::data
