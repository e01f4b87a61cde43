#include "tests/unit/toolkits/qt/support.hpp"
#include "toolkits/qt/form_area.hpp"
#include "toolkits/qt/handles.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QApplication>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

namespace kova::qt::test {
namespace {

/// Forms that are larger than the screen, made from what it has.
class LargeForms : public QtTest {
protected:
    static QSize Room() { return QGuiApplication::primaryScreen()->availableGeometry().size(); }

    /// A box at the top, one far below, and a row of buttons at the lower edge.
    static FormDesign Tall()
    {
        const Twips height = ToTwips(Room().height() + 300);
        ControlDesign save =
            Design(WidgetKind::KVCommandButton, "kvcmdSalvar", 300, height - 1200, 1500, 510);
        ControlDesign cancel =
            Design(WidgetKind::KVCommandButton, "kvcmdCancelar", 2100, height - 1200, 1500, 510);
        cancel.isCancel = true;
        FormDesign design =
            Form({Design(WidgetKind::KVTextBox, "kvtxtCima", 300, 300, 3000, 510),
                  Design(WidgetKind::KVTextBox, "kvtxtBaixo", 300, height - 2400, 3000, 510), save, cancel});
        design.width = 6000;
        design.height = height;
        return design;
    }

    FormRef Open(const FormDesign& design)
    {
        FormRef form = toolkit_.CreateForm(design);
        form->Show(ShowMode::Modeless);
        Settle();
        return form;
    }

    static FormWidget* WidgetOf(const FormRef& form)
    {
        return dynamic_cast<FormWidget*>(WidgetOfHandle(form->Handle()));
    }

    /// Whether all of the control can be seen in its window.
    static bool IsSeen(Widget& widget)
    {
        const QWidget* control = WindowOf(widget);
        return control->visibleRegion().boundingRect() == control->rect();
    }

