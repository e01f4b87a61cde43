#pragma once

#include "toolkits/common/widget_core.hpp"

namespace kova::toolkit {

/// Implements the members that all widgets share, for the contract of one kind.
template <class Contract, WidgetKind kind, class Core = WidgetCore>
class WidgetModel : public Contract, public Core {
public:
    using Core::Core;

    WidgetKind Kind() const override { return kind; }
    WidgetKind KindOfWidget() const override { return kind; }
    Widget& Face() override { return *this; }
    kova::Text Name() const override { return this->Design().name; }
    int Index() const override { return this->Design().index; }

    Twips Left() const override { return Read("Left", this->state_.left); }
    void Left(Twips value) override { Move("Left", &WidgetState::left, value, true); }
    Twips Top() const override { return Read("Top", this->state_.top); }
    void Top(Twips value) override { Move("Top", &WidgetState::top, value, true); }
    Twips Width() const override { return Read("Width", this->state_.width); }
    void Width(Twips value) override { Move("Width", &WidgetState::width, value, false); }
    Twips Height() const override { return Read("Height", this->state_.height); }
    void Height(Twips value) override { Move("Height", &WidgetState::height, value, false); }

    bool Visible() const override { return Read("Visible", this->state_.visible); }
    void Visible(bool value) override
    {
        this->Writing("Visible", value);
        this->ShowSelf(value);
    }
    bool Enabled() const override { return Read("Enabled", this->state_.enabled); }
    void Enabled(bool value) override
    {
        this->Writing("Enabled", value);
        this->EnableSelf(value);
    }
    bool TabStop() const override { return Read("TabStop", this->state_.tabStop); }
    void TabStop(bool value) override
    {
        this->Writing("TabStop", value);
        this->StopTab(value);
    }
    kova::Text ToolTipText() const override { return Read("ToolTipText", this->state_.toolTipText); }
    void ToolTipText(const kova::Text& value) override
    {
        this->Writing("ToolTipText", value);
        this->WriteToolTip(value);
    }
    kova::Text Tag() const override { return Read("Tag", this->state_.tag); }
    void Tag(const kova::Text& value) override
    {
        this->Writing("Tag", value);
        this->WriteTag(value);
    }

    void SetFocus() override
    {
        this->Calling("SetFocus");
        this->FocusByCode();
    }
    void BringToFront() override
    {
        this->Calling("BringToFront");
        this->ToFront();
    }

protected:
    /// A read of the contract: the observer first, then the value as it is after that.
    template <class T> const T& Read(std::string_view member, const T& value) const
    {
        this->Reading(member);
        return value;
    }

private:
    void Move(std::string_view name, Twips WidgetState::*member, Twips value, bool mayBeNegative)
    {
        this->Writing(name, value);
        this->MoveTo(member, value, mayBeNegative);
    }
};

} // namespace kova::toolkit
