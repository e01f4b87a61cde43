#pragma once

#include "system/path_text.hpp"
#include "system/temporary_folder.hpp"
#include "tests/support/command_run.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace kova::scenario {

using Result = test::CommandEnd;

/// agenda-scenario as a program.
class RunnerTest : public testing::Test {
protected:
    Result Run(const std::string& script, const std::string& options = {})
    {
        Write("teste.scenario", script);
        return Call(options + " " + Folder() + "/teste.scenario");
    }

    /// Writes a file beside the script, or in a folder of that name below it.
    void Write(const std::string& name, const std::string& text)
    {
        const std::filesystem::path file = folder_.Path() / system::PathOf(name);
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << text;
    }
    std::string Folder() const { return system::TextOf(folder_.Path()); }

    static Result Call(const std::string& words)
    {
        return test::RunCommand(std::string(RUNNER) + " " + words);
    }

    const std::string shop =
        "records tipos Nome Numero\n\"Consulta\", 1\nend\n"
        "records gente Apelido Codigo\n\"Ana\", 7\nend\n"
        "always KOVA_N_TipoDeServ.clsTiposDeServ.SelecionarParaComboBox 0 records tipos\n"
        "always KOVA_N_Funcionarios.clsFuncionarios.SelecionarParaComboBox 0 records gente\n";

private:
    system::TemporaryFolder folder_{"roteiro-de-são-joão"};
};

} // namespace kova::scenario
