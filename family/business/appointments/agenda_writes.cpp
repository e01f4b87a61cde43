#include "family/business/appointments/agenda.hpp"
#include "family/business/appointments/appointment_writes.hpp"
#include "family/business/appointments/status_change.hpp"
#include "family/business/current_author.hpp"
#include "family/data/stores/appointment_status.hpp"

namespace kova::family {

namespace {

/// A screen that finds no field of that name shows the text and stays open, with all that was typed.
constexpr const char* NoField = "Gravacao";

/// What fails for a cause that passes has left nothing behind, and is worth another press.
WriteAnswer AnswerOrNothing(const std::function<WriteAnswer()>& write)
{
    try {
        return write();
    } catch (const DatabaseFailure& failure) {
        if (!IsPassing(failure.GetFault()))
            throw;
        return WriteAnswer::InvalidField(NoField, "Nada foi gravado.\r\n" + failure.Cause());
    }
}

} // namespace

Integer Agenda::Write(std::string_view member, const std::function<WriteAnswer(const Author&)>& write)
{
    answer_ = {};
    bool answered = false;
    const Integer failed = Attempt(member, [&] {
        const Author author = CurrentAuthor(user_, Host().GetPlatform().Clock());
        answer_ = AnswerOrNothing([&] { return write(author); });
        answered = true;
    });
    return answered ? answer_.status : failed;
}

Value Agenda::Adicionar(std::span<Argument>)
{
    return Write("Adicionar", [&](const Author& author) { return AddAppointments(Data(), input_, author); });
}

Value Agenda::Alterar(std::span<Argument>)
{
    return Write("Alterar", [&](const Author& author) {
        if (input_.onlyStatus)
            return ChangeStatus(Data(), KeyOf(input_.number), input_.statusNew, author);
        return AlterAppointment(Data(), input_, author);
    });
}

Value Agenda::Excluir(std::span<Argument>)
{
    return Write("Excluir", [&](const Author& author) {
        const WriteAnswer answer = DeleteAppointment(Data(), input_, author);
        if (answer.IsDone())
            deleted_ = {KeyOf(input_.number), answer.package};
        return answer;
    });
}

Value Agenda::RegistroPercenteAUmPacoteDeBanhoETosa() const
{
    return answer_.IsDone() && answer_.package != 0
        && !appointment_status::IsAttended(answer_.appointmentStatus);
}

Value Agenda::AlterarSituacaoDoAgendamentoNoPacoteDeBanhoETosa(std::span<Argument> arguments)
{
    return Write("AlterarSituacaoDoAgendamentoNoPacoteDeBanhoETosa", [&](const Author& author) {
        const int status =
            arguments.empty() ? appointment_status::Cancelled : static_cast<int>(arguments[0].Get().ToLong());
        const Key number = KeyOf(input_.number);
        if (deleted_ && deleted_->number == number)
            return ChangeStatusInPackage(Data(), deleted_->package, status, author);
        return ChangeStatusOfPackage(Data(), number, status, author);
    });
}

} // namespace kova::family
