// What assistive tools see of a timetable: the place under its cursor, and behind it every block.

#include "timetable/timetable_view.hpp"

#include <QAccessibleWidget>

#include <map>

namespace kova::timetable {

namespace {

class ViewAccessible;

/// A block, or at 0 the place under the cursor.
class ItemAccessible : public QAccessibleInterface {
public:
    ItemAccessible(ViewAccessible& view, int at) : view_(view), at_(at) { }

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override { }
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override;
    int At() const { return at_; }

private:
    QModelIndex Index() const;

    ViewAccessible& view_;
    int at_;
};

class ViewAccessible : public QAccessibleWidget {
public:
    explicit ViewAccessible(TimetableView& view) : QAccessibleWidget(&view, QAccessible::List) { }
    ~ViewAccessible() override
    {
        for (const auto& item : items_)
            QAccessible::deleteAccessibleInterface(item.second);
    }

    TimetableView& View() const { return static_cast<TimetableView&>(*widget()); }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? View().PlaceAsText() : QAccessibleWidget::text(kind);
    }
    int childCount() const override { return 1 + View().Blocks().rowCount(); }
    QAccessibleInterface* child(int at) const override
    {
        if (at < 0 || at >= childCount())
            return nullptr;
        const auto known = items_.find(at);
        if (known != items_.end())
            return QAccessible::accessibleInterface(known->second);
        auto* item = new ItemAccessible(const_cast<ViewAccessible&>(*this), at);
        items_.emplace(at, QAccessible::registerAccessibleInterface(item));
        return item;
    }
    int indexOfChild(const QAccessibleInterface* item) const override
    {
        const auto* own = dynamic_cast<const ItemAccessible*>(item);
        return own != nullptr ? own->At() : -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override
    {
        const QModelIndex index = View().indexAt(View().viewport()->mapFromGlobal(QPoint(x, y)));
        return index.isValid() ? child(index.row() + 1) : nullptr;
    }
    QAccessibleInterface* focusChild() const override
    {
        return View().hasFocus() ? child(View().currentIndex().row() + 1) : nullptr;
    }

private:
    mutable std::map<int, QAccessible::Id> items_;
};

bool ItemAccessible::isValid() const { return view_.isValid() && at_ < view_.childCount(); }

QAccessibleInterface* ItemAccessible::parent() const { return &view_; }

QModelIndex ItemAccessible::Index() const { return view_.View().Blocks().index(at_ - 1); }

QString ItemAccessible::text(QAccessible::Text kind) const
{
    if (kind != QAccessible::Name || !isValid())
        return {};
    return at_ == 0 ? view_.View().PlaceAsText() : Index().data(Qt::AccessibleTextRole).toString();
}

QRect ItemAccessible::rect() const
{
    if (!isValid())
        return {};
    const QRect rect = at_ == 0 ? QRect(view_.View().viewport()->rect()) : view_.View().visualRect(Index());
    return rect.translated(view_.View().viewport()->mapToGlobal(QPoint()));
}

QAccessible::State ItemAccessible::state() const
{
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    const bool isCurrent = view_.View().currentIndex().row() == at_ - 1;
    state.selectable = true;
    state.focusable = true;
    state.selected = isCurrent;
    state.focused = isCurrent && view_.View().hasFocus();
    state.offscreen = !rect().intersects(view_.rect());
    return state;
}

QAccessibleInterface* MakeAccessible(const QString&, QObject* object)
{
    auto* view = dynamic_cast<TimetableView*>(object);
    return view != nullptr ? new ViewAccessible(*view) : nullptr;
}

} // namespace

void InstallTimetableAccessibility()
{
    static const bool Installed = [] {
        QAccessible::installFactory(MakeAccessible);
        return true;
    }();
    static_cast<void>(Installed);
}

} // namespace kova::timetable
