#include "family/business/clash_text.hpp"

#include "family/business/shown_values.hpp"
#include "family/data/engine/iso_text.hpp"

namespace kova::family {

namespace {

constexpr const char* LineEnd = "\r\n";

Text Quoted(const std::string& value) { return value.empty() ? "(vazio)" : "\"" + value + "\""; }

Text ListOf(const std::vector<std::string>& captions)
{
    Text list;
    for (const std::string& caption : captions)
        list.append(list.empty() ? "" : ", ").append(caption);
    return list;
}

} // namespace

const ClashWords OfAppointment{"Este agendamento foi alterado depois que você o abriu.",
                               "Atualize a lista (F5) para ver o agendamento como está agora."};
const ClashWords OfRegister{"Este cadastro foi alterado depois que você o abriu.",
                            "Abra o cadastro de novo para vê-lo como está agora."};

Text WriteOf(const Clash& clash)
{
    return clash.line
        ? PersonOf(*clash.line) + " gravou " + Quoted(clash.field.stored) + " em " + MomentOf(*clash.line)
        : "agora está " + Quoted(clash.field.stored);
}

Text ClashOf(const Clash& clash)
{
    return WriteOf(clash) + "; você informou " + Quoted(clash.field.typed) + ".";
}

Text ClashText(const std::vector<Clash>& clashes, const std::vector<FieldStates>& others,
               const ClashWords& words)
{
    Text text = Text(words.changed) + " Nada do que você mudou foi gravado." + LineEnd + LineEnd;
    for (const Clash& clash : clashes)
        text += clash.field.caption + ": " + ClashOf(clash) + LineEnd;
    if (!others.empty())
        text += Text(LineEnd) + "Você também informou:" + LineEnd;
    for (const FieldStates& field : others)
        text += field.caption + ": " + Quoted(field.typed) + LineEnd;
    return text + LineEnd + words.lookAgain + " Depois refaça as suas mudanças.";
}

Text DeletionClashText(const std::vector<OthersWrite>& writes)
{
    Text text = Text(OfAppointment.changed) + " Nada foi excluído." + LineEnd + LineEnd;
    for (const OthersWrite& write : writes) {
        if (!write.fields.empty())
            text +=
                PersonOf(write.line) + ", em " + MomentOf(write.line) + ": " + ListOf(write.fields) + LineEnd;
    }
    return text + LineEnd + OfAppointment.lookAgain;
}

Text StatusClashText(const AuditLine& line, int status)
{
    return PersonOf(line) + " mudou a situação para " + Quoted(ShownStatus(status)) + " em " + MomentOf(line)
        + ", depois que você abriu o agendamento. A situação continua assim.";
}

Text UnknownClashText()
{
    return Text(OfAppointment.changed) + " Nada foi gravado, e não há registro do que mudou." + LineEnd
        + LineEnd + OfAppointment.lookAgain;
}

Text PersonOf(const AuditLine& line)
{
    constexpr std::string_view Separator = " - ";
    const std::size_t at = line.user.find(Separator);
    const Text name = at == std::string::npos ? line.user : line.user.substr(at + Separator.size());
    return line.desk.empty() ? name : name + " (posto " + line.desk + ")";
}

Text MomentOf(const AuditLine& line)
{
    const Text shown = ShownMoment(line.moment);
    constexpr std::size_t Date = 10, Minutes = 16;
    return shown.size() < Minutes ? shown : shown.substr(0, Date) + " às " + shown.substr(Date + 1, 5);
}

} // namespace kova::family
