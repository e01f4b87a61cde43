#include "tests/unit/family/shop_fixture.hpp"

#include "family/business/registers/customers.hpp"
#include "family/data/sources/shared_database.hpp"
#include "family/data/stores/customer_store.hpp"

namespace kova::family::test {

/// Beside 10, "Zé", José Antônio Peçanha, CPF 12345678909, and 11, "Canil Céu", Canil Céu Azul Ltda., CNPJ
/// 11222333000181; both in the Rua do Ipê.
class CustomerSearch : public ShopTest {
protected:
    CustomerSearch()
    {
        Add(30, "Zeca", "Bento \"Jr.\" 100%", 2);
        Add(20, "Beto", "Ana Peçanha", 3);
        Add(21, "Nina", "Ana Peçanha", 4);
        Add(909, "Xu", "O'Hara_Dias", 1);
    }

    void Add(Key code, const char* nickname, const char* name, int situation)
    {
        CustomerRow row;
        row.codigo = code;
        row.tipoDePessoa = "PF";
        row.apelido = nickname;
        row.nome = name;
        row.documento = "987654321" + std::to_string(code);
        row.situacao = situation;
        row.vip = code == 20 ? 1 : 0;
        row.categoriaDaCurvaABC = "B";
        row.logradouro = "Avenida Peçanha";
        row.numero = std::to_string(code);
        row.cep = "00456789";
        WriteCustomer(*SharedDatabase(host_.DataSource()), row,
                      {{code * 10, code, "Celular", "(00) 91111-1111"}});
    }

    std::vector<int> Find(Text text, Text name = "", Double code = 0, Text address = "")
    {
        Customers customers(host_);
        EXPECT_EQ(customers.Call("Selecionar",
                                 {Long(2), Integer(0), Long(0), text, ByRef(name), ByRef(code),
                                  ByRef(address), "", "", Double(0), ""}),
                  Value(Integer(0)));
        std::vector<int> codes;
        for (const RecordSetRef records = ResultOf(customers); !records->Eof(); records->MoveNext())
            codes.push_back(records->Field("CodigoDoCliente").ToLong());
        return codes;
    }
    std::vector<int> FindName(const Text& name) { return Find("", name); }
    std::vector<int> FindCode(Double code) { return Find("", "", code); }
    std::vector<int> FindAddress(const Text& address) { return Find("", "", 0, address); }

