#include "toolkits/qt/boxes/combo_field.hpp"

#include "toolkits/common/boxes/combo_box.hpp"
#include "toolkits/qt/burial.hpp"
#include "toolkits/qt/look/icons.hpp"
#include "toolkits/qt/look/painting.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QAccessible>
#include <QHash>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QListWidget>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <QVBoxLayout>

#include <algorithm>

namespace kova::qt {

namespace {

constexpr int Inset = 8;
constexpr int EndWidth = 28;
constexpr int RowHeight = 28;
/// Of the bar beside the marked row.
constexpr int MarkWidth = 3;
constexpr int MostRowsShown = toolkit::ComboBoxModel::RowsOfPage;

// A row of the open list: its text at the same inset as in the field.
class RowPainter : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const bool current = option.state & QStyle::State_Selected;
        painter->fillRect(option.rect, current ? look::AccentTint : look::Paper);
        if (current)
            painter->fillRect(QRect(option.rect.topLeft(), QSize(MarkWidth, option.rect.height())),
                              look::Accent);
        painter->setPen(look::Ink);
        painter->setFont(option.font);
        const QRect area = option.rect.adjusted(Inset - 1, 0, -4, 0);
        const QString text =
            option.fontMetrics.elidedText(index.data().toString(), Qt::ElideRight, area.width());
        painter->drawText(area, Qt::AlignLeft | Qt::AlignVCenter, text);
    }
};

} // namespace

ComboField::ComboField(QWidget* parent) : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
}

ComboField::~ComboField() { CloseList(); }

bool ComboField::IsListOpen() const { return list_ != nullptr; }

QListWidget* ComboField::List() const { return list_; }

void ComboField::SetShownText(const QString& text)
{
    text_ = text;
    update();
    QAccessibleValueChangeEvent change(this, text);
    QAccessible::updateAccessibility(&change);
}

void ComboField::CloseList()
{
    list_ = nullptr;
    if (popup_) {
        popup_->removeEventFilter(this);
        Bury(*popup_);
    }
    popup_ = nullptr;
    update();
}

void ComboField::ShowList(const QStringList& rows, int marked)
{
    if (!list_) {
        MakeList(rows);
        PlaceList(static_cast<int>(rows.size()));
    }
    if (list_->currentRow() != marked)
        list_->setCurrentRow(marked);
    if (list_->currentItem())
        list_->scrollToItem(list_->currentItem());
}

void ComboField::MakeList(const QStringList& texts)
{
    popup_ = new QWidget(this, Qt::Popup);
    popup_->installEventFilter(this);
    auto* layout = new QVBoxLayout(popup_);
    layout->setContentsMargins(0, 0, 0, 0);
    // A list by itself wants room for several rows, also where it has one.
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    list_ = new QListWidget(popup_);
    layout->addWidget(list_);
    list_->setAccessibleName(accessibleName());
    list_->setFont(font());
    list_->setItemDelegate(new RowPainter(list_));
    list_->verticalScrollBar()->setContextMenuPolicy(Qt::NoContextMenu);
    list_->setMouseTracking(true);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->addItems(texts);
    for (int row = 0; row < list_->count(); ++row)
        list_->item(row)->setSizeHint(
            QSize(list_->fontMetrics().horizontalAdvance(texts.at(row)), RowHeight));
    list_->installEventFilter(this);
    connect(list_, &QListWidget::itemEntered, this, [this](QListWidgetItem* item) {
        if (list_ && pointed)
            pointed(list_->row(item));
    });
    connect(list_, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
        if (list_)
            TakeListRow(list_->row(item));
    });
}

void ComboField::PlaceList(int count)
{
    const QRect field(mapToGlobal(QPoint(0, 0)), size());
    const QRect room = RoomForPopup(field);
    const int height = std::clamp(count, 1, MostRowsShown) * RowHeight + 2 * list_->frameWidth();
    const int wanted = list_->sizeHintForColumn(0) + 2 * Inset + (count > MostRowsShown ? 16 : 0);
    const int width = std::clamp(wanted, field.width(), std::max(field.width(), 420));
    QRect area(field.left(), field.bottom() + 3, width, height);
    if (area.bottom() > room.bottom())
        area.moveBottom(field.top() - 3);
    area.moveTop(std::clamp(area.top(), room.top(), std::max(room.top(), room.bottom() + 1 - height)));
    area.moveLeft(std::clamp(area.left(), room.left(), std::max(room.left(), room.right() + 1 - width)));
    popup_->setGeometry(area);
    popup_->show();
    list_->setFocus();
    update();
}

