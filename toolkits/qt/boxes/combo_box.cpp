#include "toolkits/qt/boxes/combo_box.hpp"

#include "toolkits/qt/look/theme.hpp"

namespace kova::qt {

ComboBoxView::ComboBoxView(toolkit::ComboBoxModel& model, QWidget* parent)
    : ViewOf(model, new ComboField(parent))
{
    ComboField& field = Shown();
    field.setFocusPolicy(Qt::TabFocus);
    field.pressed = [this] { GetModel().UserOpensList(); };
    field.chosen = [this](int row) { GetModel().UserChooses(static_cast<Integer>(row)); };
    field.pointed = [this](int row) { GetModel().UserMarks(row); };
    field.left = [this] { GetModel().UserLeavesList(); };
    field.keyPressed = [this](toolkit::ComboKey key) { GetModel().UserPressesKey(key); };
    field.typed = [this](const QString& letters) {
        const QPointer<ComboField> self(&Shown());
        const auto characters = letters.toUcs4();
        for (const auto character : characters) {
            if (self)
                GetModel().UserTypes(static_cast<char32_t>(character));
        }
    };
    WatchFocus(&field);
}

void ComboBoxView::ShowSelection()
{
    if (!GetModel().IsListOpen())
        return Shown().CloseList();
    QStringList texts;
    for (const auto& row : GetModel().ShownRows())
        texts.append(FromText(row.text));
    Shown().ShowList(texts, GetModel().MarkedRow());
}

void ComboBoxView::ShowContent() { Shown().SetShownText(FromText(GetModel().ShownText())); }

} // namespace kova::qt
