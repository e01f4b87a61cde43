#include "tests/unit/family/business/appointments/desk_fixture.hpp"

#include "family/data/sources/shared_database.hpp"
#include "family/data/stores/pre_sales.hpp"

namespace kova::family::test {

class StoredPreSales : public DeskTest {
protected:
    /// As a desk cancels a pre-sale that it has read as open.
    bool Cancel()
    {
        return CancelPreSale(*SharedDatabase(host_.DataSource()), {1, pre_sale_status::Open},
                             {"7", "Lia", "2026-11-20 09:04:05"});
    }
    void Add(int status)
    {
        Run("insert into pre_venda (codigo, numero_do_agendamento, valor_em_centavos, situacao, criada_em)"
            " values (1, 7, 6000, "
            + std::to_string(status) + ", '2026-11-20 09:00:00')");
    }
};

TEST_F(StoredPreSales, AreCancelledWithALineInTheAudit)
{
    Add(pre_sale_status::Open);
    EXPECT_TRUE(Cancel());
    EXPECT_EQ(PreSales(), std::vector<std::string>{"7 6000 2 2026-11-20 09:00:00"});
    EXPECT_EQ(Audit(), std::vector<std::string>{R"(pre_venda 1 alteracao {"situacao":1} {"situacao":2})"});
}

TEST_F(StoredPreSales, AreNotCancelledOnceTheyWereBilled)
{
    Add(pre_sale_status::Billed);
    EXPECT_FALSE(Cancel());
    EXPECT_EQ(PreSales(), std::vector<std::string>{"7 6000 3 2026-11-20 09:00:00"});
    EXPECT_TRUE(Audit().empty());
}

} // namespace kova::family::test
