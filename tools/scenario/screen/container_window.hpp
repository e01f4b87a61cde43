#pragma once

#include "toolkits/common/form_window.hpp"

#include <QWidget>

namespace kova::scenario {

/// The host's window around the list. Its close button is that of the form inside.
class ContainerWindow : public QWidget {
public:
    explicit ContainerWindow(toolkit::InnerSize inner);

    void Resize(toolkit::InnerSize inner);
    /// As the script gave it, which may be no whole number of pixels.
    toolkit::InnerSize Inner() const { return inner_; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    toolkit::InnerSize inner_;
};

} // namespace kova::scenario
