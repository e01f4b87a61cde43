#pragma once

#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>

namespace kova::family {

/// What not everybody may do.
enum class Right {
    Book,
    ChangeAppointments,
    CancelAppointments,
    DeleteAppointments,
    UndoPreSales,
    ChangeRegisters,
    SeePrices,
    Export,
    Anonymise,
    SeeHistory,
    AdministerUsers,
};

using Rights = std::set<Right>;

struct RightInfo {
    Right right;
    /// As a role's rows have it: "agendamento.excluir".
    std::string_view name;
    /// Rights of one group stand together: "Agendamentos".
    std::string_view group;
    /// What it allows: "Excluir agendamentos".
    std::string_view label;

    /// The same behind "pode": "excluir agendamentos".
    std::string Act() const;
};

/// All of them, in the order in which they are shown.
std::span<const RightInfo> AllRights();

const RightInfo& InfoOf(Right right);

/// Nothing for a name of no right, such as one that a newer program gives.
std::optional<Right> RightNamed(std::string_view name);

} // namespace kova::family
