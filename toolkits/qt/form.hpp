#pragma once

#include "toolkits/common/form_window.hpp"
#include "toolkits/qt/plain_panel.hpp"

#include <QPointer>

class QEventLoop;

namespace kova::toolkit {
class FormModel;
enum class FormKey;
} // namespace kova::toolkit

namespace kova::qt {

class FormArea;
class TopWindow;

/// The widget that is a form's inner area: a window of its own, or the child of a container.
class FormWidget : public PlainPanel {
public:
    explicit FormWidget(toolkit::FormModel& model);

    toolkit::FormModel& Model() const { return model_; }
    FormArea& Area() const { return *area_; }
    /// Hands a key to the model; always true.
    bool Forward(toolkit::FormKey key);
    /// Hands a key such as "F4" to the model; false where it means nothing to the form.
    bool ForwardShortcut(const QString& key);

    /// While set, changes of place and size are the model's own and not told to it.
    bool followsModel = false;

protected:
    void paintEvent(QPaintEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    toolkit::FormModel& model_;
    FormArea* area_;
};

class FormWindow : public toolkit::FormWindow {
public:
    /// The host's window must outlive this one.
    FormWindow(const TopWindow& top, toolkit::FormModel& model);
    ~FormWindow() override;

    Long Handle() const override;
    std::optional<toolkit::InnerSize> SetParent(Long containerHandle) override;
    void Update(toolkit::FormAspect aspect) override;
    void Show(ShowMode mode) override;
    void Hide() override;
    void Remove() override;
    void RunModal() override;
    void EndModal() override;
    void TakeFocus() override;
    void Refresh() override;
    toolkit::MenuModel* PopupMenu(toolkit::MenuModel& parent, const std::vector<toolkit::MenuModel*>& entries,
                                  Twips x, Twips y) override;

    /// Null once the form was unloaded or its container destroyed.
    FormWidget* Window() const { return widget_; }

protected:
    /// What the form hears of its container's size.
    virtual toolkit::InnerSize InnerOf(const QWidget& container) const;

private:
    void ShowGeometry();
    void FollowArea();
    void Appear();
    void FitToContainer();
    void FitToScreen();
    void CentreOver(const QWidget* other);
    void TellViews() const;
    QWidget* WindowBelow() const;

    const TopWindow& top_;
    toolkit::FormModel& model_;
    QPointer<FormWidget> widget_;
    QPointer<QWidget> container_;
    /// Watches the container's size; goes with this window.
    std::unique_ptr<QObject> containerWatch_;
    QEventLoop* loop_ = nullptr;
    bool modalEnded_ = false;
    bool placed_ = false;
    /// Shown, but off the screen for want of an inner area.
    bool vanished_ = false;
    Long handle_ = 0;
};

/// The form that a widget lies in; null in a pop-up, a message box or a window of the host.
FormWidget* FormAround(QWidget* widget);

} // namespace kova::qt
