#pragma once

#include "registers/desk.hpp"

#include <QDialog>

namespace kova::screens {
class RefusalLabel;
}

namespace kova::registers {

class RecordForm;

/// Asks a shop that has no company for it. It may be left for later.
class CompanyQuestion : public QDialog {
public:
    CompanyQuestion(const Desk& desk, QWidget* parent);

    /// "" where it was left for later.
    const std::string& TradeName() const { return tradeName_; }

private:
    void Save();

    const Desk& desk_;
    RecordForm* form_;
    screens::RefusalLabel* failure_;
    std::string tradeName_;
};

} // namespace kova::registers
