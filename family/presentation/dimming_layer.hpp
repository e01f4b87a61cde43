#pragma once

#include "agenda/contracts/value.hpp"

#include <QVariantAnimation>
#include <QWidget>

#include <memory>

namespace kova::family {

/// A translucent layer over a whole window, behind the dialogs that stand in front of it. It follows the
/// window's size, fades in, and lets the user's input through. Left standing, it fades out at the user's
/// first press or key while no modal window is open.
class DimmingLayer : public QWidget {
public:
    /// Dims that window, which the handle names; one that is dimmed already stays as it is. `held` lives as
    /// long as the layer.
    static void Apply(QWidget& window, Long handle, std::shared_ptr<void> held);
    /// Takes the layer away that was applied under that handle, also from a window that was closed meanwhile;
    /// nothing happens where there is none.
    static void Remove(Long handle);

    ~DimmingLayer() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    DimmingLayer(QWidget& window, Long handle, std::shared_ptr<void> held);
    static DimmingLayer* Of(const QWidget& window);

    void FadeIn();
    void FadeOut();
    void Vanish();

    /// First, so that it goes last.
    std::shared_ptr<void> held_;
    Long handle_;
    QVariantAnimation fade_;
};

} // namespace kova::family
