#include "family/presentation/dimming_layer.hpp"

#include <QApplication>
#include <QEvent>
#include <QPainter>

#include <algorithm>
#include <vector>

namespace kova::family {

namespace {

constexpr int FullShade = 110;
constexpr int FadeMilliseconds = 120;

/// All that live. A window's handle leads nowhere once it is closed, so layers are found here.
std::vector<DimmingLayer*>& Layers()
{
    static std::vector<DimmingLayer*> layers;
    return layers;
}

bool IsPressOrKey(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
    case QEvent::TouchBegin: return true;
    default: return false;
    }
}

} // namespace

DimmingLayer::DimmingLayer(QWidget& window, Long handle, std::shared_ptr<void> held)
    : QWidget(&window), held_(std::move(held)), handle_(handle)
{
    setObjectName(QStringLiteral("escurecimento"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    qApp->installEventFilter(this);
    fade_.setStartValue(0);
    fade_.setEndValue(FullShade);
    fade_.setDuration(FadeMilliseconds);
    connect(&fade_, &QVariantAnimation::valueChanged, this, [this] { update(); });
    connect(&fade_, &QVariantAnimation::finished, this, [this] {
        if (fade_.direction() == QAbstractAnimation::Backward)
            Vanish();
    });
    Layers().push_back(this);
    resize(window.size());
    raise();
    show();
    FadeIn();
}

DimmingLayer::~DimmingLayer() { std::erase(Layers(), this); }

DimmingLayer* DimmingLayer::Of(const QWidget& window)
{
    const auto found =
        std::ranges::find_if(Layers(), [&](const auto* layer) { return layer->parentWidget() == &window; });
    return found == Layers().end() ? nullptr : *found;
}

void DimmingLayer::Apply(QWidget& window, Long handle, std::shared_ptr<void> held)
{
    DimmingLayer* layer = Of(window);
    if (!layer) {
        new DimmingLayer(window, handle, std::move(held));
        return;
    }
    layer->handle_ = handle;
    layer->raise();
    layer->FadeIn();
}

void DimmingLayer::Remove(Long handle)
{
    const auto found =
        std::ranges::find_if(Layers(), [&](const auto* layer) { return layer->handle_ == handle; });
    if (found != Layers().end())
        delete *found;
}

void DimmingLayer::FadeIn()
{
    fade_.setDirection(QAbstractAnimation::Forward);
    if (fade_.state() != QAbstractAnimation::Running && fade_.currentValue().toInt() != FullShade)
        fade_.start();
}

void DimmingLayer::FadeOut()
{
    if (fade_.direction() == QAbstractAnimation::Backward)
        return;
    fade_.setDirection(QAbstractAnimation::Backward);
    if (fade_.state() != QAbstractAnimation::Running)
        fade_.start();
}

// A window that is dimmed again before this one is deleted gets a layer of its own.
void DimmingLayer::Vanish()
{
    std::erase(Layers(), this);
    hide();
    deleteLater();
}

// What the user does goes on to where it was meant for.
bool DimmingLayer::eventFilter(QObject* watched, QEvent* event)
{
    if (IsPressOrKey(event->type()) && !QApplication::activeModalWidget())
        FadeOut();
    if (watched == parentWidget()) {
        if (event->type() == QEvent::Resize)
            resize(parentWidget()->size());
        else if (event->type() == QEvent::ChildAdded)
            raise();
    }
    return false;
}

void DimmingLayer::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), QColor(0, 0, 0, fade_.currentValue().toInt()));
}

} // namespace kova::family
