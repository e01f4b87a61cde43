#include "toolkits/common/report.hpp"

#include "toolkits/common/report_owner.hpp"

#include <algorithm>
#include <set>
#include <utility>

namespace kova::toolkit {

namespace {

void RequireNew(bool isNew)
{
    if (!isNew)
        throw Failure(FailureNumber::BadPropertyValue);
}

void RequireUniqueNames(const ReportDesign& design)
{
    std::set<std::string_view> sections;
    std::set<std::string_view> controls;
    std::set<ReportSectionKind> kinds;
    for (const ReportSectionDesign& section : design.sections) {
        RequireNew(sections.insert(section.name).second);
        RequireNew(kinds.insert(section.kind).second);
        for (const ReportControlDesign& control : section.controls)
            RequireNew(controls.insert(control.name).second);
    }
}

void RestoreContents(std::vector<ReportControlDesign>& controls,
                     const std::vector<ReportControlDesign>& designed)
{
    for (std::size_t at = 0; at < controls.size(); ++at)
        controls[at].content = designed[at].content;
}

} // namespace

ReportModel::ReportModel(ReportOwner& owner, const ReportDesign& design)
    : owner_(owner), design_(design), current_(design)
{
    RequireUniqueNames(design_);
    sections_.reserve(current_.sections.size());
    for (ReportSectionDesign& section : current_.sections)
        sections_.emplace_back(*this, section);
}

ReportModel::~ReportModel() = default;

AccessObserver* ReportModel::Observer() const { return owner_.Observer(); }

MemberAccess ReportModel::AccessTo(std::string_view member, std::string_view control) const
{
    return {.form = design_.name, .control = control, .member = member};
}

void ReportModel::WritingTo(const MemberAccess& access, const Value& value) const
{
    if (auto* observer = Observer())
        observer->Write(access, value);
}

void ReportModel::Calling(std::string_view member, const Value& argument) const
{
    if (auto* observer = Observer())
        observer->Call(AccessTo(member), argument);
}

ReportModel::SectionModel::SectionModel(ReportModel& report, ReportSectionDesign& design) : design_(design)
{
    controls_.reserve(design.controls.size());
    for (ReportControlDesign& control : design.controls)
        controls_.emplace_back(report, control);
}

ReportModel::Control& ReportModel::SectionModel::Find(std::string_view name, ReportControlKind kind)
{
    const auto found = std::ranges::find_if(
        controls_, [name](const Control& control) { return control.Design().name == name; });
    if (found == controls_.end())
        throw Failure(FailureNumber::NoSuchMember);
    if (found->Design().kind != kind)
        throw Failure(FailureNumber::TypeMismatch);
    return *found;
}

Text ReportModel::Control::Read(std::string_view member) const
{
    if (auto* observer = report_.Observer())
        observer->Read(report_.AccessTo(member, design_.name));
    return design_.content;
}

void ReportModel::Control::Write(std::string_view member, const Text& content)
{
    report_.WritingTo(report_.AccessTo(member, design_.name), content);
    design_.content = content;
}

ReportSection& ReportModel::Section(std::string_view name)
{
    const auto found = std::ranges::find_if(
        sections_, [name](const auto& section) { return section.NameOfSection() == name; });
    if (found == sections_.end())
        throw Failure(FailureNumber::NoSuchMember);
    return *found;
}

void ReportModel::DataSource(RecordSetRef data)
{
    WritingTo(AccessTo("DataSource"), ObjectRef(data));
    data_ = std::move(data);
}

void ReportModel::DataMember(const Text& name)
{
    WritingTo(AccessTo("DataMember"), name);
    if (!name.empty())
        throw Failure(FailureNumber::BadPropertyValue);
}

void ReportModel::Caption(const Text& text)
{
    WritingTo(AccessTo("Caption"), text);
    current_.caption = text;
}

void ReportModel::WindowState(ReportWindowState state)
{
    WritingTo(AccessTo("WindowState"), static_cast<Integer>(state));
    current_.windowState = state;
}

void ReportModel::Orientation(ReportOrientation orientation)
{
    WritingTo(AccessTo("Orientation"), static_cast<Integer>(orientation));
    current_.orientation = orientation;
}

void ReportModel::WriteLength(std::string_view member, Twips& length, Twips value)
{
    WritingTo(AccessTo(member), static_cast<Double>(value));
    if (value < 0)
        throw Failure(FailureNumber::BadPropertyValue);
    length = value;
}

void ReportModel::Refresh() { Calling("Refresh"); }

void ReportModel::ShowModal()
{
    constexpr Long modal = 1;
    Calling("Show", modal);
    if (isShown_)
        throw Failure(FailureNumber::InvalidArgument);
    struct Shown {
        ReportModel& report;
        explicit Shown(ReportModel& shown) : report(shown) { report.isShown_ = true; }
        ~Shown()
        {
            report.isShown_ = false;
            report.Unload();
        }
    } const shown(*this);
    owner_.Preview(*this);
}

// The sections' controls keep their places: members of `current_` are written, never replaced.
void ReportModel::Unload()
{
    data_.reset();
    for (std::size_t at = 0; at < design_.sections.size(); ++at)
        RestoreContents(current_.sections[at].controls, design_.sections[at].controls);
    current_.caption = design_.caption;
    current_.width = design_.width;
    current_.leftMargin = design_.leftMargin;
    current_.topMargin = design_.topMargin;
    current_.rightMargin = design_.rightMargin;
    current_.bottomMargin = design_.bottomMargin;
    current_.orientation = design_.orientation;
    current_.windowState = design_.windowState;
}

} // namespace kova::toolkit
