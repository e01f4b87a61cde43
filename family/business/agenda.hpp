#pragma once

#include "family/business/appointment_input.hpp"
#include "family/business/by_name.hpp"
#include "family/business/write_answer.hpp"

namespace kova::family {

/// KOVA_N_Agenda.clsAgenda: the appointments.
class Agenda : public ByName<Agenda> {
public:
    static constexpr std::string_view ClassName = "KOVA_N_Agenda.clsAgenda";

    explicit Agenda(ServerHost& host) : ByName(host, ClassName) { }

    static std::span<const Method<Agenda>> Methods();
    static std::span<const Property<Agenda>> Properties();

private:
    // agenda_selection.cpp
    Value Selecionar(std::span<Argument> arguments);
    Value PaginarResultadoDaSelecaoEmRecordset(std::span<Argument> arguments);

    // agenda_status.cpp
    /// Answers the write status. Only with AtualizarSomenteOCampoSituacao: status 1 without it.
    Value Alterar(std::span<Argument>);
    /// Answers the write status. Without an argument the status is cancelled.
    Value AlterarSituacaoDoAgendamentoNoPacoteDeBanhoETosa(std::span<Argument> arguments);

    /// Runs a write for the session's user and keeps its answer for the members that are read after it.
    Integer Write(std::string_view member, const std::function<WriteAnswer()>& write);

    // The answer of the last write; "" and False where it was done, or has failed technically.
    Value DescricaoDaFalha() const { return answer_.text; }
    Value NomeDoCampoValidado() const { return answer_.field; }
    Value RegistroPercenteAUmPacoteDeBanhoETosa() const { return answer_.IsDone() && answer_.inPackage; }

    /// Takes a property that the caller writes, converted to its type.
    template <auto Field, auto Convert> void Take(const Value& value) { input_.*Field = (value.*Convert)(); }
    void DadosDoUsuario(const Value& user);

    ObjectRef user_;
    AppointmentInput input_;
    WriteAnswer answer_;
};

} // namespace kova::family
