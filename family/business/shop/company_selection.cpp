#include "family/business/shop/company_selection.hpp"

namespace kova::family {

namespace {

class TradeNames : public KeptStatement {
public:
    explicit TradeNames(Database& database)
        : statement_((database.Session().prepare << "select nome_fantasia from empresa order by codigo",
                      soci::into(name_)))
    {
    }

    std::vector<std::string> Run()
    {
        std::vector<std::string> names;
        statement_.execute();
        while (statement_.fetch())
            names.push_back(name_);
        return names;
    }

private:
    std::string name_;
    soci::statement statement_;
};

} // namespace

std::vector<std::string> SelectTradeNames(Database& database)
{
    return database.With<TradeNames>([](TradeNames& selection) { return selection.Run(); });
}

} // namespace kova::family
