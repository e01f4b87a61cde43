#include "family/business/agenda.hpp"
#include "family/business/current_author.hpp"
#include "family/business/status_change.hpp"
#include "family/data/appointment_status.hpp"

#include <cmath>

namespace kova::family {

namespace {

/// The object cannot do what was asked of it.
constexpr std::int32_t ActionNotSupported = 445;

/// 0, which no record has, for a number that cannot be a key.
Key KeyOf(Double number)
{
    constexpr Double largest = 9007199254740992.0;
    const bool whole = std::isfinite(number) && std::fabs(number) <= largest && std::trunc(number) == number;
    return whole ? static_cast<Key>(number) : 0;
}

} // namespace

Integer Agenda::Write(std::string_view member, const std::function<WriteAnswer()>& write)
{
    answer_ = {};
    bool answered = false;
    const Integer failed = Attempt(member, [&] {
        answer_ = write();
        answered = true;
    });
    return answered ? answer_.status : failed;
}

Value Agenda::Alterar(std::span<Argument>)
{
    return Write("Alterar", [&] {
        if (!input_.onlyStatus)
            throw Failure(
                ActionNotSupported,
                "A alteração do registro completo do agendamento não está disponível nesta versão.");
        const Author author = CurrentAuthor(user_, Host().GetPlatform().Clock());
        return ChangeStatus(Data(), KeyOf(input_.number), input_.statusNew, author);
    });
}

Value Agenda::AlterarSituacaoDoAgendamentoNoPacoteDeBanhoETosa(std::span<Argument> arguments)
{
    return Write("AlterarSituacaoDoAgendamentoNoPacoteDeBanhoETosa", [&] {
        const Author author = CurrentAuthor(user_, Host().GetPlatform().Clock());
        const int status =
            arguments.empty() ? appointment_status::Cancelled : static_cast<int>(arguments[0].Get().ToLong());
        return ChangeStatusOfPackage(Data(), KeyOf(input_.number), status, author);
    });
}

} // namespace kova::family
