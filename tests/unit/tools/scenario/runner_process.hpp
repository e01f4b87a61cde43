#pragma once

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace kova::scenario {

struct Result {
    int status = 0;
    /// Standard output and standard error, as they came.
    std::string text;
};

/// agenda-scenario as a program.
class RunnerTest : public testing::Test {
protected:
    RunnerTest()
    {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "roteiro-de-são-joão-XXXXXX").string();
        folder_ = mkdtemp(pattern.data());
    }
    ~RunnerTest() override { std::filesystem::remove_all(folder_); }

    Result Run(const std::string& script, const std::string& options = {})
    {
        const std::string file = folder_ + "/teste.scenario";
        std::ofstream(file) << script;
        return Call(options + " " + file);
    }

    /// Writes a file beside the script, or in a folder of that name below it.
    void Write(const std::string& name, const std::string& text)
    {
        const std::filesystem::path file = std::filesystem::path(folder_) / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file) << text;
    }
    const std::string& Folder() const { return folder_; }

    static Result Call(const std::string& words)
    {
        Result result;
        FILE* pipe = popen((std::string(RUNNER) + " " + words + " 2>&1").c_str(), "r");
        std::array<char, 4096> part{};
        while (const std::size_t read = std::fread(part.data(), 1, part.size(), pipe))
            result.text.append(part.data(), read);
        const int status = pclose(pipe);
        result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        return result;
    }

    const std::string shop =
        "records tipos Nome Numero\n\"Consulta\", 1\nend\n"
        "records gente Apelido Codigo\n\"Ana\", 7\nend\n"
        "always KOVA_N_TipoDeServ.clsTiposDeServ.SelecionarParaComboBox 0 records tipos\n"
        "always KOVA_N_Funcionarios.clsFuncionarios.SelecionarParaComboBox 0 records gente\n";

private:
    std::string folder_;
};

} // namespace kova::scenario
