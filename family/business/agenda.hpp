#pragma once

#include "family/business/by_name.hpp"

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

    void DadosDoUsuario(const Value& user);

    ObjectRef user_;
};

} // namespace kova::family
