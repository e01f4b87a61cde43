#pragma once

#include "toolkits/common/widget_core.hpp"

#include <QPointer>
#include <QWidget>

namespace kova::qt {

/// The Qt picture of one widget: geometry, visibility, enabling, tool tip, order and focus are the same
/// for all kinds; content, selection and look come from the kind's own view.
class WidgetView : public toolkit::View {
public:
    /// Takes the widget over. `Begin` must be called once the view is complete.
    WidgetView(toolkit::WidgetCore& core, QWidget* widget);
    ~WidgetView() override;

    void Begin();
    void Update(toolkit::Aspect aspect) final;
    void TakeFocus() override;

    /// Null once its window has been destroyed by the host.
    QWidget* Window() const { return widget_; }
    /// Where children of a panel go and what a label's mnemonic reaches.
    virtual QWidget* FocusWindow() const { return widget_; }
    /// Where a child of a panel is drawn that lies that far below the panel's upper edge, in pixels.
    virtual int TopInside(int top) const { return top; }
    /// The form is about to be seen, with all its views.
    virtual void FormAppears() { }

protected:
    virtual void ShowContent() { }
    virtual void ShowSelection() { }
    virtual void ShowLook() { }
    virtual void ShowGeometry();
    virtual void ShowToolTip();
    /// Opens the widget to the user's input, or shuts it.
    virtual void OpenWindow(bool open);

    /// Tells the model when the user moves the focus to this Qt widget.
    void WatchFocus(QWidget* widget);
    toolkit::WidgetCore& Core() const { return core_; }

private:
    void ReviewDenial();
    void Describe();
    void ShowVisible();
    void ShowEnabled();
    void ShowOrder();
    void LeaveFocus();
    void StackByKind();

    toolkit::WidgetCore& core_;
    QPointer<QWidget> widget_;
    /// Why the user may not use the widget, as it is shown.
    Text denial_;
};

/// A view whose model and Qt widget are of known types.
template <class Model, class QtWidget> class ViewOf : public WidgetView {
public:
    ViewOf(Model& model, QtWidget* widget) : WidgetView(model, widget), model_(model) { }

protected:
    Model& GetModel() const { return model_; }
    /// Not null inside Show... functions.
    QtWidget& Shown() const { return *static_cast<QtWidget*>(Window()); }

private:
    Model& model_;
};

/// Puts Qt's focus where the model has it: on its widget, or on the form where none has it.
void ShowFocusOf(const toolkit::FormModel& form);

/// What a screen reader calls the widget: the design's name, its caption, the label in front of it or
/// its tool tip.
QString AccessibleNameOf(const toolkit::WidgetCore& core);

} // namespace kova::qt
