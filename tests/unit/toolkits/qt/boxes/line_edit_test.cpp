#include "tests/unit/toolkits/qt/support.hpp"
#include "toolkits/qt/boxes/line_edit.hpp"
#include "toolkits/qt/picture_box.hpp"

#include <QApplication>
#include <QClipboard>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QTest>
#include <QToolTip>

namespace kova::qt::test {
namespace {

/// The editor inside a field, whose text is cut by what the field says.
class LineEdits : public QtTest {
protected:
    LineEdits()
    {
        editor_.setText(QStringLiteral("20/11/2026"));
        editor_.eraseSelection = [this] { ++erased_; };
        QApplication::clipboard()->setText(QStringLiteral("antes"));
    }
    void Cut() { Press(&editor_, Qt::Key_X, QString(), Qt::ControlModifier); }
    static QString Clipboard() { return QApplication::clipboard()->text(); }

    LineEdit editor_{nullptr};
    int erased_ = 0;
};

TEST_F(LineEdits, CutWhatIsSelected)
{
    editor_.setSelection(0, 2);
    Cut();
    EXPECT_EQ(Clipboard(), QStringLiteral("20"));
    EXPECT_EQ(erased_, 1);
}

TEST_F(LineEdits, CutNothingWhereNothingIsSelected)
{
    editor_.deselect();
    Cut();
    EXPECT_EQ(Clipboard(), QStringLiteral("antes"));
    EXPECT_EQ(erased_, 0);
}

TEST_F(LineEdits, SelectAnewFromInsideASelectionAndDragNothingOut)
{
    editor_.resize(200, 30);
    editor_.show();
    Settle();
    editor_.selectAll();
    QTest::mousePress(&editor_, Qt::LeftButton, {}, QPoint(20, 15));
    EXPECT_FALSE(editor_.hasSelectedText());
    QTest::mouseRelease(&editor_, Qt::LeftButton, {}, QPoint(20, 15));
}

TEST_F(LineEdits, CutNothingThatIsOnlyRead)
{
    editor_.setReadOnly(true);
    editor_.selectAll();
    Cut();
    EXPECT_EQ(Clipboard(), QStringLiteral("antes"));
    EXPECT_EQ(erased_, 0);
    EXPECT_EQ(editor_.text(), QStringLiteral("20/11/2026"));
}

TEST_F(LineEdits, PasteWhereTheyAreNotOnlyRead)
{
    QString pasted;
    editor_.pasteText = [&](const QString& text) { pasted += text; };
    Press(&editor_, Qt::Key_V, QString(), Qt::ControlModifier);
    EXPECT_EQ(pasted, QStringLiteral("antes"));
    editor_.setReadOnly(true);
    Press(&editor_, Qt::Key_V, QString(), Qt::ControlModifier);
    EXPECT_EQ(pasted, QStringLiteral("antes"));
}

TEST_F(LineEdits, OfferTheirKeysToTheFieldFirst)
{
    std::vector<int> seen;
    editor_.filterKey = [&](QKeyEvent& event) {
        seen.push_back(event.key());
        return event.key() == Qt::Key_A;
    };
    editor_.setText(QString());
    Type(&editor_, QStringLiteral("ab"));
    EXPECT_EQ(seen, (std::vector<int>{Qt::Key_A, Qt::Key_B}));
    EXPECT_EQ(editor_.text(), QStringLiteral("b"));
    Press(&editor_, Qt::Key_Tab);
    EXPECT_EQ(seen.back(), Qt::Key_Tab) << "Qt's own walk through the window comes after";
}

TEST_F(LineEdits, KeepASelectionAtThePressThatBringsTheFocus)
{
    QWidget window;
    auto* other = new QLineEdit(&window);
    auto* editor = new LineEdit(&window);
    window.resize(300, 100);
    other->setGeometry(0, 0, 200, 30);
    editor->setGeometry(0, 40, 200, 30);
    editor->KeepSelectionAtFirstPress();
    editor->setText(QStringLiteral("20/11/2026"));
    window.show();
    window.activateWindow();
    Settle();
    other->setFocus();
    editor->setFocus(Qt::MouseFocusReason);
    editor->selectAll();
    ClickAt(editor, QPoint(20, 15));
    EXPECT_EQ(editor->selectedText(), editor->text());
    ClickAt(editor, QPoint(20, 15));
    EXPECT_FALSE(editor->hasSelectedText());
    other->setFocus();
    editor->setFocus(Qt::TabFocusReason);
    editor->selectAll();
    ClickAt(editor, QPoint(20, 15));
    EXPECT_FALSE(editor->hasSelectedText()) << "the focus came by a key before";
}

TEST_F(LineEdits, DrawNothingAroundTheirTextNorBehindIt)
{
    PanelWindow field(nullptr);
    field.SetGround(Qt::red);
    field.resize(100, 40);
    LineEdit editor(&field);
    editor.setGeometry(10, 5, 80, 30);
    QImage ground(field.size(), QImage::Format_RGB32);
    ground.fill(Qt::red);
    EXPECT_EQ(Picture(&field), ground);
}

TEST_F(LineEdits, TakeNothingThatIsDropped) { EXPECT_FALSE(editor_.acceptDrops()); }

/// The tip that shows after the mouse has rested there.
QString ToolTipOver(QWidget& widget)
{
    QToolTip::showText(QPoint(), QStringLiteral("nenhuma"));
    QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), widget.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&widget, &help);
    return QToolTip::text();
}

TEST_F(LineEdits, TellATextInAToolTipOnlyWhereItIsCut)
{
    constexpr int margins = 4;
    editor_.show();
    editor_.resize(editor_.fontMetrics().horizontalAdvance(editor_.text()) + margins, 30);
    EXPECT_EQ(ToolTipOver(editor_), QStringLiteral("nenhuma"));
    editor_.resize(editor_.width() - 1, 30);
    EXPECT_EQ(ToolTipOver(editor_), QStringLiteral("20/11/2026"));
}

TEST_F(LineEdits, TellTheirCutTextRatherThanWhatLiesAroundTheirField)
{
    QWidget window;
    window.setToolTip(QStringLiteral("Cadastro"));
    auto* field = new QWidget(&window);
    auto* editor = new LineEdit(field);
    editor->setText(QStringLiteral("20/11/2026"));
    editor->resize(300, 30);
    window.show();
    EXPECT_EQ(ToolTipOver(*editor), QStringLiteral("Cadastro"));
    editor->resize(30, 30);
    EXPECT_EQ(ToolTipOver(*editor), QStringLiteral("20/11/2026"));
    field->setToolTip(QStringLiteral("Data"));
    EXPECT_EQ(ToolTipOver(*editor), QStringLiteral("Data")) << "the field's own";
}

} // namespace
} // namespace kova::qt::test
