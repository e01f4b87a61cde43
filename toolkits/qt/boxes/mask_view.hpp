#pragma once

#include "toolkits/qt/boxes/edit_view.hpp"

namespace kova::qt {

/// A box with a mask: a pasted text fills the mask anew with its digits, and a text that means nothing is
/// red.
class MaskView : public EditView {
public:
    MaskView(toolkit::MaskEditCore& model, QWidget* parent);

protected:
    void ShowContent() override;
    QColor Ink() const override;
    void Paste(const QString& text) override;

private:
    toolkit::MaskEditCore& model_;
    bool isNonsense_ = false;
};

} // namespace kova::qt
