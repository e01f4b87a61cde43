#pragma once

#include "family/data/engine/database.hpp"
#include "family/data/engine/key.hpp"

#include <string>
#include <vector>

namespace kova::family {

/// A prepared selection of codes by one text, its parameter `texto`. The derived class takes the Database and
/// has the statement.
class CodesByText : public KeptStatement {
public:
    std::vector<Key> Run(const std::string& text)
    {
        text_ = text;
        std::vector<Key> codes;
        statement_.execute();
        while (statement_.fetch())
            codes.push_back(code_);
        return codes;
    }

protected:
    CodesByText(Database& database, const char* statement)
        : statement_((database.Session().prepare << statement, soci::use(text_, "texto"), soci::into(code_)))
    {
    }

private:
    std::string text_;
    Key code_ = 0;
    soci::statement statement_;
};

/// Fails as Database::With.
template <class Statement> std::vector<Key> CodesBy(Database& database, const std::string& text)
{
    return database.With<Statement>([&](Statement& statement) { return statement.Run(text); });
}

} // namespace kova::family
