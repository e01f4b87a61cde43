#include "tools/scenario/shown_members.hpp"

#include "agenda/contracts/text.hpp"
#include "toolkits/common/access_observer.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/common/grid/grid.hpp"
#include "tools/scenario/value_text.hpp"

#include <charconv>
#include <functional>
#include <map>
#include <optional>

namespace kova::scenario {

namespace {

/// Reads one member of a widget; the arguments are those in brackets behind the member.
using Reader = std::function<Value(Widget&, const std::vector<Long>&)>;

struct ReadableMember {
    Reader read;
    std::size_t arguments = 0;
};

using Members = std::map<std::string, ReadableMember, std::less<>>;

Value Number(Twips twips) { return static_cast<Double>(twips); }

/// A member without arguments, read through the contract of one kind.
template <class Kind, class Read> ReadableMember Plain(Read read)
{
    return {[read](Widget& widget, const std::vector<Long>&) {
        return Value(read(dynamic_cast<Kind&>(widget)));
    }};
}

template <class Kind, class Read> ReadableMember Indexed(Read read)
{
    return {[read](Widget& widget, const std::vector<Long>& at) {
                return Value(read(dynamic_cast<Kind&>(widget), at[0]));
            },
            1};
}

template <class Read> ReadableMember OfCell(Read read)
{
    return {[read](Widget& widget, const std::vector<Long>& at) {
                auto& grid = dynamic_cast<toolkit::GridModel&>(widget);
                grid.TextMatrix(at[0], at[1]); // fails with 381 outside the cells
                return Value(read(grid, at[0], at[1]));
            },
            2};
}

Integer Row16(Long row) { return Checked(row); }

Members CommonMembers()
{
    return {
        {"Left", Plain<Widget>([](Widget& w) { return Number(w.Left()); })},
        {"Top", Plain<Widget>([](Widget& w) { return Number(w.Top()); })},
        {"Width", Plain<Widget>([](Widget& w) { return Number(w.Width()); })},
        {"Height", Plain<Widget>([](Widget& w) { return Number(w.Height()); })},
        {"Visible", Plain<Widget>([](Widget& w) { return w.Visible(); })},
        {"Enabled", Plain<Widget>([](Widget& w) { return w.Enabled(); })},
        {"TabStop", Plain<Widget>([](Widget& w) { return w.TabStop(); })},
        {"ToolTipText", Plain<Widget>([](Widget& w) { return w.ToolTipText(); })},
        {"Tag", Plain<Widget>([](Widget& w) { return w.Tag(); })},
    };
}

Members ComboMembers()
{
    return {
        {"Text", Plain<KVComboBox>([](KVComboBox& c) { return c.Text(); })},
        {"ListIndex", Plain<KVComboBox>([](KVComboBox& c) { return c.ListIndex(); })},
        {"NewIndex", Plain<KVComboBox>([](KVComboBox& c) { return c.NewIndex(); })},
        {"ListCount", Plain<KVComboBox>([](KVComboBox& c) { return c.ListCount(); })},
        {"List", Indexed<KVComboBox>([](KVComboBox& c, Long row) { return c.List(Row16(row)); })},
        {"ItemData", Indexed<KVComboBox>([](KVComboBox& c, Long row) { return c.ItemData(Row16(row)); })},
    };
}

Members GridMembers()
{
    using Grid = MSFlexGrid;
    using Model = toolkit::GridModel;
    return {
        {"Rows", Plain<Grid>([](Grid& g) { return g.Rows(); })},
        {"Cols", Plain<Grid>([](Grid& g) { return g.Cols(); })},
        {"FixedRows", Plain<Grid>([](Grid& g) { return g.FixedRows(); })},
        {"FixedCols", Plain<Grid>([](Grid& g) { return g.FixedCols(); })},
        {"Row", Plain<Grid>([](Grid& g) { return g.Row(); })},
        {"Col", Plain<Grid>([](Grid& g) { return g.Col(); })},
        {"RowSel", Plain<Grid>([](Grid& g) { return g.RowSel(); })},
        {"ColSel", Plain<Grid>([](Grid& g) { return g.ColSel(); })},
        {"TopRow", Plain<Grid>([](Grid& g) { return g.TopRow(); })},
        {"SelectionMode", Plain<Grid>([](Grid& g) { return g.SelectionMode(); })},
        {"Redraw", Plain<Grid>([](Grid& g) { return g.Redraw(); })},
        {"FontName", Plain<Grid>([](Grid& g) { return g.FontName(); })},
        {"FontSize", Plain<Grid>([](Grid& g) { return static_cast<Double>(g.FontSize()); })},
        {"CellLeft", Plain<Grid>([](Grid& g) { return g.CellLeft(); })},
        {"CellTop", Plain<Grid>([](Grid& g) { return g.CellTop(); })},
        {"CellWidth", Plain<Grid>([](Grid& g) { return g.CellWidth(); })},
        {"CellHeight", Plain<Grid>([](Grid& g) { return g.CellHeight(); })},
        {"ColWidth", Indexed<Grid>([](Grid& g, Long col) { return g.ColWidth(col); })},
        {"ColAlignment", Indexed<Grid>([](Grid& g, Long col) { return g.ColAlignment(col); })},
        {"ColData", Indexed<Grid>([](Grid& g, Long col) { return g.ColData(col); })},
        {"RowHeight", Indexed<Grid>([](Grid& g, Long row) { return g.RowHeight(row); })},
        {"TextMatrix", OfCell([](Model& g, Long row, Long col) { return g.CellText(row, col); })},
        {"CellBackColor", OfCell([](Model& g, Long row, Long col) { return g.LookOfCell(row, col).back; })},
        {"CellForeColor", OfCell([](Model& g, Long row, Long col) { return g.LookOfCell(row, col).fore; })},
        {"CellFontBold", OfCell([](Model& g, Long row, Long col) { return g.LookOfCell(row, col).bold; })},
        {"CellPicture", OfCell([](Model& g, Long row, Long col) { return g.PictureOfCell(row, col); })},
    };
}

/// Members of a kind beyond those that every widget has.
Members MembersOf(WidgetKind kind)
{
    switch (kind) {
    case WidgetKind::KVComboBox: return ComboMembers();
    case WidgetKind::MSFlexGrid: return GridMembers();
    case WidgetKind::KVTextBox:
        return {{"Text", Plain<KVTextBox>([](KVTextBox& b) { return b.Text(); })},
                {"Locked", Plain<KVTextBox>([](KVTextBox& b) { return b.Locked(); })},
                {"MaxLength", Plain<KVTextBox>([](KVTextBox& b) { return Long{b.MaxLength()}; })}};
    case WidgetKind::KVFind:
        return {{"Text", Plain<KVFind>([](KVFind& b) { return b.Text(); })},
                {"Status", Plain<KVFind>([](KVFind& b) { return b.Status(); })},
                {"Style", Plain<KVFind>([](KVFind& b) { return b.Style(); })}};
    case WidgetKind::KVDTPicker: return {{"Text", Plain<KVDTPicker>([](KVDTPicker& b) { return b.Text(); })}};
    case WidgetKind::KVTime: return {{"Text", Plain<KVTime>([](KVTime& b) { return b.Text(); })}};
    case WidgetKind::KVNumberBox:
        return {{"Text", Plain<KVNumberBox>([](KVNumberBox& b) { return b.Text(); })}};
    case WidgetKind::KVCommandButton:
        return {{"Caption", Plain<KVCommandButton>([](KVCommandButton& b) { return b.Caption(); })}};
    case WidgetKind::KVTheme:
        return {{"Caption", Plain<KVTheme>([](KVTheme& b) { return b.Caption(); })},
                {"DataOfInclusion", Plain<KVTheme>([](KVTheme& b) { return b.DataOfInclusion(); })},
                {"DataOfAlteration", Plain<KVTheme>([](KVTheme& b) { return b.DataOfAlteration(); })}};
    case WidgetKind::KVNavigationBar:
        return {{"FirstRecord", Plain<KVNavigationBar>([](KVNavigationBar& b) { return b.FirstRecord(); })},
                {"LastRecord", Plain<KVNavigationBar>([](KVNavigationBar& b) { return b.LastRecord(); })},
                {"RecordCount", Plain<KVNavigationBar>([](KVNavigationBar& b) { return b.RecordCount(); })},
                {"PageSize", Plain<KVNavigationBar>([](KVNavigationBar& b) { return b.PageSize(); })}};
    case WidgetKind::Label:
        return {{"Caption", Plain<Label>([](Label& l) { return l.Caption(); })},
                {"ForeColor", Plain<Label>([](Label& l) { return l.ForeColor(); })}};
    case WidgetKind::Image: return {{"Picture", Plain<Image>([](Image& i) { return i.Picture().name; })}};
    case WidgetKind::CheckBox:
        return {{"Caption", Plain<CheckBox>([](CheckBox& b) { return b.Caption(); })},
                {"Value", Plain<CheckBox>([](CheckBox& b) { return b.Value(); })}};
    case WidgetKind::OptionButton:
        return {{"Caption", Plain<OptionButton>([](OptionButton& b) { return b.Caption(); })},
                {"Value", Plain<OptionButton>([](OptionButton& b) { return b.Value(); })}};
    case WidgetKind::Menu: return {{"Caption", Plain<Menu>([](Menu& m) { return m.Caption(); })}};
    case WidgetKind::PictureBox:
    case WidgetKind::Shape: return {};
    }
    return {};
}

/// What `show FORM.CONTROL` prints of each kind.
std::vector<std::string> UsualMembers(WidgetKind kind)
{
    switch (kind) {
    case WidgetKind::KVComboBox: return {"Text", "ListIndex", "ListCount", "Visible", "Enabled"};
    case WidgetKind::KVFind: return {"Text", "Status", "Visible", "Enabled"};
    case WidgetKind::KVTextBox:
    case WidgetKind::KVDTPicker:
    case WidgetKind::KVTime:
    case WidgetKind::KVNumberBox: return {"Text", "Visible", "Enabled"};
    case WidgetKind::KVCommandButton: return {"Caption", "ToolTipText", "Visible", "Enabled"};
    case WidgetKind::KVTheme: return {"Caption", "DataOfInclusion", "DataOfAlteration"};
    case WidgetKind::KVNavigationBar:
        return {"FirstRecord", "LastRecord", "RecordCount", "PageSize", "Visible"};
    case WidgetKind::MSFlexGrid:
        return {"Rows", "Cols", "Row", "Col", "RowSel", "ColSel", "Visible", "Enabled"};
    case WidgetKind::Label: return {"Caption", "ForeColor", "Visible"};
    case WidgetKind::Image: return {"Picture"};
    case WidgetKind::CheckBox:
    case WidgetKind::OptionButton: return {"Value", "Visible", "Enabled"};
    case WidgetKind::Menu: return {"Caption", "Visible", "Enabled"};
    case WidgetKind::PictureBox:
    case WidgetKind::Shape: return {"Left", "Top", "Width", "Height", "Visible"};
    }
    return {};
}

/// The member that holds what the user reads; "" where the kind has none.
std::string TextMember(WidgetKind kind)
{
    const Members members = MembersOf(kind);
    for (const char* name : {"Text", "Caption"}) {
        if (members.contains(name))
            return name;
    }
    return {};
}

const std::map<std::string, std::function<Value(Form&)>, std::less<>>& FormMembers()
{
    static const std::map<std::string, std::function<Value(Form&)>, std::less<>> members{
        {"Caption", [](Form& f) { return Value(f.Caption()); }},
        {"Visible", [](Form& f) { return Value(f.Visible()); }},
        {"Enabled", [](Form& f) { return Value(f.Enabled()); }},
        {"Left", [](Form& f) { return Number(f.Left()); }},
        {"Top", [](Form& f) { return Number(f.Top()); }},
        {"Width", [](Form& f) { return Number(f.Width()); }},
        {"Height", [](Form& f) { return Number(f.Height()); }},
        {"ScaleLeft", [](Form& f) { return Number(f.ScaleLeft()); }},
        {"ScaleTop", [](Form& f) { return Number(f.ScaleTop()); }},
        {"ScaleWidth", [](Form& f) { return Number(f.ScaleWidth()); }},
        {"ScaleHeight", [](Form& f) { return Number(f.ScaleHeight()); }},
    };
    return members;
}

/// Keeps the observer away while the script looks.
class Unobserved {
public:
    explicit Unobserved(toolkit::ToolkitModel& toolkit) : toolkit_(toolkit), observer_(toolkit.Observer())
    {
        toolkit_.Observer(nullptr);
    }
    ~Unobserved() { toolkit_.Observer(observer_); }
    Unobserved(const Unobserved&) = delete;
    Unobserved& operator=(const Unobserved&) = delete;

private:
    toolkit::ToolkitModel& toolkit_;
    toolkit::AccessObserver* observer_;
};

/// A value without its type, as `show` prints it.
std::string ShownValue(const Value& value)
{
    const std::string typed = Print(value);
    const std::size_t blank = typed.find(' ');
    return blank == std::string::npos ? typed : typed.substr(blank + 1);
}

std::string Brackets(const std::vector<Long>& indexes)
{
    std::string text;
    for (const Long index : indexes)
        text += (text.empty() ? "(" : ",") + std::to_string(index);
    return text.empty() ? text : text + ")";
}

toolkit::FormModel& RequireForm(toolkit::ToolkitModel& toolkit, const Place& place, const ScriptLine& line)
{
    if (auto* form = toolkit.FindForm(place.form))
        return *form;
    throw ScriptError(line, "o formulário '" + place.form + "' não existe");
}

Widget& RequireControl(toolkit::FormModel& form, const Place& place, const ScriptLine& line)
{
    if (auto* widget = form.Find(place.control, place.controlIndex))
        return widget->Face();
    throw ScriptError(line, "o controle '" + place.ControlName() + "' não existe");
}

std::string ShowMember(Widget& widget, const Place& place, const ScriptLine& line)
{
    Members members = CommonMembers();
    members.merge(MembersOf(widget.Kind()));
    const auto found = members.find(place.member);
    if (found == members.end())
        throw ScriptError(line,
                          "'" + place.ControlName() + "' não tem o membro '" + place.member
                              + "' ou ele só pode ser escrito");
    if (found->second.arguments != place.indexes.size())
        throw ScriptError(
            line, "'" + place.member + "' pede " + std::to_string(found->second.arguments) + " índice(s)");
    try {
        return place.ControlName() + "." + place.member + Brackets(place.indexes) + " = "
            + ShownValue(found->second.read(widget, place.indexes));
    } catch (const Failure& failure) {
        throw ScriptError(line, failure.Description());
    }
}

std::vector<std::string> ShowForm(toolkit::FormModel& form)
{
    std::vector<std::string> lines;
    for (const auto& core : form.Widgets()) {
        Widget& widget = core->Face();
        if (!core->IsOnShow() || widget.Kind() == WidgetKind::Menu)
            continue;
        const std::string member = TextMember(widget.Kind());
        std::string line = core->FullName();
        if (!member.empty())
            line += " = " + ShownValue(MembersOf(widget.Kind()).at(member).read(widget, {}));
        lines.push_back(std::move(line));
    }
    return lines;
}

/// Takes "(1,2)" off the end of a word.
std::vector<Long> TakeIndexes(std::string& word, const ScriptLine& line)
{
    std::vector<Long> indexes;
    const std::size_t open = word.find('(');
    if (open == std::string::npos)
        return indexes;
    if (word.back() != ')')
        throw ScriptError(line, "falta ')' em '" + word + "'");
    const char* at = word.data() + open + 1;
    const char* end = word.data() + word.size() - 1;
    while (at <= end) {
        Long index = 0;
        const auto read = std::from_chars(at, end, index);
        if (read.ec != std::errc() || (read.ptr != end && *read.ptr != ','))
            throw ScriptError(line, "'" + word + "' pede números inteiros entre parênteses");
        indexes.push_back(index);
        at = read.ptr + 1;
    }
    word.resize(open);
    return indexes;
}

std::vector<std::string> SplitAtDots(const std::string& word)
{
    std::vector<std::string> parts(1);
    int depth = 0;
    for (const char character : word) {
        depth += character == '(' ? 1 : character == ')' ? -1 : 0;
        if (character == '.' && depth == 0)
            parts.emplace_back();
        else
            parts.back() += character;
    }
    return parts;
}

} // namespace

std::string Place::ControlName() const
{
    return form + "." + control + (controlIndex < 0 ? "" : "(" + std::to_string(controlIndex) + ")");
}

Place ParsePlace(const std::string& word, const ScriptLine& line)
{
    std::vector<std::string> parts = SplitAtDots(word);
    Place place;
    place.form = parts[0];
    if (parts.size() > 3 || place.form.empty())
        throw ScriptError(line, "'" + word + "' não é um lugar de um formulário");
    if (parts.size() == 1)
        return place;
    const bool isFormMember = parts.size() == 2 && FormMembers().contains(parts[1]);
    if (isFormMember) {
        place.member = parts[1];
        return place;
    }
    const std::vector<Long> group = TakeIndexes(parts[1], line);
    place.control = parts[1];
    place.controlIndex = group.empty() ? -1 : static_cast<int>(group[0]);
    if (parts.size() == 3) {
        place.indexes = TakeIndexes(parts[2], line);
        place.member = parts[2];
    }
    return place;
}

std::vector<std::string> ShowPlace(toolkit::ToolkitModel& toolkit, const Place& place, const ScriptLine& line)
{
    const Unobserved unobserved(toolkit);
    toolkit::FormModel& form = RequireForm(toolkit, place, line);
    if (place.control.empty() && place.member.empty())
        return ShowForm(form);
    if (place.control.empty())
        return {place.form + "." + place.member + " = " + ShownValue(FormMembers().at(place.member)(form))};
    Widget& widget = RequireControl(form, place, line);
    if (!place.member.empty())
        return {ShowMember(widget, place, line)};
    std::vector<std::string> lines;
    for (const std::string& member : UsualMembers(widget.Kind())) {
        Place one = place;
        one.member = member;
        lines.push_back(ShowMember(widget, one, line));
    }
    return lines;
}

std::vector<std::string> ShowGridRow(toolkit::ToolkitModel& toolkit, const Place& place, Long row,
                                     const ScriptLine& line)
{
    const Unobserved unobserved(toolkit);
    Widget& widget = RequireControl(RequireForm(toolkit, place, line), place, line);
    auto* grid = As<MSFlexGrid>(widget);
    if (!grid || row < 0 || row >= grid->Rows())
        throw ScriptError(line, "'" + place.ControlName() + "' não tem a linha " + std::to_string(row));
    std::vector<std::string> lines;
    for (Long col = 0; col < grid->Cols(); ++col)
        lines.push_back(place.ControlName() + "(" + std::to_string(row) + "," + std::to_string(col)
                        + ") = " + Quoted(grid->TextMatrix(row, col)));
    return lines;
}

} // namespace kova::scenario
