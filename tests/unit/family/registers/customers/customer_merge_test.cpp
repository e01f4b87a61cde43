// Two customers who are one person.

#include "tests/unit/family/bath.hpp"
#include "tests/unit/family/business/appointments/two_desk_fixture.hpp"
#include "tests/unit/family/registers/register_fixture.hpp"

#include "family/business/appointments/appointment_restoration.hpp"
#include "family/data/audit/merged_rows.hpp"
#include "family/data/rows/table_layouts.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/stores/waiting_list.hpp"
#include "family/registers/customers/customer_merge.hpp"

namespace kova::family::test {

using namespace registers;

using Lines = std::vector<std::string>;

class CustomerMerges : public RegisterTest {
protected:
    CustomerMerge Plan(Key kept, Key other) { return PlanCustomerMerge(Data(), kept, other).value(); }
    MergeAnswer Merge(const CustomerMerge& plan, const std::vector<AlikeAnimals>& joined = {})
    {
        return MergeCustomers(Data(), plan, joined, lia_);
    }

    /// Adds a customer and, where it is told, an animal of that name.
    Key Customer(const Typed& typed, const char* animal = nullptr)
    {
        const SaveAnswer added = Add(CustomerRegister(), typed);
        EXPECT_EQ(Told(CustomerRegister(), added), "feito");
        if (animal)
            Animal(added.key, animal, "Canina");
        return added.key;
    }
    Key Animal(Key customer, const char* name, const char* species, const Typed& more = {})
    {
        const std::string owner = std::to_string(customer);
        Typed typed = {{"Código do cliente", owner.c_str()},
                       {"Nome", name},
                       {"Sexo", "Fêmea"},
                       {"Espécie", species},
                       {"Porte", "Médio"}};
        typed.insert(typed.end(), more.begin(), more.end());
        const SaveAnswer added = Add(AnimalRegister(), typed);
        EXPECT_EQ(Told(AnimalRegister(), added), "feito");
        return added.key;
    }

    /// "LABEL: BEFORE > AFTER" of each.
    static Lines Fields(const std::vector<ChangedField>& changed)
    {
        Lines lines;
        for (const ChangedField& field : changed)
            lines.push_back(std::string(CustomerRegister().Fields()[field.field].label) + ": " + field.before
                            + " > " + field.after);
        return lines;
    }

