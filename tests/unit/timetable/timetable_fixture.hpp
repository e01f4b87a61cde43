#pragma once

#include "tests/support/box_answers.hpp"
#include "tests/support/sqlite_file.hpp"

#include "system/temporary_folder.hpp"
#include "timetable/timetable_page.hpp"
#include "timetable/timetable_view.hpp"

#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace kova::timetable::test {

/// "Horários" of a shop with two employees, 1 Bia and 2 Ana, on Thursday 19/11/2026 at 10:20, used by mouse
/// and keys. The shop is open from 08:00 to 18:00. What is stored is looked up in the file by the engine's
/// own interface.
class HorariosTest : public testing::Test {
protected:
    HorariosTest();

    /// Shows the page, in the place of another one.
    void Open();
    /// An appointment of the day, of Bia's customer "Carla" and animal "Rex"; answers its number.
    long long Book(int employee, const std::string& from, const std::string& until, int status = 1,
                   const std::string& date = "2026-11-19");
    std::string Now(long long number);

    TimetableView& View() { return page_->View(); }
    /// Columns begin with 0. The middle of what the minute's line takes.
    QPoint PlaceOf(int column, int minute);
    /// As it stands on the view.
    QRect RectOf(long long number);
    void Keys(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void Click(const QPoint& place, Qt::MouseButton button = Qt::LeftButton);
    /// With the button down from one place to the other, in two steps, and up there.
    void Drag(const QPoint& from, const QPoint& to);
    std::string TextOf(const char* label);
    /// The sentence of the block with the cursor; "" where none has it.
    std::string Current();

    void Answer(std::initializer_list<const char*> buttons) { answers_.Give(buttons); }
    std::vector<std::string> Stored(const std::string& statement);

    system::TemporaryFolder folder_{"horarios-"};
    const std::string file_ = (folder_.Path() / "loja.db").string();
    DateTime now_{{2026, 11, 19}, {10, 20, 0}};
    Commands commands_;
    std::unique_ptr<TimetablePage> page_;
    std::vector<std::string> boxes_;

private:
    kova::test::BoxAnswers answers_{boxes_};
};

} // namespace kova::timetable::test
