#include "tests/support/small_files.hpp"
#include "tests/unit/tools/agenda-data/import_fixture.hpp"

#include "family/data/rows/insert_new_row.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/stores/appointment_rows.hpp"
#include "system/path_text.hpp"

namespace kova::data::test {

class Imports : public ImportTest { };

TEST_F(Imports, ReadsCustomers)
{
    ASSERT_EQ(
        Import("clientes",
               "codigo;NOME;Documento;vip;situação;CEP;Logradouro;Número;UF;Curva ABC;Canais;Celular;E-mail\n"
               "7; José  Peçanha ;123.456.789-09;sim;bloqueado;01234-567;Rua do Ipê;10;sp;b;Telefone: "
               "1131234567;+55 11 912345678;ze@example.com\n"
               ";Canil Céu Ltda.;11222333000181;;;;;;;;;;\n"),
        0)
        << Error();
    EXPECT_EQ(Answer(), "Arquivo lido em UTF-8.\n2 linhas importadas.\n");
    EXPECT_EQ(Error(), "");
    EXPECT_EQ(Exported("clientes"),
              "Código;Tipo de pessoa;Nome;Apelido;Documento;Situação;VIP;Curva ABC;Logradouro;Número;"
              "Complemento;Bairro;Cidade;UF;CEP;Canais\r\n"
              "7;PF;José  Peçanha;;123.456.789-09;Bloqueado;Sim;B;Rua do Ipê;10;;;;SP;01234-567;"
              "\"Telefone: (11) 3123-4567; Celular: (11) 91234-5678; E-mail: ze@example.com\"\r\n"
              "8;PJ;Canil Céu Ltda.;;11.222.333/0001-81;Ativo;Não;;;;;;;;;\r\n");
    EXPECT_EQ(Ask("select endereco_completo_com_cep from cliente where codigo = 7"),
              "Rua do Ipê, 10/SP - CEP 01234-567");
    EXPECT_EQ(Ask("select endereco_completo_com_cep from cliente where codigo = 8"), "");
    EXPECT_EQ(Ask("select nome_de_busca from cliente where codigo = 7"), "jose  pecanha");
}

TEST_F(Imports, ReadsACompanyWhoseDocumentHasLetters)
{
    ASSERT_EQ(Import("clientes", "Nome;Documento\nCanil Céu;12.abc.345/01de-35\n"), 0) << Error();
    EXPECT_EQ(Ask("select tipo_de_pessoa || ' ' || documento from cliente"), "PJ 12ABC34501DE35");
    EXPECT_EQ(Import("clientes", "Nome;Documento\nOutro;12ABC34501DE35\n"), 1);
    EXPECT_NE(Error().find("um cliente com este documento já existe"), std::string::npos) << Error();
}

TEST_F(Imports, MakesTheSpeciesAndBreedsOfAnimals)
{
    ImportShop();
    ASSERT_EQ(Import("animais",
                     "Nome;Espécie;Raça;Sexo;Porte;Código do cliente;Microchip;Cor;Situação;Observação\n"
                     "Bidu;CANINA;Maltês;macho;pequeno;10;999.000-01;Branco;inativo;Late\n"
                     "Mia;Felina;Siamês;Fêmea;Médio;11;;;;\n"
                     "Rex;canina;maltes;M;Grande;11;;;;\n"),
              0)
        << Error();
    EXPECT_EQ(Ask("select nome from especie order by codigo"), "Canina,Felina");
    EXPECT_EQ(Ask("select nome from raca order by codigo"), "Sem raça definida,Maltês,Siamês");
    EXPECT_EQ(Exported("animais"),
              "Código;Código do cliente;Nome;Sexo;Espécie;Raça;Porte;Cor;Microchip;Observação;Situação\r\n"
              "50;10;Paçoca;Fêmea;Canina;Sem raça definida;Médio;;;;Ativo\r\n"
              "51;11;Leão;Macho;Canina;Sem raça definida;Gigante;;;;Ativo\r\n"
              "52;10;Bidu;Macho;Canina;Maltês;Pequeno;Branco;99900001;Late;Inativo\r\n"
              "53;11;Mia;Fêmea;Felina;Siamês;Médio;;;;Ativo\r\n"
              "54;11;Rex;Macho;Canina;Maltês;Grande;;;;Ativo\r\n");
}

TEST_F(Imports, ReadsServicesTypesAndEmployees)
{
    ImportShop();
    ASSERT_EQ(Import("servicos",
                     "Nome;Número do tipo;Duração em minutos;Preço;Custo;Sessões;Situação;Descrição\n"
                     "Pacote de banhos;4;45;\"R$ 1.210,00\";70;4;Inativo;Um por semana\n"),
              0)
        << Error();
    EXPECT_EQ(Exported("servicos"),
              "Código;Nome;Descrição;Número do tipo;Duração em minutos;Preço;Custo;Sessões;Situação\r\n"
              "1;Consulta clínica;;1;30;150,00;0,00;;Ativo\r\n"
              "2;Banho;;4;75;60,00;0,00;;Ativo\r\n"
              "3;Pacote de banhos;Um por semana;4;45;1.210,00;70,00;4;Inativo\r\n");
    EXPECT_EQ(Exported("tipos"), "Número;Nome;Situação\r\n1;Consulta;Ativo\r\n4;Banho e tosa;Ativo\r\n");
    EXPECT_EQ(Exported("funcionarios"),
              "Código;Apelido;Nome;Agendamentos simultâneos;Situação\r\n"
              "1;Bia;Beatriz Nogueira;1;Ativo\r\n2;Juca;José Carlos;2;Ativo\r\n");
}

TEST_F(Imports, ReadsHolidaysOfEveryYearAndOfOne)
{
    ASSERT_EQ(Import("feriados", "Nome;Data\nNatal;25/12\nCarnaval;16/02/2027\nBissexto;29/2\n"), 0)
        << Error();
    EXPECT_EQ(Exported("feriados"),
              "Código;Nome;Data\r\n1;Natal;25/12\r\n2;Carnaval;16/02/2027\r\n3;Bissexto;29/02\r\n");
    EXPECT_EQ(Ask("select count(*) from feriado where data is null and dia is not null"), "2");
}

TEST_F(Imports, ReadsAppointmentsOfBothKinds)
{
    ImportShop();
    ASSERT_EQ(
        Import("agendamentos",
               "Data inicial;Hora inicial;Hora final;Código do cliente;Código do animal;Nome do cliente;"
               "Nome do animal;Código do serviço;Código do funcionário;Situação;Buscar;Código do pacote\n"
               "20/11/2026;10:00;11:15;10;50;;;2;2;;Sim;3\n"
               "20/11/2026;9:00:00;09:30;;;Íris;Bidu;1;1;Cancelado;;\n"
               "01/03/2026;09:00;10:00;11;51;;;2;2;Pré-venda gerada;;\n"),
        0)
        << Error();
    EXPECT_EQ(Exported("agendamentos").substr(Exported("agendamentos").find('\n') + 1),
              "1;20/11/2026;10:00;20/11/2026;11:15;10;50;;;;;;;;2;4;2;3;;Sim;Não;Agendado;;;"
              "20/11/2026 09:00:00;Carla;;\r\n"
              "2;20/11/2026;09:00;20/11/2026;09:30;;;Íris;;Bidu;;;;;1;1;1;;;Não;Não;Cancelado;;;"
              "20/11/2026 09:00:00;Carla;;\r\n"
              "3;01/03/2026;09:00;01/03/2026;10:00;11;51;;;;;;;;2;4;2;;;Não;Não;Pré-venda gerada;Aberta;"
              "60,00;20/11/2026 09:00:00;Carla;;\r\n");
    EXPECT_EQ(Ask("select codigo_do_servico from pacote where codigo = 3"), "2");
    EXPECT_EQ(Ask("select texto_de_busca from agendamento where numero = 2"), "iris\nbidu");
    EXPECT_EQ(Run({"check", Database()}), 0) << Error();
}

TEST_F(Imports, GivesCodesThatNoLineBrings)
{
    ASSERT_EQ(Import("tipos", "Número;Nome\n;Novo\n1;Um\n;Outro\n2;Dois\n"), 0) << Error();
    EXPECT_EQ(Exported("tipos"),
              "Número;Nome;Situação\r\n1;Um;Ativo\r\n2;Dois;Ativo\r\n3;Novo;Ativo\r\n4;Outro;Ativo\r\n");
}

TEST_F(Imports, NumberOnBehindTheCodesOfPackages)
{
    ImportShop();
    ASSERT_EQ(Import("agendamentos",
                     "Data inicial;Hora inicial;Hora final;Código do cliente;Código do animal;"
                     "Código do serviço;Código do funcionário;Código do pacote\n"
                     "25/11/2026;10:00;11:00;10;50;2;1;7\n25/11/2026;10:00;11:00;10;50;2;2;9\n"),
              0)
        << Error();
    const std::shared_ptr<family::Database> database = family::OpenDatabase(Database());
    EXPECT_EQ(family::InsertNew(*database, family::PackageRow{0, 2, "2026-11-20 09:00:00", "Ana"}), 10);
}

TEST_F(Imports, NumberOnBehindTheirCodes)
{
    ASSERT_EQ(Import("tipos", "Número;Nome\n40;Consulta\n4;Banho e tosa\n"), 0) << Error();
    ASSERT_EQ(Import("tipos", "Nome\nHotel\n"), 0) << Error();
    EXPECT_EQ(Ask("select numero from tipo_de_servico where nome = 'Hotel'"), "41");
}

TEST_F(Imports, RehearsesWithoutWriting)
{
    EXPECT_EQ(Import("tipos", "Nome\nUm\nDois\n", {"--dry-run"}), 0);
    EXPECT_EQ(Output(), "Arquivo lido em UTF-8.\n2 linhas podem ser importadas; nada foi gravado.\n");
    EXPECT_EQ(Ask("select count(*) from tipo_de_servico"), "0");
    EXPECT_EQ(Ask("select count(*) from auditoria"), "0");
    EXPECT_EQ(Import("tipos", "Nome\nUm\n\"\"\nx\n", {"--dry-run"}), 0);
    EXPECT_EQ(Import("tipos", "Número;Nome\n1;Um\nx;Dois\n", {"--dry-run"}), 1);
    EXPECT_EQ(Error(),
              "linha 3: Número \"x\": não é um número inteiro de 1 a 999999999.\n"
              "1 erro em 1 linha; nada foi importado.\n");
}

TEST_F(Imports, TakesWhatSpreadsheetsWrite)
{
    const std::pair<const char*, const char*> files[] = {
        {"\xEF\xBB\xBFNome;Situação\r\nCafé;Ativo\r\n", "Café"},
        {"sep=,\r\nNome,Situação\r\nPão,Ativo\r\n", "Pão"},
        {"\"Nome\",\"Situação\"\n\"Tosa,\nbanho\",\"Ativo\"\n\n", "Tosa, banho"},
        {"Nome;Situa\xE7\xE3o\r\nVacina\xE7\xE3o;\r\n;\r\n;;\r\n", "Vacinação"},
        {"Nome\tSituação\r\nAula\t\r\n", "Aula"},
        {"Situação;Nome;\r\nInativo;Táxi;\r\n", "Táxi"},
        {" nome \nConsulta", "Consulta"},
        {"Nome;Situação\rRetorno;Ativo\r", "Retorno"},
    };
    for (const auto& [content, name] : files) {
        ASSERT_EQ(Import("tipos", content), 0) << content << Error();
        EXPECT_EQ(Ask("select nome from tipo_de_servico order by numero desc limit 1"), name);
    }
}

TEST_F(Imports, TakesTheEncodingAndTheSeparatorItIsTold)
{
    ASSERT_EQ(
        Import("tipos", "Nome,Situação\nS\xC3\xA3o,Ativo\n", {"--separator", ",", "--encoding", "utf-8"}), 0)
        << Error();
    EXPECT_EQ(Ask("select nome from tipo_de_servico where numero = 1"), "São");
    ASSERT_EQ(Import("tipos", "Nome\nS\xC3\xA3o\n", {"--encoding", "latin-1"}), 0) << Error();
    EXPECT_EQ(Ask("select nome from tipo_de_servico where numero = 2"), "SÃ£o");
    EXPECT_EQ(Import("tipos", "Nome\nUm\nS\xE3o\n", {"--encoding", "utf-8"}), 1);
    EXPECT_NE(Error().find("não está em UTF-8: veja a linha 3."), std::string::npos);
    EXPECT_EQ(Import("tipos", "Nome\n", {"--encoding", "ebcdic"}), 2);
    EXPECT_EQ(Import("tipos", "Nome\n", {"--separator", "|"}), 2);
    EXPECT_EQ(Import("fornecedores", "Nome\n"), 2);
    EXPECT_NE(Error().find("Cadastros: clientes, especies, racas, animais, tipos"), std::string::npos);
}

TEST_F(Imports, RefusesAFileInUtf8ForOneByteThatIsNot)
{
    const std::string begins = "agenda-data: O arquivo \"" + File("entrada.csv") + "\" está em UTF-8, mas ";
    const std::pair<std::string, const char*> files[] = {
        {"Nome\nVacinação\nS\xE3o\nPão\n", "a linha 3 "}, {"\xEF\xBB\xBFNome\nS\xE3o\n", "a linha 2 "},
        {"Nome\rVacinação\rS\xE3o\r", "a linha 3 "},      {"Nome\r\n\xFF\r\nVacinação\r\n", "a linha 2 "},
        {"Nome\nVacina\xC3\nÃo\n", "a linha 2 "},
    };
    for (const auto& [content, line] : files) {
        for (const std::vector<std::string>& options :
             std::vector<std::vector<std::string>>{{}, {"--encoding", "utf-8"}, {"--dry-run"}}) {
            EXPECT_EQ(Import("tipos", content, options), 1);
            EXPECT_EQ(Error().find(begins + line), 0U) << Error();
            EXPECT_EQ(Output(), "");
        }
    }
    EXPECT_EQ(Ask("select count(*) from tipo_de_servico"), "0");
}

TEST_F(Imports, TellTheEncodingAlsoWhereTheFileIsRefused)
{
    EXPECT_EQ(Import("tipos", "Nome\n\"\"\nS\xE3o\n"), 0) << Error();
    EXPECT_EQ(Answer(), "Arquivo lido em Latin-1.\n1 linha importada.\n");
    EXPECT_EQ(Import("tipos", "Nome;Situa\xE7\xE3o\nS\xE3o;x\n", {"--dry-run"}), 1);
    EXPECT_EQ(Output(), "Arquivo lido em Latin-1.\n");
    EXPECT_EQ(Import("tipos", "Nome\n\n", {"--encoding", "latin-1"}), 0) << Error();
    EXPECT_EQ(Output(), "Arquivo lido em Latin-1.\n0 linhas importadas.\n");
}

TEST_F(Imports, RefusesFilesThatAreNoTable)
{
    const auto importing = [&](const std::string& path) {
        return Run({"import", Database(), "tipos", path});
    };
    EXPECT_EQ(importing(File("nada.csv")), 1);
    EXPECT_EQ(Error(),
              "agenda-data: O arquivo \"" + File("nada.csv") + "\" não existe. Verifique o caminho.\n");
    std::filesystem::create_directory(system::PathOf(File("pasta")));
    EXPECT_EQ(importing(File("pasta")), 1);
    EXPECT_EQ(Error(),
              "agenda-data: \"" + File("pasta") + "\" é uma pasta. Informe o caminho de um arquivo CSV.\n");
    EXPECT_EQ(Import("tipos", std::string("N\0o\0m\0e\0", 8)), 1);
    EXPECT_NE(Error().find("não é um texto"), std::string::npos);
    EXPECT_EQ(Import("tipos", ""), 1);
    EXPECT_EQ(Error(),
              "linha 1: o arquivo está vazio: falta a linha com os nomes das colunas.\n"
              "1 erro em 1 linha; nada foi importado.\n");
    EXPECT_EQ(Import("tipos", "Nome\n"), 0);
    EXPECT_EQ(Output(), "Arquivo lido em UTF-8.\n0 linhas importadas.\n");
}

TEST_F(Imports, TellHowFarTheyAreFromMoreThanFiveThousandLinesOn)
{
    ASSERT_EQ(Import("tipos", "Nome\nHotel\n" + std::string(4998, '\n')), 0);
    EXPECT_EQ(Error(), "");
    ASSERT_EQ(Import("tipos", "Nome\nCreche\n" + std::string(4999, '\n')), 0);
    EXPECT_NE(Error().find("Conferência: 100% (5001 de 5001)\n"), std::string::npos) << Error();
}

TEST_F(Imports, NeedsADatabase)
{
    kova::test::WriteFile(File("tipos.csv"), "Nome\nUm\n");
    for (const char* option : {"--encoding", "--dry-run"}) {
        std::vector<std::string> words = {"import", File("outra.db"), "tipos", File("tipos.csv"), option};
        if (words.back() == "--encoding")
            words.push_back("utf-8");
        EXPECT_EQ(Run(words), 1);
        EXPECT_NE(Error().find("não existe"), std::string::npos) << Error();
    }
}

TEST_F(Imports, OnAFullDiskImportNothing)
{
    ImportShop();
    std::string content = "Nome;Apelido\n";
    for (int line = 0; line < 5000; ++line)
        content += "Maria " + std::to_string(line) + ";" + std::string(50, 'x') + "\n";
    {
        // Enough for what the engine puts beside the database to begin with.
        const kova::test::SmallFiles small(400'000);
        EXPECT_EQ(Import("clientes", content), 1);
    }
    EXPECT_NE(Error().find("Falha no banco de dados \"" + Database() + "\".\r\nO disco "), std::string::npos)
        << Error();
    EXPECT_EQ(Output(), "Arquivo lido em UTF-8.\n");
    EXPECT_EQ(Run({"check", Database()}), 0) << Error();
    EXPECT_EQ(Ask("select count(*) from cliente"), "2");
    EXPECT_EQ(Import("clientes", content), 0) << Error();
    EXPECT_EQ(Ask("select count(*) from cliente"), "5002");
    {
        // Not enough for a copy of what is there by now.
        const kova::test::SmallFiles small(400'000);
        EXPECT_EQ(Import("tipos", "Nome\nHotel\n"), 1);
    }
    EXPECT_EQ(Ask("select count(*) from tipo_de_servico where nome = 'Hotel'"), "0");
    EXPECT_NE(Error().find("O disco "), std::string::npos) << Error();
}

} // namespace kova::data::test
