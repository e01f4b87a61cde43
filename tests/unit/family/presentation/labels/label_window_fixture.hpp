#pragma once

#include "family/presentation/labels/label_sheet_view.hpp"
#include "family/presentation/labels/label_window.hpp"
#include "tests/unit/family/presentation/labels/label_fixture.hpp"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QSpinBox>
#include <QTest>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

namespace kova::family::test {

/// The window that prints labels, with José's address.
class LabelWindowTest : public LabelTest {
protected:
    LabelWindowTest()
    {
        window_.show();
        QApplication::setActiveWindow(&window_);
    }
    void TearDown() override { EXPECT_EQ(toolkit.Queue().Unused(), 0U); }

    template <class Widget> Widget& The(const char* name) const
    {
        auto* found = window_.findChild<Widget*>(QString::fromLatin1(name));
        if (!found)
            throw std::runtime_error(std::string("there is no ") + name);
        return *found;
    }
    LabelSheetView& View() const
    {
        for (QWidget* child : window_.findChildren<QWidget*>()) {
            if (auto* view = dynamic_cast<LabelSheetView*>(child))
                return *view;
        }
        throw std::runtime_error("there is no sheet");
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(window_.windowHandle(), key, modifiers);
        // A button pressed by its key goes down for a moment before it acts.
        EXPECT_TRUE(QTest::qWaitFor([this] {
            return std::ranges::none_of(window_.findChildren<QAbstractButton*>(),
                                        [](const QAbstractButton* button) { return button->isDown(); });
        }));
    }
    std::string Focused() const
    {
        return window_.focusWidget() ? window_.focusWidget()->objectName().toStdString() : "";
    }
    std::string Shown(const char* label) const { return The<QLabel>(label).text().toStdString(); }
    /// "row,column" of the first free label.
    std::string First() const
    {
        return The<QSpinBox>("linha").text().toStdString() + ","
            + The<QSpinBox>("coluna").text().toStdString();
    }
    std::string Told()
    {
        return toolkit.Queue().Questions().empty() ? "" : toolkit.Queue().Questions().back().text;
    }
    /// How many labels each sheet has.
    std::vector<std::size_t> LabelsOnSheets() const
    {
        std::vector<std::size_t> labels;
        for (const reports::Page& page : window_.Pages().pages)
            labels.push_back(page.items.size() / LinesOf(Jose(), false).size());
        return labels;
    }

    ScriptedDesk desk_{toolkit, "Kova"};
    LabelWindow window_{Jose(), {"A4-2x7", false}, desk_, {2026, 3, 9}};
};

} // namespace kova::family::test
