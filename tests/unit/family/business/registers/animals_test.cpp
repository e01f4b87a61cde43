#include "tests/unit/family/shop_fixture.hpp"

#include "family/business/registers/animals.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/data/rows/insert_row.hpp"
#include "family/data/rows/people_rows.hpp"
#include "family/data/sources/shared_database.hpp"

namespace kova::family::test {

/// Beside 50, Paçoca, of customer 10, microchip 999000000000001, and 51, Leão, of customer 11.
class AnimalSearch : public ShopTest {
protected:
    AnimalSearch()
    {
        Add(52, 10, "Amora", 1);
        Add(53, 10, "Pança", 2);
        Add(54, 11, "Paçoca", 1);
    }

    void Add(Key code, Key owner, const char* name, int situation)
    {
        Insert(*SharedDatabase(host_.DataSource()),
               AnimalRow{code, owner, name, "M", 1, 2, "Preto", {}, {}, situation, FoldText(name)});
    }

    Value Select(Animals& animals, Argument codeOrText, Double customer)
    {
        return animals.Call("Selecionar",
                            {Long(2), Integer(0), Long(1), std::move(codeOrText), Integer(1), customer});
    }

    std::vector<int> Find(Argument codeOrText, Double customer = 0)
    {
        Animals animals(host_);
        EXPECT_EQ(Select(animals, std::move(codeOrText), customer), Value(Integer(0)));
        return CodesOf(*ResultOf(animals));
    }

    static std::vector<int> CodesOf(RecordSet& records)
    {
        std::vector<int> codes;
        for (; !records.Eof(); records.MoveNext())
            codes.push_back(records.Field("Codigo").ToLong());
        return codes;
    }