    /// Whom the full appointments are for, with their versions and who changed them last.
    Lines Booked()
    {
        return Texts("select numero || ' ' || codigo_do_cliente || ' ' || codigo_do_animal || ' ' || versao"
                     " || ' ' || coalesce(alterado_por, '-') from agendamento"
                     " where tipo_do_agendamento = 0 order by numero");
    }
    /// Everything else of the appointments.
    Lines Rest()
    {
        return Texts("select numero || ' ' || data_inicial || ' ' || hora_inicial || ' ' || hora_final"
                     " || ' ' || codigo_do_servico || ' ' || codigo_do_funcionario || ' '"
                     " || coalesce(codigo_do_pacote, 0) || ' ' || situacao || ' '"
                     " || coalesce(observacao, '-') || ' ' || incluido_por || ' ' || transporte_buscar"
                     " from agendamento order by numero");
    }
    Lines Whole()
    {
        Lines all = AllRows();
        for (std::string& row : RowsOf("agendamento", "1 = 1"))
            all.push_back(std::move(row));
        return all;
    }
};

TEST_F(CustomerMerges, KeepEveryAppointmentAndGiveItToTheOneWhoGoesOn)
{
    const CustomerMerge plan = Plan(10, 11);
    EXPECT_EQ(plan.appointments, 6);
    EXPECT_EQ(plan.animals, 1);
    EXPECT_EQ(plan.packages, 0);
    const Lines rest = Rest();
    const MergeAnswer answer = Merge(plan);
    ASSERT_TRUE(answer.IsDone()) << answer.text;
    EXPECT_EQ(answer.appointments, 6);
    EXPECT_EQ(answer.animals, 1);
    EXPECT_EQ(Booked(),
              (Lines{"1 10 50 1 -", "2 10 50 1 Marcos", "3 10 51 2 Lia", "5 10 51 2 Lia", "6 10 51 2 Lia",
                     "7 10 51 2 Lia", "8 10 51 2 Lia", "9 10 51 2 Lia", "21 10 50 1 -", "22 10 50 1 -",
                     "23 10 50 1 -"}));
    EXPECT_EQ(Rest(), rest);
    EXPECT_EQ(Texts("select codigo || ' ' || codigo_do_cliente from animal order by codigo"),
              (Lines{"50 10", "51 10"}));
    EXPECT_EQ(Texts("select cast(codigo as text) from cliente"), Lines{"10"});
}

TEST_F(CustomerMerges, KeepPackagesAndPreSalesWithTheirAppointments)
{
    const CustomerMerge plan = Plan(11, 10);
    EXPECT_EQ(plan.packages, 1);
    ASSERT_EQ(DeskTest::Change(21, 4), 0);
    ASSERT_TRUE(Merge(plan).IsDone());
    EXPECT_EQ(Texts("select a.numero || ' ' || a.codigo_do_cliente || ' ' || coalesce(p.situacao, 0)"
                    " from agendamento a left join pre_venda p on p.numero_do_agendamento = a.numero"
                    " where a.codigo_do_pacote = 1 order by a.numero"),
              (Lines{"21 11 1", "22 11 0", "23 11 0"}));
}

TEST_F(CustomerMerges, KnowAllThatRefersToACustomerOrAnAnimal)
{
    Lines known;
    for (const Reference& reference : References()) {
        const std::string target = reference.target;
        if (target == "cliente" || target == "animal")
            known.push_back(std::string(reference.table) + " > " + target);
    }
    EXPECT_EQ(known,
              (Lines{"canal_de_comunicacao > cliente", "animal > cliente", "agendamento > cliente",
                     "agendamento > animal", "lista_de_espera > cliente", "lista_de_espera > animal"}));
}

TEST_F(CustomerMerges, KeepWhatBothWaitFor)
{
    const Key other = Customer({{"Nome", "Zé Antônio"}});
    const Key joined = Animal(other, "Paçoca", "Canina"), own = Animal(other, "Bidu", "Canina");
    WaitingEntry entry;
    entry.row.dataInicial = entry.row.dataFinal = "2026-12-01";
    entry.row.diasDaSemana = "3";
    entry.row.horaInicial = "08:00";
    entry.row.horaFinal = "18:00";
    entry.services = {2};
    entry.employees = {1, 2};
    for (const auto& [customer, animal] : {std::pair<Key, Key>(10, 50), {other, joined}, {other, own}}) {
        entry.row.codigoDoCliente = customer;
        entry.row.codigoDoAnimal = animal;
        AddWaiting(Data(), entry, lia_);
    }
    const CustomerMerge plan = Plan(10, other);
    ASSERT_EQ(plan.alike.size(), 1U);
    ASSERT_TRUE(Merge(plan, plan.alike).IsDone());
    EXPECT_EQ(Texts("select codigo_do_cliente || ' ' || codigo_do_animal || ' ' || versao"
                    " from lista_de_espera order by codigo"),
              (Lines{"10 50 1", "10 50 2", "10 " + std::to_string(own) + " 2"}));
    EXPECT_EQ(Texts("select depois from auditoria where tabela = 'lista_de_espera' and operacao = 'alteracao'"
                    " order by codigo"),
              (Lines{"{\"codigo_do_cliente\":10,\"codigo_do_animal\":50,\"versao\":2}",
                     "{\"codigo_do_cliente\":10,\"versao\":2}"}));
    EXPECT_EQ(FindWaiting(Data(), 3)->employees, (std::set<Key>{1, 2}));
}

TEST_F(CustomerMerges, LeaveTheirLinesInTheAudit)
{
    const Key other = Customer({{"Nome", "Zé Antônio"}, {"CEP", "01234567"}}, "Bidu");
    Run("delete from auditoria");
    ASSERT_TRUE(Merge(Plan(11, other)).IsDone());
    EXPECT_EQ(
        Texts("select usuario || ' ' || posto || ' ' || tabela || ' ' || chave || ' ' || operacao || ' '"
              " || case when operacao = 'uniao' then depois else '' end from auditoria order by codigo"),
        (Lines{"7 - Lia BALCAO-1 animal 52 alteracao ",
               "7 - Lia BALCAO-1 cliente 11 uniao {\"agendamentos\":0,\"animais\":1,\"unido\":12}",
               "7 - Lia BALCAO-1 cliente 12 uniao {\"unido_a\":11}",
               "7 - Lia BALCAO-1 cliente 12 exclusao "}));
    EXPECT_EQ(Texts("select antes from auditoria where operacao = 'exclusao'").front().find("{\"codigo\":12"),
              0U);
}

TEST_F(CustomerMerges, FillWhatIsEmptyAndKeepTheRest)
{
    const Key kept = Customer(
        {{"Nome", "Ana Prado"}, {"Canais", "Celular: (11) 91234-5678"}, {"Curva ABC", "A"}, {"VIP", "Não"}});
    const Key other = Customer({{"Nome", "Ana L. Prado"},
                                {"Apelido", "Aninha"},
                                {"Documento", "12.ABC.345/01DE-35"},
                                {"Curva ABC", "B"},
                                {"VIP", "Sim"},
                                {"Situação", "Inativo"},
                                {"Logradouro", "Rua A"},
                                {"Número", "7"},
                                {"UF", "SP"},
                                {"Canais", "Whats: 11 91234 5678; E-mail: ana@example.com"}});
    const CustomerMerge plan = Plan(kept, other);
    EXPECT_EQ(Fields(plan.filled),
              (Lines{"Tipo de pessoa: PF > PJ", "Apelido:  > Aninha", "Documento:  > 12.ABC.345/01DE-35",
                     "VIP: Não > Sim", "Logradouro:  > Rua A", "Número:  > 7", "UF:  > SP",
                     "Canais: Celular: (11) 91234-5678 > Celular: (11) 91234-5678; E-mail: "
                     "ana@example.com"}));
    EXPECT_EQ(Fields(plan.lost),
              (Lines{"Nome: Ana Prado > Ana L. Prado", "Situação: Ativo > Inativo", "Curva ABC: A > B"}));
    ASSERT_TRUE(Merge(plan).IsDone());
    EXPECT_EQ(CustomerRegister().Read(Data(), kept).value(),
              (registers::Texts{std::to_string(kept), "PJ", "Ana Prado", "Aninha", "12.ABC.345/01DE-35",
                                "Ativo", "Sim", "A", "Rua A", "7", "", "", "", "SP", "",
                                "Celular: (11) 91234-5678; E-mail: ana@example.com"}));
    EXPECT_EQ(Texts("select nomes_de_busca || '|' || endereco_de_busca from cliente where codigo = "
                    + std::to_string(kept)),
              Lines{"aninha\nana prado|rua a, 7/sp"});
    EXPECT_EQ(Texts("select canal from canal_de_comunicacao where codigo_do_cliente > 11 order by codigo"),
              (Lines{"(11) 91234-5678", "ana@example.com"}));
}

TEST_F(CustomerMerges, KeepTheKindOfPersonThatGoesWithTheKeptDocument)
{
    const Key person = Customer({{"Nome", "Ana"}, {"Documento", "529.982.247-25"}});
    const Key company = Customer({{"Nome", "Ana"}, {"Documento", "12.ABC.345/01DE-35"}});
    const CustomerMerge plan = Plan(person, company);
    EXPECT_EQ(Fields(plan.filled), Lines{});
    EXPECT_EQ(Fields(plan.lost),
              (Lines{"Tipo de pessoa: PF > PJ", "Documento: 529.982.247-25 > 12.ABC.345/01DE-35"}));
    const Key one = Customer({{"Nome", "Bia"}, {"Tipo de pessoa", "PF"}});
    const Key other = Customer({{"Nome", "Bia"}, {"Tipo de pessoa", "PJ"}});
    EXPECT_EQ(Fields(Plan(one, other).filled), Lines{});
    EXPECT_EQ(Fields(Plan(one, other).lost), Lines{"Tipo de pessoa: PF > PJ"});
}

TEST_F(CustomerMerges, KeepEveryChannelThatIsAnotherOne)
{
    const char* const kept = "Recado: casa 2; E-mail: ana123456@exemplo.com; Telefone: (11) 3123-4567";
    const char* const other = "Recado: loja 2; E-mail: bia123456@exemplo.com; Celular: (11) 93123-4567";
    const CustomerMerge plan =
        Plan(Customer({{"Nome", "Ana"}, {"Canais", kept}}), Customer({{"Nome", "Ana"}, {"Canais", other}}));
    EXPECT_EQ(Fields(plan.filled), Lines{std::string("Canais: ") + kept + " > " + kept + "; " + other});
}

TEST_F(CustomerMerges, CompleteAnAddressOnlyFromTheSameOne)
{
    const Key kept = Customer({{"Nome", "Ana"}, {"Logradouro", "Rua A"}, {"Cidade", "Cotia"}});
    const Key same =
        Customer({{"Nome", "Ana"}, {"Logradouro", "rua a"}, {"Bairro", "Centro"}, {"Cidade", "Cotia"}});
    const Key another =
        Customer({{"Nome", "Ana"}, {"Logradouro", "Rua B"}, {"Bairro", "Lapa"}, {"CEP", "01234567"}});
    EXPECT_EQ(Fields(Plan(kept, same).filled), Lines{"Bairro:  > Centro"});
    const CustomerMerge plan = Plan(kept, another);
    EXPECT_EQ(Fields(plan.filled), Lines{});
    EXPECT_EQ(Fields(plan.lost),
              (Lines{"Logradouro: Rua A > Rua B", "Bairro:  > Lapa", "CEP:  > 01234-567"}));
    ASSERT_TRUE(Merge(plan).IsDone());
    EXPECT_EQ(Field(CustomerRegister(), kept, "Bairro"), "");
}

TEST_F(CustomerMerges, JoinTheAnimalsThatAreConfirmedAndNoOthers)
{
    const Key other = Customer({{"Nome", "José Peçanha"}});
    const Key twin = Animal(other, "PAÇOCA", "Canina", {{"Cor", "Bege"}});
    ASSERT_TRUE(Add(SpeciesRegister(), {{"Nome", "Felina"}}).IsDone());
    Animal(other, "Paçoca", "Felina");
    Run("update animal set cor = '' where codigo = 50");
    Run("update agendamento set codigo_do_cliente = " + std::to_string(other)
        + ", codigo_do_animal = " + std::to_string(twin) + " where numero in (1, 2)");
    const CustomerMerge plan = Plan(10, other);
    ASSERT_EQ(plan.alike.size(), 1U);
    EXPECT_EQ(plan.alike[0].kept, 50);
    EXPECT_EQ(plan.alike[0].other, twin);
    EXPECT_EQ(plan.alike[0].name + " " + plan.alike[0].species, "Paçoca Canina");
    ASSERT_TRUE(Merge(plan, plan.alike).IsDone());
    EXPECT_EQ(Texts("select nome || ' ' || codigo_do_cliente || ' ' || cor from animal order by codigo"),
              (Lines{"Paçoca 10 Bege", "Leão 11 Preto", "Paçoca 10 "}));
    EXPECT_EQ(Texts("select numero || ' ' || codigo_do_cliente || ' ' || codigo_do_animal from agendamento"
                    " where numero in (1, 2) order by numero"),
              (Lines{"1 10 50", "2 10 50"}));
    EXPECT_EQ(GoesOnAs(Data(), "animal", twin), 50);
}

TEST_F(CustomerMerges, KeepBothAnimalsWhereTheyAreNotConfirmed)
{
    const Key other = Customer({{"Nome", "José Peçanha"}}, "Paçoca");
    ASSERT_TRUE(Merge(Plan(10, other)).IsDone());
    EXPECT_EQ(Texts("select codigo || ' ' || codigo_do_cliente from animal where nome = 'Paçoca'"
                    " order by codigo"),
              (Lines{"50 10", "52 10"}));
}

TEST_F(CustomerMerges, AreRefusedWhereAnotherDeskHasChangedEitherMeanwhile)
{
    const auto otherDesk = OpenDatabase(shop_.DataSource());
    for (const Key changed : {Key(10), Key(11)}) {
        const CustomerMerge plan = Plan(10, 11);
        const registers::Texts before = CustomerRegister().Read(*otherDesk, changed).value();
        const std::string district = "Vila " + std::to_string(changed);
        ASSERT_TRUE(CustomerRegister()
                        .Save(*otherDesk, changed, before,
                              Over(CustomerRegister(), before, {{"Bairro", district.c_str()}}), marcos_)
                        .IsDone());
        const Lines stored = Whole();
        const MergeAnswer answer = Merge(plan);
        EXPECT_EQ(answer.outcome, MergeAnswer::Outcome::Changed);
        EXPECT_EQ(answer.text,
                  "Este cadastro foi alterado depois que você o abriu. Nada foi unido.\r\n\r\n"
                  "Cliente "
                      + std::to_string(changed) + ", Bairro: Marcos (posto BALCAO-2) gravou \"" + district
                      + "\" em 20/11/2026 às 09:30.\r\n\r\n"
                        "Abra o cadastro de novo para vê-lo como está agora.");
        EXPECT_EQ(Whole(), stored);
    }
    EXPECT_TRUE(Merge(Plan(10, 11)).IsDone());
}

TEST_F(CustomerMerges, AreRefusedWhereAConfirmedAnimalIsNotAlikeAnyMore)
{
    const Key other = Customer({{"Nome", "José Peçanha"}}, "Paçoca");
    const CustomerMerge plan = Plan(10, other);
    ASSERT_EQ(plan.alike.size(), 1U);
    ExpectDone(AnimalRegister(), plan.alike[0].other, {{"Nome", "Bidu"}});
    const Lines stored = Whole();
    const MergeAnswer answer = Merge(plan, plan.alike);
    EXPECT_EQ(answer.outcome, MergeAnswer::Outcome::Changed);
    EXPECT_NE(answer.text.find("Animal Paçoca: não tem mais o mesmo nome, espécie ou cliente."),
              std::string::npos)
        << answer.text;
    EXPECT_EQ(Whole(), stored);
}

TEST_F(CustomerMerges, TellThatOneOfTheTwoIsGone)
{
    EXPECT_FALSE(PlanCustomerMerge(Data(), 10, 99).has_value());
    EXPECT_FALSE(PlanCustomerMerge(Data(), 99, 10).has_value());
    EXPECT_FALSE(PlanCustomerMerge(Data(), 10, 10).has_value());
    const Key third = Customer({{"Nome", "Ana"}});
    const CustomerMerge plan = Plan(10, third);
    ASSERT_TRUE(Merge(Plan(11, third)).IsDone());
    const Lines stored = Whole();
    const MergeAnswer answer = Merge(plan);
    EXPECT_EQ(answer.outcome, MergeAnswer::Outcome::Gone);
    EXPECT_EQ(answer.text,
              "O cliente " + std::to_string(third)
                  + " foi unido ao cliente 11. Use o código 11. Nada foi unido.");
    EXPECT_EQ(Whole(), stored);
}

TEST_F(CustomerMerges, AreToldToWhoeverHasTheFormOfTheOneThatIsGone)
{
    const Register& customers = CustomerRegister();
    const registers::Texts open = customers.Read(Data(), 11).value();
    ASSERT_TRUE(Merge(Plan(10, 11)).IsDone());
    const registers::Texts typed = Over(customers, open, {{"Bairro", "Lapa"}});
    EXPECT_EQ(customers.Save(Data(), 11, open, typed, lia_).outcome, SaveAnswer::Outcome::Gone);
    EXPECT_EQ(customers.WhatBecameOf(Data(), 11), "O cliente 11 foi unido ao cliente 10. Use o código 10.");
    EXPECT_EQ(customers.WhatBecameOf(Data(), 99), "Este registro não existe mais: alguém o excluiu.");
    EXPECT_EQ(AnimalRegister().WhatBecameOf(Data(), 11), "Este registro não existe mais: alguém o excluiu.");
}

TEST_F(CustomerMerges, AreToldToTheEndOfTheWayOrNotAtAll)
{
    const Key second = Customer({{"Nome", "Ana"}}), third = Customer({{"Nome", "Ana Luz"}});
    ASSERT_TRUE(Merge(Plan(second, third)).IsDone());
    ASSERT_TRUE(Merge(Plan(10, second)).IsDone());
    EXPECT_EQ(CustomerRegister().WhatBecameOf(Data(), third),
              "O cliente " + std::to_string(third) + " foi unido ao cliente 10. Use o código 10.");
    const Key fourth = Customer({{"Nome", "Bruno"}}), fifth = Customer({{"Nome", "Bruno Luz"}});
    ASSERT_TRUE(Merge(Plan(fourth, fifth)).IsDone());
    ASSERT_TRUE(CustomerRegister().Remove(Data(), fourth, lia_).IsDone());
    EXPECT_EQ(CustomerRegister().WhatBecameOf(Data(), fifth),
              "Este registro não existe mais: alguém o excluiu.");
}

TEST_F(CustomerMerges, AreToldWhereAnAnimalIsGivenToTheOneThatIsGone)
{
    const Key other = Customer({{"Nome", "Ana"}});
    const std::string code = std::to_string(other);
    ASSERT_TRUE(Merge(Plan(10, other)).IsDone());
    ExpectRefused(AnimalRegister(), 50, {{"Código do cliente", code.c_str()}},
                  "Código do cliente: foi unido ao cliente 10. Use o código 10.");
}

TEST_F(CustomerMerges, AreToldToWhoeverBooksForTheOneThatIsGone)
{
    const Key other = Customer({{"Nome", "José Peçanha"}});
    const Key twin = Animal(other, "Paçoca", "Canina"), third = Animal(other, "Bidu", "Canina");
    AppointmentInput input = Bath("01/12/2026");
    input.kind = 0;
    input.customer = static_cast<Double>(other);
    input.animal = static_cast<Long>(third);
    const CustomerMerge plan = Plan(10, other);
    ASSERT_TRUE(Merge(plan, plan.alike).IsDone());
    const Lines stored = Whole();
    const auto expect = [&](const char* field, const std::string& text) {
        const WriteAnswer answer = AddAppointments(Data(), input, lia_);
        EXPECT_EQ(answer.status, WriteAnswer::Invalid);
        EXPECT_EQ(answer.field, field);
        EXPECT_EQ(answer.text, text);
        EXPECT_EQ(Whole(), stored);
    };
    expect("CodigoDoCliente",
           "O cliente " + std::to_string(other) + " foi unido ao cliente 10. Use o código 10.");
    input.customer = 10;
    input.animal = static_cast<Long>(twin);
    expect("CodigoDoAnimal",
           "O animal " + std::to_string(twin) + " foi unido ao animal 50. Use o código 50.");
    input.animal = 99;
    expect("CodigoDoAnimal", "Selecione o animal.");
    input.animal = static_cast<Long>(third);
    EXPECT_TRUE(AddAppointments(Data(), input, lia_).IsDone());
}

TEST_F(CustomerMerges, AreWholeOrNotAtAll)
{
    const CustomerMerge plan = Plan(10, 11);
    const Lines stored = Whole();
    for (const auto& [table, event, condition] :
         {std::tuple("agendamento", "before update", "new.numero = 9"),
          std::tuple("auditoria", "before insert", "new.operacao = 'uniao'"),
          std::tuple("cliente", "before delete", "")}) {
        Break(table, event, condition);
        EXPECT_THROW(Merge(plan), DatabaseFailure) << table;
        EXPECT_EQ(Whole(), stored) << table;
        Mend(table);
    }
    EXPECT_TRUE(Merge(plan).IsDone());
}

TEST_F(CustomerMerges, LetAnAppointmentThatWasDeletedBeforeComeBackToTheOneWhoGoesOn)
{
    const Key other = Customer({{"Nome", "José Peçanha"}}, "Paçoca");
    const Key third = Customer({{"Nome", "José"}});
    Run("update agendamento set codigo_do_cliente = " + std::to_string(other)
        + ", codigo_do_animal = 52 where numero = 23");
    AppointmentInput deleted;
    deleted.number = 23;
    ASSERT_TRUE(DeleteAppointment(Data(), deleted, lia_).IsDone());
    ASSERT_TRUE(Merge(Plan(third, other)).IsDone());
    const CustomerMerge plan = Plan(10, third);
    ASSERT_TRUE(Merge(plan, plan.alike).IsDone());
    EXPECT_EQ(HaveGoneInto(Data(), "cliente", 10), (std::vector<Key>{third, other}));
    const WriteAnswer restored = RestoreAppointment(Data(), 23, lia_);
    ASSERT_TRUE(restored.IsDone()) << restored.text;
    EXPECT_EQ(Texts("select codigo_do_cliente || ' ' || codigo_do_animal from agendamento where numero = 23"),
              Lines{"10 50"});
}

class ADeskBesideAMerge : public TwoDesksTest { };

TEST_F(ADeskBesideAMerge, SavesItsChangeOfAnAppointmentForTheCustomerWhoGoesOn)
{
    Shows();
    const auto plan = PlanCustomerMerge(*otherDesk_, 11, 10);
    ASSERT_TRUE(MergeCustomers(*otherDesk_, *plan, {}, marcos_).IsDone());
    const auto form = Form(FullNumber);
    form->Set("Observacao", "Laço verde.");
    ASSERT_EQ(Write(*form, "Alterar"), 0) << form->Get("DescricaoDaFalha").ToText();
    EXPECT_EQ(Stored(FullNumber).codigoDoCliente.value, 11);
    EXPECT_EQ(Stored(FullNumber).observacao.value, "Laço verde.");
}

} // namespace kova::family::test
