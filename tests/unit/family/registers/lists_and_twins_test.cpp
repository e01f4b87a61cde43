// What the lists of customers and animals find, against a twin that reads every row and looks at each of its
// texts by itself, while a shop changes at random.

#include "tests/unit/family/registers/register_fixture.hpp"

#include "agenda/contracts/text.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/data/sources/data_source.hpp"

#include <algorithm>
#include <functional>
#include <random>

namespace kova::family::test {

using namespace registers;

namespace {

/// A row of a list with every text that it is looked for by.
struct KnownRow {
    std::string order;
    Key key = 0;
    bool isHidden = false;
    std::vector<std::string> texts;
};

bool IsNumber(const std::string& text)
{
    return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

std::string Without(std::string text, std::string_view letters)
{
    std::erase_if(text, [&](char letter) { return letters.find(letter) != std::string_view::npos; });
    return text;
}

/// The numbers of "Celular: (11) 91234-5678; E-mail: ze@example.com", one for each that is no e-mail.
std::vector<std::string> PhonesOf(const std::string& channels)
{
    std::vector<std::string> numbers;
    std::size_t begin = 0;
    while (begin < channels.size()) {
        const std::size_t end = std::min(channels.find(';', begin), channels.size());
        const std::string one = channels.substr(begin, end - begin);
        if (one.find('@') == std::string::npos)
            numbers.push_back(Without(one.substr(one.find(':') + 1), " ()-+"));
        begin = end + 1;
    }
    return numbers;
}

std::vector<Key> FoundAmong(std::vector<KnownRow> rows, const std::string& typed, Listed listed)
{
    const std::string folded = Trim(FoldText(typed));
    std::vector<std::string> parts = {folded};
    if (folded.find_first_of("0123456789") != std::string::npos)
        parts.push_back(Without(folded, " ()+.-/"));
    std::ranges::sort(rows, [](const KnownRow& a, const KnownRow& b) {
        return std::tie(a.order, a.key) < std::tie(b.order, b.key);
    });
    std::vector<Key> found;
    for (const KnownRow& row : rows) {
        bool isFound = IsNumber(folded) && folded.size() < 18 && std::stoll(folded) == row.key;
        for (const std::string& part : parts) {
            for (const std::string& text : row.texts)
                isFound = isFound || text.find(part) != std::string::npos;
        }
        if (isFound && !(listed == Listed::Active && row.isHidden))
            found.push_back(row.key);
    }
    return found;
}

} // namespace

class ListsAndTwins : public RegisterTest {
protected:
    using Words = std::vector<const char*>;

    std::size_t Below(std::size_t bound) { return random_() % bound; }
    const char* OneOf(const Words& words) { return words[Below(words.size())]; }

    std::string Name()
    {
        static const Words first = {"José", "Ângela", "Luíza", "ANA", "Zé", "D’Ávila", "Íris", "Núñez", "11"};
        static const Words last = {"da Conceição", "Peçanha", "Luz", "Brandão 2ª", "Azul Ltda."};
        return std::string(OneOf(first)) + " " + OneOf(last);
    }
    std::string Digits(int count)
    {
        std::string digits;
        while (count-- > 0)
            digits += static_cast<char>('0' + Below(10));
        return digits;
    }
    std::string Channels()
    {
        std::string channels = "Celular: (11) 9" + Digits(4) + "-" + Digits(4);
        if (Below(2) == 0)
            channels += "; Telefone: (21) 3" + Digits(3) + "-" + Digits(4);
        if (Below(2) == 0)
            channels += "; E-mail: Ze" + Digits(1) + "@exemplo.com.br";
        return channels;
    }
    std::string AnimalName()
    {
        static const Words names = {"Paçoca", "Leão", "Rex 2", "Mel", "Zezé", "ana", "11-1"};
        return OneOf(names);
    }

    std::vector<Key> KeysOf(const std::string& table)
    {
        std::vector<Key> keys;
        Key key = 0;
        soci::statement statement =
            (Session().prepare << "select codigo from " + table + " order by codigo", soci::into(key));
        statement.execute();
        while (statement.fetch())
            keys.push_back(key);
        return keys;
    }
    Key AnyOf(const char* table)
    {
        const std::vector<Key> keys = KeysOf(table);
        return keys[Below(keys.size())];
    }

    static bool IsLeftOut(const std::string& situation)
    {
        return situation == "Inativo" || situation == "Excluído";
    }

    /// The text of each field of a stored row, by its label.
    std::function<std::string(const char*)> FieldsOf(const Register& of, Key key)
    {
        return [&of, texts = of.Read(Data(), key).value()](const char* label) {
            return texts.at(FieldNamed(of.Fields(), label));
        };
    }

    std::vector<KnownRow> KnownCustomers()
    {
        std::vector<KnownRow> rows;
        for (const Key key : KeysOf("cliente")) {
            const auto field = FieldsOf(CustomerRegister(), key);
            const std::string name = FoldText(field("Nome"));
            rows.push_back({name,
                            key,
                            IsLeftOut(field("Situação")),
                            {name, FoldText(field("Apelido")), FoldText(Without(field("Documento"), "./-")),
                             FoldText(field("Canais"))}});
            for (std::string& number : PhonesOf(field("Canais")))
                rows.back().texts.push_back(std::move(number));
        }
        for (const Key animal : KeysOf("animal")) {
            const auto field = FieldsOf(AnimalRegister(), animal);
            const Key owner = std::stoll(field("Código do cliente"));
            std::ranges::find(rows, owner, &KnownRow::key)->texts.push_back(FoldText(field("Nome")));
        }
        return rows;
    }

