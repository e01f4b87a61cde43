#include "toolkits/qt/pictures.hpp"

#include "toolkits/qt/theme.hpp"

#include <QPainter>

#include <array>

namespace kova::qt {

namespace {

struct StatusLabel {
    const char* name;
    const char* text;
    QColor ground;
    QColor ink;
};

const StatusLabel* FindLabel(const Picture& picture)
{
    static const std::array<StatusLabel, 4> labels{{
        {"etiqueta_agendado", "Agendado", QColor(219, 234, 254), QColor(29, 78, 176)},
        {"etiqueta_atendido", "Atendido", QColor(214, 243, 224), QColor(18, 104, 52)},
        {"etiqueta_cancelado", "Cancelado", QColor(253, 226, 226), QColor(168, 36, 36)},
        {"etiqueta_atendido_gerado_pre_venda", "At. pré-venda", QColor(236, 226, 252), QColor(98, 48, 168)},
    }};
    for (const StatusLabel& label : labels) {
        if (picture.name == label.name)
            return &label;
    }
    return nullptr;
}

} // namespace

QString PictureText(const Picture& picture)
{
    const StatusLabel* label = FindLabel(picture);
    return label ? QString::fromUtf8(label->text) : QString();
}

void PaintPicture(QPainter& painter, const Picture& picture, const QRectF& place)
{
    const StatusLabel* label = FindLabel(picture);
    if (!label)
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(label->ground);
    painter.drawRoundedRect(place, place.height() / 2, place.height() / 2);
    painter.setPen(label->ink);
    painter.setFont(MakeFont("Arial", 9, true));
    painter.drawText(place, Qt::AlignCenter, QString::fromUtf8(label->text));
    painter.restore();
}

} // namespace kova::qt
