#include "family/demo/customers.hpp"

#include "family/data/checks/documents.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/data/rows/insert_row.hpp"
#include "family/data/stores/customer_store.hpp"
#include "family/demo/words.hpp"

#include <algorithm>

namespace kova::family {

namespace {

/// The beginning with that many digits after it.
std::string Digits(Random& random, int count, std::string beginning = {})
{
    while (count-- > 0)
        beginning += static_cast<char>('0' + random.Below(10));
    return beginning;
}

/// In the form of a mobile number, and nobody's: what begins with 901 to 909 is dialled before a number that
/// is to pay for the call.
std::string NobodysNumber(int area, Random& random)
{
    const std::string beginning = "(" + std::to_string(area) + ") 90" + std::to_string(random.Between(1, 9));
    return Digits(random, 4, Digits(random, 2, beginning) + "-");
}

std::string Picked(Random& random, words::List list) { return std::string(random.Pick(list)); }

/// Codes of customers and their appearance follow from one seed, however many there are.
class CustomerWriter {
public:
    CustomerWriter(Database& database, const ShopRegisters& registers, Random& random)
        : database_(database), registers_(registers), random_(random)
    {
    }

    ShopCustomer Write(Key code)
    {
        CustomerRow customer = MakePersonOrCompany(code);
        customer.situacao = Situation(code);
        customer.vip = random_.Chance(8) ? 1 : 0;
        customer.categoriaDaCurvaABC.assign(1, random_.Chance(20) ? 'A' : random_.Chance(40) ? 'B' : 'C');
        GiveAddress(customer);
        const std::vector<ChannelRow> channels = MakeChannels(customer);
        WriteCustomer(database_, customer, channels);
        return WriteAnimals(customer);
    }

private:
    int Situation(Key code)
    {
        const int draw = random_.Below(100);
        return CanAlwaysBook(code) || draw < 94 ? 1 : draw < 97 ? 2 : draw < 99 ? 3 : 4;
    }

    int CountOfAnimals(Key code)
    {
        const int draw = random_.Below(100);
        if (draw < 4)
            return CanAlwaysBook(code) ? 1 : 0;
        return draw < 68 ? 1 : draw < 93 ? 2 : 3;
    }

    /// However few customers there are, one can book.
    static bool CanAlwaysBook(Key code) { return code == 1; }

    CustomerRow MakePersonOrCompany(Key code)
    {
        CustomerRow customer;
        customer.codigo = code;
        if (random_.Chance(5)) {
            customer.tipoDePessoa = "PJ";
            customer.apelido = Picked(random_, words::CompanyKinds());
            customer.apelido.append(" ").append(random_.Pick(words::CompanyNames()));
            customer.nome = customer.apelido + " Ltda.";
            customer.documento = WithCnpjCheckDigits(Digits(random_, 8) + "0001");
        } else {
            customer.tipoDePessoa = "PF";
            customer.nome = PersonName(random_);
            customer.apelido = customer.nome.substr(0, customer.nome.find(' '));
            customer.documento = WithCpfCheckDigits(Digits(random_, 9));
        }
        return customer;
    }

    /// The towns are made up; behind the last one of the state there are postal codes left.
    void GiveAddress(CustomerRow& customer)
    {
        customer.logradouro = Picked(random_, words::Streets());
        customer.numero = std::to_string(random_.Between(1, 2400));
        if (random_.Chance(25))
            customer.complemento = "Apto. " + std::to_string(random_.Between(11, 184));
        customer.bairro = Picked(random_, words::Districts());
        customer.cidade = Picked(random_, words::Cities());
        customer.uf = "SP";
        customer.cep = Digits(random_, 6).replace(0, 3, "19999");
    }

    std::vector<ChannelRow> MakeChannels(const CustomerRow& customer)
    {
        std::vector<ChannelRow> channels;
        const auto add = [&](const char* kind, std::string channel) {
            channels.push_back({++lastChannel_, customer.codigo, kind, std::move(channel)});
        };
        add("Celular", MobileNumber(random_));
        if (random_.Chance(30))
            add("Telefone", NobodysNumber(11, random_));
        if (random_.Chance(60)) {
            std::string user = FoldText(customer.apelido);
            std::replace(user.begin(), user.end(), ' ', '.');
            add("E-mail", user + std::to_string(customer.codigo) + "@example.com");
        }
        return channels;
    }

    ShopCustomer WriteAnimals(const CustomerRow& customer)
    {
        ShopCustomer known{customer.codigo, customer.situacao, lastAnimal_ + 1, 0};
        for (int left = CountOfAnimals(customer.codigo); left > 0; --left)
            Insert(database_, MakeAnimal(customer.codigo, 1));
        known.lastAnimal = lastAnimal_;
        if (known.HasAnimals() && random_.Chance(6))
            Insert(database_, MakeAnimal(customer.codigo, 2));
        return known;
    }

    AnimalRow MakeAnimal(Key customer, int situation)
    {
        AnimalRow animal;
        animal.codigo = ++lastAnimal_;
        animal.codigoDoCliente = customer;
        const bool female = random_.Chance(50);
        animal.sexo.assign(1, female ? 'F' : 'M');
        animal.nome = Picked(random_, female ? words::FemaleAnimals() : words::MaleAnimals());
        animal.nomeDeBusca = FoldText(animal.nome);
        animal.codigoDaRaca = random_.Pick(std::span<const BreedRow>(registers_.breeds)).codigo;
        animal.porte = random_.Between(1, 4);
        animal.cor = Picked(random_, words::Colours());
        if (random_.Chance(40))
            animal.microchip = Digits(random_, 12, "999");
        if (random_.Chance(25))
            animal.observacao = Picked(random_, words::AnimalRemarks());
        animal.situacao = situation;
        return animal;
    }

    Database& database_;
    const ShopRegisters& registers_;
    Random& random_;
    Key lastChannel_ = 0;
    Key lastAnimal_ = 0;
};

} // namespace

std::string PersonName(Random& random)
{
    std::string name = Picked(random, random.Chance(55) ? words::WomensNames() : words::MensNames());
    for (int surname = 0; surname < 2; ++surname)
        name.append(" ").append(random.Pick(words::Surnames()));
    return name;
}

std::string MobileNumber(Random& random)
{
    const int area = random.Between(11, 19);
    return NobodysNumber(area, random);
}

std::vector<ShopCustomer> WriteCustomers(Database& database, const ShopRegisters& registers, int count,
                                         Random& random)
{
    CustomerWriter writer(database, registers, random);
    std::vector<ShopCustomer> customers;
    for (Key code = 1; code <= count; ++code)
        customers.push_back(writer.Write(code));
    return customers;
}

} // namespace kova::family
