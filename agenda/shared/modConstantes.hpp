#pragma once

#include "agenda/contracts/value.hpp"

#include <array>

namespace kova::agenda {

// Constants that more than one screen reads, beside modPrincipal, which has the values.

/// Name of the running library, first part of the place of every trapped failure.
inline constexpr const char* NomeDoExecutavel = "KOVA_A_Agenda";

inline constexpr const char* QuebraDeLinha = "\r\n";

/// The system whose windows keep their square corners.
inline constexpr const char* SistemaDeCantosRetos = "Windows 8";

/// Status of an appointment. Another number, or 0 in a filter, is none of them.
namespace situacao {
inline constexpr Integer Agendado = 1;
inline constexpr Integer Atendido = 2;
inline constexpr Integer Cancelado = 3;
inline constexpr Integer AtendidoEGeradoPreVenda = 4;
/// How lists call them, by their numbers.
inline constexpr std::array<const char*, 5> Nomes{"", "Agendado", "Atendido", "Cancelado",
                                                  "At. gerado pré-venda"};
} // namespace situacao

/// Operation of a record form, as its opener passes it.
namespace operacao {
inline constexpr Integer Adicionar = 1;
inline constexpr Integer Detalhar = 2;
inline constexpr Integer Alterar = 3;
inline constexpr Integer Excluir = 4;
} // namespace operacao

/// What Adicionar, Alterar and Excluir of the business tier answer. Any other number means nothing.
namespace resultado_da_gravacao {
inline constexpr Integer Concluida = 0;
inline constexpr Integer FalhaTecnica = 1;
inline constexpr Integer CampoRecusado = 2;
inline constexpr Integer Recusada = 3;
} // namespace resultado_da_gravacao

} // namespace kova::agenda
