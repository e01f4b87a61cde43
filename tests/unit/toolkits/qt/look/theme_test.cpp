#include "tests/unit/toolkits/qt/support.hpp"
#include "toolkits/qt/look/apply_look.hpp"
#include "toolkits/qt/look/icons.hpp"
#include "toolkits/qt/look/pictures.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QApplication>
#include <QPainter>

#include <algorithm>
#include <limits>

namespace kova::qt::test {
namespace {

/// The system's colour of buttons, as forms name it.
constexpr Colour ButtonFace = -2147483633;

/// What the product draws in each of its looks. The light one is back at the end.
class Looks : public ::testing::TestWithParam<Look> {
protected:
    void SetUp() override { ApplyLook(*qApp, GetParam()); }
    void TearDown() override { ApplyLook(*qApp, Look::Light); }
};
INSTANTIATE_TEST_SUITE_P(Theme, Looks, ::testing::Values(Look::Light, Look::Dark),
                         [](const auto& kind) { return kind.param == Look::Light ? "Light" : "Dark"; });

TEST_P(Looks, HaveTextsThatCanBeRead)
{
    for (const QColor& ground : {look::Paper, look::LockedPaper, look::Band}) {
        for (const QColor& ink : {look::Ink, look::MutedInk, look::Placeholder, look::Refusal, look::Accent})
            EXPECT_GE(Contrast(ink, ground), LeastTextContrast)
                << ink.name().toStdString() << " on " << ground.name().toStdString();
    }
    EXPECT_GE(Contrast(look::Paper, look::Accent), LeastTextContrast);
    EXPECT_GE(Contrast(look::Ink, look::AccentTint), LeastTextContrast);
    EXPECT_GE(Contrast(look::Ink, look::Plate), LeastTextContrast);
}

TEST_P(Looks, GiveTheStandardWindowsTheirColours)
{
    const QPalette palette = QApplication::palette();
    EXPECT_GE(Contrast(palette.color(QPalette::WindowText), palette.color(QPalette::Window)),
              LeastTextContrast);
    EXPECT_GE(Contrast(palette.color(QPalette::Text), palette.color(QPalette::Base)), LeastTextContrast);
    EXPECT_GE(Contrast(palette.color(QPalette::ButtonText), palette.color(QPalette::Button)),
              LeastTextContrast);
    EXPECT_GE(Contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)),
              LeastTextContrast);
    EXPECT_GE(Contrast(palette.color(QPalette::ToolTipText), palette.color(QPalette::ToolTipBase)),
              LeastTextContrast);
    EXPECT_EQ(palette.color(QPalette::Base), look::Paper);
}

TEST_P(Looks, LetEveryStatusBeRead)
{
    for (const char* name : {"etiqueta_agendado", "etiqueta_atendido", "etiqueta_cancelado",
                             "etiqueta_atendido_gerado_pre_venda"}) {
        QImage image(120, 24, QImage::Format_RGB32);
        image.fill(look::Paper);
        QPainter painter(&image);
        PaintPicture(painter, kova::Picture{name}, QRectF(0, 0, 120, 24));
        painter.end();
        const QColor ground = image.pixelColor(60, 2);
        double best = 1;
        for (int x = 20; x < 100; ++x)
            best = std::max(best, Contrast(image.pixelColor(x, 12), ground));
        EXPECT_GE(best, LeastTextContrast) << name;
        EXPECT_EQ(ground.lightness() > 128, GetParam() == Look::Light) << name;
    }
}

TEST_P(Looks, LetEveryIconOfARowStandOut)
{
    for (const char* icon :
         {"agendado", "atendido", "cancelado", "pre_venda", "detalhar", "alterar", "excluir"})
        EXPECT_GE(Contrast(IconTint(icon), GroundColor(14277081, look::Plate)), 3.0) << icon;
}

TEST(Pixels, AreTheFarthestOnesForLengthsBeyondThem)
{
    const int farthest = Pixels(1e9F);
    EXPECT_GT(farthest, 1'000'000);
    for (const Twips length : {3e10F, 1e30F, std::numeric_limits<Twips>::infinity()}) {
        EXPECT_EQ(Pixels(length), farthest) << length;
        EXPECT_EQ(Pixels(-length), -farthest) << length;
        EXPECT_EQ(PixelRect(-length, 0, 2 * length, 150).height(), 10) << length;
    }
    EXPECT_EQ(Pixels(std::numeric_limits<Twips>::quiet_NaN()), 0);
}

TEST(Fonts, AreLargeAndNotBrokenForAnySize)
{
    const int largest = MakeFont("Arial", 1e6).pixelSize();
    EXPECT_GT(largest, 1000);
    EXPECT_EQ(MakeFont("Arial", 1e30).pixelSize(), largest);
    EXPECT_EQ(MakeFont("Arial", 1e-30).pixelSize(), 1);
}

class DarkLook : public ::testing::Test {
protected:
    void SetUp() override { ApplyLook(*qApp, Look::Dark); }
    void TearDown() override { ApplyLook(*qApp, Look::Light); }
};

