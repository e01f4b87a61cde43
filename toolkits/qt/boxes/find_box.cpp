#include "toolkits/qt/boxes/find_box.hpp"

#include "toolkits/qt/boxes/line_edit.hpp"
#include "toolkits/qt/look/theme.hpp"

namespace kova::qt {

FindBoxView::FindBoxView(toolkit::FindBoxModel& model, QWidget* parent)
    : EditView(model, parent), model_(model)
{
    if (Editor()->placeholderText().isEmpty())
        Editor()->setPlaceholderText(FromText(model.Design().caption));
    Shown().endPressed = [this] { model_.UserPresses(); };
}

void FindBoxView::ShowContent()
{
    EditView::ShowContent();
    ShowButton();
}

void FindBoxView::ShowSelection()
{
    EditView::ShowSelection();
    ShowButton();
}

void FindBoxView::ShowButton()
{
    const bool searches = model_.WouldSearch();
    const std::string icon = searches ? "lupa" : "limpar";
    if (Shown().EndIcon() != icon)
        Shown().SetEndIcon(icon, searches ? QStringLiteral("Pesquisar") : QStringLiteral("Limpar"));
}

} // namespace kova::qt
