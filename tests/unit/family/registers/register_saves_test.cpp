// What a save writes, what it leaves alone, and what it answers.

#include "tests/unit/family/registers/register_fixture.hpp"

#include "family/data/sources/data_source.hpp"
#include "family/registers/description/field.hpp"

#include <algorithm>

namespace kova::family::test {

using namespace registers;

class RegisterSaves : public RegisterTest { };

TEST_F(RegisterSaves, ShowWhatIsStoredAsAFormShowsIt)
{
    const Register& customers = CustomerRegister();
    EXPECT_EQ(customers.Read(Data(), 10).value(),
              (registers::Texts{"10", "PF", "José Antônio Peçanha", "Zé", "123.456.789-09", "Ativo", "Não",
                                "A", "Rua do Ipê", "110", "", "", "Vale Sereno", "SP", "00123-456",
                                "Celular: (00) 91234-5678; E-mail: ze@example.com"}));
    EXPECT_EQ(customers.Read(Data(), 99), std::nullopt);
    EXPECT_EQ(AnimalRegister().Read(Data(), 50).value(),
              (registers::Texts{"50", "10", "Paçoca", "Fêmea", "Canina", "Poodle", "Médio", "Caramelo",
                                "999000000000001", "Tem medo de secador.", "Ativo"}));
    EXPECT_EQ(ServiceRegister().Read(Data(), 2).value(),
              (registers::Texts{"2", "Banho", "", "4", "75", "60,00", "0,00", "", "Ativo"}));
}

TEST_F(RegisterSaves, BeginANewRowWithWhatIsUsual)
{
    EXPECT_EQ(AnimalRegister().New(), (registers::Texts{"", "", "", "", "", "", "", "", "", "", "Ativo"}));
    EXPECT_EQ(ServiceRegister().New(), (registers::Texts{"", "", "", "", "", "", "0,00", "", "Ativo"}));
    EXPECT_EQ(EmployeeRegister().New(), (registers::Texts{"", "", "", "1", "Ativo"}));
}

TEST_F(RegisterSaves, WriteOnlyWhatWasTypedAndComposeTheRest)
{
    ExpectDone(CustomerRegister(), 10,
               {{"Apelido", " Zezé "}, {"Número", "12"}, {"Documento", ""}, {"CEP", "01234567"}});
    EXPECT_EQ(Texts("select apelido || '|' || nomes_de_busca || '|' || documento || '|'"
                    " || endereco_completo_com_cep || '|' || endereco_de_busca || '|' || tipos_e_canais"
                    " from cliente where codigo = 10"),
              std::vector<std::string>{"Zezé|zeze\njose antonio pecanha||"
                                       "Rua do Ipê, 12 - Vale Sereno/SP - CEP 01234-567|"
                                       "rua do ipe, 12 - vale sereno/sp - cep 01234-567|"
                                       "Celular: (00) 91234-5678; E-mail: ze@example.com"});
    EXPECT_EQ(Count("canal_de_comunicacao"), 2);
}

TEST_F(RegisterSaves, LeaveTheChangedColumnsBeforeAndAfterInTheAudit)
{
    ExpectDone(EmployeeRegister(), 2, {{"Nome", "Beatriz Nóbrega"}});
    EXPECT_EQ(
        Texts("select momento || ' ' || usuario || ' ' || posto || ' ' || tabela || ' ' || chave || ' '"
              " || operacao || ' ' || antes || ' ' || depois from auditoria"),
        std::vector<std::string>{"2026-11-20 09:04:05 7 - Lia BALCAO-1 funcionario 2 alteracao"
                                 " {\"nome\":\"Beatriz\",\"nome_de_busca\":\"beatriz\"}"
                                 " {\"nome\":\"Beatriz Nóbrega\",\"nome_de_busca\":\"beatriz nobrega\"}"});
}

TEST_F(RegisterSaves, WriteNothingWhereNothingHasChanged)
{
    const std::vector<std::string> before = AllRows();
    for (const Register* one : Registers()) {
        for (const Key key : one->Find(Data(), ""))
            EXPECT_EQ(Told(*one, Change(*one, key, {})), "feito") << one->Name().name << " " << key;
    }
    ExpectDone(CustomerRegister(), 10,
               {{"Nome", " José Antônio Peçanha "}, {"Documento", "12345678909"}, {"UF", "sp"}});
    ExpectDone(ServiceRegister(), 2, {{"Preço", "R$ 60"}, {"Situação", "ativo"}});
    EXPECT_EQ(AllRows(), before);
}

TEST_F(RegisterSaves, AddARowThatCanBeReadBack)
{
    const std::vector<std::pair<const Register*, Typed>> rows = {
        {&CustomerRegister(),
         {{"Nome", "Canil Novo"},
          {"Documento", "12.abc.345/01de-35"},
          {"Canais", "Celular: 11912345678; E-mail: a@b.com"}}},
        {&AnimalRegister(),
         {{"Código do cliente", "10"},
          {"Nome", "Bidu"},
          {"Sexo", "m"},
          {"Espécie", "canina"},
          {"Porte", "grande"}}},
        {&ServiceRegister(),
         {{"Nome", "Tosa"}, {"Número do tipo", "4"}, {"Duração em minutos", "40"}, {"Preço", "1.050"}}},
        {&ServiceTypeRegister(), {{"Nome", "Hotel"}}},
        {&EmployeeRegister(), {{"Apelido", "Duda"}, {"Nome", "Eduarda"}}},
        {&SpeciesRegister(), {{"Nome", "Felina"}}},
        {&BreedRegister(), {{"Espécie", "canina"}, {"Nome", "Maltês"}}},
        {&HolidayRegister(), {{"Nome", "Aniversário"}, {"Data", "7/3"}}},
    };
    for (const auto& [of, typed] : rows) {
        const SaveAnswer answer = Add(*of, typed);
        ASSERT_EQ(Told(*of, answer), "feito") << of->Name().name;
        ASSERT_GT(answer.key, 0);
        const auto name = std::ranges::find(typed, std::string("Nome"), &Typed::value_type::first);
        EXPECT_EQ(Field(*of, answer.key, "Nome"), name->second);
        EXPECT_EQ(Count(std::string("auditoria where operacao = 'inclusao' and tabela = '") + of->Table()
                        + "' and chave = " + std::to_string(answer.key)),
                  1);
    }
    EXPECT_EQ(
        Texts("select tipo_de_pessoa || ' ' || documento || ' ' || tipos_e_canais from cliente where nome ="
              " 'Canil Novo'"),
        std::vector<std::string>{"PJ 12ABC34501DE35 Celular: (11) 91234-5678; E-mail: a@b.com"});
    EXPECT_EQ(Count("canal_de_comunicacao where canal in ('(11) 91234-5678', 'a@b.com')"), 2);
    EXPECT_EQ(
        Texts("select r.nome from animal a join raca r on r.codigo = a.codigo_da_raca where a.nome = 'Bidu'"),
        std::vector<std::string>{"Sem raça definida"});
}

TEST_F(RegisterSaves, MakeTheCompanyOfAShopThatHasNone)
{
    Run("delete from empresa");
    ExpectDone(CompanyRegister(), 0, {{"Nome fantasia", "Pet Shop"}, {"CNPJ", "11.222.333/0001-81"}});
    const std::vector<Key> keys = CompanyRegister().Find(Data(), "");
    ASSERT_EQ(keys.size(), 1U);
    EXPECT_EQ(Field(CompanyRegister(), keys.front(), "CNPJ"), "11.222.333/0001-81");
    ExpectRefused(CompanyRegister(), 0, {{"Nome fantasia", "Outra"}},
                  "Código: a empresa já está cadastrada.");
}

TEST_F(RegisterSaves, ReplaceTheChannelsOfACustomer)
{
    ExpectDone(CustomerRegister(), 10, {{"Canais", "Telefone: (11) 3333-4444"}});
    EXPECT_EQ(Texts("select tipo || ' ' || canal from canal_de_comunicacao where codigo_do_cliente = 10"),
              std::vector<std::string>{"Telefone (11) 3333-4444"});
    EXPECT_EQ(Texts("select tipos_e_canais from cliente where codigo = 10"),
              std::vector<std::string>{"Telefone: (11) 3333-4444"});
    ExpectDone(CustomerRegister(), 10, {{"Canais", ""}});
    EXPECT_EQ(Count("canal_de_comunicacao where codigo_do_cliente = 10"), 0);
}

TEST_F(RegisterSaves, TellHowManyAreBookedWithWhatBecomesInactive)
{
    EXPECT_EQ(Change(EmployeeRegister(), 2, {{"Situação", "Inativo"}}).booked, 7);
    EXPECT_EQ(Change(EmployeeRegister(), 2, {{"Nome", "Beatriz N."}}).booked, 0) << "it was inactive before";
    EXPECT_EQ(Change(ServiceRegister(), 2, {{"Situação", "Inativo"}}).booked, 7);
    EXPECT_EQ(Change(CustomerRegister(), 10, {{"Situação", "Bloqueado"}}).booked, 4);
    EXPECT_EQ(Change(AnimalRegister(), 51, {{"Situação", "Inativo"}}).booked, 3);
    EXPECT_EQ(Texts("select situacao || '' from funcionario where codigo = 2"),
              std::vector<std::string>{"2"});
}

TEST_F(RegisterSaves, TellThatARowIsGone)
{
    const registers::Texts before = HolidayRegister().New();
    EXPECT_EQ(Told(HolidayRegister(), HolidayRegister().Save(Data(), 77, before, before, lia_)),
              "não existe");
    EXPECT_THROW(HolidayRegister().Save(Data(), 0, {}, {"1"}, lia_), Failure);
}

TEST_F(RegisterSaves, LeaveNothingWhereTheDataBreakOff)
{
    Break("auditoria", "before insert");
    const std::vector<std::string> before = AllRows();
    EXPECT_THROW(Change(CustomerRegister(), 10, {{"Canais", "Celular: 11912345678"}}), DatabaseFailure);
    EXPECT_EQ(AllRows(), before);
    Mend("auditoria");
    ExpectDone(CustomerRegister(), 10, {{"Canais", "Celular: 11912345678"}});
}

TEST_F(RegisterSaves, LeaveAFieldAloneThatCouldNotBeReadAnyMore)
{
    Run("update cliente set documento = '123' where codigo = 10");
    ExpectDone(CustomerRegister(), 10, {{"Apelido", "Zezinho"}});
    EXPECT_EQ(Field(CustomerRegister(), 10, "Documento"), "123");
    ExpectRefused(CustomerRegister(), 10, {{"Documento", "124"}},
                  "Documento: não é um CPF nem um CNPJ válido: confira os dígitos.");
}

} // namespace kova::family::test
