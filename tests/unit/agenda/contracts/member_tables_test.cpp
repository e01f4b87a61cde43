// Members found by their names in a component's tables.

#include "agenda/contracts/support/member_tables.hpp"

#include <gtest/gtest.h>

namespace kova {

namespace {

class Cofre : public ByTables<Cofre> {
public:
    static constexpr std::string_view ClassName = "KOVA_T_Cofre.clsCofre";

    static std::span<const Method<Cofre>> Methods()
    {
        static constexpr Method<Cofre> methods[] = {{"Somar", 1, 2, &Cofre::Somar}};
        return methods;
    }
    static std::span<const Property<Cofre>> Properties()
    {
        static constexpr Property<Cofre> properties[] = {
            {"Saldo", &Cofre::Saldo, &Cofre::Saldo},
            {"Moeda", &Cofre::Moeda},
            {"Senha", nullptr, &Cofre::Senha},
        };
        return properties;
    }

private:
    Value Saldo() const { return saldo_; }
    void Saldo(const Value& value) { saldo_ = value.ToLong(); }
    Value Moeda() const { return "real"; }
    void Senha(const Value&) { }
    Value Somar(std::span<Argument> arguments)
    {
        for (const Argument& argument : arguments)
            saldo_ += argument.Get().ToLong();
        return saldo_;
    }

    Long saldo_ = 0;
};

Failure FailureOf(const std::function<void()>& act)
{
    try {
        act();
    } catch (const Failure& failure) {
        return failure;
    }
    return {0, "nothing failed"};
}

TEST(MembersByTable, AreReadWrittenAndCalledByTheirNames)
{
    Cofre cofre;
    cofre.Set("Saldo", Long{5});
    EXPECT_EQ(cofre.Get("Saldo"), Value(Long{5}));
    EXPECT_EQ(cofre.Call("Somar", {Long{2}}), Value(Long{7}));
    EXPECT_EQ(cofre.Call("Somar", {Long{2}, Long{1}}), Value(Long{10}));
}

TEST(MembersByTable, TellTheClassWhereThereIsNoneOfThatName)
{
    Cofre cofre;
    const Failure failure = FailureOf([&] { cofre.Get("saldo"); });
    EXPECT_EQ(failure.Number(), 438);
    EXPECT_EQ(failure.Description(), "KOVA_T_Cofre.clsCofre não aceita a propriedade ou método 'saldo'.");
    EXPECT_EQ(FailureOf([&] { cofre.Set("Somar", Long{1}); }).Number(), 438);
    EXPECT_EQ(FailureOf([&] { cofre.Get("Somar"); }).Number(), 438);
    EXPECT_EQ(FailureOf([&] { cofre.Call("Saldo"); }).Number(), 438);
}

TEST(MembersByTable, AreNotReadWhereTheyAreOnlyWritten)
{
    Cofre cofre;
    cofre.Set("Senha", "x");
    EXPECT_EQ(FailureOf([&] { cofre.Get("Senha"); }).Number(), 438);
}

TEST(MembersByTable, RefuseAWriteWhereTheyAreOnlyRead)
{
    Cofre cofre;
    EXPECT_EQ(cofre.Get("Moeda"), Value("real"));
    EXPECT_EQ(FailureOf([&] { cofre.Set("Moeda", "dólar"); }).Number(), 450);
}

TEST(MembersByTable, AreListedWithWhatCanBeDoneWithThem)
{
    const std::vector<Member> listed = {{"Somar", true, false, false},
                                        {"Saldo", false, true, true},
                                        {"Moeda", false, true, false},
                                        {"Senha", false, false, true}};
    EXPECT_EQ(Cofre().Members(), listed);
}

TEST(MembersByTable, RefuseAWrongCountOfArguments)
{
    Cofre cofre;
    EXPECT_EQ(FailureOf([&] { cofre.Call("Somar"); }).Number(), 450);
    EXPECT_EQ(FailureOf([&] { cofre.Call("Somar", {Long{1}, Long{1}, Long{1}}); }).Number(), 450);
}

} // namespace

} // namespace kova
