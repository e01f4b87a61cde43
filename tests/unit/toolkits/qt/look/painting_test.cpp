#include "tests/unit/toolkits/qt/support.hpp"
#include "toolkits/qt/caption_label.hpp"
#include "toolkits/qt/look/icons.hpp"
#include "toolkits/qt/look/kept_picture.hpp"
#include "toolkits/qt/look/painting.hpp"
#include "toolkits/qt/look/pictures.hpp"
#include "toolkits/qt/look/theme.hpp"
#include "toolkits/qt/picture_box.hpp"

#include <QPainter>

namespace kova::qt::test {
namespace {

constexpr QSize Sheet(60, 30);
constexpr QRectF Everywhere(0, 0, 60, 30);

QImage On(const QColor& ground, const std::function<void(QPainter&)>& draw)
{
    QImage image(Sheet, QImage::Format_RGB32);
    image.fill(ground);
    QPainter painter(&image);
    draw(painter);
    return image;
}

/// The colour in the middle of a row of pixels, counted from the top.
QColor AtTop(const QImage& image, int row) { return image.pixelColor(image.width() / 2, row); }

QImage RingOn(const QColor& ground)
{
    return On(ground, [&](QPainter& painter) { PaintFocusRing(painter, Everywhere, ground); });
}

TEST(FocusRing, IsOneLineOnPaper)
{
    const QImage ring = RingOn(look::Paper);
    EXPECT_EQ(AtTop(ring, 0), look::Accent);
    EXPECT_EQ(AtTop(ring, 1), look::Accent);
    EXPECT_EQ(AtTop(ring, 2), look::Paper);
}

TEST(FocusRing, HasALineOfPaperInsideOnADarkGround)
{
    const QImage ring = RingOn(Qt::black);
    EXPECT_EQ(AtTop(ring, 0), look::Accent);
    EXPECT_EQ(AtTop(ring, 2), look::Paper);
    EXPECT_EQ(AtTop(ring, 3), QColor(Qt::black));
}

TEST(FocusRing, IsInkWhereTheAccentWouldNotBeSeen)
{
    const QImage ring = RingOn(look::Accent);
    EXPECT_EQ(AtTop(ring, 0), look::Ink);
    EXPECT_EQ(AtTop(ring, 2), look::Paper);
}

TEST(FocusRing, IsAsRoundAcrossAsDown)
{
    QImage ring(40, 40, QImage::Format_RGB32);
    ring.fill(Qt::black);
    QPainter painter(&ring);
    PaintFocusRing(painter, ring.rect(), Qt::black);
    painter.end();
    EXPECT_LT(MostDifferenceTurned(ring), 16);
}

TEST(FieldBorder, StandsOutUnderTheMouseWhereTheFieldTakesTyping)
{
    const auto border = [](const FieldState& state) {
        return AtTop(
            On(look::Band, [&](QPainter& painter) { PaintField(painter, Everywhere, state, look::Paper); }),
            0);
    };
    EXPECT_EQ(border({}), look::Border);
    EXPECT_EQ(border({.locked = true}), look::Border);
    EXPECT_EQ(border({.underMouse = true}), look::BorderUnderMouse);
    EXPECT_EQ(border({.locked = true, .underMouse = true}), look::Border);
    EXPECT_EQ(border({.underMouse = true, .focused = true}), look::Accent);
    EXPECT_EQ(border({.enabled = false, .underMouse = true}), look::Rule);
}

/// How often a picture is drawn while it is painted twice.
int DrawnTimes(const char* name, const QTransform& transform, const QRectF& area)
{
    int times = 0;
    for (int round = 0; round < 2; ++round)
        On(Qt::white, [&](QPainter& painter) {
            painter.setTransform(transform);
            PaintKept(painter, area, {name, Qt::red}, [&](QPainter& inside, const QRectF& place, double) {
                ++times;
                inside.fillRect(place, Qt::red);
            });
        });
    return times;
}

TEST(KeptPicture, IsDrawnOnceWhereThePainterMovesAndScales)
{
    EXPECT_EQ(DrawnTimes("moved", QTransform::fromTranslate(3, 4), QRectF(0, 0, 10, 10)), 1);
    EXPECT_EQ(DrawnTimes("scaled", QTransform::fromScale(1.5, 1.5), QRectF(0, 0, 10, 10)), 1);
}

TEST(KeptPicture, IsDrawnEachTimeWhereThePainterTurns)
{
    EXPECT_EQ(DrawnTimes("turned", QTransform().rotate(30), QRectF(0, 0, 10, 10)), 2);
}

TEST(KeptPicture, OfNoSizeIsNotKept)
{
    EXPECT_EQ(DrawnTimes("nothing", QTransform(), QRectF(0, 0, 0, 10)), 2);
}

TEST(KeptPicture, IsToldFromOthersByColourAndSize)
{
    const auto painted = [](const QColor& color, int edge) {
        return On(Qt::white,
                  [&](QPainter& painter) { PaintPlate(painter, QRectF(0, 0, edge, edge), color, 0); });
    };
    painted(Qt::red, 20);
    EXPECT_EQ(painted(Qt::blue, 20).pixelColor(10, 10), QColor(Qt::blue));
    EXPECT_EQ(painted(Qt::red, 10).pixelColor(15, 15), QColor(Qt::white));
    EXPECT_EQ(painted(Qt::red, 20).pixelColor(15, 15), QColor(Qt::red));
}

TEST(Icons, GoWhereTheirOutlinesSay)
{
    const QImage plus = On(Qt::white, [](QPainter& painter) {
        PaintIcon(painter, "adicionar", QRectF(0, 0, 24, 24), Qt::black);
    });
    const auto isInked = [&](int x, int y) { return plus.pixelColor(x, y) != Qt::white; };
    for (const QPoint& place : {QPoint(12, 6), QPoint(12, 18), QPoint(6, 12), QPoint(18, 12)})
        EXPECT_TRUE(isInked(place.x(), place.y())) << place.x() << ' ' << place.y();
    for (const QPoint& place : {QPoint(6, 6), QPoint(18, 6), QPoint(6, 18), QPoint(18, 18), QPoint(12, 2)})
        EXPECT_FALSE(isInked(place.x(), place.y())) << place.x() << ' ' << place.y();
}

TEST(Icons, ThatDoNotExistDrawNothing)
{
    EXPECT_TRUE(HasIcon("lupa"));
    EXPECT_FALSE(HasIcon("trator"));
    const QImage blank = On(Qt::white, [](QPainter&) {});
    const auto drawn = [](const char* name) {
        return On(Qt::white,
                  [&](QPainter& painter) { PaintIcon(painter, name, QRectF(0, 0, 24, 24), Qt::black); });
    };
    EXPECT_EQ(drawn("trator"), blank);
    EXPECT_NE(drawn("lupa"), blank);
    EXPECT_EQ(IconTint("trator"), look::Ink);
}

TEST(StatusPictures, ThatDoNotExistDrawNothing)
{
    const QImage drawn = On(Qt::white, [](QPainter& painter) {
        PaintPicture(painter, kova::Picture{"etiqueta_perdido"}, Everywhere);
    });
    EXPECT_EQ(drawn, On(Qt::white, [](QPainter&) {}));
    EXPECT_EQ(PictureText(kova::Picture{"etiqueta_perdido"}), QString());
    EXPECT_EQ(PictureText(kova::Picture{"etiqueta_cancelado"}), QStringLiteral("Cancelado"));
}

TEST(Panels, AreSquareUntilTheirCornersAreRounded)
{
    PanelWindow panel(nullptr);
    panel.resize(Sheet);
    panel.SetGround(Qt::red);
    EXPECT_EQ(Picture(&panel).pixelColor(0, 0), QColor(Qt::red));
    panel.SetCorners(8);
    EXPECT_NE(Picture(&panel).pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(Picture(&panel).pixelColor(30, 15), QColor(Qt::red));
    EXPECT_FALSE(panel.testAttribute(Qt::WA_OpaquePaintEvent)) << "what lies below shows at the corners";
    panel.SetCorners(0);
    EXPECT_TRUE(panel.testAttribute(Qt::WA_OpaquePaintEvent));
    EXPECT_EQ(Picture(&panel).pixelColor(0, 0), QColor(Qt::red));
}

/// A caption is drawn as a label of the desktop draws it.
class Captions : public ::testing::Test {
protected:
    Captions()
    {
        for (QLabel* label : {static_cast<QLabel*>(&ours_), &usual_}) {
            label->setFont(MakeFont("Arial", 9));
            label->resize(120, 50);
            label->setTextFormat(Qt::PlainText);
            label->setText(QStringLiteral("Animal"));
        }
    }
    void Both(const std::function<void(QLabel&)>& change)
    {
        change(ours_);
        change(usual_);
    }

    CaptionLabel ours_;
    QLabel usual_;
};

TEST_F(Captions, OfSeveralLinesAreAlignedLineByLine)
{
    Both([](QLabel& label) {
        label.setText(QStringLiteral("Observação\nde hoje"));
        label.setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    });
    EXPECT_EQ(Picture(&ours_), Picture(&usual_));
}

TEST_F(Captions, ThatWrapAreBroken)
{
    Both([](QLabel& label) {
        label.setText(QStringLiteral("Uma observação mais comprida do que a linha"));
        label.setWordWrap(true);
    });
    EXPECT_EQ(Picture(&ours_), Picture(&usual_));
}

TEST_F(Captions, OfFieldsUnderlineTheirLetter)
{
    QWidget field;
    Both([&](QLabel& label) {
        label.setText(QStringLiteral("&Animal"));
        label.setBuddy(&field);
    });
    EXPECT_EQ(Picture(&ours_), Picture(&usual_));
}

TEST_F(Captions, OfWhatCannotBeUsedArePale)
{
    Both([](QLabel& label) { label.setEnabled(false); });
    EXPECT_EQ(Picture(&ours_), Picture(&usual_));
}

TEST_F(Captions, AreDrawnAnewWhereTextOrFontChange)
{
    const auto fresh = [](const char* text, double points) {
        CaptionLabel label;
        label.setFont(MakeFont("Arial", points));
        label.resize(120, 50);
        label.setTextFormat(Qt::PlainText);
        label.setText(QString::fromUtf8(text));
        return Picture(&label);
    };
    EXPECT_EQ(Picture(&ours_), fresh("Animal", 9));
    ours_.setText(QStringLiteral("Cliente"));
    EXPECT_EQ(Picture(&ours_), fresh("Cliente", 9));
    ours_.setFont(MakeFont("Arial", 14));
    EXPECT_EQ(Picture(&ours_), fresh("Cliente", 14));
    EXPECT_NE(fresh("Cliente", 9), fresh("Cliente", 14));
}

class Drawings : public QtTest { };

TEST_F(Drawings, ARuleIsFilledAndAFrameIsAnOutline)
{
    ControlDesign rule = Design(WidgetKind::Shape, "rule", 0, 0, 900, 15);
    ControlDesign frame = Design(WidgetKind::Shape, "frame", 0, 300, 900, 450);
    ControlDesign filled = Design(WidgetKind::Shape, "filled", 0, 900, 900, 450);
    rule.foreColor = frame.foreColor = filled.foreColor = colours::Red;
    filled.backColor = Rgb(0, 0, 255);
    ControlDesign tinted = rule;
    tinted.name = "tinted";
    tinted.top = 150;
    tinted.backColor = Rgb(0, 255, 0);
    FormRef form = Show({rule, tinted, frame, filled});
    const auto middle = [&](const char* name) {
        const QImage image = Picture(WindowOf(form->Control(name)));
        return image.pixelColor(image.width() / 2, image.height() / 2);
    };
    const auto edge = [&](const char* name) {
        return Picture(WindowOf(form->Control(name))).pixelColor(5, 0);
    };
    EXPECT_EQ(edge("rule"), QColor(Qt::red));
    EXPECT_EQ(edge("tinted"), QColor(Qt::green)) << "no line of another colour around it";
    EXPECT_EQ(edge("frame"), QColor(Qt::red));
    EXPECT_EQ(edge("filled"), QColor(Qt::red));
    EXPECT_EQ(middle("filled"), QColor(Qt::blue));
    EXPECT_NE(middle("frame"), QColor(Qt::red));
    EXPECT_NE(middle("frame"), middle("filled"));
}

TEST_F(Drawings, ALabelHasAGroundWhereItsDesignGivesItOne)
{
    ControlDesign filled = Design(WidgetKind::Label, "filled", 0, 0, 900, 450);
    filled.backColor = colours::Red;
    FormRef form = Show({filled, Design(WidgetKind::Label, "bare", 0, 600, 900, 450)});
    EXPECT_EQ(Picture(WindowOf(form->Control("filled"))).pixelColor(20, 20), QColor(Qt::red));
    EXPECT_FALSE(WindowOf(form->Control("bare"))->autoFillBackground());
}

TEST_F(Drawings, ABandEndsWithARule)
{
    FormRef form = Show({Design(WidgetKind::KVTheme, "band", 0, 0, 6000, 900)});
    const QImage band = Picture(WindowOf(form->Control("band")));
    EXPECT_EQ(AtTop(band, band.height() - 1), look::Rule);
    EXPECT_EQ(AtTop(band, band.height() - 2), look::Band);
}

} // namespace
} // namespace kova::qt::test
