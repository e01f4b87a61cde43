#pragma once

#include "family/data/rows/kept_rows.hpp"

namespace kova::family {

/// One appointment with all that the lists show of it, as it is stored: dates "yyyy-mm-dd", flags 0 or
/// 1. A simplified appointment has no customer and no animal code. `Text` holds the texts.
template <class Text> struct DayRowOf {
    long long numeroDeLancamento = 0;
    Text dataInicial, horaInicial, dataFinal, horaFinal;
    Nullable<long long> codigoDoCliente;
    Text apelidoDoCliente, nomeDoCliente, tipoDeCliente, enderecoCompletoComCEP, tiposECanais;
    Nullable<long long> codigoDoAnimal;
    Text nomeDoAnimal, sexoDoAnimal;
    long long codigoDaEspecie = 0;
    Text nomeDaEspecie;
    long long codigoDaRaca = 0;
    Text nomeDaRaca;
    int porteDoAnimal = 0;
    Text corDoAnimal;
    Nullable<Text> observacaoDoAnimal;
    long long numeroDoTipoDeServico = 0;
    Text nomeDoTipoDeServico;
    long long codigoDoServico = 0;
    Text nomeDoServico;
    int duracaoEmMinutos = 0;
    long long codigoDoFuncionario = 0;
    Text apelidoDoFuncionario, nomeDoFuncionario;
    Nullable<Text> observacao;
    int transporteBuscar = 0, transporteLevar = 0, situacao = 0;
    Text incluidoEm, incluidoPor;
    Nullable<Text> alteradoEm, alteradoPor;
    long long versao = 0;

    /// Every member, in the order of the statement's columns.
    auto Members()
    {
        return std::tie(numeroDeLancamento, dataInicial, horaInicial, dataFinal, horaFinal, codigoDoCliente,
                        apelidoDoCliente, nomeDoCliente, tipoDeCliente, enderecoCompletoComCEP, tiposECanais,
                        codigoDoAnimal, nomeDoAnimal, sexoDoAnimal, codigoDaEspecie, nomeDaEspecie,
                        codigoDaRaca, nomeDaRaca, porteDoAnimal, corDoAnimal, observacaoDoAnimal,
                        numeroDoTipoDeServico, nomeDoTipoDeServico, codigoDoServico, nomeDoServico,
                        duracaoEmMinutos, codigoDoFuncionario, apelidoDoFuncionario, nomeDoFuncionario,
                        observacao, transporteBuscar, transporteLevar, situacao, incluidoEm, incluidoPor,
                        alteradoEm, alteradoPor, versao);
    }
};

using DayRow = DayRowOf<std::string_view>;

using DayRows = KeptRows<DayRowOf>;

/// All conditions apply together; 0 and an empty text are no condition.
struct DayFilter {
    /// "yyyy-mm-dd"
    std::string date;
    int status = 0;
    long long serviceType = 0;
    long long employee = 0;
    /// 1 fetched and taken, 2 fetched, 3 taken.
    int transport = 0;
    /// A part of the customer's nickname, name or address or of the animal's name, without regard to
    /// case and accents; or exactly a code, a document number or a microchip.
    std::string text;
};

/// The appointments that start on the day, by start, then number.
DayRows SelectDay(Database& database, const DayFilter& filter);

/// The statement without a text condition, for those who measure it. Its parameters are data,
/// situacao, tipo, funcionario and transporte.
std::string DayStatement();

} // namespace kova::family
