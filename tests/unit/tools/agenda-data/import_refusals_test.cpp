#include "tests/unit/tools/agenda-data/import_fixture.hpp"

#include "family/data/sources/data_source.hpp"

namespace kova::data::test {

namespace {

struct BadLine {
    /// Behind the header.
    std::string line;
    /// What is said of it, behind "linha N: ".
    std::string complaint;
};

class ImportRefusals : public ImportTest {
protected:
    ImportRefusals() { ImportShop(); }

    /// All lines at once: each must be named with its own complaint, and nothing else.
    void Refuses(const std::string& name, const std::string& header, const std::vector<BadLine>& lines)
    {
        std::string content = header + "\n", complaints;
        for (std::size_t at = 0; at < lines.size(); ++at) {
            content += lines[at].line + "\n";
            complaints += "linha " + std::to_string(at + 2) + ": " + lines[at].complaint + "\n";
        }
        const std::string before = Exported(name);
        EXPECT_EQ(Import(name, content), 1);
        const std::string count = std::to_string(lines.size());
        EXPECT_EQ(Error(),
                  complaints + count + (count == "1" ? " erro em 1 linha" : " erros em " + count + " linhas")
                      + "; nada foi importado.\n");
        EXPECT_EQ(Output(), "Arquivo lido em UTF-8.\n");
        EXPECT_EQ(Exported(name), before);
    }
};

} // namespace

TEST_F(ImportRefusals, OfHeaders)
{
    EXPECT_EQ(Import("tipos", "Numero;Nome;Cor;nome\n1;x;y;z\n"), 1);
    EXPECT_EQ(Error(),
              "linha 1: a coluna \"Cor\" não é conhecida. Colunas de tipos: Número, Nome, Situação.\n"
              "linha 1: a coluna \"nome\" aparece mais de uma vez.\n"
              "2 erros em 1 linha; nada foi importado.\n");
    EXPECT_EQ(Import("animais", "Código;Nome\n"), 1);
    EXPECT_EQ(Error(),
              "linha 1: falta a coluna \"Código do cliente\".\nlinha 1: falta a coluna \"Sexo\".\n"
              "linha 1: falta a coluna \"Espécie\".\nlinha 1: falta a coluna \"Porte\".\n"
              "4 erros em 1 linha; nada foi importado.\n");
}

TEST_F(ImportRefusals, OfTheFormOfLines)
{
    EXPECT_EQ(
        Import("tipos", "Número;Nome\n5;\"dois\nlinhas\"\n6;seis;sobra\n7\n8;\"oi\"x\n9;\"nunca\nfim\n"), 1);
    EXPECT_EQ(Error(),
              "linha 4: o campo 3 (\"sobra\") não pertence a nenhuma coluna.\n"
              "linha 5: Nome: deve ser informado.\n"
              "linha 6: há texto depois das aspas que fecham um campo.\n"
              "linha 7: as aspas que abrem um campo não são fechadas até o fim do arquivo.\n"
              "4 erros em 4 linhas; nada foi importado.\n");
}

TEST_F(ImportRefusals, OfCodes)
{
    Refuses("tipos", "Número;Nome",
            {{"0;a", "Número \"0\": não é um número inteiro de 1 a 999999999."},
             {"-1;a", "Número \"-1\": não é um número inteiro de 1 a 999999999."},
             {"1000000000;a", "Número \"1000000000\": não é um número inteiro de 1 a 999999999."},
             {"1,5;a", "Número \"1,5\": não é um número inteiro de 1 a 999999999."},
             {"4;a", "Número \"4\": já existe no banco de dados."}});
    EXPECT_EQ(Import("tipos", "Número;Nome\n7;a\n8;b\n7;c\n"), 1);
    EXPECT_EQ(Error(),
              "linha 4: Número \"7\": já está na linha 2.\n1 erro em 1 linha; nada foi importado.\n");
}

TEST_F(ImportRefusals, OfTexts)
{
    const std::string tooLong(101, 'x');
    Refuses("tipos", "Nome;Situação",
            {{tooLong + ";", "Nome \"" + tooLong.substr(0, 60) + "…\": tem 101 caracteres; cabem 100."},
             {"\"  \";Ativo", "Nome: deve ser informado."},
             {"a;talvez", "Situação \"talvez\": não é conhecido. Use Ativo ou Inativo."}});
}

TEST_F(ImportRefusals, OfCustomers)
{
    Refuses(
        "clientes", "Nome;Tipo de pessoa;Documento;Situação;VIP;Curva ABC;UF;CEP;Canais",
        {{";;;;;;;;Celular: 11912345678", "Nome: deve ser informado."},
         {"a;PX;;;;;;;", "Tipo de pessoa \"PX\": deve ser PF ou PJ."},
         {"a;;123.456.789-00;;;;;;",
          "Documento \"123.456.789-00\": não é um CPF nem um CNPJ válido: confira os dígitos."},
         {"a;;12.ABC.345/01DE-36;;;;;;",
          "Documento \"12.ABC.345/01DE-36\": não é um CPF nem um CNPJ válido: confira os dígitos."},
         {"a;PF;12.abc.345/01de-35;;;;;;", "Tipo de pessoa \"PF\": o documento 12ABC34501DE35 é de PJ."},
         {"a;PJ;529.982.247-25;;;;;;", "Tipo de pessoa \"PJ\": o documento 52998224725 é de PF."},
         {"a;;123.456.789-09;;;;;;",
          "Documento \"12345678909\": um cliente com este documento já existe no banco de dados."},
         {"a;;529.982.247-25;;;;;;",
          "Documento \"52998224725\": um cliente com este documento já está na linha 7."},
         {"a;;;Vivo;;;;;", "Situação \"Vivo\": não é conhecido. Use Ativo, Inativo, Bloqueado ou Excluído."},
         {"a;;;;muito;;;;", "VIP \"muito\": deve ser Sim ou Não."},
         {"a;;;;;D;;;", "Curva ABC \"D\": deve ser A, B ou C."},
         {"a;;;;;;XX;;", "UF \"XX\": não é a sigla de um estado."},
         {"a;;;;;;;123;", "CEP \"123\": não é um CEP: são oito dígitos."},
         {"a;;;;;;RJ;01234-567;", "CEP \"01234-567\": o CEP 01234-567 é de SP, e não de RJ."},
         {"a;;;;;;;;Celular: 11 1234-5678",
          "Canais \"Celular: 11 1234-5678\": o celular 11 1234-5678 não tem DDD e nove dígitos a partir do 9,"
          " como (11) 91234-5678."},
         {"a;;;;;;;;12345",
          "Canais \"12345\": não é uma lista de canais. Escreva como \"Celular: (11) 91234-5678; E-mail: "
          "ze@example.com\"."}});
}

TEST_F(ImportRefusals, OfAnimals)
{
    Refuses("animais", "Código do cliente;Nome;Sexo;Espécie;Porte",
            {{"99;a;M;Canina;Médio", "Código do cliente \"99\": não há cliente com este código."},
             {";a;M;Canina;Médio", "Código do cliente: deve ser informado."},
             {"10;;M;Canina;Médio", "Nome: deve ser informado."},
             {"10;a;X;Canina;Médio", "Sexo \"X\": não é conhecido. Use Macho ou Fêmea."},
             {"10;a;M;;Médio", "Espécie: deve ser informado."},
             {"10;a;M;Canina;Enorme",
              "Porte \"Enorme\": não é conhecido. Use Pequeno, Médio, Grande ou Gigante."}});
    EXPECT_EQ(Ask("select count(*) from especie"), "1");
}

TEST_F(ImportRefusals, OfServicesAndEmployees)
{
    Refuses("servicos", "Nome;Número do tipo;Duração em minutos;Preço;Sessões",
            {{"a;2;30;1;", "Número do tipo \"2\": não há tipo de serviço com este número."},
             {"a;4;0;1;", "Duração em minutos \"0\": não é um número inteiro de 1 a 1440."},
             {"a;4;1:30;1;", "Duração em minutos \"1:30\": não é um número inteiro de 1 a 1440."},
             {"a;4;30;12.50;", "Preço \"12.50\": não é um valor. Escreva como 1.234,56."},
             {"a;4;30;;", "Preço: deve ser informado."},
             {"a;4;30;1;0", "Sessões \"0\": não é um número inteiro de 1 a 999."}});
    Refuses("funcionarios", "Apelido;Nome;Agendamentos simultâneos",
            {{";a;1", "Apelido: deve ser informado."},
             {"a;b;-1", "Agendamentos simultâneos \"-1\": não é um número inteiro de 0 a 999."}});
}

TEST_F(ImportRefusals, OfHolidays)
{
    ASSERT_EQ(Import("feriados", "Nome;Data\nNatal;25/12\n"), 0);
    Refuses("feriados", "Nome;Data",
            {{"a;30/02",
              "Data \"30/02\": não é uma data válida. Escreva dd/mm, para todos os anos, ou dd/mm/aaaa."},
             {"a;", "Data: deve ser informado."},
             {"NATAL;25/12", "Data \"25/12\": este feriado já existe no banco de dados."}});
}

TEST_F(ImportRefusals, OfAppointments)
{
    ASSERT_EQ(Import("agendamentos",
                     "Data inicial;Hora inicial;Hora final;Código do cliente;Código do animal;"
                     "Código do serviço;Código do funcionário\n"
                     "21/11/2026;10:00;11:00;10;50;2;1\n"),
              0)
        << Error();
    Refuses(
        "agendamentos",
        "Data inicial;Hora inicial;Data final;Hora final;Código do cliente;Código do animal;Nome do cliente;"
        "Nome do animal;Código do serviço;Número do tipo;Código do funcionário;Situação;Incluído em",
        {{"31/02/2026;09:00;;10:00;10;50;;;2;;1;;",
          "Data inicial \"31/02/2026\": não é uma data válida. Escreva dd/mm/aaaa, de 01/01/1900 a "
          "31/12/2999."},
         {"01/02/2026;25:00;;10:00;10;50;;;2;;1;;",
          "Hora inicial \"25:00\": não é uma hora válida. Escreva hh:mm."},
         {"01/02/2026;09:00;;09:00;10;50;;;2;;1;;",
          "Hora final \"09:00\": o término deve ser posterior ao início."},
         {"01/02/2026;09:00;31/01/2026;10:00;10;50;;;2;;1;;",
          "Hora final \"10:00\": o término deve ser posterior ao início."},
         {"01/02/2026;09:00;;10:00;99;50;;;2;;1;;",
          "Código do cliente \"99\": não há cliente com este código."},
         {"01/02/2026;09:00;;10:00;10;51;;;2;;1;;",
          "Código do animal \"51\": o cliente não tem animal com este código."},
         {"01/02/2026;09:00;;10:00;10;;;;2;;1;;",
          "Código do animal: deve ser informado quando há código do cliente."},
         {"01/02/2026;09:00;;10:00;10;50;Íris;;2;;1;;",
          "Nome do cliente \"Íris\": deve ficar vazio quando há código do cliente."},
         {"01/02/2026;09:00;;10:00;;;Íris;;2;;1;;",
          "Nome do animal: deve ser informado quando não há código do cliente."},
         {"01/02/2026;09:00;;10:00;;50;Íris;Bidu;2;;1;;",
          "Código do cliente: deve ser informado quando há código do animal."},
         {"01/02/2026;09:00;;10:00;10;50;;;9;;1;;",
          "Código do serviço \"9\": não há serviço com este código."},
         {"01/02/2026;09:00;;10:00;10;50;;;2;1;1;;", "Número do tipo \"1\": o serviço 2 é do tipo 4."},
         {"01/02/2026;09:00;;10:00;10;50;;;2;;9;;",
          "Código do funcionário \"9\": não há funcionário com este código."},
         {"01/02/2026;09:00;;10:00;10;50;;;2;;1;Perdido;",
          "Situação \"Perdido\": não é conhecido. Use Agendado, Atendido, Cancelado ou Pré-venda gerada."},
         {"01/02/2026;09:00;;10:00;10;50;;;1;;1;Pré-venda gerada;",
          "Situação \"Pré-venda gerada\": não existe para serviços clínicos."},
         {"01/02/2026;09:00;;10:00;;;Íris;Bidu;2;;1;Pré-venda gerada;",
          "Situação \"Pré-venda gerada\": exige um cliente cadastrado."},
         {"01/02/2026;09:00;;10:00;10;50;;;2;;1;;ontem",
          "Incluído em \"ontem\": não é um momento válido. Escreva dd/mm/aaaa hh:mm:ss."},
         {"21/11/2026;10:30;;11:30;10;50;;;2;;1;;",
          "Hora inicial \"10:30\": Bia já tem agendamento das 10:00 às 11:00 em 21/11/2026."}});
}

TEST_F(ImportRefusals, OfPreSalesWhereNoneWasGenerated)
{
    Refuses("agendamentos",
            "Data inicial;Hora inicial;Hora final;Código do cliente;Código do animal;Código do serviço;"
            "Código do funcionário;Situação;Pré-venda;Valor da pré-venda",
            {{"01/02/2026;09:00;10:00;10;50;2;1;Atendido;Aberta;",
              "Pré-venda: só a situação Pré-venda gerada tem pré-venda."},
             {"01/02/2026;09:00;10:00;10;50;2;1;Atendido;;60,00",
              "Pré-venda: só a situação Pré-venda gerada tem pré-venda."},
             {"01/02/2026;09:00;10:00;10;50;2;1;;;0,00",
              "Pré-venda: só a situação Pré-venda gerada tem pré-venda."}});
}

TEST_F(ImportRefusals, SayEverythingThatIsWrongWithALine)
{
    EXPECT_EQ(Import("clientes", "Nome;Documento;CEP\n;1;2\n"), 1);
    EXPECT_EQ(Error(),
              "linha 2: Nome: deve ser informado.\n"
              "linha 2: Documento \"1\": não é um CPF nem um CNPJ válido: confira os dígitos.\n"
              "linha 2: CEP \"2\": não é um CEP: são oito dígitos.\n"
              "3 erros em 1 linha; nada foi importado.\n");
}

TEST_F(ImportRefusals, OfWorkAreForWhatIsToComeOnly)
{
    for (const char* change :
         {"insert into ausencia (data_inicial, hora_inicial, data_final, hora_final, motivo)"
          " values ('2026-11-01', '00:00', '2026-11-25', '24:00', 'Reforma')",
          "update expediente set hora_inicial = '08:00', hora_final = '12:00' where dia_da_semana = 6"})
        family::OpenDatabase(Database())->Session() << change;
    const auto at = [](const std::string& times, const std::string& status = "") {
        return "Data inicial;Hora inicial;Hora final;Código do cliente;Código do animal;"
               "Código do serviço;Código do funcionário;Situação\n"
            + times + ";10;50;2;1;" + status + "\n";
    };
    EXPECT_EQ(Import("agendamentos", at("19/11/2026;10:00;11:00")), 0) << Error();
    EXPECT_EQ(Import("agendamentos", at("24/11/2026;10:00;11:00", "Cancelado")), 0) << Error();
    EXPECT_EQ(Import("agendamentos", at("27/11/2026;11:00;12:00")), 0) << Error();
    EXPECT_EQ(Import("agendamentos", at("25/11/2026;10:00;11:00")), 1);
    EXPECT_EQ(Error(),
              "linha 2: Hora inicial \"10:00\": Bia está ausente em 25/11/2026 (Reforma).\n"
              "1 erro em 1 linha; nada foi importado.\n");
    EXPECT_EQ(Import("agendamentos", at("27/11/2026;12:00;13:00")), 1);
    EXPECT_EQ(Error(),
              "linha 2: Hora inicial \"12:00\": Bia não trabalha nesse horário em 27/11/2026.\n"
              "1 erro em 1 linha; nada foi importado.\n");
}

TEST_F(ImportRefusals, OfRoomAreForWhatIsToComeOnly)
{
    const std::string header = "Data inicial;Hora inicial;Hora final;Código do cliente;Código do animal;"
                               "Código do serviço;Código do funcionário;Situação\n";
    const auto two = [&](const std::string& times, const std::string& rest) {
        return header + times + ";10;50;2;" + rest + "\n" + times + ";11;51;2;" + rest + "\n";
    };
    EXPECT_EQ(Import("agendamentos", two("19/11/2026;10:00;11:00", "1;Agendado")), 0) << Error();
    EXPECT_EQ(Import("agendamentos", two("20/11/2026;08:00;09:00", "1;")), 0) << "it ends now" << Error();
    EXPECT_EQ(Import("agendamentos", two("25/11/2026;10:00;11:00", "1;Cancelado")), 0) << Error();
    EXPECT_EQ(Import("agendamentos", two("25/11/2026;10:00;11:00", "2;")), 0) << Error();
    EXPECT_EQ(Import("agendamentos", two("26/11/2026;10:00;11:00", "1;")), 1);
    EXPECT_EQ(Error(),
              "linha 3: Hora inicial \"10:00\": Bia já tem agendamento das 10:00 às 11:00 em 26/11/2026.\n"
              "1 erro em 1 linha; nada foi importado.\n");
}

} // namespace kova::data::test
