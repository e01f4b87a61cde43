#include "toolkits/qt/combo_box.hpp"

#include "toolkits/qt/theme.hpp"

namespace kova::qt {

ComboBoxView::ComboBoxView(QtToolkit& toolkit, toolkit::ComboBoxModel& model, QWidget* parent)
    : ViewOf(toolkit, model, new ComboField(parent))
{
    ComboField& field = Shown();
    field.setFocusPolicy(Qt::TabFocus);
    field.aboutToOpen = [this] { return GetModel().UserOpensList(); };
    field.rows = [this] {
        QStringList texts;
        for (const auto& row : GetModel().ShownRows())
            texts.append(FromText(row.text));
        return texts;
    };
    field.currentRow = [this] { return GetModel().ShownRow(); };
    field.chosen = [this](int row) { GetModel().UserChooses(static_cast<Integer>(row)); };
    WatchFocus(&field);
}

void ComboBoxView::ShowContent() { Shown().SetShownText(FromText(GetModel().ShownText())); }

} // namespace kova::qt
