#include "family/data/engine/failure_words.hpp"

#include "agenda/contracts/failure.hpp"
#include "agenda/contracts/failure_detail.hpp"
#include "system/path_text.hpp"
#include "system/want_of_room.hpp"

#include <soci/soci.h>

#include <filesystem>
#include <new>
#include <stdexcept>

namespace kova::family {

namespace {

constexpr const char* WithoutMemory =
    "A memória do computador acabou. Feche outros programas e tente novamente.";
constexpr const char* Unforeseen = "O programa encontrou um erro que não esperava. Tente novamente.";
constexpr const char* OfTheDatabase = "O banco de dados recusou o pedido. Tente novamente.";

std::string WordsForSystem(const std::system_error& failure)
{
    const auto* refused = dynamic_cast<const std::filesystem::filesystem_error*>(&failure);
    const std::string what = refused == nullptr || refused->path1().empty()
        ? "O computador não pôde fazer o que foi pedido. "
        : "\"" + system::TextOf(refused->path1()) + "\" não pode ser usado. ";
    return WithDetail(what + AdviceFor(failure.code()), failure.code().message());
}

} // namespace

std::string WordsFor(const std::exception& failure)
{
    if (const auto* own = dynamic_cast<const Failure*>(&failure))
        return own->Description();
    if (const auto* ofSystem = dynamic_cast<const std::system_error*>(&failure))
        return WordsForSystem(*ofSystem);
    if (dynamic_cast<const std::bad_alloc*>(&failure) != nullptr)
        return WithoutMemory;
    if (dynamic_cast<const soci::soci_error*>(&failure) != nullptr)
        return WithDetail(OfTheDatabase, failure.what());
    // What else is told at run time has been thrown by this system, in its own words.
    if (dynamic_cast<const std::runtime_error*>(&failure) != nullptr)
        return failure.what();
    return WithDetail(Unforeseen, failure.what());
}

std::string AdviceFor(const std::error_code& cause)
{
    if (system::IsWantOfRoom(cause))
        return "O disco está cheio. Libere espaço e tente novamente.";
    if (cause == std::errc::no_such_file_or_directory)
        return "A pasta não existe. Verifique o caminho.";
    if (cause == std::errc::permission_denied || cause == std::errc::operation_not_permitted
        || cause == std::errc::read_only_file_system)
        return "Verifique as permissões da pasta ou escolha outra.";
    return "Verifique o caminho e tente novamente.";
}

} // namespace kova::family
