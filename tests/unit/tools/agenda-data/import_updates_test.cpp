// Files that bring what is in the database already, to change it or to leave it.

#include "tests/unit/tools/agenda-data/import_fixture.hpp"

#include "family/data/engine/database.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/registers/customers/customer_merge.hpp"

namespace kova::data::test {

class ImportUpdates : public ImportTest {
protected:
    int Update(const std::string& name, const std::string& content, std::vector<std::string> more = {})
    {
        more.emplace_back("--update");
        return Import(name, content, more);
    }
};

TEST_F(ImportUpdates, ChangeWhatTheColumnsOfTheFileHoldAndNothingElse)
{
    ImportShop();
    ASSERT_EQ(Update("servicos",
                     "Código;Preço;Descrição;Nome;Número do tipo;Duração em minutos\n"
                     "2;65;Com secagem;Banho;4;75\n1;150,00;;Consulta clínica;1;30\n"),
              0)
        << Error();
    EXPECT_EQ(Answer(),
              "Arquivo lido em UTF-8.\n"
              "linha 2: Descrição (vazio) → \"Com secagem\"\n"
              "linha 2: Preço \"60,00\" → \"65,00\"\n"
              "0 linhas importadas; 1 registro alterado.\n");
    EXPECT_EQ(
        Exported("servicos"),
        "Código;Nome;Descrição;Número do tipo;Duração em minutos;Preço;Custo;Sessões;Situação\r\n"
        "1;Consulta clínica;;1;30;150,00;0,00;;Ativo\r\n2;Banho;Com secagem;4;75;65,00;0,00;;Ativo\r\n");
    EXPECT_EQ(Ask("select usuario || ' ' || chave from auditoria where tabela = 'servico' and operacao ="
                  " 'alteracao' and depois like '%\"importacao\":6}'"),
              "0 - Carla 2");
}

TEST_F(ImportUpdates, EmptyAFieldWhoseCellIsEmpty)
{
    ImportShop();
    ASSERT_EQ(Update("clientes", "Código;Nome;Documento\n10;José Peçanha;\n"), 0) << Error();
    EXPECT_EQ(Ask("select documento from cliente order by codigo"), ",11222333000181");
    EXPECT_EQ(Ask("select tipo_de_pessoa from cliente order by codigo"), "PF,PJ");
}

TEST_F(ImportUpdates, TellWhatTheyWouldChangeAndChangeNothingInADryRun)
{
    ImportShop();
    const std::string before = Exported("funcionarios");
    EXPECT_EQ(Update("funcionarios", "Código;Apelido;Nome\n1;Bia;Beatriz N.\n;Lu;Luana\n", {"--dry-run"}), 0);
    EXPECT_EQ(Output(),
              "Arquivo lido em UTF-8.\n"
              "linha 2: Nome \"Beatriz Nogueira\" → \"Beatriz N.\"\n"
              "1 linha pode ser importada; 1 registro alterado; nada foi gravado.\n");
    EXPECT_EQ(Exported("funcionarios"), before);
}

TEST_F(ImportUpdates, BringInWhatIsNotThereBesideWhatTheyChange)
{
    ImportShop();
    ASSERT_EQ(Update("tipos", "Número;Nome\n4;Banho\n9;Hotel\n;Creche\n"), 0) << Error();
    EXPECT_EQ(
        Exported("tipos"),
        "Número;Nome;Situação\r\n1;Consulta;Ativo\r\n4;Banho;Ativo\r\n9;Hotel;Ativo\r\n10;Creche;Ativo\r\n");
}

TEST_F(ImportUpdates, OfWhatWasExportedAndNotEditedChangeNothing)
{
    ASSERT_EQ(Run({"demo", Place("demonstracao"), "--date", "20/11/2026"}), 0);
    for (const std::string name : {"clientes", "animais", "especies", "racas", "tipos", "servicos",
                                   "funcionarios", "feriados", "empresa"}) {
        const std::string path = File(name + "-exportado.csv");
        ASSERT_EQ(Run({"export", Place("demonstracao"), name, path}), 0) << Error();
        ASSERT_EQ(Run({"import", Place("demonstracao"), name, path, "--update"}), 0) << Error();
        EXPECT_EQ(Output(), "Arquivo lido em UTF-8.\n0 linhas importadas; 0 registros alterados.\n") << name;
    }
    long long changes = -1;
    family::OpenForReading(Place("demonstracao"))->Session()
        << "select count(*) from auditoria where operacao = 'alteracao' and tabela <> 'agendamento'",
        soci::into(changes);
    EXPECT_EQ(changes, 0);
}

TEST_F(ImportUpdates, ChangeNothingWhereOneLineIsWrong)
{
    ImportShop();
    const std::string before = Exported("clientes");
    EXPECT_EQ(Update("clientes",
                     "Código;Nome;Documento;UF;Celular\n10;José;11.222.333/0001-81;SP;\n"
                     "11;;11.222.333/0001-81;XX;\n11;Canil;;;\n10;Zé;;;1\n"),
              1);
    EXPECT_EQ(Error(),
              "linha 2: Tipo de pessoa \"PF\": o documento 11222333000181 é de PJ.\n"
              "linha 2: Documento \"11.222.333/0001-81\": o cliente 11 já tem este documento.\n"
              "linha 3: Nome: deve ser informado.\n"
              "linha 3: UF \"XX\": não é a sigla de um estado.\n"
              "linha 4: Código \"11\": já está na linha 3.\n"
              "linha 5: Código \"10\": já está na linha 2.\n"
              "6 erros em 4 linhas; nada foi importado.\n");
    EXPECT_EQ(Exported("clientes"), before);
    EXPECT_EQ(Update("clientes", "Código;Nome;Celular\n10;José;1\n"), 1);
    EXPECT_EQ(Error(),
              "linha 2: Celular \"1\": só entra com um registro novo.\n"
              "1 erro em 1 linha; nada foi importado.\n");
}

TEST_F(ImportUpdates, AreUndoneWholeWhereALineOfTheFileMakesAnotherImpossible)
{
    ImportShop();
    const std::string before = Exported("clientes");
    EXPECT_EQ(
        Update("clientes",
               "Código;Nome;Tipo de pessoa;Documento\n10;José;;52998224725\n11;Canil;;529.982.247-25\n"),
        1);
    EXPECT_NE(Error().find("linha 3: Documento \"529.982.247-25\": o cliente 10 já tem este documento."),
              std::string::npos)
        << Error();
    EXPECT_EQ(Exported("clientes"), before);
}

TEST_F(ImportUpdates, LeaveOutWhatIsThereAlready)
{
    ImportShop();
    ASSERT_EQ(
        Import("clientes",
               "Código;Nome;Documento\n10;Outro nome;\n;Canil;11222333000181\n;José Peçanha;12345678909\n"
               "20;Ana;\n",
               {"--skip-existing"}),
        0)
        << Error();
    EXPECT_EQ(Answer(), "Arquivo lido em UTF-8.\n1 linha importada; 3 linhas já estavam no banco.\n");
    EXPECT_EQ(Ask("select nome from cliente order by codigo"), "José Peçanha,Canil Céu Azul Ltda.,Ana");
    ASSERT_EQ(Import("funcionarios", "Apelido;Nome\nBIA;beatriz nogueira\nLu;Luana\n", {"--skip-existing"}),
              0);
    EXPECT_EQ(Ask("select count(*) from funcionario"), "3");
    EXPECT_EQ(Import("funcionarios", "Apelido;Nome\nRê;Renata\nRê;Renata\n", {"--skip-existing"}), 1)
        << "what stands twice in the file is wrong all the same";
}

TEST_F(ImportUpdates, GoToSpeciesBreedsAndTheCompanyToo)
{
    ASSERT_EQ(Import("especies", "Nome\nCanina\nFelina\n"), 0) << Error();
    ASSERT_EQ(Import("racas", "Espécie;Nome\ncanina;Poodle\nFelina;Persa\n"), 0) << Error();
    ASSERT_EQ(Import("empresa", "Nome fantasia;CNPJ\nPet Shop;12.ABC.345/01DE-35\n"), 0) << Error();
    EXPECT_EQ(Exported("racas"),
              "Código;Espécie;Nome;Situação\r\n1;Canina;Poodle;Ativo\r\n2;Felina;Persa;Ativo\r\n");
    EXPECT_EQ(Import("racas", "Espécie;Nome\nEquina;Crioulo\nCANINA;poodle\n"), 1);
    EXPECT_EQ(Error(),
              "linha 2: Espécie \"Equina\": não há espécie com este nome.\n"
              "linha 3: Código: o registro já existe no banco de dados, com o código 1. Se for outro,"
              " preencha esta coluna.\n"
              "2 erros em 2 linhas; nada foi importado.\n");
    EXPECT_EQ(Import("empresa", "Nome fantasia\nOutra\n"), 1);
    EXPECT_EQ(Error(),
              "linha 2: Nome fantasia \"Outra\": uma empresa já existe no banco de dados.\n"
              "1 erro em 1 linha; nada foi importado.\n");
    ASSERT_EQ(Update("empresa", "Código;Nome fantasia;Telefone\n1;Pet Shop;1133334444\n"), 0) << Error();
    EXPECT_EQ(Ask("select cnpj || ' ' || telefone from empresa"), "12ABC34501DE35 (11) 3333-4444");
    EXPECT_EQ(Update("empresa", "Código;Nome fantasia;Telefone\n1;Pet Shop;3333-4444\n"), 1);
    EXPECT_EQ(
        Error(),
        "linha 2: Telefone \"3333-4444\": o telefone 3333-4444 não tem DDD e oito ou nove dígitos, como "
        "(11) 3123-4567.\n1 erro em 1 linha; nada foi importado.\n");
    ASSERT_EQ(Update("racas", "Código;Espécie;Nome\n1;Felina;Siamês\n"), 0) << Error();
    EXPECT_EQ(Ask("select nome from raca where codigo_da_especie = 2 order by nome"), "Persa,Siamês");
}

TEST_F(ImportUpdates, TellWhoHasTheCodeOfACustomerThatHasBecomeOneWithAnother)
{
    ImportShop();
    const std::string customers = Exported("clientes");
    const auto database = family::OpenDatabase(Database());
    const auto plan = family::registers::PlanCustomerMerge(*database, 10, 11);
    const family::Author lia{"7", "Lia", "2026-11-20 09:00:00"};
    ASSERT_TRUE(family::registers::MergeCustomers(*database, plan.value(), {}, lia).IsDone());
    const std::string merged = "\"11\": foi unido ao cliente 10. Use o código 10.\n";
    const std::string rest = "1 erro em 1 linha; nada foi importado.\n";
    EXPECT_EQ(Update("clientes", "Código;Nome\n11;Canil\n"), 1);
    EXPECT_EQ(Error(), "linha 2: Código " + merged + rest);
    EXPECT_EQ(Update("animais", "Código do cliente;Nome;Sexo;Espécie;Porte\n11;Bidu;Macho;Canina;Médio\n"),
              1);
    EXPECT_EQ(Error(), "linha 2: Código do cliente " + merged + rest);
    EXPECT_EQ(
        Update("animais", "Código;Código do cliente;Nome;Sexo;Espécie;Porte\n51;11;Leão;M;Canina;Gigante\n"),
        1);
    EXPECT_EQ(Error(), "linha 2: Código do cliente " + merged + rest);
    EXPECT_EQ(Import("agendamentos",
                     "Data inicial;Hora inicial;Hora final;Código do cliente;Código do animal;"
                     "Código do serviço;Código do funcionário\n"
                     "21/11/2026;10:00;11:00;11;51;2;1\n"),
              1);
    EXPECT_EQ(Error(), "linha 2: Código do cliente " + merged + rest);
    ASSERT_EQ(Import("clientes", customers, {"--skip-existing"}), 0) << Error();
    EXPECT_EQ(Answer(), "Arquivo lido em UTF-8.\n0 linhas importadas; 2 linhas já estavam no banco.\n");
    EXPECT_EQ(Ask("select cast(codigo as text) from cliente"), "10");
}

TEST_F(ImportUpdates, SwapWhatMayStandOnlyOnce)
{
    ImportShop();
    ASSERT_EQ(Import("especies", "Nome\nFelina\n"), 0) << Error();
    const std::string species = Ask("select codigo || nome || nome_de_busca from especie order by codigo");
    ASSERT_EQ(Update("especies", "Código;Nome\n1;Felina\n2;Canina\n"), 0) << Error();
    EXPECT_EQ(Ask("select codigo || nome || nome_de_busca from especie order by codigo"),
              "1Felinafelina,2Caninacanina");
    ASSERT_EQ(Run({"undo-import", Database()}), 0) << Error();
    EXPECT_EQ(Ask("select codigo || nome || nome_de_busca from especie order by codigo"), species);
    ASSERT_EQ(Import("clientes", "Código;Nome;Documento\n12;Ana;529.982.247-25\n"), 0) << Error();
    ASSERT_EQ(
        Update("clientes", "Código;Nome;Documento\n10;José Peçanha;529.982.247-25\n12;Ana;123.456.789-09\n"),
        0)
        << Error();
    EXPECT_EQ(Ask("select codigo || ' ' || documento from cliente order by codigo"),
              "10 52998224725,11 11222333000181,12 12345678909");
    ASSERT_EQ(Run({"undo-import", Database()}), 0) << Error();
    EXPECT_EQ(Ask("select codigo || ' ' || documento from cliente order by codigo"),
              "10 12345678909,11 11222333000181,12 52998224725");
    EXPECT_EQ(Update("especies", "Código;Nome\n1;Ave\n2;AVE\n"), 1);
    EXPECT_EQ(Error(),
              "linha 2: Nome \"Ave\": já há uma espécie com este nome.\n"
              "linha 3: Nome \"AVE\": já há uma espécie com este nome.\n"
              "2 erros em 2 linhas; nada foi importado.\n");
}

TEST_F(ImportUpdates, AreForTheShopsRegistersOnlyAndNotBothAtOnce)
{
    EXPECT_EQ(Update("agendamentos", "Número\n1\n"), 2);
    EXPECT_NE(Error().find("--update não vale para agendamentos."), std::string::npos) << Error();
    EXPECT_EQ(Update("tipos", "Nome\na\n", {"--skip-existing"}), 2);
    EXPECT_NE(Error().find("--update e --skip-existing não valem juntos."), std::string::npos) << Error();
}

} // namespace kova::data::test
