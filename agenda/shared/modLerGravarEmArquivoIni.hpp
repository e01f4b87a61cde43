#pragma once

#include "agenda/contracts/value.hpp"

namespace kova::agenda {

/// What LerArquivoIni answers where the file has no such key.
inline constexpr const char* NenhumValorLido = "Nenhum valor lido";

/// Reads a key of the module's settings file: at most 255 characters, as the platform's profile gives them.
Text LerArquivoIni(const Text& Secao, const Text& Chave);

/// Writes a key. The result is always empty, and a file that cannot be written goes unnoticed.
Text GravarArquivoIni(const Text& Secao, const Text& Chave, const Text& Valor);

} // namespace kova::agenda
