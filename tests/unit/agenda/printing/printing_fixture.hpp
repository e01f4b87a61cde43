#pragma once

#include "reports/pages.hpp"
#include "tests/unit/agenda/module_fixture.hpp"

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace kova::agenda {

/// Printing from an open list, for the company "Pata Feliz". A box, menu or preview that no test has prepared
/// fails it, and so does an answer that nobody asked for.
class PrintingTest : public ModuleTest {
protected:
    using Strings = std::vector<std::string>;

    PrintingTest() { ScriptCompanies({{"Pata Feliz"}}); }

    void TearDown() override
    {
        EXPECT_EQ(toolkit.Queue().Unexpected(), Strings());
        EXPECT_EQ(toolkit.Queue().Unused(), 0U);
        EXPECT_TRUE(toolkit.UnhandledFailures().empty());
    }

    void ScriptCompanies(std::vector<std::vector<Value>> rows)
    {
        script.Always(Empresa, {.records = {{"NomeFantasia"}, std::move(rows)}});
    }
    static scenario::ScriptedAnswer Failed()
    {
        return {.result = Integer{1},
                .members = {
                    {"NumeroDoErro", Long{17}}, {"DescricaoDoErro", "sem conexão"}, {"LocalDoErro", "clsX"}}};
    }
    /// How the error screen is told of a `Failed` answer.
    static std::string ReportOfFailed()
    {
        return R"(call KOVA_A_MsgErro.clsMensagem.Exibir(Long& 17, Text& "sem conexão", Text& "clsX", )"
               R"(Text& "Kova") -> Integer 0)";
    }

    void Acknowledge() { toolkit.Queue().QueueReply(Reply::Ok); }
    /// The user looks at the next preview: its texts and its paper are kept.
    void Look()
    {
        toolkit.Queue().QueuePreview([this](const reports::Document& document) {
            landscape = document.paperWidth > document.paperHeight;
            printed.clear();
            for (const reports::Page& page : document.pages) {
                for (const reports::Item& item : page.items) {
                    if (item.kind == reports::ItemKind::Text)
                        printed.push_back(item.text);
                }
            }
            if (whilePreviewed)
                whilePreviewed();
        });
    }
    bool Printed(const std::string& text) const
    {
        return std::find(printed.begin(), printed.end(), text) != printed.end();
    }

    static constexpr const char* Empresa = "KOVA_N_Empresa.clsEmpresa.SelecionarNova";
    static constexpr const char* Selecionar = "KOVA_N_Agenda.clsAgenda.Selecionar";
    static constexpr const char* SemEmpresa =
        "Não foi possível imprimir o documento porque não há empresa cadastrada.\r\nSelecione a guia (aba) "
        "'Cadastros' e em seguida, clique na opções 'Empresa'. Efetue o cadastro e solicite a impressão "
        "novamente";

    Strings printed;
    bool landscape = false;
    std::function<void()> whilePreviewed;
};

} // namespace kova::agenda