// Grounds and inks that the forms name.
TEST_F(DarkLook, LetsEveryTextOfTheFormsBeRead)
{
    const Colour grounds[] = {colours::White,
                              Rgb(250, 250, 250),
                              Rgb(242, 242, 242),
                              Rgb(217, 217, 217),
                              Rgb(208, 208, 208),
                              Rgb(246, 245, 245),
                              Rgb(189, 215, 242),
                              16617293,
                              14530157,
                              colours::Black,
                              8421504,
                              16382457};
    const Colour inks[] = {colours::Black,     colours::White,      Rgb(73, 73, 73),
                           Rgb(110, 110, 110), Rgb(128, 128, 128),  Rgb(255, 0, 0),
                           Rgb(0, 0, 255),     colours::ButtonText, 4210752};
    for (const Colour ground : grounds) {
        const QColor paper = GroundColor(ground, look::Paper);
        for (const Colour ink : inks)
            EXPECT_GE(Contrast(InkColor(ink, look::Ink, paper), paper), LeastTextContrast)
                << ink << " on " << ground;
    }
}

TEST_F(DarkLook, KeepsTheOrderOfGrounds)
{
    const auto lightness = [](Colour colour) { return GroundColor(colour, look::Paper).lightnessF(); };
    EXPECT_EQ(GroundColor(colours::White, look::Paper), look::Paper);
    EXPECT_LT(lightness(colours::White), lightness(Rgb(242, 242, 242)));
    EXPECT_LT(lightness(Rgb(242, 242, 242)), lightness(Rgb(217, 217, 217)));
    EXPECT_LT(lightness(Rgb(217, 217, 217)), 0.5F);
}

TEST_F(DarkLook, GivesGreysTheTintOfThePaper)
{
    for (const Colour grey : {Rgb(242, 242, 242), Rgb(246, 245, 245), Rgb(217, 217, 217), Rgb(240, 236, 236)})
        EXPECT_NEAR(GroundColor(grey, look::Paper).hslHue(), look::Paper.hslHue(), 6) << grey;
}

TEST_F(DarkLook, KeepsTheHueOfWhatMeansSomething)
{
    const QColor blue = GroundColor(16617293, look::Plate);
    EXPECT_EQ(blue.hslHue(), ToColor(16617293, look::Plate).hslHue());
    EXPECT_LT(InkColor(Rgb(255, 0, 0), look::Ink, look::Paper).hslHue(), 10);
}

TEST_F(DarkLook, LightensAnInkNoFurtherThanItTakesToReadIt)
{
    const double red = Contrast(InkColor(Rgb(255, 0, 0), look::Ink, look::Paper), look::Paper);
    EXPECT_GE(red, LeastTextContrast);
    EXPECT_LT(red, LeastTextContrast + 1);
}

TEST_F(DarkLook, MakesBlackGroundsTheLightestAndPlatesItsOwn)
{
    EXPECT_GT(GroundColor(colours::Black, look::Paper).lightnessF(),
              GroundColor(Rgb(217, 217, 217), look::Paper).lightnessF());
    EXPECT_EQ(GroundColor(ButtonFace, look::Paper), look::Plate);
}

TEST_F(DarkLook, LeavesPaperWhite) { EXPECT_EQ(ToColor(colours::White, look::Paper), QColor(Qt::white)); }

TEST_F(DarkLook, DrawsFormsAndTheirControlsDark)
{
    FrozenClock clock;
    QtToolkit toolkit(clock);
    ControlDesign label = Design(WidgetKind::Label, "lbl", 0, 0, 3000, 300);
    label.caption = "Texto";
    label.foreColor = Rgb(73, 73, 73);
    FormRef form =
        toolkit.CreateForm(Form({label, Design(WidgetKind::KVTextBox, "kvtxt", 0, 600, 3000, 510),
                                 Design(WidgetKind::KVCommandButton, "kvcmd", 0, 1500, 3000, 510)}));
    form->Show(ShowMode::Modeless);
    EXPECT_EQ(CurrentLook(), Look::Dark);
    for (const char* name : {"kvtxt", "kvcmd"})
        EXPECT_LT(Picture(WindowOf(form->Control(name))).pixelColor(20, 17).lightness(), 128) << name;
    const QPalette palette = WindowOf(form->Control("lbl"))->palette();
    EXPECT_GE(Contrast(palette.color(QPalette::WindowText), look::Paper), LeastTextContrast);
}

TEST(LightLook, ShowsTheColoursOfTheFormsAsTheyAre)
{
    EXPECT_EQ(GroundColor(16617293, look::Plate), QColor(77, 143, 253));
    EXPECT_EQ(InkColor(Rgb(110, 110, 110), look::Ink, look::Paper), QColor(110, 110, 110));
    EXPECT_EQ(InkColor(colours::Black, look::Ink, look::Paper), QColor(Qt::black));
    EXPECT_EQ(GroundColor(ButtonFace, look::Paper), QColor(240, 240, 240));
}

TEST(DesktopLook, IsToldByItsPalette)
{
    const QPalette former = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(45, 45, 45), QColor(30, 30, 30)));
    EXPECT_EQ(LookOfDesktop(*qApp), Look::Dark);
    QApplication::setPalette(QPalette(QColor(239, 239, 239), QColor(250, 250, 250)));
    EXPECT_EQ(LookOfDesktop(*qApp), Look::Light);
    QApplication::setPalette(former);
}

} // namespace
} // namespace kova::qt::test