    static void Wheel(QWidget* target, int down)
    {
        const QPointF place(target->width() / 2.0, target->height() / 2.0);
        QWheelEvent event(place, target->mapToGlobal(place), QPoint(), QPoint(0, -120 * down), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        // Only what comes from outside goes on to the widgets around.
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(target, &event);
    }
};

TEST_F(LargeForms, FitTheirScreenAndKeepTheirOwnSize)
{
    FormRef form = Open(Tall());
    const QRect frame = WidgetOf(form)->frameGeometry();
    EXPECT_LT(WidgetOf(form)->height(), Room().height());
    EXPECT_TRUE(QGuiApplication::primaryScreen()->availableGeometry().contains(frame));
    EXPECT_EQ(form->Height(), Tall().height);
    EXPECT_EQ(Bind<KVTextBox>(form, "kvtxtBaixo").Top(), Tall().height - 2400);
}

TEST_F(LargeForms, RaiseNoResizeForTheirWindow)
{
    FormRef form = toolkit_.CreateForm(Tall());
    int resizes = 0;
    form->OnResize([&] { ++resizes; });
    form->Show(ShowMode::Modeless);
    Settle();
    EXPECT_EQ(resizes, 1);
}

TEST_F(LargeForms, KeepTheRowOfButtonsInSight)
{
    FormRef form = Open(Tall());
    EXPECT_TRUE(IsSeen(Bind<KVCommandButton>(form, "kvcmdSalvar")));
    EXPECT_TRUE(IsSeen(Bind<KVCommandButton>(form, "kvcmdCancelar")));
    EXPECT_FALSE(IsSeen(Bind<KVTextBox>(form, "kvtxtBaixo")));
}

TEST_F(LargeForms, BringTheBoxThatIsReachedByKeyIntoSight)
{
    FormRef form = Open(Tall());
    auto& low = Bind<KVTextBox>(form, "kvtxtBaixo");
    auto& high = Bind<KVTextBox>(form, "kvtxtCima");
    high.SetFocus();
    Press(FocusWindowOf(high), Qt::Key_Tab);
    EXPECT_TRUE(FocusWindowOf(low)->hasFocus());
    EXPECT_TRUE(IsSeen(low));
    EXPECT_FALSE(IsSeen(high));
    Press(FocusWindowOf(low), Qt::Key_Backtab);
    EXPECT_TRUE(IsSeen(high));
}

/// How far a box is from the far corner of the part of its form that scrolls, in pixels.
QSize RoomBehind(const QWidget& box)
{
    const QWidget* seen = box.parentWidget()->parentWidget();
    const QPoint corner = box.mapTo(seen, QPoint(box.width(), box.height()));
    return seen->size() - QSize(corner.x(), corner.y());
}

TEST_F(LargeForms, LeaveAMarginBehindTheBoxThatIsReached)
{
    FormDesign design = Tall();
    design.width = ToTwips(Room().width() + 400);
    design.controls.front().left = design.width - 3600;
    FormRef form = Open(design);
    auto& low = Bind<KVTextBox>(form, "kvtxtBaixo");
    low.SetFocus();
    EXPECT_EQ(RoomBehind(*WindowOf(low)).height(), 12);
    auto& far = Bind<KVTextBox>(form, "kvtxtCima");
    far.SetFocus();
    EXPECT_EQ(RoomBehind(*WindowOf(far)).width(), 12);
}

TEST_F(LargeForms, ScrollByTheWheelOverAnyControl)
{
    FormRef form = Open(Tall());
    auto& high = Bind<KVTextBox>(form, "kvtxtCima");
    for (int notch = 0; notch < 20; ++notch)
        Wheel(FocusWindowOf(high), 1);
    EXPECT_TRUE(IsSeen(Bind<KVTextBox>(form, "kvtxtBaixo")));
    for (int notch = 0; notch < 20; ++notch)
        Wheel(FocusWindowOf(Bind<KVTextBox>(form, "kvtxtBaixo")), -1);
    EXPECT_TRUE(IsSeen(high));
}

TEST_F(LargeForms, AreReachedToTheirLastLineByTheScrollBar)
{
    FormRef form = Open(Tall());
    QScrollBar* bar = nullptr;
    for (QScrollBar* each : WidgetOf(form)->findChildren<QScrollBar*>()) {
        if (each->orientation() == Qt::Vertical && each->isVisible())
            bar = each;
    }
    ASSERT_NE(bar, nullptr);
    bar->setValue(bar->maximum());
    EXPECT_TRUE(IsSeen(Bind<KVTextBox>(form, "kvtxtBaixo")));
}

TEST_F(LargeForms, ScrollAcrossWhereTheyAreTooWide)
{
    FormDesign design = Tall();
    design.width = ToTwips(Room().width() + 400);
    design.controls.front().left = design.width - 3300;
    FormRef form = Open(design);
    auto& far = Bind<KVTextBox>(form, "kvtxtCima");
    auto& near = Bind<KVTextBox>(form, "kvtxtBaixo");
    near.SetFocus();
    EXPECT_FALSE(IsSeen(far));
    Press(FocusWindowOf(near), Qt::Key_Backtab);
    EXPECT_TRUE(IsSeen(far));
    EXPECT_LE(WidgetOf(form)->width(), Room().width());
    EXPECT_TRUE(IsSeen(Bind<KVCommandButton>(form, "kvcmdCancelar")));
}

TEST_F(LargeForms, KeepButtonsInSightAtTheFarEndOfTheirRow)
{
    FormDesign design = Tall();
    design.width = ToTwips(Room().width() + 400);
    design.controls[2].left = design.width - 3900;
    design.controls[3].left = design.width - 2100;
    FormRef form = Open(design);
    auto& save = Bind<KVCommandButton>(form, "kvcmdSalvar");
    auto& low = Bind<KVTextBox>(form, "kvtxtBaixo");
    EXPECT_TRUE(IsSeen(save));
    EXPECT_TRUE(IsSeen(Bind<KVCommandButton>(form, "kvcmdCancelar")));
    low.SetFocus();
    EXPECT_TRUE(IsSeen(low));
    save.SetFocus();
    EXPECT_TRUE(IsSeen(low));
    EXPECT_TRUE(IsSeen(save));
}

TEST_F(LargeForms, TakeWhatTheScreenHasWhereTheUserGivesTheirSize)
{
    FormDesign design = Tall();
    design.resizable = true;
    FormRef form = Open(design);
    EXPECT_LT(form->Height(), design.height);
    EXPECT_EQ(WidgetOf(form)->height(), Pixels(form->ScaleHeight()));
}

TEST_F(LargeForms, ScrollInAContainerBelowTheirLeastSize)
{
    QWidget container;
    container.resize(400, 300);
    container.show();
    FormDesign design = Form({Design(WidgetKind::KVTextBox, "kvtxtCima", 300, 300, 3000, 510),
                              Design(WidgetKind::KVTextBox, "kvtxtBaixo", 300, 8000, 3000, 510)});
    design.leastWidth = 7500;
    design.leastHeight = 9000;
    FormRef form = toolkit_.CreateForm(design);
    form->SetParent(HandleOf(container));
    form->Show(ShowMode::Modeless);
    Settle();
    EXPECT_EQ(form->ScaleWidth(), 7500);
    EXPECT_EQ(form->ScaleHeight(), 9000);
    auto& low = Bind<KVTextBox>(form, "kvtxtBaixo");
    EXPECT_FALSE(IsSeen(low));
    low.SetFocus();
    EXPECT_TRUE(IsSeen(low));
    container.resize(700, 700);
    Settle();
    EXPECT_EQ(form->ScaleWidth(), 10500);
    EXPECT_TRUE(IsSeen(Bind<KVTextBox>(form, "kvtxtCima")));
}

TEST_F(LargeForms, GiveWayToTheScrollBarOfTheirLeastSize)
{
    QWidget container;
    container.resize(400, 300);
    container.show();
    FormDesign design = Form({});
    design.leastWidth = 4500;
    design.leastHeight = 9000;
    FormRef form = toolkit_.CreateForm(design);
    form->SetParent(HandleOf(container));
    form->Show(ShowMode::Modeless);
    EXPECT_GT(form->ScaleWidth(), 4500);
    EXPECT_LT(form->ScaleWidth(), 6000);
    EXPECT_FALSE(WidgetOf(form)->findChildren<QScrollBar*>()[1]->isVisible());
    design.leastWidth = 9000;
    design.leastHeight = 3000;
    FormRef wide = toolkit_.CreateForm(design);
    wide->SetParent(HandleOf(container));
    EXPECT_EQ(wide->ScaleWidth(), 9000);
    EXPECT_LT(wide->ScaleHeight(), 4500);
}

/// A panel with four lines at the lower edge of a form that takes the room of its container.
class PanelAtTheEdge : public LargeForms {
protected:
    static constexpr int RoomBelow = 50;

