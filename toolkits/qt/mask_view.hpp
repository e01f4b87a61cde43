#pragma once

#include "toolkits/qt/edit_view.hpp"

namespace kova::qt {

/// A box with a mask: a pasted text fills the mask anew with its digits.
class MaskView : public EditView {
public:
    using EditView::EditView;

protected:
    void Paste(const QString& text) override
    {
        QString digits;
        for (const QChar character : text) {
            if (character.isDigit())
                digits.append(character);
        }
        if (digits.isEmpty())
            return;
        GetModel().UserSelectsAll();
        TypeAll(digits);
    }
};

} // namespace kova::qt
