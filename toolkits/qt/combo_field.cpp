#include "toolkits/qt/combo_field.hpp"

#include "toolkits/qt/icons.hpp"
#include "toolkits/qt/painting.hpp"
#include "toolkits/qt/theme.hpp"

#include <QAccessible>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <algorithm>

namespace kova::qt {

namespace {

constexpr int Inset = 8;
constexpr int EndWidth = 28;
constexpr int RowHeight = 28;
constexpr int MostRowsShown = 12;

// A row of the open list: its text at the same inset as in the field.
class RowPainter : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const bool current = option.state & QStyle::State_Selected;
        painter->fillRect(option.rect, current ? look::AccentTint : look::Paper);
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
        popup_->close();
    }
    popup_ = nullptr;
    update();
}

void ComboField::OpenList()
{
    if (list_ || !isEnabled())
        return;
    const QPointer<ComboField> self(this);
    const bool opens = !aboutToOpen || aboutToOpen();
    if (!self || !opens || !rows)
        return;
    const QStringList texts = rows();
    MakeList(texts);
    PlaceList(static_cast<int>(texts.size()));
}

void ComboField::MakeList(const QStringList& texts)
{
    popup_ = new QWidget(this, Qt::Popup);
    popup_->setAttribute(Qt::WA_DeleteOnClose);
    popup_->installEventFilter(this);
    auto* layout = new QVBoxLayout(popup_);
    layout->setContentsMargins(0, 0, 0, 0);
    list_ = new QListWidget(popup_);
    layout->addWidget(list_);
    list_->setAccessibleName(accessibleName());
    list_->setFont(font());
    list_->setItemDelegate(new RowPainter(list_));
    list_->verticalScrollBar()->setContextMenuPolicy(Qt::NoContextMenu);
    list_->setMouseTracking(true);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->setUniformItemSizes(true);
    list_->addItems(texts);
    for (int row = 0; row < list_->count(); ++row)
        list_->item(row)->setSizeHint(QSize(0, RowHeight));
    list_->setCurrentRow(currentRow ? currentRow() : -1);
    list_->installEventFilter(this);
    connect(list_, &QListWidget::itemEntered, list_,
            [list = list_.data()](QListWidgetItem* item) { list->setCurrentItem(item); });
    connect(list_, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
        if (list_)
            TakeListRow(list_->row(item));
    });
}

void ComboField::PlaceList(int count)
{
    const QRect field(mapToGlobal(QPoint(0, 0)), size());
    const QScreen* screen = QGuiApplication::screenAt(field.center());
    const QRect room = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    const int height = std::clamp(count, 1, MostRowsShown) * RowHeight + 2 * list_->frameWidth();
    const int wanted = list_->sizeHintForColumn(0) + 2 * Inset + (count > MostRowsShown ? 16 : 0);
    const int width = std::clamp(wanted, field.width(), std::max(field.width(), 420));
    QRect area(field.left(), field.bottom() + 3, width, height);
    if (area.bottom() > room.bottom())
        area.moveBottom(field.top() - 3);
    popup_->setGeometry(area);
    popup_->show();
    list_->setFocus();
    if (list_->currentItem())
        list_->scrollToItem(list_->currentItem());
    update();
}

void ComboField::TakeListRow(int row)
{
    CloseList();
    if (row >= 0 && chosen)
        chosen(row);
}

bool ComboField::OpensByKey(const QKeyEvent& event) const
{
    const bool alt = event.modifiers() & Qt::AltModifier;
    return event.key() == Qt::Key_F4 || event.key() == Qt::Key_Space
        || (alt && (event.key() == Qt::Key_Down || event.key() == Qt::Key_Up));
}

void ComboField::Step(int row)
{
    const int count = rows ? static_cast<int>(rows().size()) : 0;
    const int now = currentRow ? currentRow() : -1;
    const int wanted = std::clamp(row, 0, std::max(0, count - 1));
    if (count > 0 && wanted != now && chosen)
        chosen(wanted);
}

void ComboField::FindByLetter(const QString& letter)
{
    const QStringList texts = rows ? rows() : QStringList();
    const auto count = static_cast<int>(texts.size());
    const int now = currentRow ? currentRow() : -1;
    for (int step = 1; step <= count; ++step) {
        const int row = (std::max(now, -1) + step) % count;
        if (texts.at(row).startsWith(letter, Qt::CaseInsensitive))
            return Step(row);
    }
}

void ComboField::keyPressEvent(QKeyEvent* event)
{
    if (OpensByKey(*event))
        return OpenList();
    const int now = currentRow ? currentRow() : -1;
    switch (event->key()) {
    case Qt::Key_Down: return Step(now + 1);
    case Qt::Key_Up: return Step(now - 1);
    case Qt::Key_Home: return Step(0);
    case Qt::Key_End: return Step(rows ? static_cast<int>(rows().size()) - 1 : 0);
    case Qt::Key_PageDown: return Step(now + MostRowsShown);
    case Qt::Key_PageUp: return Step(now - MostRowsShown);
    default: break;
    }
    const QString letter = event->text();
    if (!letter.isEmpty() && letter.at(0).isPrint() && !(event->modifiers() & Qt::ControlModifier))
        FindByLetter(letter);
    else
        QWidget::keyPressEvent(event);
}

void ComboField::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        OpenList();
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
    if (watched == popup_ && event->type() == QEvent::Hide) {
        list_ = nullptr;
        popup_ = nullptr;
        update();
        return false;
    }
    if (watched != list_ || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool alt = key->modifiers() & Qt::AltModifier;
    if (key->key() == Qt::Key_Escape || key->key() == Qt::Key_F4 || (alt && key->key() == Qt::Key_Up)) {
        CloseList();
        return true;
    }
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter || key->key() == Qt::Key_Tab) {
        TakeListRow(list_->currentRow());
        return true;
    }
    return false;
}

void ComboField::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const FieldState state{isEnabled(), false, underMouse(), hasFocus() || list_};
    PaintField(painter, rect(), state, look::Paper);
    const QRectF area = QRectF(rect()).adjusted(Inset, 0, -EndWidth, 0);
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
