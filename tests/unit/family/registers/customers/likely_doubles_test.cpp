// Who may be there already.

#include "tests/unit/family/registers/register_fixture.hpp"

namespace kova::family::test {

using namespace registers;

class LikelyDoublesOf : public RegisterTest {
protected:
    /// "SHOWN: REASON; REASON" of each; "!" before one that bars.
    std::vector<std::string> Found(const Register& of, Key key, const Typed& typed)
    {
        const registers::Texts before = key == 0 ? of.New() : of.Read(Data(), key).value();
        std::vector<std::string> lines;
        for (const LikelyDouble& one : of.LikelyDoubles(Data(), key, before, Over(of, before, typed))) {
            std::string line = (one.bars ? "!" : "") + one.shown + ":";
            for (const std::string& reason : one.reasons)
                line += " " + reason + ";";
            lines.push_back(line);
        }
        return lines;
    }
};

using Lines = std::vector<std::string>;

struct Case {
    const char* name;
    Typed typed;
    Lines found;
};
void PrintTo(const Case& one, std::ostream* out) { *out << one.name; }

class LikelyDoublesOfANewCustomer : public LikelyDoublesOf, public testing::WithParamInterface<Case> { };

TEST_P(LikelyDoublesOfANewCustomer, AreFoundByWhatTheyHaveInCommon)
{
    EXPECT_EQ(Found(CustomerRegister(), 0, GetParam().typed), GetParam().found);
}

const char* const Jose = "José Antônio Peçanha (código 10):";

const Case Cases[] = {
    {"Nothing",
     {{"Nome", "Ana"}, {"Canais", "Celular: (00) 91234-5679"}, {"Documento", "529.982.247-25"}},
     {}},
    {"Empty", {}, {}},
    {"NameAlone", {{"Nome", "José Antônio Peçanha"}}, {}},
    {"Document",
     {{"Nome", "Ana"}, {"Documento", "12345678909"}},
     {std::string("!") + Jose + " o mesmo documento, 123.456.789-09;"}},
    {"DocumentWithMarks",
     {{"Documento", " 11.222.333/0001-81 "}},
     {"!Canil Céu Azul Ltda. (código 11): o mesmo documento, 11.222.333/0001-81;"}},
    {"DocumentThatIsNone", {{"Documento", "123"}}, {}},
    {"PhoneByItsDigits",
     {{"Canais", "Recado: 00 9 1234 5678"}},
     {std::string(Jose) + " o mesmo telefone, (00) 91234-5678;"}},
    {"PartOfAPhone", {{"Canais", "Celular: 91234-5678"}}, {}},
    {"Mail", {{"Canais", "E-mail: ze@example.com"}}, {}},
    {"ShortNumber", {{"Canais", "Ramal: 5678"}}, {}},
    {"Both",
     {{"Documento", "123.456.789-09"}, {"Canais", "Fixo: 3; Celular: (00) 91234-5678"}},
     {std::string("!") + Jose + " o mesmo documento, 123.456.789-09; o mesmo telefone, (00) 91234-5678;"}},
};

INSTANTIATE_TEST_SUITE_P(ByTraits, LikelyDoublesOfANewCustomer, testing::ValuesIn(Cases),
                         [](const auto& one) { return std::string(one.param.name); });

TEST_F(LikelyDoublesOf, AChangedCustomerAreToldOnlyOfWhatHasChanged)
{
    const Register& customers = CustomerRegister();
    ASSERT_TRUE(Add(customers, {{"Nome", "Lia"}}).IsDone());
    Run("insert into canal_de_comunicacao (codigo_do_cliente, tipo, canal)"
        " values (12, 'Celular', '(00) 91234-5678')");
    Run("update cliente set tipos_e_canais = 'Celular: (00) 91234-5678' where codigo = 12");
    EXPECT_EQ(Found(customers, 10, {{"Bairro", "Centro"}}), Lines{}) << "the phone is no news";
    EXPECT_EQ(Found(customers, 11, {{"Canais", "Celular: 00912345678"}}),
              (Lines{std::string(Jose) + " o mesmo telefone, (00) 91234-5678;",
                     "Lia (código 12): o mesmo telefone, (00) 91234-5678;"}));
    EXPECT_EQ(Found(customers, 10, {{"Documento", "11222333000181"}}),
              Lines{"!Canil Céu Azul Ltda. (código 11): o mesmo documento, 11.222.333/0001-81;"});
}

TEST_F(LikelyDoublesOf, ACustomerAreThoseOfTheSameNameWithAnAnimalOfTheSameName)
{
    const Register& customers = CustomerRegister();
    ASSERT_TRUE(Add(AnimalRegister(),
                    {{"Código do cliente", "11"},
                     {"Nome", "PAÇOCA"},
                     {"Sexo", "Fêmea"},
                     {"Espécie", "Canina"},
                     {"Porte", "Médio"}})
                    .IsDone());
    EXPECT_EQ(Found(customers, 11, {{"Nome", "jose antonio peçanha "}}),
              Lines{std::string(Jose) + " o mesmo nome, e também um animal chamado Paçoca;"});
    EXPECT_EQ(Found(customers, 11, {{"Nome", "José Peçanha"}}), Lines{});
    Run("update animal set nome = 'Bidu', nome_de_busca = 'bidu' where codigo = 52");
    EXPECT_EQ(Found(customers, 11, {{"Nome", "José Antônio Peçanha"}}), Lines{});
}

TEST_F(LikelyDoublesOf, AnAnimalAreItsNamesakesOfTheSameCustomerOrOfOneOfTheSameName)
{
    const Register& animals = AnimalRegister();
    ASSERT_TRUE(Add(CustomerRegister(), {{"Nome", "Jose Antonio Pecanha"}}).IsDone());
    EXPECT_EQ(
        Found(animals, 0, {{"Código do cliente", "12"}, {"Nome", "paçoca"}}),
        Lines{"Paçoca (código 50): o mesmo nome, e o cliente 10 também se chama Jose Antonio Pecanha;"});
    EXPECT_EQ(Found(animals, 0, {{"Código do cliente", "10"}, {"Nome", "Pacoca"}}),
              Lines{"Paçoca (código 50): o mesmo nome e o mesmo cliente;"});
    EXPECT_EQ(Found(animals, 0, {{"Código do cliente", "11"}, {"Nome", "Paçoca"}}), Lines{});
    EXPECT_EQ(Found(animals, 0, {{"Código do cliente", "99"}, {"Nome", "Paçoca"}}), Lines{});
    EXPECT_EQ(Found(animals, 50, {{"Cor", "Bege"}}), Lines{});
    EXPECT_EQ(Found(animals, 50, {{"Código do cliente", "12"}}), Lines{}) << "it is none of its own";
    EXPECT_EQ(Found(animals, 50, {{"Código do cliente", "12"}, {"Nome", ""}}), Lines{});
    const SaveAnswer namesake = Add(animals,
                                    {{"Código do cliente", "10"},
                                     {"Nome", "Paçoca"},
                                     {"Sexo", "Fêmea"},
                                     {"Espécie", "Canina"},
                                     {"Porte", "Médio"}});
    EXPECT_EQ(Found(animals, namesake.key, {{"Cor", "Bege"}}), Lines{}) << "that was told when it was added";
    ASSERT_TRUE(animals.Remove(Data(), namesake.key, lia_).IsDone());
    EXPECT_EQ(Found(animals, 51, {{"Código do cliente", "10"}, {"Nome", "Paçoca"}}),
              Lines{"Paçoca (código 50): o mesmo nome e o mesmo cliente;"});
}

TEST_F(LikelyDoublesOf, OtherRegistersAreNone)
{
    for (const Register* of : Registers()) {
        if (of != &CustomerRegister() && of != &AnimalRegister()) {
            EXPECT_EQ(of->LikelyDoubles(Data(), 0, of->New(), of->New()).size(), 0U) << of->Name().name;
        }
    }
}

} // namespace kova::family::test
