#include "toolkits/qt/dialogs/message_box.hpp"

#include "agenda/contracts/platform.hpp"
#include "toolkits/qt/look/icons.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QMessageBox>
#include <QPainter>
#include <QPushButton>

namespace kova::qt {

namespace {

constexpr int IconSize = 40;

// A round mark in the product's own drawing; Plain has none.
QPixmap MarkOf(MessageKind kind, double scale)
{
    QPixmap mark(QSize(IconSize, IconSize) * scale);
    mark.setDevicePixelRatio(scale);
    mark.fill(Qt::transparent);
    const bool critical = kind == MessageKind::Critical;
    QPainter painter(&mark);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(critical ? look::Danger : look::Accent);
    painter.drawEllipse(QRectF(1, 1, IconSize - 2, IconSize - 2));
    if (critical) {
        PaintIcon(painter, "limpar", QRectF(8, 8, IconSize - 16, IconSize - 16), look::Paper);
        return mark;
    }
    painter.setPen(look::Paper);
    painter.setFont(MakeFont("Arial", 18, true));
    const QString sign = kind == MessageKind::Question ? QStringLiteral("?") : QStringLiteral("i");
    painter.drawText(QRectF(0, 0, IconSize, IconSize), Qt::AlignCenter, sign);
    return mark;
}

QMessageBox::Icon IconOf(MessageKind kind)
{
    switch (kind) {
    case MessageKind::Information: return QMessageBox::Information;
    case MessageKind::Critical: return QMessageBox::Critical;
    case MessageKind::Question: return QMessageBox::Question;
    case MessageKind::Plain: return QMessageBox::NoIcon;
    }
    return QMessageBox::NoIcon;
}

Reply AskYesOrNo(QMessageBox& box)
{
    const QPushButton* yes = box.addButton(QStringLiteral("&Sim"), QMessageBox::YesRole);
    QPushButton* no = box.addButton(QStringLiteral("&Não"), QMessageBox::NoRole);
    box.setDefaultButton(no);
    box.setEscapeButton(no);
    box.exec();
    return box.clickedButton() == yes ? Reply::Yes : Reply::No;
}

} // namespace

Reply ShowMessageBox(QWidget* over, MessageKind kind, const Text& text, const Text& title)
{
    QMessageBox box(over);
    box.setWindowModality(Qt::ApplicationModal);
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::NoTextInteraction);
    // The kind goes to assistive tools and to the desktop's sound; the mark is drawn.
    box.setIcon(IconOf(kind));
    if (kind != MessageKind::Plain)
        box.setIconPixmap(MarkOf(kind, box.devicePixelRatioF()));
    box.setText(Lines(text));
    box.setWindowTitle(FromText(title));
    if (kind == MessageKind::Question)
        return AskYesOrNo(box);
    QPushButton* ok = box.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    box.setDefaultButton(ok);
    box.setEscapeButton(ok);
    box.exec();
    return Reply::Ok;
}

} // namespace kova::qt
