#pragma once

#include <string>
#include <string_view>

// What people read of the audit: words for its operations and its tables.
namespace kova::family {

/// Words for one of audit_operation, or of what another program has written.
struct OperationWords {
    /// "Alteração", "Alterações"
    std::string one, many;
    /// Behind somebody's name: "Alterou".
    std::string did;
};
OperationWords WordsOfOperation(std::string_view operation);

/// Words for the rows of a table.
struct TableWords {
    /// "Clientes"
    std::string title;
    /// "o cliente", "a pré-venda"
    std::string one;
};
TableWords WordsOfTable(std::string_view table);

} // namespace kova::family
