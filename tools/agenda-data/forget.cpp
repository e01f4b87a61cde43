#include "family/data/engine/iso_text.hpp"
#include "family/privacy/anonymise_words.hpp"
#include "tools/agenda-data/author.hpp"
#include "tools/agenda-data/commands.hpp"
#include "tools/agenda-data/customer_option.hpp"
#include "tools/agenda-data/shown_work.hpp"
#include "tools/agenda-data/told_migration.hpp"

namespace kova::data {

namespace {

using family::privacy::AnonymiseAnswer;
using family::privacy::AnonymiseRequest;

constexpr const char* SameName = "--same-name";

std::optional<bool> DecisionOf(const Call& call)
{
    const std::optional<std::string> word = call.Option(SameName);
    if (!word)
        return std::nullopt;
    if (*word != "sim" && *word != "nao")
        call.Refuse("O valor \"" + *word + "\" de " + SameName + " não é conhecido: use sim ou nao.");
    return *word == "sim";
}

int TellRefusal(const AnonymiseAnswer& answer, std::ostream& error)
{
    error << answer.text << "\n";
    if (!answer.undecided.empty())
        error << "Use " << SameName << " sim ou " << SameName << " nao.\n";
    error << "Nada foi mudado.\n";
    return 1;
}

int Run(const Call& call, Surroundings& surroundings)
{
    const std::string& source = call.Operand(0);
    const AnonymiseRequest request{CustomerOf(call), DecisionOf(call), call.Option("--archive")};
    const family::LongWork work = ShownWork(surroundings.error, "Auditoria");
    const bool isConfirmed = call.Has("--confirm");
    if (isConfirmed)
        BringFileUpToDate(source, surroundings.error);
    const AnonymiseAnswer answer = isConfirmed
        ? Anonymise(source, request, AuthorOf(call, surroundings), work)
        : PlanToAnonymise(source, request, family::IsoMoment(surroundings.now), work);
    if (!answer.IsDone())
        return TellRefusal(answer, surroundings.error);
    if (!isConfirmed) {
        surroundings.error << "O cliente " << request.code << " ficaria anônimo: " << CountsInWords(answer)
                           << ". Isso não pode ser desfeito. Confirme com --confirm.\nNada foi mudado.\n";
        return 1;
    }
    surroundings.output << DoneInWords(source, request.code, answer);
    return 0;
}

} // namespace

const Command ForgetCommand{
    {"forget",
     "Torna um cliente anônimo em todas as tabelas, na auditoria e no arquivo dela também:\n"
     "nome, documento, endereço, contatos, observações e nomes dos animais saem; datas,\n"
     "serviços e valores ficam. Sem --confirm só diz o que seria feito.",
     {"BANCO"},
     {CustomerOption,
      {"--confirm", {}, "Faz o que diz; não pode ser desfeito."},
      {"--archive", "ARQUIVO",
       "O arquivo da auditoria, que também é limpo (padrão: onde foi gravado, ou ao lado do banco)."},
      {"--same-name", "sim|nao",
       "Se agendamentos sem cadastro que têm só o mesmo nome também são deste cliente."},
      {"--user", "NOME", "Quem faz (padrão: o usuário do computador)."}}},
    Run,
};

} // namespace kova::data
