#pragma once

#include <QColor>
#include <QWidget>

#include <functional>
#include <string>

namespace kova::qt {

class LineEdit;

/// An input field: rounded border, an editor and, where asked for, a button at the right end. The
/// button takes no focus of its own; what it does is also reached by keys.
class FieldFrame : public QWidget {
public:
    explicit FieldFrame(QWidget* parent);

    LineEdit& Editor() { return *editor_; }

    /// Shows the end button with that icon; "" removes it.
    void SetEndIcon(const std::string& icon, const QString& name);
    const std::string& EndIcon() const { return endIcon_; }
    void SetPaper(const QColor& paper);
    void SetLocked(bool locked);
    /// A shut field takes neither the focus nor typing; the mouse still selects its text.
    void SetOpen(bool open);

    /// The user pressed the end button.
    std::function<void()> endPressed;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool) override { return false; }

private:
    /// A field that takes no input offers no button.
    bool HasEnd() const { return !endIcon_.empty() && IsOpen(); }
    bool IsOpen() const { return open_ && isEnabled(); }
    QRectF EndArea() const;
    void PlaceEditor();

    LineEdit* editor_;
    std::string endIcon_;
    QColor paper_;
    bool locked_ = false;
    bool open_ = true;
    bool overEnd_ = false;
};

} // namespace kova::qt
