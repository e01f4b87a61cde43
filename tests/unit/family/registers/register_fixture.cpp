#include "tests/unit/family/registers/register_fixture.hpp"

#include "family/data/sources/shared_database.hpp"

#include <algorithm>

namespace kova::family::test {

Database& RegisterTest::Data() { return *SharedDatabase(host_.DataSource()); }

registers::Texts RegisterTest::Over(const Register& of, registers::Texts texts, const Typed& typed)
{
    for (const auto& [label, text] : typed)
        texts.at(registers::FieldNamed(of.Fields(), label)) = text;
    return texts;
}

RegisterTest::SaveAnswer RegisterTest::Change(const Register& of, Key key, const Typed& typed)
{
    const registers::Texts before = of.Read(Data(), key).value();
    return of.Save(Data(), key, before, Over(of, before, typed), lia_);
}

RegisterTest::SaveAnswer RegisterTest::Add(const Register& of, const Typed& typed)
{
    return of.Save(Data(), 0, {}, Over(of, of.New(), typed), lia_);
}

std::string RegisterTest::Field(const Register& of, Key key, const char* label)
{
    return of.Read(Data(), key).value().at(registers::FieldNamed(of.Fields(), label));
}

std::string RegisterTest::Told(const Register& of, const SaveAnswer& answer)
{
    if (answer.outcome == SaveAnswer::Outcome::Gone)
        return "não existe";
    if (answer.IsDone())
        return "feito";
    std::string told;
    for (const registers::RefusedField& refused : answer.refused)
        told.append(told.empty() ? "" : " ")
            .append(of.Fields().at(refused.field).label)
            .append(": ")
            .append(refused.why);
    return told;
}

void RegisterTest::ExpectRefused(const Register& of, Key key, const Typed& typed, const std::string& told)
{
    const std::vector<std::string> before = AllRows();
    EXPECT_EQ(Told(of, key == 0 ? Add(of, typed) : Change(of, key, typed)), told);
    EXPECT_EQ(AllRows(), before) << told;
}

void RegisterTest::ExpectDone(const Register& of, Key key, const Typed& typed)
{
    EXPECT_EQ(Told(of, key == 0 ? Add(of, typed) : Change(of, key, typed)), "feito");
}

std::vector<std::string> RegisterTest::AllRows()
{
    std::vector<std::string> all;
    for (const char* table :
         {"cliente", "canal_de_comunicacao", "animal", "servico", "tipo_de_servico", "funcionario", "especie",
          "raca", "feriado", "empresa", "expediente", "horario_do_funcionario", "ausencia", "auditoria"}) {
        for (std::string& row : RowsOf(table, "1 = 1"))
            all.push_back(table + (" " + row));
    }
    std::ranges::sort(all);
    return all;
}

} // namespace kova::family::test
