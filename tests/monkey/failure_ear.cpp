#include "tests/monkey/failure_ear.hpp"

#include "tests/monkey/finding.hpp"

#include <algorithm>
#include <array>
#include <iostream>
#include <regex>

namespace kova::monkey {

FailureEar::FailureEar() : before_(std::cerr.rdbuf(this)) { }

FailureEar::~FailureEar() { std::cerr.rdbuf(before_); }

FailureEar::int_type FailureEar::overflow(int_type character)
{
    Hear(std::string(1, traits_type::to_char_type(character)));
    return character;
}

std::streamsize FailureEar::xsputn(const char* text, std::streamsize length)
{
    Hear(std::string(text, static_cast<std::size_t>(length)));
    return length;
}

void FailureEar::Hear(const std::string& text)
{
    before_->sputn(text.data(), static_cast<std::streamsize>(text.size()));
    heard_ += text;
    const std::string failure = FailureReportedIn(heard_);
    if (failure.empty())
        return;
    heard_.clear();
    std::cerr.rdbuf(before_);
    if (!IsToldByDesign(failure))
        TellFinding(failure, "as reported");
    std::cerr.rdbuf(this);
}

std::string FailureReportedIn(const std::string& text)
{
    static const std::regex number("Número: (-?[0-9]+)");
    static const std::regex place("Local: ([^\\n]+)\\n");
    std::smatch foundNumber;
    std::smatch foundPlace;
    if (!std::regex_search(text, foundNumber, number) || !std::regex_search(text, foundPlace, place))
        return "";
    return "error " + foundNumber[1].str() + " at " + foundPlace[1].str();
}

bool IsToldByDesign(const std::string& failure)
{
    static const std::array told{
        // A customer who is not registered has no code, which the transport card needs.
        std::regex("^error -2147217887 at .*ImprimirFichaDoAgendamentoParaTransporte"),
        // A row marked under a filter may leave the page shorter than its own number.
        std::regex("^error 30009 at .*kvcmdMarcarAgendamentoComo[A-Za-z]+_Click, Ponto: 5$"),
        // The check of the dates form asks whether a time is there, not whether a clock shows it.
        std::regex("^error 13 at .*PreencherListaDasDatasEHorasSelecionadas_Click, Ponto: 3$"),
        // A day typed by half behind one that has loaded the list stays in its box, and the list has no such
        // day.
        std::regex("^error 13 at KOVA_N_Agenda.clsAgenda, Selecionar"),
        std::regex("^error 13 at .*kvcmdIrParaDia(Anterior|Posterior)_Click, Ponto: 1$"),
    };
    return std::ranges::any_of(told,
                               [&](const std::regex& known) { return std::regex_search(failure, known); });
}

} // namespace kova::monkey