void ComboField::TakeListRow(int row)
{
    CloseList();
    if (row >= 0 && chosen)
        chosen(row);
}

bool ComboField::TakesKey(const QKeyEvent& event)
{
    using toolkit::ComboKey;
    static const QHash<int, ComboKey> keys{
        {Qt::Key_F4, ComboKey::Open},           {Qt::Key_Up, ComboKey::Up},
        {Qt::Key_Down, ComboKey::Down},         {Qt::Key_PageUp, ComboKey::PageUp},
        {Qt::Key_PageDown, ComboKey::PageDown}, {Qt::Key_Home, ComboKey::Home},
        {Qt::Key_End, ComboKey::End},           {Qt::Key_Return, ComboKey::Take},
        {Qt::Key_Enter, ComboKey::Take},        {Qt::Key_Tab, ComboKey::Take},
        {Qt::Key_Escape, ComboKey::Leave}};
    const bool commands = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool arrow = event.key() == Qt::Key_Up || event.key() == Qt::Key_Down;
    if (arrow && event.modifiers() & Qt::AltModifier) {
        if (keyPressed)
            keyPressed(ComboKey::Open);
        return true;
    }
    if (const auto key = keys.constFind(event.key()); key != keys.constEnd() && !commands) {
        if (keyPressed)
            keyPressed(*key);
        return true;
    }
    const QString letters = event.text();
    if (commands || letters.isEmpty() || !letters.at(0).isPrint())
        return false;
    if (typed)
        typed(letters);
    return true;
}

void ComboField::keyPressEvent(QKeyEvent* event)
{
    if (!TakesKey(*event))
        QWidget::keyPressEvent(event);
}

void ComboField::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && !list_ && pressed)
        pressed();
}

// Turning the wheel over a filter by chance must not start a search.
void ComboField::wheelEvent(QWheelEvent* event) { event->ignore(); }

void ComboField::enterEvent(QEnterEvent*) { update(); }
void ComboField::leaveEvent(QEvent*) { update(); }

void ComboField::focusInEvent(QFocusEvent*) { update(); }
void ComboField::focusOutEvent(QFocusEvent*) { update(); }

void ComboField::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        update();
}

bool ComboField::eventFilter(QObject* watched, QEvent* event)
{
    // The list's own keys and letters would walk behind the model.
    const bool isKey = watched == list_ && event->type() == QEvent::KeyPress;
    if (isKey)
        TakesKey(*static_cast<QKeyEvent*>(event));
    // Qt itself closes it for a press elsewhere.
    const bool isClosed = watched == popup_ && event->type() == QEvent::Hide;
    if (isClosed) {
        CloseList();
        if (left)
            left();
    }
    return isKey;
}

QRectF ComboField::TextArea() const { return QRectF(rect()).adjusted(Inset, 0, -EndWidth, 0); }

// A text that does not fit is read in a tool tip, where the field has none of its own.
bool ComboField::event(QEvent* event)
{
    const auto isCut = [this] { return QFontMetricsF(font()).horizontalAdvance(text_) > TextArea().width(); };
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty() || !isCut())
        return QWidget::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text_, this);
    return true;
}

void ComboField::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const FieldState state{isEnabled(), false, underMouse(), hasFocus() || list_};
    PaintField(painter, rect(), state, look::Paper);
    const QRectF area = TextArea();
    painter.setFont(font());
    // What a disabled box shows is still to be read.
    painter.setPen(look::Ink);
    const QString shown = QFontMetricsF(font()).elidedText(text_, Qt::ElideRight, area.width());
    painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter, shown);
    const double size = std::min(18.0, height() - 4.0);
    const QRectF chevron(width() - EndWidth + 5, (height() - size) / 2, size, size);
    PaintIcon(painter, "abrir_lista", chevron, isEnabled() ? look::MutedInk : look::DisabledInk);
}

} // namespace kova::qt