    PanelAtTheEdge()
    {
        container_.resize(500, 400);
        container_.show();
        ControlDesign panel =
            Design(WidgetKind::PictureBox, "picPainel", 0, ToTwips(400 - RoomBelow), 6000, ToTwips(75));
        std::vector<ControlDesign> controls{panel};
        for (int line = 0; line < Lines; ++line) {
            ControlDesign label = Design(WidgetKind::Label, "lbl", 0, ToTwips(3 + 17 * line), 0, 0);
            label.index = line;
            label.container = "picPainel";
            label.caption = "Serviço";
            label.autoSize = true;
            label.fontSize = 9;
            controls.push_back(label);
        }
        form_ = toolkit_.CreateForm(Form(controls));
        form_->SetParent(HandleOf(container_));
        form_->Show(ShowMode::Modeless);
        Settle();
    }
    QWidget* Line(int index) { return WindowOf(form_->Control("lbl", index)); }

    static constexpr int Lines = 4;
    QWidget container_;
    FormRef form_;
};

TEST_F(PanelAtTheEdge, DrawsItsLinesCloserSoThatAllAreSeen)
{
    for (int line = 0; line < Lines; ++line) {
        EXPECT_EQ(Line(line)->visibleRegion().boundingRect(), Line(line)->rect()) << line;
        if (line > 0) {
            EXPECT_GE(Line(line)->y(), Line(line - 1)->y() + 13);
        }
    }
    EXPECT_EQ(form_->Control("picPainel").Top(), ToTwips(400 - RoomBelow));
    EXPECT_EQ(form_->Control("picPainel").Height(), ToTwips(75));
}

TEST_F(PanelAtTheEdge, DrawsThemAsDesignedOnceThereIsRoom)
{
    container_.resize(500, 500);
    Settle();
    EXPECT_EQ(WindowOf(form_->Control("picPainel"))->geometry(), QRect(0, 400 - RoomBelow, 400, 75));
    for (int line = 0; line < Lines; ++line)
        EXPECT_EQ(Line(line)->y(), 3 + 17 * line);
}

TEST_F(LargeForms, ScrollAcrossByTheWheel)
{
    FormDesign design = Tall();
    design.width = ToTwips(Room().width() + 400);
    FormRef both = Open(design);
    design.height = 6000;
    design.controls.resize(1);
    FormRef wide = Open(design);
    const auto leftOf = [](const FormRef& form) {
        const QWidget* box = WindowOf(form->Control("kvtxtCima"));
        return box->mapTo(WidgetOf(form), QPoint()).x();
    };
    const auto turn = [](const FormRef& form, const QPoint& by) {
        QWidget* target = FocusWindowOf(form->Control("kvtxtCima"));
        const QPointF place(5, 5);
        QWheelEvent event(place, target->mapToGlobal(place), QPoint(), by, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(target, &event);
    };
    for (const FormRef& form : {both, wide}) {
        const int before = leftOf(form);
        turn(form, QPoint(-120, 0));
        EXPECT_LT(leftOf(form), before) << "sideways";
    }
    const int before = leftOf(wide);
    turn(wide, QPoint(0, -120));
    EXPECT_LT(leftOf(wide), before) << "down, where there is nothing to scroll down";
}

TEST_F(PanelAtTheEdge, MayHoldPicturesThatAreNotDrawn)
{
    ControlDesign panel =
        Design(WidgetKind::PictureBox, "picPainel", 0, ToTwips(400 - RoomBelow), 6000, ToTwips(75));
    ControlDesign picture = Design(WidgetKind::Image, "img", 0, 0, 300, 300);
    picture.container = "picPainel";
    FormRef form = toolkit_.CreateForm(Form({panel, picture}));
    form->SetParent(HandleOf(container_));
    form->Show(ShowMode::Modeless);
    EXPECT_LT(WindowOf(form->Control("picPainel"))->height(), 75);
}

TEST(RoomInAForm, NeedsNoBarWhereItIsTheLeastThatTheFormNeeds)
{
    FormDesign design = Form({});
    design.leastWidth = ToTwips(300);
    design.leastHeight = ToTwips(200);
    for (const QSize& room : {QSize(300, 200), QSize(305, 200), QSize(300, 205), QSize(500, 200)})
        EXPECT_EQ(InnerSizeWithin(design, room), room) << room.width() << "x" << room.height();
    EXPECT_EQ(InnerSizeWithin(design, QSize(299, 400)).width(), 300);
    EXPECT_LT(InnerSizeWithin(design, QSize(299, 400)).height(), 400);
}

TEST(FormFoot, BeginsAboveTheButtonsThatEndTheForm)
{
    FormDesign design = Form({Design(WidgetKind::KVTextBox, "kvtxt", 300, 300, 3000, 510),
                              Design(WidgetKind::KVCommandButton, "kvcmd", 300, 8000, 1500, 510)});
    EXPECT_EQ(FootTopOf(design), 0);
    design.controls.back().isCancel = true;
    EXPECT_EQ(FootTopOf(design), 7880);
    design.controls.front().height = 7880 - 300;
    EXPECT_EQ(FootTopOf(design), 7880) << "a box that ends there";
    design.controls.front().top = 7880;
    EXPECT_EQ(FootTopOf(design), 7880) << "a box that begins there";
    design.controls.front().top = 7870;
    EXPECT_EQ(FootTopOf(design), 0);
}

} // namespace
} // namespace kova::qt::test
