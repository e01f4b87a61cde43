#include "registers/merge_text.hpp"

#include "family/registers/registers.hpp"

#include <QStringList>

namespace kova::registers {

namespace {

using family::registers::ChangedField;
using family::registers::CustomerMerge;

QString Counted(long long count, const char* one, const char* many)
{
    return QStringLiteral("%L1 ").arg(count) + QString::fromUtf8(count == 1 ? one : many);
}

QString Appointments(long long count) { return Counted(count, "agendamento", "agendamentos"); }
QString Animals(long long count) { return Counted(count, "animal", "animais"); }

QString Field(const family::registers::Texts& texts, std::string_view label)
{
    return QString::fromStdString(texts[FieldNamed(family::registers::CustomerRegister().Fields(), label)]);
}

QString Named(const family::registers::Texts& texts)
{
    return Field(texts, "Nome") + QStringLiteral(" (código ") + Field(texts, "Código") + QLatin1Char(')');
}

QString Label(const ChangedField& field)
{
    const std::string_view label = family::registers::CustomerRegister().Fields()[field.field].label;
    return QString::fromUtf8(label.data(), static_cast<qsizetype>(label.size()));
}

QString Quoted(const std::string& text)
{
    return text.empty() ? QStringLiteral("(vazio)")
                        : QLatin1Char('"') + QString::fromStdString(text) + QLatin1Char('"');
}

QString Filled(const CustomerMerge& merge)
{
    QStringList parts;
    for (const ChangedField& field : merge.filled)
        parts += Label(field) + QLatin1Char(' ') + Quoted(field.after);
    return parts.isEmpty()
        ? QStringLiteral("Nenhum campo muda.")
        : QStringLiteral("São preenchidos: ") + parts.join(QStringLiteral(", ")) + QLatin1Char('.');
}

QString Lost(const CustomerMerge& merge)
{
    QStringList parts;
    for (const ChangedField& field : merge.lost)
        parts += Label(field) + QLatin1Char(' ') + Quoted(field.before) + QStringLiteral(" e não ")
            + Quoted(field.after);
    return parts.isEmpty()
        ? QString()
        : QStringLiteral("\nFicam como estão: ") + parts.join(QStringLiteral(", ")) + QLatin1Char('.');
}

} // namespace

QString TextOf(const CustomerMerge& merge)
{
    return QStringLiteral("Fica ") + Named(merge.shown) + QStringLiteral("; deixa de existir ")
        + Named(merge.shownOfOther) + QStringLiteral(".\nPassam para quem fica: ")
        + Appointments(merge.appointments) + QStringLiteral(", ") + Animals(merge.animals)
        + QStringLiteral(", ") + Counted(merge.packages, "pacote", "pacotes") + QStringLiteral(".\n")
        + Filled(merge) + Lost(merge);
}

QString TextOf(const family::registers::MergeAnswer& answer)
{
    return QStringLiteral("Unidos: ") + Appointments(answer.appointments) + QStringLiteral(" e ")
        + Animals(answer.animals) + QStringLiteral(" passaram para este cadastro.");
}

} // namespace kova::registers
