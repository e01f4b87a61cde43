#include "tests/conformance/widgets/suite.hpp"

namespace kova::conformance {

namespace {

constexpr Twips ContainerWidth = 12000;
constexpr Twips ContainerHeight = 11400;
constexpr Twips Gap = 150;

struct Size {
    Twips width;
    Twips height;
};

Size SizeOf(WidgetKind kind)
{
    switch (kind) {
    case WidgetKind::MSFlexGrid: return {9000, 4500};
    case WidgetKind::PictureBox: return {6000, 1500};
    case WidgetKind::KVNavigationBar: return {5250, 600};
    case WidgetKind::KVTheme: return {12000, 795};
    case WidgetKind::Menu: return {0, 0};
    default: return {3000, 510};
    }
}

} // namespace

WidgetsTest::WidgetsTest()
{
    design_.name = "frm";
    design_.caption = "Teste";
}

void WidgetsTest::TearDown()
{
    form_.reset();
    bench_->Settle();
    EXPECT_EQ(TheScript().Unused(), 0U);
    EXPECT_EQ(TakeUnhandled(), std::vector<std::int32_t>());
}

ControlDesign& WidgetsTest::Has(WidgetKind kind, std::string name)
{
    ControlDesign control;
    control.kind = kind;
    control.name = std::move(name);
    control.top = nextTop_;
    control.width = SizeOf(kind).width;
    control.height = SizeOf(kind).height;
    if (kind != WidgetKind::Menu)
        nextTop_ += control.height + Gap;
    design_.controls.push_back(control);
    return design_.controls.back();
}

void WidgetsTest::Make()
{
    container_ = bench_->MakeContainer(ContainerWidth, ContainerHeight);
    form_ = Kit().CreateForm(design_);
    form_->SetParent(container_);
}

void WidgetsTest::Open()
{
    Make();
    form_->Show(ShowMode::Modeless);
    bench_->Settle();
}

FormRef WidgetsTest::MakeWindow(const std::string& name)
{
    FormDesign design = design_;
    design.name = name;
    return Kit().CreateForm(design);
}

std::vector<std::int32_t> WidgetsTest::TakeUnhandled()
{
    bench_->Settle();
    const std::size_t seen = std::exchange(unhandledSeen_, TheScript().unhandled.size());
    const auto& all = TheScript().unhandled;
    return {all.begin() + static_cast<std::ptrdiff_t>(seen), all.end()};
}

} // namespace kova::conformance
