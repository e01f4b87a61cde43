#include "toolkits/qt/boxes/field_accessible.hpp"

#include "toolkits/qt/boxes/combo_field.hpp"
#include "toolkits/qt/boxes/toggle.hpp"

#include <QAccessibleWidget>

namespace kova::qt {

namespace {

class ComboAccessible : public QAccessibleWidget {
public:
    explicit ComboAccessible(ComboField& field)
        : QAccessibleWidget(&field, QAccessible::ComboBox), field_(field)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? field_.ShownText() : QAccessibleWidget::text(kind);
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.hasPopup = true;
        state.expandable = true;
        state.expanded = field_.IsListOpen();
        state.collapsed = !field_.IsListOpen();
        return state;
    }
    // The list is a window of its own.
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QStringList actionNames() const override { return {showMenuAction()}; }
    void doAction(const QString& name) override
    {
        if (name == showMenuAction() && field_.pressed)
            field_.pressed();
    }

private:
    ComboField& field_;
};

class ToggleAccessible : public QAccessibleWidget {
public:
    explicit ToggleAccessible(Toggle& toggle)
        : QAccessibleWidget(&toggle, toggle.IsOption() ? QAccessible::RadioButton : QAccessible::CheckBox),
          toggle_(toggle)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        const QString text = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && text.isEmpty() ? toggle_.text().trimmed() : text;
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = toggle_.Value() == 1;
        state.checkStateMixed = toggle_.Value() == 2;
        return state;
    }
    QStringList actionNames() const override { return {toggle_.IsOption() ? pressAction() : toggleAction()}; }
    void doAction(const QString& name) override
    {
        if (actionNames().contains(name))
            toggle_.click();
    }

private:
    Toggle& toggle_;
};

// A form or panel: what is hidden by code is not part of it.
class PanelAccessible : public QAccessibleWidget {
public:
    explicit PanelAccessible(QWidget& panel) : QAccessibleWidget(&panel, QAccessible::Client) { }

    int childCount() const override { return static_cast<int>(Children().size()); }
    QAccessibleInterface* child(int index) const override
    {
        const auto children = Children();
        return index >= 0 && index < children.size() ? children.at(index) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        const auto children = Children();
        for (int index = 0; index < children.size(); ++index) {
            if (child && children.at(index)->object() == child->object())
                return index;
        }
        return -1;
    }

private:
    QList<QAccessibleInterface*> Children() const
    {
        QList<QAccessibleInterface*> children;
        for (int index = 0; index < QAccessibleWidget::childCount(); ++index) {
            QAccessibleInterface* child = QAccessibleWidget::child(index);
            const auto* shown = child ? qobject_cast<QWidget*>(child->object()) : nullptr;
            if (child && (!shown || !shown->isHidden()))
                children.append(child);
        }
        return children;
    }
};

QAccessibleInterface* MakeInterface(const QString& kind, QObject* object)
{
    if (auto* field = dynamic_cast<ComboField*>(object))
        return new ComboAccessible(*field);
    if (auto* toggle = dynamic_cast<Toggle*>(object))
        return new ToggleAccessible(*toggle);
    // Only where no nearer kind has an interface of its own.
    auto* widget = kind == QLatin1String("QWidget") ? qobject_cast<QWidget*>(object) : nullptr;
    return widget ? new PanelAccessible(*widget) : nullptr;
}

} // namespace

void InstallFieldAccessibility() { QAccessible::installFactory(&MakeInterface); }

} // namespace kova::qt
