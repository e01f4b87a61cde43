#include "agenda/contracts/support/component_library.hpp"
#include "family/presentation/clsEtiquetas.hpp"
#include "family/presentation/clsFundoEscuro.hpp"
#include "family/presentation/clsMensagem.hpp"
#include "family/presentation/clsMensagemDeAcesso.hpp"

namespace {

kova::ComponentLibrary& Library();

std::shared_ptr<void> HoldLibrary() { return Library().Hold(); }

kova::ComponentLibrary& Library()
{
    static kova::ComponentLibrary library({
        {std::string(kova::family::clsMensagem::ClassName), "{7B1E0D0C-52C4-4F2B-9B77-0D9C6B6A51E1}",
         +[](kova::ServerHost&) { return std::make_unique<kova::family::clsMensagem>(); }},
        {std::string(kova::family::clsFundoEscuro::ClassName), "{7B1E0D0C-52C4-4F2B-9B77-0D9C6B6A51E2}",
         +[](kova::ServerHost&) { return std::make_unique<kova::family::clsFundoEscuro>(HoldLibrary); }},
        {std::string(kova::family::clsMensagemDeAcesso::ClassName), "{7B1E0D0C-52C4-4F2B-9B77-0D9C6B6A51E3}",
         +[](kova::ServerHost&) { return std::make_unique<kova::family::clsMensagemDeAcesso>(); }},
        {std::string(kova::family::clsEtiquetas::ClassName), "{7B1E0D0C-52C4-4F2B-9B77-0D9C6B6A51E4}",
         +[](kova::ServerHost& host) { return std::make_unique<kova::family::clsEtiquetas>(host); }},
    });
    return library;
}

const kova::ServedLibrary served(Library);

} // namespace
