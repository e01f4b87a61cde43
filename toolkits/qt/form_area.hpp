#pragma once

#include "agenda/contracts/widgets/form_design.hpp"

#include <QPointer>
#include <QWidget>

class QScrollBar;

namespace kova::qt {

/// What a window shows of its form. The form keeps its inner size however little room the window has: what
/// does not fit scrolls, but for the row of buttons that ends the form: it stays at the lower edge, and its
/// buttons are seen.
///
/// Two planes, each as large as the form, hold the controls at the form's own coordinates: one scrolls, of
/// the other only the row of buttons is seen.
class FormArea : public QWidget {
public:
    FormArea(const FormDesign& design, QWidget* window);

    /// The plane that a control of the form itself lies on.
    QWidget* PlaneOf(const ControlDesign& control) const;
    QPoint ToScreen(const QPoint& place) const;
    /// Takes the form's inner size.
    void Hold(const QSize& inner);
    /// The size that a window should have which may be at most as large as the room: as the form where that
    /// fits, else with the scroll bars that it needs.
    QSize SizeWithin(const QSize& room) const;
    /// Scrolls as little as it takes to see a control and its label. Where it is larger than what is seen,
    /// its upper left corner counts.
    void Reveal(const QWidget& control);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void Arrange();
    void MovePlanes();
    int FootHeight() const { return footTop_ > 0 ? inner_.height() - footTop_ : 0; }

    /// Where the row of buttons begins; 0 is none.
    const int footTop_;
    const int buttonsEnd_;
    QSize inner_;
    QWidget* body_;
    QWidget* bodyPlane_;
    QWidget* foot_;
    QWidget* footPlane_;
    QScrollBar* vertical_;
    QScrollBar* horizontal_;
};

/// Where the row of buttons that ends a form begins, in twips: above its default and its cancel button, where
/// all other controls lie wholly above or in that row. 0 where there is no such row.
Twips FootTopOf(const FormDesign& design);

/// The inner size of a window that its container or its user has given that size: all of it, less the scroll
/// bars that the form's least size takes.
QSize InnerSizeWithin(const FormDesign& design, const QSize& given);

/// The largest inner size of a form's window on the screen of `near`, or on the first one where that is null.
QSize RoomFor(const FormDesign& design, const QWidget* near);

/// Brings a control of a form that scrolls into view, unless the mouse is being pressed: what the user aims
/// at must not move away.
void RevealInForm(QWidget* control);

} // namespace kova::qt
