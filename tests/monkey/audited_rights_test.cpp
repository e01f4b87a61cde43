#include "tests/monkey/audited_rights.hpp"

#include "family/data/audit/audit.hpp"
#include "family/data/engine/safe_write.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/stores/new_shop.hpp"
#include "family/users/accounts.hpp"
#include "tests/monkey/users.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <optional>

namespace kova::monkey {

using family::AuditValues;
using family::Author;

/// A shop with its users: Lia is at the reception, Gil manages, Rui may do nothing.
class AuditedRights : public testing::Test {
protected:
    AuditedRights()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "monkey-XXXXXX").string();
        folder_ = mkdtemp(pattern.data());
        family::NewShop shop;
        shop.company.nomeFantasia = "Céu";
        shop.user = shop.employee = "Nina";
        family::CreateNewShop(Database(), shop);
        Users users(Database());
        data_ = family::OpenDatabase(Database());
    }
    ~AuditedRights() override { std::filesystem::remove_all(folder_); }

    std::string Database() const { return (folder_ / "loja.db").string(); }

    Author Of(const std::string& name) const
    {
        std::string code;
        data_->Session() << "select cast(codigo as text) from usuario where nome = '" + name + "'",
            soci::into(code);
        return {.code = code, .name = name, .moment = "2026-11-20 09:00:00"};
    }
    /// Writes lines past every rule.
    void Write(const std::function<void()>& write) const
    {
        family::WriteSafely(*data_, [&] {
            write();
            return true;
        });
    }
    void Delete(const std::string& name) const
    {
        Write([&] { AuditRemoval(*data_, Of(name), "agendamento", 5, AuditValues().Add("numero", 5)); });
    }
    void Mark(const std::string& name, int from, int to) const
    {
        Write([&] {
            AuditChange(*data_, Of(name), "agendamento", 5, AuditValues().Add("situacao", from),
                        AuditValues().Add("situacao", to));
        });
    }

    std::filesystem::path folder_;
    std::shared_ptr<family::Database> data_;
};

TEST_F(AuditedRights, TellNothingWhereEverybodyHadThem)
{
    Delete("Gil");
    Mark("Lia", 1, 3);
    Mark("Gil", 4, 2);
    EXPECT_EQ(WriteWithoutRight(Database()), "");
}

TEST_F(AuditedRights, TellTheFirstLineOfOneWhoHadNot)
{
    Mark("Lia", 1, 2);
    Delete("Lia");
    const std::string told = WriteWithoutRight(Database());
    EXPECT_NE(told.find("Lia has no right to agendamento.excluir"), std::string::npos) << told;
}

TEST_F(AuditedRights, TellWhoUndoesAPreSale)
{
    Mark("Lia", 4, 2);
    const std::string told = WriteWithoutRight(Database());
    EXPECT_NE(told.find("agendamento.desfazer_pre_venda"), std::string::npos) << told;
}

TEST_F(AuditedRights, AreThoseOfTheMoment)
{
    const Author owner{.code = "0", .name = "Dono", .moment = "2026-11-20 09:00:00", .isOwner = true};
    const family::Key rui = std::stoll(Of("Rui").code);
    EXPECT_EQ(SaveAccount(*data_, {rui, "Rui", 2, true}, nullptr, owner).why, "");
    Delete("Rui");
    EXPECT_EQ(WriteWithoutRight(Database()), "");
    EXPECT_EQ(SaveAccount(*data_, {rui, "Rui", 4, true}, nullptr, owner).why, "");
    EXPECT_EQ(WriteWithoutRight(Database()), "");
    Delete("Rui");
    EXPECT_NE(WriteWithoutRight(Database()), "");
}

TEST_F(AuditedRights, AreNobodysWhoHasNotSignedIn)
{
    Write([&] {
        AuditRemoval(*data_, {.code = "0", .name = "Maria", .moment = "2026-11-20 09:00:00"}, "especie", 1,
                     AuditValues().Add("codigo", 1));
    });
    EXPECT_NE(WriteWithoutRight(Database()), "");
}

} // namespace kova::monkey
