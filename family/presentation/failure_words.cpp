#include "family/presentation/failure_words.hpp"

#include "agenda/contracts/failure.hpp"
#include "agenda/contracts/failure_detail.hpp"
#include "agenda/contracts/text.hpp"

#include <algorithm>
#include <string>
#include <string_view>

namespace kova::family {

namespace {

struct KnownFailure {
    FailureNumber number;
    std::string_view what;
    std::string_view act;
    /// Whether a text that comes with the number is for those who look after the system.
    bool isTechnical = false;
};

constexpr std::string_view Again = "Tente novamente.";
constexpr std::string_view CheckInput = "Confira o que foi informado e tente novamente.";
constexpr std::string_view CheckRegister =
    "Confira se o agendamento e os cadastros dele estão completos e tente novamente.";
constexpr std::string_view Reload = "Atualize a lista (F5) e tente novamente.";
constexpr std::string_view Reopen = "Feche o programa e abra-o novamente.";

constexpr KnownFailure Known[] = {
    {FailureNumber::InvalidArgument, "O programa não soube continuar com os dados que recebeu.", CheckInput},
    {FailureNumber::Overflow, "Um número é maior do que o programa aceita.", CheckInput},
    {FailureNumber::OutOfMemory, "A memória do computador acabou.",
     "Feche outros programas e tente novamente."},
    {FailureNumber::IndexOutOfRange, "O programa procurou um item que não existe.", Reload},
    {FailureNumber::DivisionByZero, "Uma conta não pôde ser feita porque um valor é zero.", CheckInput},
    {FailureNumber::TypeMismatch,
     "Uma informação não tem a forma esperada, como letras no lugar de um número.", CheckInput},
    {FailureNumber::NoObject, "Falta uma informação de que o programa precisa.", Again},
    {FailureNumber::UseOfNull, "Uma informação de que o programa precisa está em branco.", CheckRegister},
    {FailureNumber::BadPropertyValue, "Um campo recebeu um valor que não aceita.", CheckInput},
    {FailureNumber::BadListRow, "O programa procurou um item que a lista não tem.", Reload},
    {FailureNumber::ClassCannotBeCreated, "Uma parte do programa não pôde ser usada.", Reopen, true},
    {FailureNumber::NoSuchMember, "Duas partes do programa não combinam entre si.", Reopen, true},
    {FailureNumber::WrongArgumentCount, "Duas partes do programa não combinam entre si.", Reopen, true},
    {FailureNumber::BadRecordSetValue, "A página procurada não existe mais.", Reload},
    {FailureNumber::NoCurrentRow, "O registro procurado não existe mais.", Reload},
    {FailureNumber::NoSuchField, "Falta uma informação nos dados recebidos.", Again},
    {FailureNumber::RecordSetClosed, "Os dados não puderam ser lidos.", Reload},
    {FailureNumber::RecordSetOpen, "Os dados não puderam ser lidos.", Reload},
    {FailureNumber::RecordSetWithoutFields, "Os dados não puderam ser lidos.", Reload},
    {FailureNumber::BadGridRow, "A linha procurada não está mais na tela.", Reload},
    {FailureNumber::BadGridColumn, "A coluna procurada não está na tela.", Reload},
    {FailureNumber::LastFreeGridRow, "A última linha da tela não pode ser retirada.", Reload},
    {FailureNumber::BadFieldValue, "Uma informação está em branco ou não cabe no lugar dela.", CheckRegister},
};

constexpr std::string_view Look = "Confira se o que você estava fazendo foi concluído, antes de repetir.";
constexpr std::string_view Help =
    " Se a falha se repetir, use \"Copiar\" e envie o texto a quem cuida do sistema.";
constexpr std::string_view Unexpected = "O programa encontrou uma situação que não esperava.";

const KnownFailure* Find(const Text& number)
{
    const auto* const found = std::ranges::find_if(Known, [&](const KnownFailure& known) {
        return std::to_string(static_cast<std::int32_t>(known.number)) == number;
    });
    return found == std::end(Known) ? nullptr : found;
}

/// Whether the report says no more than its number does.
bool SaysNothingElse(const KnownFailure& known, const Text& description)
{
    return known.isTechnical || description.empty() || description == Failure(known.number).Description();
}

} // namespace

Text OwnDescription(const ErrorReport& report) { return Trim(WithoutDetail(report.description)); }

FailureWords WordsFor(const ErrorReport& report)
{
    const Text description = OwnDescription(report);
    const KnownFailure* known = Find(Trim(report.number));
    FailureWords words{description, Text(Look), Text(known ? known->act : Again).append(Help)};
    if (known && SaysNothingElse(*known, description))
        words.what = known->what;
    else if (description.empty())
        words.what = Unexpected;
    return words;
}

} // namespace kova::family
