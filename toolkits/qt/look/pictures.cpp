#include "toolkits/qt/look/pictures.hpp"

#include "toolkits/qt/look/theme.hpp"

#include <QPainter>

#include <array>

namespace kova::qt {

namespace {

struct Plate {
    QColor ground;
    QColor ink;
};

struct StatusLabel {
    const char* name;
    const char* text;
    Plate onLight;
    Plate onDark;
};

const StatusLabel* FindLabel(const Picture& picture)
{
    static const std::array<StatusLabel, 4> labels{{
        {"etiqueta_agendado", "Agendado", {{219, 234, 254}, {29, 78, 176}}, {{34, 58, 102}, {165, 201, 255}}},
        {"etiqueta_atendido", "Atendido", {{214, 243, 224}, {18, 104, 52}}, {{24, 68, 44}, {149, 224, 179}}},
        {"etiqueta_cancelado",
         "Cancelado",
         {{253, 226, 226}, {168, 36, 36}},
         {{92, 36, 38}, {255, 182, 182}}},
        {"etiqueta_atendido_gerado_pre_venda",
         "At. pré-venda",
         {{236, 226, 252}, {98, 48, 168}},
         {{66, 44, 102}, {216, 190, 255}}},
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
    const Plate& plate = CurrentLook() == Look::Dark ? label->onDark : label->onLight;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(plate.ground);
    painter.drawRoundedRect(place, place.height() / 2, place.height() / 2);
    painter.setPen(plate.ink);
    painter.setFont(MakeFont("Arial", 9, true));
    painter.drawText(place, Qt::AlignCenter, QString::fromUtf8(label->text));
    painter.restore();
}

} // namespace kova::qt
