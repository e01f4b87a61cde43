#include "tests/unit/tools/agenda-data/import_fixture.hpp"

#include "family/data/sources/data_source.hpp"
#include "tools/agenda-data/commands.hpp"

#include <algorithm>

namespace kova::data::test {

using kova::test::ContentOf;
using kova::test::WriteFile;

namespace {

constexpr DateTime Now{{2026, 11, 20}, {9, 0, 0}};

/// Collects what is written, and acts once when a text has come.
class Listener : public std::stringbuf {
public:
    Listener(std::string awaited, std::function<void()> act)
        : awaited_(std::move(awaited)), act_(std::move(act))
    {
    }

    bool HasActed() const { return !act_; }

private:
    int sync() override
    {
        if (act_ && str().find(awaited_) != std::string::npos)
            std::exchange(act_, nullptr)();
        return 0;
    }

    std::string awaited_;
    std::function<void()> act_;
};

} // namespace

ImportTest::ImportTest() { MakeEmptyDatabase(Database()); }

void ImportTest::MakeEmptyDatabase(const std::string& path)
{
    family::CreateDatabase(path, [](family::Database&) {});
}

int ImportTest::Run(const std::vector<std::string>& words)
{
    output_.str("");
    error_.str("");
    return data::Run(words, Now, output_, error_);
}

int ImportTest::Import(const std::string& name, const std::string& content, std::vector<std::string> options)
{
    WriteFile(File("entrada.csv"), content);
    options.insert(options.begin(), {"import", Database(), name, File("entrada.csv"), "--user", "Carla"});
    return Run(options);
}

int ImportTest::ImportWhile(const std::string& name, const std::string& content, const std::string& told,
                            std::function<void()> act, const std::vector<std::string>& options)
{
    constexpr std::size_t EnoughForProgress = 6000;
    WriteFile(File("entrada.csv"), content + std::string(EnoughForProgress, '\n'));
    Listener listener(told, std::move(act));
    std::ostream error(&listener);
    output_.str("");
    std::vector<std::string> words = {"import", Database(), name, File("entrada.csv"), "--user", "Carla"};
    words.insert(words.end(), options.begin(), options.end());
    const int result = data::Run(words, Now, output_, error);
    EXPECT_TRUE(listener.HasActed()) << listener.str();
    error_.str(listener.str());
    return result;
}

void ImportTest::ImportShop()
{
    ASSERT_EQ(Import("tipos", "Número;Nome\n1;Consulta\n4;Banho e tosa\n"), 0) << Error();
    ASSERT_EQ(Import("servicos",
                     "Código;Nome;Número do tipo;Duração em minutos;Preço\n"
                     "1;Consulta clínica;1;30;150,00\n2;Banho;4;75;60,00\n"),
              0)
        << Error();
    ASSERT_EQ(Import("funcionarios",
                     "Código;Apelido;Nome;Agendamentos simultâneos\n"
                     "1;Bia;Beatriz Nogueira;1\n2;Juca;José Carlos;2\n"),
              0)
        << Error();
    ASSERT_EQ(Import("clientes",
                     "Código;Nome;Documento\n10;José Peçanha;123.456.789-09\n"
                     "11;Canil Céu Azul Ltda.;11.222.333/0001-81\n"),
              0)
        << Error();
    ASSERT_EQ(Import("animais",
                     "Código;Código do cliente;Nome;Sexo;Espécie;Porte\n"
                     "50;10;Paçoca;F;Canina;Médio\n51;11;Leão;M;Canina;Gigante\n"),
              0)
        << Error();
}

std::string ImportTest::Answer() const
{
    const std::string output = Output();
    const std::size_t wayBack = std::min(output.find("Cópia de antes"), output.find("Para desfazer"));
    return output.substr(0, wayBack);
}

std::string ImportTest::Exported(const std::string& name, const std::string& database)
{
    const std::string path = File("saida" + std::to_string(++exports_) + ".csv");
    EXPECT_EQ(Run({"export", database, name, path}), 0) << Error();
    const std::string content = ContentOf(path);
    EXPECT_EQ(content.substr(0, 3), "\xEF\xBB\xBF");
    return content.substr(3);
}

std::string ImportTest::Ask(const std::string& query)
{
    std::string text, answer;
    soci::indicator state = soci::i_null;
    const auto database = family::OpenForReading(Database());
    soci::statement statement = (database->Session().prepare << "with resposta (valor) as (" + query
                                         + ") select cast(valor as text) from resposta",
                                 soci::into(text, state));
    statement.execute();
    for (const char* comma = ""; statement.fetch(); comma = ",")
        answer += comma + (state == soci::i_ok ? text : "");
    return answer;
}

} // namespace kova::data::test
