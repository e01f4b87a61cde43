#include "toolkits/qt/boxes/mask_view.hpp"

#include "toolkits/qt/boxes/line_edit.hpp"
#include "toolkits/qt/look/theme.hpp"

namespace kova::qt {

MaskView::MaskView(toolkit::MaskEditCore& model, QWidget* parent) : EditView(model, parent), model_(model)
{
    Editor()->KeepSelectionAtFirstPress();
}

void MaskView::ShowContent()
{
    EditView::ShowContent();
    if (isNonsense_ == model_.ShowsNonsense())
        return;
    isNonsense_ = !isNonsense_;
    Editor()->setAccessibleDescription(isNonsense_ ? QStringLiteral("Valor impossível") : QString());
    ShowLook();
}

QColor MaskView::Ink() const { return isNonsense_ ? look::Refusal : EditView::Ink(); }

void MaskView::Paste(const QString& text)
{
    QString digits;
    for (const QChar character : text) {
        if (character.isDigit())
            digits.append(character);
    }
    if (!digits.isEmpty())
        GetModel().UserEdits(ToText(digits));
}

} // namespace kova::qt
