#pragma once

#include "family/data/rows/kept_rows.hpp"
#include "family/data/rows/rows.hpp"

#include <span>
#include <vector>

namespace kova::family {

/// An animal with its owner, as the lookups and the customers' picker show them.
template <class Text> struct FoundAnimalOf {
    Key codigo = 0;
    Text nome, sexo;
    /// 1 active, 2 inactive or deceased.
    int situacao = 0;
    Key codigoDaEspecie = 0;
    Text nomeDaEspecie;
    Key codigoDaRaca = 0;
    Text nomeDaRaca, cor;
    Key codigoDoCliente = 0;
    Text apelidoDoCliente, nomeDoCliente;
    int situacaoDoCliente = 0;
    Text enderecoCompleto, tiposECanais;
    int vip = 0;
    Text categoriaDaCurvaABC;

    auto Members()
    {
        return std::tie(codigo, nome, sexo, situacao, codigoDaEspecie, nomeDaEspecie, codigoDaRaca,
                        nomeDaRaca, cor, codigoDoCliente, apelidoDoCliente, nomeDoCliente, situacaoDoCliente,
                        enderecoCompleto, tiposECanais, vip, categoriaDaCurvaABC);
    }
};

/// The animal of that code, active or not, where it is that customer's.
KeptRows<FoundAnimalOf> SelectAnimal(Database& database, Key code, Key customer);

/// Codes of the active animals with the text in their names, without regard to case and accents, or with
/// exactly that code or microchip; by name, then code. Of one customer, or of all where `customer` is 0.
/// Fails as Database::With.
std::vector<Key> SelectAnimals(Database& database, const std::string& text, Key customer);

/// Adds a row for each of the codes, in their order; MostRowsAtOnce codes and at least one. An animal that is
/// gone since it was found is added as inactive, of a deleted customer and without texts. Fails as
/// Database::With.
void FetchAnimals(Database& database, std::span<const Key> codes, KeptRows<FoundAnimalOf>& kept);

} // namespace kova::family
