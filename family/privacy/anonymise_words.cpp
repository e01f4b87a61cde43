#include "family/privacy/anonymise_words.hpp"

#include "family/data/engine/server_connection.hpp"

namespace kova::family::privacy {

namespace {

std::string Counted(long long count, const char* one, const char* many)
{
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

std::string WhereFormerValuesAre(const std::string& source, const AnonymiseAnswer& answer)
{
    if (IsServer(source))
        return "As cópias e os registros do servidor feitos antes ainda guardam os dados de antes.\n";
    std::string text = "Cópias feitas antes, e o que foi exportado, ainda guardam os dados de antes";
    text += answer.copies.empty() ? ".\n" : "; ao lado do banco estão:\n";
    for (const std::string& copy : answer.copies)
        text += "  " + copy + "\n";
    return text;
}

} // namespace

std::string CountsInWords(const AnonymiseAnswer& answer)
{
    return Counted(answer.channels, "canal de comunicação", "canais de comunicação") + ", "
        + Counted(answer.animals, "animal", "animais") + ", "
        + Counted(answer.appointments, "agendamento", "agendamentos") + ", "
        + (answer.waiting == 0
               ? std::string()
               : Counted(answer.waiting, "pedido da lista de espera", "pedidos da lista de espera") + ", ")
        + Counted(answer.auditLines, "linha da auditoria", "linhas da auditoria");
}

std::string DoneInWords(const std::string& source, Key code, const AnonymiseAnswer& answer)
{
    std::string text = "O cliente " + std::to_string(code) + " ficou anônimo: " + CountsInWords(answer)
        + ". Datas, serviços, funcionários e valores ficaram.\n";
    if (!answer.remains.empty())
        text += answer.remains + "\n";
    return text + WhereFormerValuesAre(source, answer);
}

} // namespace kova::family::privacy
