#pragma once

#include "agenda/contracts/date_time.hpp"
#include "family/business/by_name.hpp"

namespace kova::family {

/// KOVA_N_Feriados.clsFeriados: the registered holidays.
class Holidays : public ByName<Holidays> {
public:
    static constexpr std::string_view ClassName = "KOVA_N_Feriados.clsFeriados";

    explicit Holidays(ServerHost& host) : ByName(host, ClassName) { }

    static std::span<const Method<Holidays>> Methods();
    static std::span<const Property<Holidays>> Properties();

private:
    /// Mode, rows of a page, a constant that changes nothing, and a date: "dd/mm" finds the holidays of
    /// every year on that day and those of the platform's current year, "dd/mm/yyyy" both kinds for that
    /// date. 1, with failure 13, where the text is no date.
    Value Selecionar(std::span<Argument> arguments);
    void DadosDoUsuario(const Value& user);

    Date DateOf(const Text& text) const;
};

} // namespace kova::family
