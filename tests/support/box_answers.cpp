#include "tests/support/box_answers.hpp"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace kova::test {

BoxAnswers::BoxAnswers(std::vector<std::string>& told) : told_(told)
{
    timer_.setSingleShot(true);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { AnswerBox(); });
}

void BoxAnswers::Give(std::initializer_list<const char*> buttons)
{
    buttons_.assign(buttons.begin(), buttons.end());
    timer_.start(0);
}

void BoxAnswers::AnswerBox()
{
    if (buttons_.empty())
        return;
    // The button that is pressed may open the next box before it comes back.
    timer_.start(1);
    auto* const box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr)
        return;
    told_.push_back(box->text().toStdString());
    EXPECT_EQ(box->textFormat(), Qt::PlainText) << told_.back();
    const QString wanted = QString::fromStdString(buttons_.front());
    buttons_.pop_front();
    for (QAbstractButton* button : box->buttons()) {
        if (button->text().remove(QLatin1Char('&')) == wanted)
            return QTest::mouseClick(button, Qt::LeftButton);
    }
    ADD_FAILURE() << "the box \"" << told_.back() << "\" has no button " << wanted.toStdString();
    box->reject();
}

} // namespace kova::test