    using List = std::vector<int>;
};

TEST_F(CustomerSearch, FindsAPartOfNicknameOrNameByNameThenCode)
{
    EXPECT_EQ(Find("peçanha"), (List{20, 21, 10}));
    EXPECT_EQ(Find("PECA"), (List{20, 21, 10}));
    EXPECT_EQ(Find("  beto "), (List{20}));
    EXPECT_EQ(Find("antônio peç"), (List{10}));
    EXPECT_EQ(FindName("canil céu"), (List{11}));
    EXPECT_EQ(FindName("zec"), (List{30}));
    EXPECT_EQ(Find("ninguém"), (List{}));
}

TEST_F(CustomerSearch, FindsPartsOfOneAndTwoCharacters)
{
    EXPECT_EQ(Find("z"), (List{30, 11, 10})) << "Zeca, Azul and Zé";
    EXPECT_EQ(Find("ZÉ"), (List{30, 10}));
    EXPECT_EQ(FindName("é"), (List{20, 21, 30, 11, 10}));
}

TEST_F(CustomerSearch, DoesNotFindAWordThatRunsFromTheNicknameIntoTheName)
{
    EXPECT_EQ(Find("beto ana"), (List{}));
    EXPECT_EQ(Find("betoana"), (List{}));
}

TEST_F(CustomerSearch, TakesEveryCharacterAsItStands)
{
    EXPECT_EQ(Find("100%"), (List{30}));
    EXPECT_EQ(Find("%"), (List{30}));
    EXPECT_EQ(Find("%%%"), (List{}));
    EXPECT_EQ(Find("\"jr"), (List{30}));
    EXPECT_EQ(Find("\"jr.\""), (List{30}));
    EXPECT_EQ(Find("o'h"), (List{909}));
    EXPECT_EQ(Find("a_d"), (List{909}));
    EXPECT_EQ(Find("a?d"), (List{}));
    EXPECT_EQ(Find("ana OR zeca"), (List{}));
    EXPECT_EQ(Find("nomes_de_busca:ana"), (List{}));
    EXPECT_EQ(Find("ben*"), (List{}));
}

TEST_F(CustomerSearch, FindsACodeExactlyByDigits)
{
    EXPECT_EQ(Find("10"), (List{30, 10})) << "the other one has 100% in the name";
    EXPECT_EQ(Find("909"), (List{909})) << "and not the document that ends so";
    EXPECT_EQ(Find("9"), (List{}));
    EXPECT_EQ(FindName("909"), (List{})) << "the name is not the code";
    EXPECT_EQ(FindCode(10), (List{10}));
}

TEST_F(CustomerSearch, FindsADocumentExactlyWithOrWithoutPunctuation)
{
    EXPECT_EQ(Find("12345678909"), (List{10}));
    EXPECT_EQ(Find("123.456.789-09"), (List{10}));
    EXPECT_EQ(Find("11.222.333/0001-81"), (List{11}));
    EXPECT_EQ(Find("1234567890"), (List{}));
    EXPECT_EQ(FindName("12345678909"), (List{}));
}

TEST_F(CustomerSearch, FindsADocumentThatHasLettersExactlyWithOrWithoutPunctuation)
{
    SharedDatabase(host_.DataSource())->Session()
        << "update cliente set documento = '12ABC34501DE35' where codigo = 11";
    EXPECT_EQ(Find("12.ABC.345/01DE-35"), (List{11}));
    EXPECT_EQ(Find("12abc34501de35"), (List{11}));
    EXPECT_EQ(Find("12ABC34501DE3"), (List{}));
    EXPECT_EQ(Find("12ABC34501DE36"), (List{}));
}

TEST_F(CustomerSearch, FindsAPartOfTheAddressWithItsPostalCode)
{
    EXPECT_EQ(FindAddress("rua do ipe"), (List{11, 10}));
    EXPECT_EQ(FindAddress("ipê, 110"), (List{10}));
    EXPECT_EQ(FindAddress("00456-789"), (List{20, 21, 30, 909}));
    EXPECT_EQ(FindAddress("avenida pecanha"), (List{20, 21, 30, 909}));
    EXPECT_EQ(FindAddress("antonio"), (List{}));
    EXPECT_EQ(FindName("avenida"), (List{}));
}

TEST_F(CustomerSearch, AppliesItsConditionsTogether)
{
    EXPECT_EQ(Find("peçanha", "ana", 21, "avenida"), (List{21}));
    EXPECT_EQ(Find("peçanha", "ana"), (List{20, 21}));
    EXPECT_EQ(Find("peçanha", "", 0, "rua"), (List{10}));
    EXPECT_EQ(Find("ana", "", 10), (List{}));
    EXPECT_EQ(Find("20", "nina"), (List{}));
    EXPECT_EQ(Find("20", "beto"), (List{20}));
}

TEST_F(CustomerSearch, WithoutAConditionFindsAllWhateverTheirSituation)
{
    EXPECT_EQ(Find(""), (List{20, 21, 30, 11, 10, 909}));
    EXPECT_EQ(Find("   "), (List{20, 21, 30, 11, 10, 909}));
}

TEST_F(CustomerSearch, TakesACodeThatIsNoneAsOneThatNobodyHas)
{
    for (const Double code : {-1.0, 10.5, 9223372036854775808.0, 1e300})
        EXPECT_EQ(FindCode(code), (List{})) << code;
    EXPECT_EQ(Find("9223372036854775817"), (List{})) << "nor what would be 9 after the largest number";
}

TEST_F(CustomerSearch, GivesTypedFields)
{
    Customers customers(host_);
    customers.Call("Selecionar",
                   {Long(2), Integer(0), Long(0), "beto", "", Double(0), "", "", "", Double(0), ""});
    const RecordSetRef row = ResultOf(customers);
    EXPECT_EQ(row->FieldCount(), 8);
    EXPECT_EQ(row->Field("CodigoDoCliente"), Value(20.0));
    EXPECT_EQ(row->Field("ApelidoOuNomeFantasia"), Value("Beto"));
    EXPECT_EQ(row->Field("NomeOuRazaoSocial"), Value("Ana Peçanha"));
    EXPECT_EQ(row->Field("Situacao"), Value(Long(3)));
    EXPECT_EQ(row->Field("EnderecoCompleto"), Value("Avenida Peçanha, 20"));
    EXPECT_EQ(row->Field("TiposECanaisDeComunicacao"), Value("Celular: (00) 91111-1111"));
    EXPECT_EQ(row->Field("VIP"), Value("Sim"));
    EXPECT_EQ(row->Field("CategoriaDaCurvaABC"), Value("B"));
}

TEST_F(CustomerSearch, FixesWhoIsFoundAndFetchesRowsBeyondTheFirstWhenTheyAreReached)
{
    for (Key code = 1000; code < 1250; ++code)
        Add(code, "Repetido", ("Nome " + std::to_string(code)).c_str(), 1);
    Customers customers(host_);
    ASSERT_EQ(
        customers.Call("Selecionar",
                       {Long(2), Integer(0), Long(0), "repetido", "", Double(0), "", "", "", Double(0), ""}),
        Value(Integer(0)));
    const RecordSetRef found = ResultOf(customers);
    soci::session& session = SharedDatabase(host_.DataSource())->Session();
    session << "update cliente set nome = 'Outro' where codigo = 1000 or codigo = 1190";
    session << "delete from canal_de_comunicacao where codigo_do_cliente = 1191";
    session << "delete from cliente where codigo = 1191";
    EXPECT_EQ(found->RecordCount(), 250);
    EXPECT_EQ(found->Field("NomeOuRazaoSocial"), Value("Nome 1000"));
    std::vector<int> codes;
    for (; !found->Eof(); found->MoveNext())
        codes.push_back(found->Field("CodigoDoCliente").ToLong());
    ASSERT_EQ(codes.size(), 250U);
    for (std::size_t row = 0; row < codes.size(); ++row)
        EXPECT_EQ(codes[row], 1000 + static_cast<int>(row));
    found->MoveFirst();
    for (int row = 0; row < 190; ++row)
        found->MoveNext();
    EXPECT_EQ(found->Field("NomeOuRazaoSocial"), Value("Outro"));
    found->MoveNext();
    EXPECT_EQ(found->Field("Situacao"), Value(Long(4))) << "gone, so that every screen refuses it";
    EXPECT_EQ(found->Field("NomeOuRazaoSocial"), Value(""));
}

TEST_F(CustomerSearch, TellsATechnicalFailure)
{
    Customers customers(host_);
    soci::session& session = SharedDatabase(host_.DataSource())->Session();
    const auto search = [&] {
        return customers.Call(
            "Selecionar", {Long(2), Integer(0), Long(0), "beto", "", Double(0), "", "", "", Double(0), ""});
    };
    ASSERT_EQ(search(), Value(Integer(0)));
    const RecordSetRef former = ResultOf(customers);
    session << "alter table cliente rename to escondido";
    EXPECT_EQ(search(), Value(Integer(1)));
    EXPECT_EQ(customers.Get("LocalDoErro"), Value("KOVA_N_ClientAnim.clsClientes, Selecionar"));
    EXPECT_EQ(ResultOf(customers), former);
    session << "alter table escondido rename to cliente";
    EXPECT_EQ(search(), Value(Integer(0)));
}

TEST_F(CustomerSearch, GivesTheAddressOfACodeInItsParts)
{
    CustomerRow row;
    row.codigo = 40;
    row.tipoDePessoa = "PF";
    row.apelido = "Lu";
    row.nome = "Lúcia Góes";
    row.documento = "11111111111";
    row.situacao = 2;
    row.logradouro = "Rua \"B\"";
    row.numero = "7-A";
    row.complemento = "Fundos";
    row.bairro = "Céu Azul";
    row.cidade = "Vale Sereno";
    row.uf = "MG";
    row.cep = "00456789";
    WriteCustomer(*SharedDatabase(host_.DataSource()), row, {});
    Customers customers(host_);
    ASSERT_EQ(customers.Call("SelecionarEndereco", {Double(40)}), Value(Integer(0)));
    const RecordSetRef found = ResultOf(customers);
    ASSERT_EQ(found->RecordCount(), 1);
    EXPECT_EQ(found->FieldCount(), 11);
    EXPECT_EQ(found->Field("CodigoDoCliente"), Value(40.0));
    EXPECT_EQ(found->Field("Situacao"), Value(Long(2)));
    const std::pair<const char*, const char*> texts[] = {{"ApelidoOuNomeFantasia", "Lu"},
                                                         {"NomeOuRazaoSocial", "Lúcia Góes"},
                                                         {"Logradouro", "Rua \"B\""},
                                                         {"Numero", "7-A"},
                                                         {"Complemento", "Fundos"},
                                                         {"Bairro", "Céu Azul"},
                                                         {"Cidade", "Vale Sereno"},
                                                         {"UF", "MG"},
                                                         {"CEP", "00456789"}};
    for (const auto& [field, text] : texts)
        EXPECT_EQ(found->Field(field), Value(text)) << field;
}

TEST_F(CustomerSearch, HasNoAddressOfACodeThatNobodyHas)
{
    Customers customers(host_);
    for (const Double code : {41.0, 0.0, -1.0, 10.5}) {
        ASSERT_EQ(customers.Call("SelecionarEndereco", {code}), Value(Integer(0)));
        EXPECT_EQ(ResultOf(customers)->RecordCount(), 0) << code;
    }
}

TEST_F(CustomerSearch, NeedsItsElevenArgumentsAndAnObjectAsUser)
{
    Customers customers(host_);
    EXPECT_THROW(customers.Call("Selecionar", {Long(2), Integer(0), Long(0), ""}), Failure);
    EXPECT_THROW(customers.Set("DadosDoUsuario", "Lia"), Failure);
    EXPECT_NO_THROW(customers.Set("DadosDoUsuario", ObjectRef()));
}

} // namespace kova::family::test
