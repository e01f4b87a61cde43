#pragma once

#include "agenda/contracts/reports.hpp"
#include "toolkits/common/access_observer.hpp"

#include <string_view>
#include <type_traits>
#include <vector>

namespace kova::toolkit {

class ReportOwner;

/// A report: its design with what was written to it since. The preview is the screen toolkit's, which
/// reads Current() and Data() while it shows. Accesses to members of controls carry the report's name as
/// the form's; names of controls are unique within a report.
class ReportModel final : public Report {
public:
    /// Fails with 380 on a design that names a section or a control twice, or has two sections of a kind.
    ReportModel(ReportOwner& owner, const ReportDesign& design);
    ~ReportModel() override;
    ReportModel(const ReportModel&) = delete;
    ReportModel& operator=(const ReportModel&) = delete;

    /// The design as it stands now; reading it is not an access of the contract.
    const ReportDesign& Current() const { return current_; }
    /// Null where the report has none.
    RecordSet* Data() const { return data_.get(); }
    bool IsShown() const { return isShown_; }

    Text Name() const override { return design_.name; }
    ReportSection& Section(std::string_view name) override;
    void DataSource(RecordSetRef data) override;
    void DataMember(const Text& name) override;
    Text Caption() const override { return Read("Caption", current_.caption); }
    void Caption(const Text& text) override;
    ReportWindowState WindowState() const override { return Read("WindowState", current_.windowState); }
    void WindowState(ReportWindowState state) override;
    Twips LeftMargin() const override { return Read("LeftMargin", current_.leftMargin); }
    void LeftMargin(Twips margin) override { WriteLength("LeftMargin", current_.leftMargin, margin); }
    Twips TopMargin() const override { return Read("TopMargin", current_.topMargin); }
    void TopMargin(Twips margin) override { WriteLength("TopMargin", current_.topMargin, margin); }
    Twips RightMargin() const override { return Read("RightMargin", current_.rightMargin); }
    void RightMargin(Twips margin) override { WriteLength("RightMargin", current_.rightMargin, margin); }
    Twips BottomMargin() const override { return Read("BottomMargin", current_.bottomMargin); }
    void BottomMargin(Twips margin) override { WriteLength("BottomMargin", current_.bottomMargin, margin); }
    Twips Width() const override { return Read("Width", current_.width); }
    void Width(Twips width) override { WriteLength("Width", current_.width, width); }
    ReportOrientation Orientation() const override { return Read("Orientation", current_.orientation); }
    void Orientation(ReportOrientation orientation) override;
    void Refresh() override;
    void ShowModal() override;
    void Unload() override;

private:
    /// A label or a text box: both are a name with one text. What belongs to the other kind is never
    /// handed out.
    class Control final : public ReportLabel, public ReportTextBox {
    public:
        Control(ReportModel& report, ReportControlDesign& design) : report_(report), design_(design) { }
        const ReportControlDesign& Design() const { return design_; }

        Text Caption() const override { return Read("Caption"); }
        void Caption(const Text& text) override { Write("Caption", text); }
        Text DataField() const override { return Read("DataField"); }
        void DataField(const Text& name) override { Write("DataField", name); }

    private:
        Text Read(std::string_view member) const;
        void Write(std::string_view member, const Text& content);

        ReportModel& report_;
        ReportControlDesign& design_;
    };

    class SectionModel final : public ReportSection {
    public:
        SectionModel(ReportModel& report, ReportSectionDesign& design);
        const Text& NameOfSection() const { return design_.name; }
        Text Name() const override { return design_.name; }
        ReportLabel& Label(std::string_view name) override { return Find(name, ReportControlKind::Label); }
        ReportTextBox& TextBox(std::string_view name) override
        {
            return Find(name, ReportControlKind::TextBox);
        }

    private:
        Control& Find(std::string_view name, ReportControlKind kind);

        ReportSectionDesign& design_;
        std::vector<Control> controls_;
    };

    AccessObserver* Observer() const;
    MemberAccess AccessTo(std::string_view member, std::string_view control = {}) const;
    void WritingTo(const MemberAccess& access, const Value& value) const;
    void Calling(std::string_view member, const Value& argument = Empty()) const;
    template <class T> const T& Read(std::string_view member, const T& value) const
    {
        if (auto* observer = Observer())
            observer->Read(AccessTo(member));
        return value;
    }
    void WriteLength(std::string_view member, Twips& length, Twips value);

    ReportOwner& owner_;
    const ReportDesign design_;
    ReportDesign current_;
    /// Over the sections of `current_`, which keep their places.
    std::vector<SectionModel> sections_;
    RecordSetRef data_;
    bool isShown_ = false;
};

} // namespace kova::toolkit
