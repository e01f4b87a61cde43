#include "agenda/shared/modLerGravarEmArquivoIni.hpp"

#include "agenda/shared/module_platform.hpp"

namespace kova::agenda {

namespace {

/// One more than the longest value that is read.
constexpr Integer TamanhoDoBuffer = 256;

Text CaminhoDoArquivo()
{
    return ThePlatform().SettingsFolder() + "/" + ThePlatform().SettingsTitle() + ".ini";
}

} // namespace

Text LerArquivoIni(const Text& Secao, const Text& Chave)
{
    return ThePlatform().Profile().Read(Secao, Chave, NenhumValorLido, TamanhoDoBuffer, CaminhoDoArquivo());
}

Text GravarArquivoIni(const Text& Secao, const Text& Chave, const Text& Valor)
{
    ThePlatform().Profile().Write(Secao, Chave, Valor, CaminhoDoArquivo());
    return {};
}

} // namespace kova::agenda
