#pragma once

#include "host/first_start/new_shop_step.hpp"

#include <string>

namespace kova::screens {
class FieldFrame;
}

namespace kova::host {

/// The company, who works in it, and where the shop's file lies.
class CompanyStep : public NewShopStep {
public:
    struct Beginning {
        /// Proposed as the first employee's name.
        std::string user;
        /// The folder that is proposed for the file.
        std::string documents;
    };

    CompanyStep(const Beginning& beginning, QWidget* parent);

    bool Accepts() override;
    void Fill(family::NewShop& shop) const override;
    std::string File() const;

private:
    screens::FieldFrame* AddField(const QString& name, const QString& label, int longest, bool isRequired);
    void LayOut();
    void Propose(const Beginning& beginning);
    void ProposeFile();
    void ChooseFile();

    std::string documents_;
    screens::FieldFrame *tradeName_, *legalName_, *document_, *phone_, *address_, *nickname_, *employee_,
        *file_;
    bool fileIsChosen_ = false;
};

} // namespace kova::host
