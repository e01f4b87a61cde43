#include "agenda/contracts/failure.hpp"

#include <utility>

namespace kova {

namespace {

const char* TextOf(FailureNumber number)
{
    switch (number) {
    case FailureNumber::InvalidArgument: return "Argumento ou chamada de procedimento inválida";
    case FailureNumber::Overflow: return "Estouro";
    case FailureNumber::OutOfMemory: return "Memória insuficiente";
    case FailureNumber::IndexOutOfRange: return "Índice fora do intervalo";
    case FailureNumber::DivisionByZero: return "Divisão por zero";
    case FailureNumber::TypeMismatch: return "Tipos incompatíveis";
    case FailureNumber::NoObject: return "A variável do objeto não foi definida";
    case FailureNumber::UseOfNull: return "Uso inválido de Null";
    case FailureNumber::BadPropertyValue: return "Valor de propriedade inválido";
    case FailureNumber::BadListRow: return "Índice inválido na matriz da propriedade";
    case FailureNumber::ClassCannotBeCreated: return "O componente não pode criar o objeto";
    case FailureNumber::NoSuchMember: return "O objeto não aceita esta propriedade ou método";
    case FailureNumber::WrongArgumentCount: return "Número de argumentos incorreto";
    case FailureNumber::BadRecordSetValue:
        return "Valor inválido para a propriedade do conjunto de registros";
    case FailureNumber::NoCurrentRow: return "Não há registro atual";
    case FailureNumber::NoSuchField: return "O campo não existe no conjunto de registros";
    case FailureNumber::RecordSetClosed: return "O conjunto de registros está fechado";
    case FailureNumber::RecordSetOpen: return "O conjunto de registros já está aberto";
    case FailureNumber::RecordSetWithoutFields: return "O conjunto de registros não tem campos";
    case FailureNumber::BadGridRow: return "Linha inválida";
    case FailureNumber::BadGridColumn: return "Coluna inválida";
    case FailureNumber::LastFreeGridRow: return "Não é possível remover a última linha não fixa";
    case FailureNumber::BadFieldValue: return "O valor não pode ser guardado no campo";
    }
    return "Falha em tempo de execução";
}

} // namespace

Failure::Failure(FailureNumber number) : Failure(number, TextOf(number)) { }

Failure::Failure(FailureNumber number, std::string description)
    : Failure(static_cast<std::int32_t>(number), std::move(description))
{
}

Failure::Failure(std::int32_t number, std::string description)
    : number_(number), description_(std::move(description))
{
}

} // namespace kova