    std::vector<KnownRow> KnownAnimals()
    {
        std::vector<KnownRow> rows;
        for (const Key key : KeysOf("animal")) {
            const auto field = FieldsOf(AnimalRegister(), key);
            const auto owner = FieldsOf(CustomerRegister(), std::stoll(field("Código do cliente")));
            const std::string name = FoldText(field("Nome"));
            rows.push_back(
                {name,
                 key,
                 IsLeftOut(field("Situação")),
                 {name, FoldText(field("Microchip")), FoldText(owner("Nome")), FoldText(owner("Apelido"))}});
        }
        return rows;
    }

    /// A part of one of the texts, as somebody might type it, or a whole one.
    std::string SomethingOf(const std::vector<KnownRow>& rows)
    {
        const std::vector<std::string>& texts = rows[Below(rows.size())].texts;
        const std::string& text = texts[Below(texts.size())];
        if (text.empty() || Below(8) == 0)
            return Below(2) == 0 ? text : Name();
        std::string part = text.substr(Below(text.size()), 1 + Below(6));
        if (Below(4) == 0)
            std::ranges::transform(part, part.begin(), [](unsigned char letter) {
                return letter < 128 ? static_cast<char>(std::toupper(letter)) : static_cast<char>(letter);
            });
        return Below(6) == 0 ? " " + part + " " : part;
    }

    void ExpectAsTheTwinFinds(const Register& of, const std::vector<KnownRow>& rows, const std::string& typed)
    {
        for (const Listed listed : {Listed::All, Listed::Active})
            EXPECT_EQ(of.Find(Data(), typed, listed), FoundAmong(rows, typed, listed))
                << of.Name().name << ": \"" << typed << '"';
    }

    void ExpectAsTheTwinsFind(int searches)
    {
        const std::vector<KnownRow> customers = KnownCustomers(), animals = KnownAnimals();
        for (const char* typed : {"", "a", "z", "1", "@", "11", "(11) 9", "10"}) {
            ExpectAsTheTwinFinds(CustomerRegister(), customers, typed);
            ExpectAsTheTwinFinds(AnimalRegister(), animals, typed);
        }
        while (searches-- > 0) {
            const std::string typed = SomethingOf(Below(3) == 0 ? animals : customers);
            ExpectAsTheTwinFinds(CustomerRegister(), customers, typed);
            ExpectAsTheTwinFinds(AnimalRegister(), animals, typed);
        }
    }

    void AddCustomer()
    {
        const std::string name = Name(), nickname = Below(2) == 0 ? Name() : "", channels = Channels();
        Add(CustomerRegister(),
            {{"Nome", name.c_str()}, {"Apelido", nickname.c_str()}, {"Canais", channels.c_str()}});
    }
    void AddAnimal()
    {
        const std::string owner = std::to_string(AnyOf("cliente")), name = AnimalName();
        Add(AnimalRegister(),
            {{"Código do cliente", owner.c_str()},
             {"Nome", name.c_str()},
             {"Sexo", "M"},
             {"Espécie", "Canina"},
             {"Porte", "Médio"}});
    }
    void ChangeCustomer()
    {
        static const Words situations = {"Ativo", "Inativo", "Bloqueado", "Excluído"};
        const std::string name = Name(), channels = Channels();
        const Typed changes[] = {{{"Nome", name.c_str()}},
                                 {{"Apelido", name.c_str()}},
                                 {{"Canais", channels.c_str()}},
                                 {{"Situação", OneOf(situations)}}};
        Change(CustomerRegister(), AnyOf("cliente"), changes[Below(4)]);
    }
    void ChangeAnimal()
    {
        const std::string owner = std::to_string(AnyOf("cliente")), name = AnimalName();
        const Typed changes[] = {{{"Nome", name.c_str()}},
                                 {{"Código do cliente", owner.c_str()}},
                                 {{"Situação", "Inativo"}},
                                 {{"Microchip", "999000000000777"}}};
        Change(AnimalRegister(), AnyOf("animal"), changes[Below(4)]);
    }
    void Remove()
    {
        if (Below(2) == 0)
            AnimalRegister().Remove(Data(), AnyOf("animal"), lia_);
        else
            CustomerRegister().Remove(Data(), AnyOf("cliente"), lia_);
    }
    void ChangeAtAnotherDesk()
    {
        const auto other = OpenDatabase(host_.DataSource());
        const Key key = AnyOf("cliente");
        const std::string name = Name();
        const registers::Texts before = CustomerRegister().Read(*other, key).value();
        CustomerRegister().Save(*other, key, before,
                                Over(CustomerRegister(), before, {{"Nome", name.c_str()}}), marcos_);
    }
    void ChangeAnything()
    {
        switch (Below(8)) {
        case 0: return AddCustomer();
        case 1: return AddAnimal();
        case 2:
        case 3: return ChangeCustomer();
        case 4:
        case 5: return ChangeAnimal();
        case 6: return Remove();
        default: return ChangeAtAnotherDesk();
        }
    }

private:
    std::mt19937 random_{20261120};
};

TEST_F(ListsAndTwins, FindTheSameInAShopThatChanges)
{
    ExpectAsTheTwinsFind(5);
    for (int number = 0; number < 15; ++number) {
        AddCustomer();
        AddAnimal();
    }
    ExpectAsTheTwinsFind(60);
    for (int round = 0; round < 25; ++round) {
        for (std::size_t changes = 1 + Below(3); changes > 0; --changes)
            ChangeAnything();
        ExpectAsTheTwinsFind(12);
    }
}

} // namespace kova::family::test
