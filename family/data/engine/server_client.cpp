#include "family/data/engine/server_client.hpp"

#include "agenda/contracts/failure_detail.hpp"
#include "family/data/engine/database_failure.hpp"
#include "system/library.hpp"
#include "system/path_text.hpp"
#include "system/program_path.hpp"

#include <atomic>
#include <mutex>

namespace kova::family {

namespace {

std::atomic<const ServerClient*> loadedClient = nullptr;

std::filesystem::path LibraryPath()
{
    const std::filesystem::path file = system::PathOf(system::LibraryFile(ServerClientLibrary));
    try {
        return system::OwnPath().replace_filename(file);
    } catch (const std::filesystem::filesystem_error&) {
        // A program whose own file is gone is not the place to look for others.
        return file;
    }
}

DatabaseFailure Missing(const std::string& path)
{
    return DatabaseFailure("Esta instalação não tem a parte que fala com servidores: falta o arquivo \""
                           + path
                           + "\". Instale o programa novamente, com todas as bibliotecas ao lado dele.");
}

DatabaseFailure Unusable(const std::string& path, const std::string& reason)
{
    return DatabaseFailure(
        WithDetail("A parte do programa que fala com servidores não pode ser carregada. O arquivo \"" + path
                       + "\" pode estar danificado, ou falta uma biblioteca de que ele precisa. Instale o "
                         "programa novamente.",
                   reason));
}

const ServerClient* Load()
{
    const std::filesystem::path file = LibraryPath();
    const std::string path = system::TextOf(file);
    std::error_code unreadable;
    if (!std::filesystem::exists(file, unreadable))
        throw Missing(path);
    try {
        system::Library library(path);
        const auto client = reinterpret_cast<ServerClientFunction>(library.Find(ServerClientEntry));
        if (client == nullptr)
            throw Unusable(path, ServerClientEntry);
        // Connections, and failures on their way, may need it until the end.
        library.Abandon();
        return client();
    } catch (const system::LibraryNotLoaded& failure) {
        throw Unusable(path, failure.what());
    }
}

} // namespace

std::string ValueOf(const AddressParts& parts, const char* keyword)
{
    const auto found = parts.find(keyword);
    return found == parts.end() ? std::string() : found->second;
}

const ServerClient& RequireServerClient()
{
    static std::mutex loading;
    const std::scoped_lock lock(loading);
    if (loadedClient == nullptr)
        loadedClient = Load();
    return *loadedClient;
}

const ServerClient* LoadedServerClient() { return loadedClient; }

} // namespace kova::family
