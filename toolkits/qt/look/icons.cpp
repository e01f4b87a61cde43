#include "toolkits/qt/look/icons.hpp"

#include "toolkits/qt/look/kept_picture.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QPainter>
#include <QPainterPath>

#include <array>
#include <cctype>
#include <cstdlib>
#include <map>
#include <string>

namespace kova::qt {

namespace {

/// A colour that says what a button does, in the light look and in the dark one.
struct Tint {
    QColor onLight;
    QColor onDark;
};

const Tint Blue{{38, 110, 224}, {112, 170, 255}};
const Tint Green{{26, 138, 70}, {92, 201, 134}};
const Tint Red{{204, 48, 48}, {245, 122, 122}};
const Tint Violet{{120, 66, 186}, {190, 152, 245}};
const Tint Slate{{64, 70, 78}, {203, 209, 217}};

// Drawn on a square of 24 units with a pen of 1.8. M and L go to a point, C is a cubic curve, Z closes;
// O is a circle (centre, radius) and R a rectangle (place, size, corner radius).
struct IconDrawing {
    std::string_view name;
    const char* outline;
    Tint tint;
};

const std::array<IconDrawing, 17>& Drawings()
{
    static const std::array<IconDrawing, 17> drawings{{
        {"adicionar", "M12 5 L12 19 M5 12 L19 12", Blue},
        {"imprimir", "M7 9 L7 4 L17 4 L17 9 M7 17 L4 17 L4 9 L20 9 L20 17 L17 17 M7 14 L17 14 L17 20 L7 20 Z",
         Slate},
        {"anterior", "M15 5 L8 12 L15 19", Slate},
        {"posterior", "M9 5 L16 12 L9 19", Slate},
        {"primeira", "M18 5 L11 12 L18 19 M6 5 L6 19", Slate},
        {"ultima", "M6 5 L13 12 L6 19 M18 5 L18 19", Slate},
        {"abrir_lista", "M6 9 L12 15 L18 9", Slate},
        {"agendado", "R4 5.5 16 15 2 M4 10 L20 10 M8.5 3 L8.5 7 M15.5 3 L15.5 7", Blue},
        {"calendario", "R4 5.5 16 15 2 M4 10 L20 10 M8.5 3 L8.5 7 M15.5 3 L15.5 7", Slate},
        {"atendido", "O12 12 9 M7.8 12.4 L10.8 15.4 L16.4 9.2", Green},
        {"cancelado", "O12 12 9 M8.8 8.8 L15.2 15.2 M15.2 8.8 L8.8 15.2", Red},
        {"pre_venda",
         "M5 3.5 L5 20.5 L8.5 18.5 L12 20.5 L15.5 18.5 L19 20.5 L19 3.5 Z "
         "M14.6 8.6 C14 7.2 9.6 7.2 9.6 9.4 C9.6 11.6 14.6 10.8 14.6 13.2 C14.6 15.4 10 15.4 9.4 13.8 "
         "M12 6.4 L12 7.6 M12 15 L12 16.2",
         Violet},
        {"detalhar",
         "M2.5 12 C5.5 6.6 9 5.5 12 5.5 C15 5.5 18.5 6.6 21.5 12 C18.5 17.4 15 18.5 12 18.5 "
         "C9 18.5 5.5 17.4 2.5 12 Z O12 12 3",
         Slate},
        {"alterar", "M4 20 L5 15.5 L16 4.5 L19.5 8 L8.5 19 Z M13.5 7 L17 10.5", Slate},
        {"excluir",
         "M4 6.5 L20 6.5 M9 6.5 L9.6 3.8 L14.4 3.8 L15 6.5 M6 6.5 L7 20.5 L17 20.5 L18 6.5 "
         "M10 10.5 L10.4 16.8 M14 10.5 L13.6 16.8",
         Slate},
        {"lupa", "O10.5 10.5 6.2 M15.2 15.2 L20 20", Slate},
        {"limpar", "M6 6 L18 18 M18 6 L6 18", Slate},
    }};
    return drawings;
}

class OutlineReader {
public:
    explicit OutlineReader(const char* outline) : at_(outline) { }

    QPainterPath Read()
    {
        QPainterPath path;
        for (SkipBlanks(); *at_ != '\0'; SkipBlanks())
            AddStep(path, *at_++);
        return path;
    }

private:
    void SkipBlanks()
    {
        while (std::isspace(static_cast<unsigned char>(*at_)))
            ++at_;
    }

    double Number()
    {
        char* end = nullptr;
        const double number = std::strtod(at_, &end);
        at_ = end;
        return number;
    }

    QPointF Point()
    {
        const double x = Number();
        return QPointF(x, Number());
    }

    void AddStep(QPainterPath& path, char step)
    {
        switch (step) {
        case 'M': path.moveTo(Point()); break;
        case 'L': path.lineTo(Point()); break;
        case 'Z': path.closeSubpath(); break;
        case 'C': AddCurve(path); break;
        case 'O': AddCircle(path); break;
        case 'R': AddRectangle(path); break;
        default: break;
        }
    }

    void AddCurve(QPainterPath& path)
    {
        const QPointF first = Point();
        const QPointF second = Point();
        path.cubicTo(first, second, Point());
    }

    void AddCircle(QPainterPath& path)
    {
        const QPointF centre = Point();
        const double radius = Number();
        path.addEllipse(centre, radius, radius);
    }

    void AddRectangle(QPainterPath& path)
    {
        const QPointF place = Point();
        const QPointF size = Point();
        const double radius = Number();
        path.addRoundedRect(QRectF(place.x(), place.y(), size.x(), size.y()), radius, radius);
    }

    const char* at_;
};

const IconDrawing* FindDrawing(std::string_view name)
{
    for (const IconDrawing& drawing : Drawings()) {
        if (drawing.name == name)
            return &drawing;
    }
    return nullptr;
}

const QPainterPath& OutlineOf(const IconDrawing& drawing)
{
    static std::map<std::string_view, QPainterPath> outlines;
    auto found = outlines.find(drawing.name);
    if (found == outlines.end())
        found = outlines.emplace(drawing.name, OutlineReader(drawing.outline).Read()).first;
    return found->second;
}

void DrawOutline(QPainter& painter, const IconDrawing& drawing, const QRectF& square, const QColor& color)
{
    constexpr double units = 24.0;
    constexpr double penWidth = 1.8;
    painter.translate(square.topLeft());
    painter.scale(square.width() / units, square.height() / units);
    painter.setPen(QPen(color, penWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(OutlineOf(drawing));
}

} // namespace

bool HasIcon(std::string_view name) { return FindDrawing(name) != nullptr; }

QColor IconTint(std::string_view name)
{
    const IconDrawing* drawing = FindDrawing(name);
    if (!drawing)
        return look::Ink;
    return CurrentLook() == Look::Dark ? drawing->tint.onDark : drawing->tint.onLight;
}

void PaintIcon(QPainter& painter, std::string_view name, const QRectF& square, const QColor& color)
{
    const IconDrawing* drawing = FindDrawing(name);
    if (!drawing)
        return;
    PaintKept(painter, square, {drawing->name, color}, [&](QPainter& inside, const QRectF& place, double) {
        DrawOutline(inside, *drawing, place, color);
    });
}

} // namespace kova::qt
