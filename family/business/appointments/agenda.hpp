#pragma once

#include "family/business/appointments/appointment_input.hpp"
#include "family/business/appointments/write_answer.hpp"
#include "family/business/by_name.hpp"
#include "family/data/audit/author.hpp"

#include <optional>

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

    // agenda_writes.cpp
    // Each answers the write status, by the properties that the caller has written before.
    Value Adicionar(std::span<Argument>);
    /// With AtualizarSomenteOCampoSituacao only the status.
    Value Alterar(std::span<Argument>);
    Value Excluir(std::span<Argument>);
    /// For the package of the appointment with the written number, also where this object has just deleted
    /// it. Without an argument the status is cancelled.
    Value AlterarSituacaoDoAgendamentoNoPacoteDeBanhoETosa(std::span<Argument> arguments);

    /// Runs a write for the session's user and keeps its answer for the members that are read after it. One
    /// that has left nothing for a cause that passes answers 2 of the field "Gravacao".
    Integer Write(std::string_view member, const std::function<WriteAnswer(const Author&)>& write);

    // The answer of the last write; "" and False where it was done, or has failed technically.
    Value DescricaoDaFalha() const { return answer_.text; }
    Value NomeDoCampoValidado() const { return answer_.field; }
    /// False for one that is attended, too: the question that follows speaks of booked or cancelled.
    Value RegistroPercenteAUmPacoteDeBanhoETosa() const;

    /// Takes a property that the caller writes, converted to its type.
    template <auto Field, auto Convert> void Take(const Value& value) { input_.*Field = (value.*Convert)(); }
    void DadosDoUsuario(const Value& user);
    /// Takes the table as it is now, whatever the caller does with its own later.
    void ListaDasDatasEHorasSelecionadas(const Value& table);

    /// An appointment that this object has deleted, and the package it belonged to; 0 is none.
    struct Deleted {
        Key number, package;
    };

    ObjectRef user_;
    AppointmentInput input_;
    WriteAnswer answer_;
    std::optional<Deleted> deleted_;
    /// The versions of the rows of the last selection.
    std::shared_ptr<const RowVersions::Selection> shown_;
};

} // namespace kova::family
