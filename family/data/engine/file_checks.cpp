#include "family/data/engine/file_checks.hpp"

#include "agenda/contracts/failure_detail.hpp"
#include "family/data/engine/file_header.hpp"
#include "system/access.hpp"
#include "system/network_disk.hpp"
#include "system/path_text.hpp"

#include <filesystem>

namespace kova::family {

namespace {

namespace fs = std::filesystem;

std::string FolderOf(const std::string& path)
{
    const fs::path folder = system::PathOf(path).parent_path();
    return folder.empty() ? "." : system::TextOf(folder);
}

std::string NotADatabase(const std::string& path)
{
    return "O arquivo \"" + path + "\" não é um banco de dados. Escolha outro arquivo.";
}

std::optional<std::string> CheckPathText(const std::string& path)
{
    if (path.empty())
        return "Nenhum banco de dados foi informado. Informe o caminho do arquivo.";
    if (path.find("://") != std::string::npos)
        return "O banco de dados \"" + path
            + "\" não é de um tipo conhecido. Informe o caminho de um arquivo ou um endereço postgresql://.";
    if (path.find('"') != std::string::npos)
        return "O caminho " + path + " contém aspas. Use um caminho sem aspas.";
    return std::nullopt;
}

std::optional<std::string> CheckFolder(const std::string& path)
{
    const std::string folder = FolderOf(path);
    if (!fs::is_directory(system::PathOf(folder)))
        return "A pasta \"" + folder + "\" de \"" + path + "\" não existe. Verifique o caminho.";
    if (!system::MayWrite(folder))
        return "A pasta \"" + folder + "\" de \"" + path
            + "\" não aceita gravação. Verifique as permissões da pasta ou escolha outra.";
    return std::nullopt;
}

std::optional<std::string> CheckKind(const std::string& path)
{
    const fs::file_status status = fs::status(system::PathOf(path));
    if (status.type() == fs::file_type::not_found)
        return "O banco de dados \"" + path + "\" não existe. Verifique o caminho ou crie um novo.";
    if (status.type() == fs::file_type::directory)
        return "\"" + path + "\" é uma pasta. Informe o caminho de um arquivo de banco de dados.";
    if (status.type() != fs::file_type::regular)
        return "\"" + path + "\" não é um arquivo comum. Informe o caminho de um arquivo de banco de dados.";
    return std::nullopt;
}

std::optional<std::string> CheckLocalDiskUnguarded(const std::string& path)
{
    if (!system::IsOnNetworkDisk(FolderOf(path)) && !system::IsOnNetworkDisk(path))
        return std::nullopt;
    return "O arquivo \"" + path
        + "\" está em uma pasta da rede, onde as gravações de vários programas se estragariam. Use um "
          "arquivo em um disco deste computador ou, para vários postos, um servidor PostgreSQL; "
          "\"agenda-data copy\" leva os dados para um ou para o outro.";
}

std::optional<std::string> CheckExistingFileUnguarded(const std::string& path)
{
    if (auto refusal = CheckPathText(path))
        return refusal;
    if (auto refusal = CheckKind(path))
        return refusal;
    if (auto refusal = CheckLocalDiskUnguarded(path))
        return refusal;
    if (!system::MayRead(path) || !system::MayWrite(path))
        return "O arquivo \"" + path
            + "\" não pode ser lido e gravado por este usuário. Verifique as permissões do arquivo.";
    if (!HasSqliteHeader(path))
        return NotADatabase(path);
    return CheckFolder(path);
}

std::optional<std::string> CheckReadableFileUnguarded(const std::string& path)
{
    if (auto refusal = CheckPathText(path))
        return refusal;
    if (auto refusal = CheckKind(path))
        return refusal;
    if (!system::MayRead(path))
        return "O arquivo \"" + path
            + "\" não pode ser lido por este usuário. Verifique as permissões do arquivo.";
    if (!HasSqliteHeader(path))
        return NotADatabase(path);
    return std::nullopt;
}

std::optional<std::string> CheckNewFileUnguarded(const std::string& path)
{
    if (auto refusal = CheckPathText(path))
        return refusal;
    if (fs::exists(fs::symlink_status(system::PathOf(path))))
        return "O arquivo \"" + path + "\" já existe. Escolha outro nome ou apague o arquivo.";
    return CheckFolder(path);
}

/// The file system's own refusals (a loop of links, a folder that may not be entered) become texts too.
template <class Check> std::optional<std::string> Guarded(const std::string& path, Check check)
{
    try {
        return check(path);
    } catch (const fs::filesystem_error& cause) {
        return WithDetail("O caminho \"" + path
                              + "\" não pode ser lido. Verifique o caminho e as permissões.",
                          cause.code().message());
    }
}

} // namespace

std::optional<std::string> CheckExistingFile(const std::string& path)
{
    return Guarded(path, CheckExistingFileUnguarded);
}

std::optional<std::string> CheckReadableFile(const std::string& path)
{
    return Guarded(path, CheckReadableFileUnguarded);
}

bool MayWriteDatabase(const std::string& path)
{
    return system::MayWrite(path) && system::MayWrite(FolderOf(path));
}

std::optional<std::string> CheckLocalDisk(const std::string& path)
{
    return Guarded(path, CheckLocalDiskUnguarded);
}

std::optional<std::string> CheckNewFile(const std::string& path)
{
    return Guarded(path, CheckNewFileUnguarded);
}

} // namespace kova::family
