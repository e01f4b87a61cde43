// What each register refuses.

#include "tests/unit/family/registers/register_fixture.hpp"

#include "family/registers/description/field.hpp"

namespace kova::family::test {

using namespace registers;

class RegisterRules : public RegisterTest {
protected:
    struct Case {
        Key key;
        Typed typed;
        std::string told;
    };

    void ExpectRefusals(const Register& of, const std::vector<Case>& cases)
    {
        for (const Case& one : cases)
            ExpectRefused(of, one.key, one.typed, one.told);
    }
};

TEST_F(RegisterRules, OfCustomers)
{
    ExpectRefusals(
        CustomerRegister(),
        {{0, {}, "Nome: deve ser informado."},
         {10, {{"Nome", "  "}}, "Nome: deve ser informado."},
         {10,
          {{"Tipo de pessoa", "PX"},
           {"Situação", "Vivo"},
           {"VIP", "muito"},
           {"Curva ABC", "D"},
           {"UF", "XX"},
           {"CEP", "123"},
           {"Canais", "12345"}},
          "Tipo de pessoa: deve ser PF ou PJ. Situação: não é conhecido. Use Ativo, Inativo, Bloqueado ou "
          "Excluído."
          " VIP: deve ser Sim ou Não. Curva ABC: deve ser A, B ou C. UF: não é a sigla de um estado."
          " CEP: não é um CEP: são oito dígitos. Canais: não é uma lista de canais. Escreva como \"Celular:"
          " (11) 91234-5678; E-mail: ze@example.com\"."},
         {10,
          {{"Documento", "11.222.333/0001-81"}, {"Tipo de pessoa", ""}},
          "Documento: o cliente 11 já tem este documento."},
         {0,
          {{"Nome", "Outro"}, {"Documento", "12345678909"}},
          "Documento: o cliente 10 já tem este documento."},
         {10, {{"Documento", "12.ABC.345/01DE-35"}}, "Tipo de pessoa: o documento 12ABC34501DE35 é de PJ."},
         {10,
          {{"Documento", "12.ABC.345/01DE-36"}},
          "Documento: não é um CPF nem um CNPJ válido: confira os dígitos."},
         {10,
          {{"Bairro", "123456789012345678901234567890123456789012345678901"}},
          "Bairro: tem 51 caracteres; cabem 50."},
         {10, {{"Código", "12"}}, "Código: é dado pelo banco de dados e não muda."},
         {0, {{"Nome", "a"}, {"Código", "12"}}, "Código: é dado pelo banco de dados e não muda."}});
}

TEST_F(RegisterRules, OfAddressesAndContactChannels)
{
    ExpectRefusals(CustomerRegister(),
                   {{10, {{"UF", "RJ"}, {"CEP", "01234567"}}, "CEP: o CEP 01234-567 é de SP, e não de RJ."},
                    {10, {{"CEP", "20040-002"}}, "CEP: o CEP 20040-002 é de RJ, e não de SP."},
                    {10,
                     {{"Canais", "Celular: 11 91234-5678; E-mail: ze"}},
                     "Canais: o e-mail ze não é um endereço, como ana@exemplo.com."},
                    {0,
                     {{"Nome", "a"}, {"Canais", "Telefone: (20) 3123-4567"}},
                     "Canais: o DDD 20, de (20) 3123-4567, não existe."}});
    ExpectDone(CustomerRegister(), 10, {{"UF", "RJ"}, {"CEP", "20040-002"}});
    ExpectDone(CustomerRegister(), 10, {{"UF", ""}, {"CEP", "01234567"}});
}

TEST_F(RegisterRules, LeaveAnAddressAloneThatIsOlderThanThem)
{
    Run("update cliente set uf = 'RJ', cep = '01234567', tipos_e_canais = 'Celular: 7' where codigo = 10");
    Run("update canal_de_comunicacao set canal = '7', tipo = 'Celular' where codigo_do_cliente = 10");
    ExpectDone(CustomerRegister(), 10, {{"Apelido", "Zezinho"}});
    ExpectDone(CustomerRegister(), 10, {{"Canais", "Celular: 7; Telefone: 1131234567"}});
    EXPECT_EQ(Field(CustomerRegister(), 10, "Canais"), "Celular: 7; Telefone: (11) 3123-4567");
    ExpectRefused(CustomerRegister(), 10, {{"CEP", "01234-568"}},
                  "CEP: o CEP 01234-568 é de SP, e não de RJ.");
}

TEST_F(RegisterRules, JudgeWhatIsStoredByWhatAFormWouldTake)
{
    const auto judged = [&] {
        std::vector<std::string> lines;
        for (const Register* one : Registers())
            one->Judge(Data(), [&](const JudgedField& field) {
                lines.push_back(std::string(one->Name().name) + " " + std::to_string(field.key) + " "
                                + std::string(one->Fields()[field.field].label) + " " + field.text + ": "
                                + field.why);
            });
        return lines;
    };
    EXPECT_EQ(judged(),
              (std::vector<std::string>{
                  "clientes 10 CEP 00123-456: não existe: os CEPs começam em 01000-000.",
                  "clientes 10 Canais Celular: (00) 91234-5678; E-mail: ze@example.com: o DDD 00, de (00) "
                  "91234-5678, não existe.",
                  "clientes 11 CEP 00123-456: não existe: os CEPs começam em 01000-000."}));
    Run("update cliente set cep = '01234567'");
    Run("update canal_de_comunicacao set canal = '(11) 91234-5678' where tipo = 'Celular'");
    EXPECT_EQ(judged(), std::vector<std::string>());
    Run("update cliente set documento = '123', cep = '20040002' where codigo = 10");
    Run("insert into canal_de_comunicacao (codigo_do_cliente, tipo, canal) values (11, 'Fixo', '7')");
    Run("update empresa set nome_fantasia = ''");
    EXPECT_EQ(judged(),
              (std::vector<std::string>{
                  "clientes 10 Documento 123: não é um CPF nem um CNPJ válido: confira os dígitos.",
                  "clientes 10 CEP 20040-002: o CEP 20040-002 é de RJ, e não de SP.",
                  "clientes 11 Canais Fixo: 7: o telefone fixo 7 não tem DDD e oito dígitos, como (11) "
                  "3123-4567.",
                  "empresa 1 Nome fantasia : deve ser informado."}));
}

TEST_F(RegisterRules, TidyWhatIsTyped)
{
    struct Typing {
        const Register& of;
        const char *label, *before, *typed, *text, *why;
    };
    const Typing typings[] = {
        {CustomerRegister(), "CEP", "", " 01234567 ", "01234-567", ""},
        {CustomerRegister(), "CEP", "", "123", "123", "não é um CEP: são oito dígitos."},
        {CustomerRegister(), "CEP", "", "00999999", "00999999", "não existe: os CEPs começam em 01000-000."},
        {CustomerRegister(), "CEP", "123", "123", "123", ""},
        {CustomerRegister(), "CEP", "01234-567", "", "", ""},
        {CustomerRegister(), "Documento", "", "12abc34501de35", "12.ABC.345/01DE-35", ""},
        {CustomerRegister(), "Nome", "Ana", "", "", ""},
        {CustomerRegister(), "Canais", "", "Celular: 11912345678", "Celular: (11) 91234-5678", ""},
        {CustomerRegister(), "Canais", "Celular: 7; Fixo: 8", "Fixo: 8; Recado: 9", "Fixo: 8; Recado: 9", ""},
        {ServiceRegister(), "Preço", "60,00", "1050", "1.050,00", ""},
        {OpeningHoursRegister(), "Hora inicial", "", "9:00", "09:00", ""},
    };
    for (const Typing& one : typings) {
        const TidyText tidy = one.of.Tidy(FieldNamed(one.of.Fields(), one.label), one.before, one.typed);
        EXPECT_EQ(tidy.text, one.text) << one.label << " " << one.typed;
        EXPECT_EQ(tidy.why, one.why) << one.label << " " << one.typed;
    }
}

TEST_F(RegisterRules, OfAnimals)
{
    Run("insert into especie (codigo, nome, nome_de_busca) values (7, 'Felina', 'felina')");
    ExpectRefusals(
        AnimalRegister(),
        {{0,
          {},
          "Código do cliente: deve ser informado. Nome: deve ser informado. Sexo: deve ser informado."
          " Espécie: deve ser informado. Porte: deve ser informado."},
         {50,
          {{"Sexo", "X"}, {"Porte", "Enorme"}},
          "Sexo: não é conhecido. Use Macho ou Fêmea. Porte: não é conhecido. Use Pequeno, Médio, Grande ou "
          "Gigante."},
         {50, {{"Espécie", "Equina"}}, "Espécie: não há espécie com este nome."},
         {50, {{"Espécie", "Felina"}}, "Raça: não há raça com este nome nesta espécie."},
         {50, {{"Raça", "Maltês"}}, "Raça: não há raça com este nome nesta espécie."},
         {50, {{"Código do cliente", "99"}}, "Código do cliente: não há cliente com este código."},
         {50,
          {{"Código do cliente", "11"}},
          "Código do cliente: o animal tem agendamentos com o cliente 10 e fica com ele."}});
    ExpectDone(AnimalRegister(), 50, {{"Espécie", "felina"}, {"Raça", ""}});
    EXPECT_EQ(Field(AnimalRegister(), 50, "Espécie"), "Felina");
    EXPECT_EQ(Field(AnimalRegister(), 50, "Raça"), "Sem raça definida");
}

TEST_F(RegisterRules, LetAnAnimalWithoutAppointmentsChangeItsCustomer)
{
    const Key animal = Add(AnimalRegister(),
                           {{"Código do cliente", "10"},
                            {"Nome", "Bidu"},
                            {"Sexo", "M"},
                            {"Espécie", "Canina"},
                            {"Raça", "poodle"},
                            {"Porte", "Médio"}})
                           .key;
    ExpectDone(AnimalRegister(), animal, {{"Código do cliente", "11"}});
    EXPECT_EQ(Field(AnimalRegister(), animal, "Código do cliente"), "11");
    EXPECT_EQ(Field(AnimalRegister(), animal, "Raça"), "Poodle");
}

TEST_F(RegisterRules, OfServices)
{
    ExpectRefusals(
        ServiceRegister(),
        {{0,
          {},
          "Nome: deve ser informado. Número do tipo: deve ser informado. Duração em minutos: deve ser"
          " informado. Preço: deve ser informado."},
         {2,
          {{"Preço", "doze"}, {"Duração em minutos", "0"}, {"Sessões", "0"}},
          "Duração em minutos: não é um número inteiro de 1 a 1440. Preço: não é um valor. Escreva como"
          " 1.234,56. Sessões: não é um número inteiro de 1 a 999."},
         {2, {{"Preço", ""}}, "Preço: deve ser informado."},
         {2, {{"Número do tipo", "9"}}, "Número do tipo: não há tipo de serviço com este número."},
         {2,
          {{"Número do tipo", "1"}},
          "Número do tipo: há agendamentos deste serviço com o tipo 4, e ele fica assim."},
         {0,
          {{"Nome", "BANHO"}, {"Número do tipo", "4"}, {"Duração em minutos", "30"}, {"Preço", "1"}},
          "Nome: já há um serviço deste tipo com este nome."}});
    ExpectDone(ServiceRegister(), 0,
               {{"Nome", "Banho"}, {"Número do tipo", "1"}, {"Duração em minutos", "30"}, {"Preço", "1"}});
}

TEST_F(RegisterRules, OfEmployeesAndTypes)
{
    ExpectRefusals(EmployeeRegister(),
                   {{0, {}, "Apelido: deve ser informado. Nome: deve ser informado."},
                    {2,
                     {{"Agendamentos simultâneos", "-1"}},
                     "Agendamentos simultâneos: não é um número inteiro de 0 a 999."},
                    {0,
                     {{"Apelido", "bia"}, {"Nome", "BEATRIZ"}},
                     "Apelido: já há um(a) funcionário(a) com este apelido e este nome."}});
    ExpectDone(EmployeeRegister(), 0, {{"Apelido", "Bia"}, {"Nome", "Bianca"}});
    ExpectRefusals(ServiceTypeRegister(),
                   {{0, {{"Nome", "consulta"}}, "Nome: já há um tipo de serviço com este nome."},
                    {4, {{"Nome", ""}}, "Nome: deve ser informado."}});
}

TEST_F(RegisterRules, KeepTheLastEmployeeAndTheLastTypeActive)
{
    ExpectDone(EmployeeRegister(), 1, {{"Situação", "Inativo"}});
    ExpectRefused(EmployeeRegister(), 2, {{"Situação", "Inativo"}},
                  "Situação: a agenda precisa de ao menos um(a) funcionário(a) ativo(a).");
    ExpectDone(ServiceTypeRegister(), 1, {{"Situação", "Inativo"}});
    ExpectRefused(ServiceTypeRegister(), 4, {{"Situação", "Inativo"}},
                  "Situação: a agenda precisa de ao menos um tipo de serviço ativo.");
}

TEST_F(RegisterRules, OfSpeciesBreedsHolidaysAndTheCompany)
{
    ExpectRefusals(SpeciesRegister(), {{0, {{"Nome", "CANINA"}}, "Nome: já há uma espécie com este nome."}});
    ExpectRefusals(BreedRegister(),
                   {{0, {{"Nome", "Persa"}, {"Espécie", "Felina"}}, "Espécie: não há espécie com este nome."},
                    {0,
                     {{"Nome", "pôodle"}, {"Espécie", "Canina"}},
                     "Nome: já há uma raça desta espécie com este nome."},
                    {1, {{"Espécie", ""}}, "Espécie: deve ser informado."}});
    ExpectDone(HolidayRegister(), 0, {{"Nome", "Natal"}, {"Data", "25/12"}});
    ExpectDone(HolidayRegister(), 0, {{"Nome", "Natal"}, {"Data", "25/12/2026"}});
    ExpectDone(HolidayRegister(), 0, {{"Nome", "Aniversário"}, {"Data", "25/12"}});
    ExpectRefusals(HolidayRegister(),
                   {{0, {{"Nome", "NATAL"}, {"Data", "25/12"}}, "Data: este feriado já está cadastrado."},
                    {0,
                     {{"Nome", "a"}, {"Data", "31/02"}},
                     "Data: não é uma data válida. Escreva dd/mm, para todos os anos, ou dd/mm/aaaa."},
                    {0, {{"Nome", "a"}}, "Data: deve ser informado."}});
    ExpectRefusals(CompanyRegister(),
                   {{1,
                     {{"CNPJ", "123.456.789-00"}, {"Nome fantasia", ""}, {"Telefone", "3333-4444"}},
                     "Nome fantasia: deve ser informado. CNPJ: não é um CNPJ nem um CPF válido: confira os"
                     " dígitos. Telefone: o telefone 3333-4444 não tem DDD e oito ou nove dígitos, como (11)"
                     " 3123-4567."}});
}

TEST_F(RegisterRules, KeepTheCompanysNumbersInTheUsualWay)
{
    const Register& company = CompanyRegister();
    ExpectDone(company, 1, {{"CNPJ", "12345678909"}, {"Telefone", "011 31234567"}});
    EXPECT_EQ(Field(company, 1, "CNPJ"), "123.456.789-09");
    EXPECT_EQ(Field(company, 1, "Telefone"), "(11) 3123-4567");
    Run("update empresa set telefone = '3333-4444, ramal 2'");
    ExpectDone(company, 1, {{"Endereço", "Rua A, 1"}});
    EXPECT_EQ(Field(company, 1, "Telefone"), "3333-4444, ramal 2") << "it is older than the rule";
}

TEST_F(RegisterRules, OfferTheDaysOnWhichManyShopsAreClosed)
{
    const auto offered = [&](const Register& of, int year) {
        std::vector<std::string> shown;
        for (const Suggestion& one : of.Suggestions(Data(), year))
            shown.push_back((one.isStored ? "+ " : "- ") + one.shown);
        return shown;
    };
    using Lines = std::vector<std::string>;
    const Register& holidays = HolidayRegister();
    EXPECT_EQ(offered(holidays, 2026),
              (Lines{"- Carnaval, segunda-feira, 16/02/2026", "- Carnaval, terça-feira, 17/02/2026",
                     "- Corpus Christi, quinta-feira, 04/06/2026"}));
    ExpectDone(holidays, 0, {{"Nome", "Terça-feira gorda"}, {"Data", "17/02/2026"}});
    ExpectDone(holidays, 0, {{"Nome", "Dia da loja"}, {"Data", "04/06"}});
    EXPECT_EQ(offered(holidays, 2026),
              (Lines{"- Carnaval, segunda-feira, 16/02/2026", "+ Carnaval, terça-feira, 17/02/2026",
                     "+ Corpus Christi, quinta-feira, 04/06/2026"}));
    EXPECT_EQ(offered(AbsenceRegister(), 2027),
              Lines{"- Quarta-feira de Cinzas até as 12:00, quarta-feira, 10/02/2027"});
    EXPECT_EQ(offered(CustomerRegister(), 2026), Lines());
    EXPECT_EQ(CustomerRegister().SuggestionsTitle(), "");
}

TEST_F(RegisterRules, AddWhatIsOfferedWholeOrNotAtAll)
{
    std::vector<registers::Texts> rows;
    for (Suggestion& one : HolidayRegister().Suggestions(Data(), 2026))
        rows.push_back(std::move(one.texts));
    EXPECT_EQ(Told(HolidayRegister(), HolidayRegister().AddAll(Data(), rows, lia_)), "feito");
    EXPECT_EQ(Texts("select nome || ' ' || data from feriado where data is not null order by data"),
              (std::vector<std::string>{"Carnaval 2026-02-16", "Carnaval 2026-02-17",
                                        "Corpus Christi 2026-06-04"}));
    EXPECT_EQ(Count("auditoria where operacao = 'inclusao' and tabela = 'feriado'"), 3);
    const std::vector<std::string> before = AllRows();
    rows.front() = Over(HolidayRegister(), HolidayRegister().New(), {{"Nome", "a"}, {"Data", "01/02/2026"}});
    EXPECT_EQ(Told(HolidayRegister(), HolidayRegister().AddAll(Data(), rows, lia_)),
              "Data: este feriado já está cadastrado.");
    EXPECT_EQ(AllRows(), before);

    const Suggestion morning = AbsenceRegister().Suggestions(Data(), 2027).front();
    EXPECT_EQ(Told(AbsenceRegister(), AbsenceRegister().AddAll(Data(), std::span(&morning.texts, 1), lia_)),
              "feito");
    EXPECT_EQ(Texts("select data_inicial || hora_inicial || data_final || hora_final || motivo from ausencia"
                    " where codigo_do_funcionario is null"),
              std::vector<std::string>{"2027-02-1000:002027-02-1012:00Quarta-feira de Cinzas"});
    EXPECT_TRUE(AbsenceRegister().Suggestions(Data(), 2027).front().isStored);
}

TEST_F(RegisterRules, LetAHolidayChangeBetweenEveryYearAndOne)
{
    const Key key = Add(HolidayRegister(), {{"Nome", "Natal"}, {"Data", "25/12"}}).key;
    ExpectDone(HolidayRegister(), key, {{"Data", "24/12/2026"}});
    EXPECT_EQ(Field(HolidayRegister(), key, "Data"), "24/12/2026");
    ExpectDone(HolidayRegister(), key, {{"Data", "24/12"}});
    EXPECT_EQ(RowsOf("feriado", "nome = 'Natal'", "codigo"), std::vector<std::string>{"Natal|24|12|-"});
}

TEST_F(RegisterRules, RemoveOnlyWhatNothingRefersTo)
{
    Run("insert into horario_do_funcionario (codigo_do_funcionario, dia_da_semana, hora_inicial, hora_final)"
        " values (3, 2, '08:00', '12:00')");
    Run("insert into ausencia (codigo_do_funcionario, data_inicial, hora_inicial, data_final, hora_final,"
        " motivo) values (3, '2026-12-01', '08:00', '2026-12-01', '18:00', 'Curso'),"
        " (3, '2026-12-02', '08:00', '2026-12-02', '18:00', 'Curso')");
    struct InUse {
        const Register& of;
        Key key;
        std::string text;
    };
    const std::vector<InUse> kept = {
        {CustomerRegister(), 10,
         "Está em uso (1 animal, 5 agendamentos) e não pode ser excluído. Marque a situação como Inativo."},
        {AnimalRegister(), 50,
         "Está em uso (5 agendamentos) e não pode ser excluído. Marque a situação como Inativo."},
        {ServiceRegister(), 2,
         "Está em uso (1 pacote, 10 agendamentos) e não pode ser excluído. Marque a situação como Inativo."},
        {SpeciesRegister(), 1,
         "Está em uso (1 raça) e não pode ser excluída. Marque a situação como Inativo."},
        {BreedRegister(), 1,
         "Está em uso (2 animais) e não pode ser excluída. Marque a situação como Inativo."},
        {EmployeeRegister(), 3,
         "Está em uso (1 horário de trabalho, 2 ausências) e não pode ser excluído. Marque a situação como"
         " Inativo."},
        {ServiceTypeRegister(), 4,
         "As regras da agenda contam com os tipos de 1 a 4: eles não podem ser excluídos. Marque a situação "
         "como"
         " Inativo."},
        {CompanyRegister(), 1, "A empresa não pode ser excluída: o que se imprime leva o nome dela."},
    };
    const std::vector<std::string> before = AllRows();
    for (const InUse& one : kept) {
        const RemoveAnswer answer = one.of.Remove(Data(), one.key, lia_);
        EXPECT_EQ(answer.outcome, RemoveAnswer::Outcome::Kept);
        EXPECT_EQ(answer.text, one.text);
    }
    EXPECT_EQ(AllRows(), before);
}

TEST_F(RegisterRules, HaveAWordForEveryTableThatRefersToThem)
{
    Run("insert into horario_do_funcionario (codigo_do_funcionario, dia_da_semana, hora_inicial, hora_final)"
        " values (3, 2, '08:00', '12:00')");
    EXPECT_EQ(EmployeeRegister().Remove(Data(), 3, lia_).text,
              "Está em uso (1 horário de trabalho) e não pode ser excluído. Marque a situação como Inativo.");
}

TEST_F(RegisterRules, RemoveTheLastActiveEmployeeNever)
{
    Run("delete from agendamento");
    Run("update funcionario set situacao = 2 where codigo = 1");
    EXPECT_EQ(EmployeeRegister().Remove(Data(), 2, lia_).text,
              "A agenda precisa de ao menos um(a) funcionário(a) ativo(a).");
    EXPECT_TRUE(EmployeeRegister().Remove(Data(), 1, lia_).IsDone());
}

TEST_F(RegisterRules, RemoveARowWithItsLineInTheAudit)
{
    const Key holiday = Add(HolidayRegister(), {{"Nome", "Natal"}, {"Data", "25/12"}}).key;
    EXPECT_TRUE(HolidayRegister().Remove(Data(), holiday, lia_).IsDone());
    EXPECT_EQ(Count("feriado"), 0);
    EXPECT_EQ(Count("auditoria where tabela = 'feriado' and operacao = 'exclusao' and depois is null"), 1);
    EXPECT_EQ(HolidayRegister().Remove(Data(), holiday, lia_).outcome, RemoveAnswer::Outcome::Gone);

    const Key customer =
        Add(CustomerRegister(), {{"Nome", "Engano"}, {"Canais", "Celular: 11912345678"}}).key;
    EXPECT_TRUE(CustomerRegister().Remove(Data(), customer, lia_).IsDone());
    EXPECT_EQ(Count("canal_de_comunicacao"), 2) << "those of customer 10";
}

TEST_F(RegisterRules, TellWhatThereIsToKnowOfEachField)
{
    for (const Register* one : Registers()) {
        EXPECT_EQ(one->Fields().front().kind, FieldKind::Code) << one->Name().name;
        EXPECT_EQ(RegisterNamed(one->Name().name), one);
        for (const FieldInfo& field : one->Fields()) {
            SCOPED_TRACE(std::string(one->Name().name) + ": " + std::string(field.label));
            EXPECT_GT(field.longest, 0U);
            EXPECT_FALSE(field.stored.empty());
            EXPECT_EQ(field.kind == FieldKind::Choice || field.kind == FieldKind::State,
                      !field.choices.empty());
            EXPECT_EQ(field.kind == FieldKind::Reference, !field.refersTo.empty());
            EXPECT_TRUE(field.refersTo.empty() || RegisterNamed(field.refersTo));
            EXPECT_TRUE(field.help.empty() || field.help.back() == '.');
        }
    }
    EXPECT_EQ(RegisterNamed("usuarios"), nullptr);
    EXPECT_EQ(Sentence("é um engano."), "É um engano.");
}

TEST_F(RegisterRules, OfferWhatAFieldCanReferTo)
{
    Run("insert into especie (codigo, nome, nome_de_busca) values (7, 'Ave', 'ave')");
    Run("insert into especie (codigo, nome, nome_de_busca, situacao) values (8, 'Réptil', 'reptil', 2)");
    Run("insert into raca (codigo, codigo_da_especie, nome, nome_de_busca) values (7, 7, 'Calopsita', "
        "'calopsita')");
    const auto offered = [&](const Register& of, const char* label, const Typed& typed) {
        std::string all;
        for (const Offer& offer :
             of.Offers(Data(), FieldNamed(of.Fields(), label), Over(of, of.New(), typed)))
            all += offer.text + "=" + offer.shown + ";";
        return all;
    };
    EXPECT_EQ(offered(AnimalRegister(), "Espécie", {}), "Ave=Ave;Canina=Canina;");
    EXPECT_EQ(offered(AnimalRegister(), "Raça", {{"Espécie", "ave"}}), "Calopsita=Calopsita;");
    EXPECT_EQ(offered(AnimalRegister(), "Raça", {}), "");
    EXPECT_EQ(offered(BreedRegister(), "Espécie", {}), "Ave=Ave;Canina=Canina;");
    EXPECT_EQ(offered(ServiceRegister(), "Número do tipo", {}), "1=1 - Consulta;4=4 - Banho e tosa;");
    EXPECT_EQ(offered(ServiceRegister(), "Nome", {}), "");
}

} // namespace kova::family::test
