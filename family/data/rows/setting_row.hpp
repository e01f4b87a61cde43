#pragma once

#include "family/data/engine/key.hpp"

#include <string>

namespace kova::family {

/// Something that a shop is set to, for all its desks.
struct SettingRow {
    static constexpr const char* Table = "ajuste";
    Key codigo = 0;
    /// There is one row of a name at most; without it the usual holds.
    std::string nome;
    std::string valor;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("nome", nome);
        visit("valor", valor);
    }
};

/// The names that there are.
namespace setting {

/// "sim": a shop that was made to be tried out.
inline constexpr const char* Demonstration = "demonstracao";
/// After how many minutes without a hand at it a desk is locked; 0 is never.
inline constexpr const char* IdleMinutes = "bloqueio.minutos";

} // namespace setting

} // namespace kova::family