    using List = std::vector<int>;
};

TEST_F(AnimalSearch, FindsAPartOfTheNameOfActiveAnimalsOfAllCustomers)
{
    EXPECT_EQ(Find("PACOCA"), (List{50, 54}));
    EXPECT_EQ(Find("ã"), (List{52, 51, 50, 54}));
    EXPECT_EQ(Find("pa"), (List{50, 54})) << "Pança is inactive";
    EXPECT_EQ(Find("ninguém"), (List{}));
    Text name = " amora ";
    EXPECT_EQ(Find(ByRef(name)), (List{52}));
}

TEST_F(AnimalSearch, FindsACodeOrAMicrochipExactlyByDigits)
{
    EXPECT_EQ(Find("52"), (List{52}));
    EXPECT_EQ(Find("5"), (List{}));
    EXPECT_EQ(Find("999000000000001"), (List{50}));
    EXPECT_EQ(Find("999.000-000000001"), (List{50}));
    EXPECT_EQ(Find("99900000000000"), (List{}));
    EXPECT_EQ(Find("53"), (List{})) << "inactive";
}

TEST_F(AnimalSearch, TakesATextWithinACustomerWhereOneIsGiven)
{
    EXPECT_EQ(Find("paçoca", 11), (List{54}));
    EXPECT_EQ(Find("", 10), (List{52, 50}));
}

TEST_F(AnimalSearch, KnowsAnimalsThatComeChangeAndGo)
{
    EXPECT_EQ(Find("zorro"), (List{}));
    Add(60, 10, "Zorro", 1);
    EXPECT_EQ(Find("zorro"), (List{60}));
    EXPECT_EQ(Find("60"), (List{60}));
    soci::session& session = SharedDatabase(host_.DataSource())->Session();
    session << "update animal set situacao = 2 where codigo = 60";
    EXPECT_EQ(Find("zorro"), (List{}));
    EXPECT_EQ(Find("60"), (List{}));
    session << "update animal set situacao = 1, nome_de_busca = 'tornado' where codigo = 60";
    EXPECT_EQ(Find("zorro"), (List{}));
    EXPECT_EQ(Find("tornado"), (List{60}));
    session << "delete from animal where codigo = 60";
    EXPECT_EQ(Find("tornado"), (List{}));
}

TEST_F(AnimalSearch, FixesWhatIsFoundAndFetchesRowsBeyondTheFirstWhenTheyAreReached)
{
    for (Key code = 1000; code < 1250; ++code)
        Add(code, 10, ("Repetido " + std::to_string(code)).c_str(), 1);
    Animals animals(host_);
    ASSERT_EQ(Select(animals, "repetido", 0), Value(Integer(0)));
    const RecordSetRef found = ResultOf(animals);
    soci::session& session = SharedDatabase(host_.DataSource())->Session();
    session << "update animal set nome = 'Outro' where codigo = 1000 or codigo = 1190";
    session << "delete from animal where codigo = 1191";
    ASSERT_EQ(found->RecordCount(), 250);
    EXPECT_EQ(found->Field("Nome"), Value("Repetido 1000"));
    for (int code = 1000; code < 1250; ++code, found->MoveNext())
        EXPECT_EQ(found->Field("Codigo"), Value(Long(code)));
    EXPECT_TRUE(found->Eof());
    found->MoveFirst();
    for (int row = 0; row < 190; ++row)
        found->MoveNext();
    EXPECT_EQ(found->Field("Nome"), Value("Outro"));
    found->MoveNext();
    EXPECT_EQ(found->Field("Situacao"), Value(Long(4))) << "gone, so that the picker refuses it";
    EXPECT_EQ(found->Field("Nome"), Value(""));
}

TEST_F(AnimalSearch, TakesANumberAsTheCodeWithinTheCustomer)
{
    for (const Value& code : {Value(Integer(50)), Value(Long(50)), Value(50.0)})
        EXPECT_EQ(Find(code, 10), (List{50})) << NameOf(code.GetType());
    EXPECT_EQ(Find(Long(50), 11), (List{}));
    EXPECT_EQ(Find(Long(50), 0), (List{}));
    EXPECT_EQ(Find(Long(0), 10), (List{}));
    EXPECT_EQ(Find(Long(99), 10), (List{}));
    EXPECT_EQ(Find(50.5, 10), (List{}));
}

TEST_F(AnimalSearch, RefusesTheCodeOfAnInactiveAnimalAndKeepsTheFormerResult)
{
    Animals animals(host_);
    EXPECT_EQ(animals.Get("DescricaoDaFalha"), Value(""));
    ASSERT_EQ(Select(animals, Long(50), 10), Value(Integer(0)));
    const RecordSetRef former = ResultOf(animals);
    EXPECT_EQ(Select(animals, Long(53), 10), Value(Integer(2)));
    EXPECT_EQ(animals.Get("DescricaoDaFalha"), Value("Animal inativo. Selecione outro animal."));
    EXPECT_EQ(animals.Get("NumeroDoErro"), Value(Long(0)));
    EXPECT_EQ(ResultOf(animals), former);
    EXPECT_EQ(Select(animals, Long(53), 11), Value(Integer(0))) << "another customer has no such animal";
    EXPECT_EQ(animals.Get("DescricaoDaFalha"), Value(""));
}

TEST_F(AnimalSearch, TellsATechnicalFailure)
{
    TestHost host(folder_ / "nenhum.db");
    Animals animals(host);
    EXPECT_EQ(Select(animals, Long(50), 10), Value(Integer(1)));
    EXPECT_EQ(animals.Get("LocalDoErro"), Value("KOVA_N_ClientAnim.clsAnimais, Selecionar"));
    EXPECT_NE(animals.Get("DescricaoDoErro"), Value(""));
    EXPECT_EQ(animals.Get("DescricaoDaFalha"), Value(""));
}

TEST_F(AnimalSearch, GivesTheAnimalAndItsOwner)
{
    Animals animals(host_);
    Select(animals, Long(50), 10);
    const RecordSetRef row = ResultOf(animals);
    const std::pair<const char*, Value> expected[] = {
        {"Codigo", Long(50)},
        {"Nome", "Paçoca"},
        {"Sexo", "Fêmea"},
        {"CodigoDaEspecie", Long(1)},
        {"NomeDaEspecie", "Canina"},
        {"CodigoDaRaca", Long(1)},
        {"NomeDaRaca", "Poodle"},
        {"Cor", "Caramelo"},
        {"CodigoDoCliente", 10.0},
        {"ApelidoOuNomeFantasia", "Zé"},
        {"NomeOuRazaoSocial", "José Antônio Peçanha"},
        {"SituacaoDoCliente", Long(1)},
        {"Situacao", Long(1)},
        {"EnderecoCompleto", "Rua do Ipê, 110 - Vale Sereno/SP"},
        {"TiposECanaisDeComunicacao", "Celular: (00) 91234-5678; E-mail: ze@example.com"},
        {"VIP", "Não"},
        {"CategoriaDaCurvaABC", "A"},
    };
    ASSERT_EQ(row->FieldCount(), static_cast<int>(std::size(expected)));
    for (const auto& [field, value] : expected)
        EXPECT_EQ(row->Field(field), value) << field;
}

TEST_F(AnimalSearch, GivesTheOwnersSituationWhateverItIs)
{
    SharedDatabase(host_.DataSource())->Session()
        << "update cliente set situacao = 3, vip = 1 where codigo = 11";
    Animals animals(host_);
    Select(animals, "leão", 0);
    const RecordSetRef row = ResultOf(animals);
    EXPECT_EQ(row->Field("SituacaoDoCliente"), Value(Long(3)));
    EXPECT_EQ(row->Field("Situacao"), Value(Long(3)));
    EXPECT_EQ(row->Field("VIP"), Value("Sim"));
}

TEST_F(AnimalSearch, FillsTheComboOfACustomerByNameWithTheSituationAskedFor)
{
    const auto fill = [&](Double customer, Integer situation) {
        Animals animals(host_);
        EXPECT_EQ(animals.Call("SelecionarParaComboBoxFiltradoPorCliente", {ByRef(customer), situation}),
                  Value(Integer(0)));
        const RecordSetRef records = ResultOf(animals);
        EXPECT_EQ(records->FieldName(0), "Nome");
        return CodesOf(*records);
    };
    EXPECT_EQ(fill(10, 1), (List{52, 50}));
    EXPECT_EQ(fill(10, 2), (List{53}));
    EXPECT_EQ(fill(10, 0), (List{52, 50, 53}));
    EXPECT_EQ(fill(99, 1), (List{}));
}

TEST_F(AnimalSearch, NeedsItsArguments)
{
    Animals animals(host_);
    EXPECT_THROW(animals.Call("Selecionar", {Long(2), Integer(0), Long(1), "x", Integer(1)}), Failure);
    EXPECT_THROW(animals.Call("SelecionarParaComboBoxFiltradoPorCliente", {Double(10)}), Failure);
    EXPECT_THROW(animals.Set("DadosDoUsuario", ObjectRef()), Failure);
}

} // namespace kova::family::test
