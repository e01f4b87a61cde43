#include "agenda/contracts/failure_detail.hpp"
#include "family/presentation/clsMensagem.hpp"
#include "family/presentation/error_window.hpp"
#include "family/presentation/failure_words.hpp"
#include "family/presentation/window_in_front.hpp"
#include "tests/unit/host/with_application.hpp"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include <gtest/gtest.h>

#include <memory>

namespace kova::family {

namespace {

class ErrorScreen : public host::WithApplication {
protected:
    static void PressKey(QWidget& window, Qt::Key key)
    {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&window, &press);
    }

    static Text FieldOf(const ErrorWindow& window, const char* name)
    {
        return window.findChild<QPlainTextEdit*>(name)->toPlainText().toStdString();
    }
    static Text LabelOf(const ErrorWindow& window, const char* name)
    {
        return window.findChild<QLabel*>(name)->text().toStdString();
    }
    /// All that can be read in the window.
    static Text AllOf(const ErrorWindow& window)
    {
        Text all;
        for (const QLabel* label : window.findChildren<QLabel*>())
            all += label->text().toStdString() + "\n";
        for (const QPlainTextEdit* field : window.findChildren<QPlainTextEdit*>())
            all += field->toPlainText().toStdString() + "\n";
        return all;
    }
    static bool Says(const Text& text, const Text& part) { return text.find(part) != Text::npos; }

    const ErrorReport report_{"-2147467259", "Não há conexão.\nTente de novo.",
                              "kovaris, frmLista, GerarLista, Ponto: 1", "Kovaris"};
};

std::int32_t NumberOfFailure(const std::function<void()>& act)
{
    try {
        act();
    } catch (const Failure& failure) {
        return failure.Number();
    }
    return 0;
}

} // namespace

TEST_F(ErrorScreen, ShowsNumberDescriptionAndPlaceInFullUnderTheApplicationsName)
{
    const ErrorWindow window(report_);
    EXPECT_EQ(window.windowTitle(), "Kovaris");
    EXPECT_EQ(FieldOf(window, "number"), report_.number);
    EXPECT_EQ(FieldOf(window, "description"), report_.description);
    EXPECT_EQ(FieldOf(window, "place"), report_.place);
}

TEST_F(ErrorScreen, SaysThatAFailureOccurredAndNotWhatBecameOfTheWork)
{
    const ErrorWindow window(report_);
    EXPECT_EQ(LabelOf(window, "heading"), "Ocorreu uma falha.");
    EXPECT_FALSE(Says(AllOf(window), "não foi concluída"));
    EXPECT_TRUE(Says(LabelOf(window, "advice"), "Confira se o que você estava fazendo foi concluído"));
    EXPECT_TRUE(Says(LabelOf(window, "advice"), "Copiar"));
}

TEST_F(ErrorScreen, ShowsTheWordsOfAnEngineOnlyToThoseWhoCopyThem)
{
    const Text told = "O disco está cheio. Libere espaço.";
    const ErrorReport report{"-2147467259", WithDetail(told, "database or disk is full"), "kovaris",
                             "Kovaris"};
    ErrorWindow window(report);
    EXPECT_EQ(FieldOf(window, "what"), told);
    EXPECT_EQ(FieldOf(window, "description"), told);
    EXPECT_FALSE(Says(AllOf(window), "full")) << AllOf(window);
    window.findChild<QPushButton*>("copy")->click();
    EXPECT_TRUE(Says(QGuiApplication::clipboard()->text().toStdString(), "database or disk is full"));
}

TEST_F(ErrorScreen, TellsANumberOfTheFamilyInWordsOfTheFrontDesk)
{
    for (const auto number : {FailureNumber::InvalidArgument,
                              FailureNumber::Overflow,
                              FailureNumber::OutOfMemory,
                              FailureNumber::IndexOutOfRange,
                              FailureNumber::DivisionByZero,
                              FailureNumber::TypeMismatch,
                              FailureNumber::NoObject,
                              FailureNumber::UseOfNull,
                              FailureNumber::BadPropertyValue,
                              FailureNumber::BadListRow,
                              FailureNumber::ClassCannotBeCreated,
                              FailureNumber::NoSuchMember,
                              FailureNumber::WrongArgumentCount,
                              FailureNumber::BadRecordSetValue,
                              FailureNumber::NoCurrentRow,
                              FailureNumber::NoSuchField,
                              FailureNumber::RecordSetClosed,
                              FailureNumber::RecordSetOpen,
                              FailureNumber::RecordSetWithoutFields,
                              FailureNumber::BadGridRow,
                              FailureNumber::BadGridColumn,
                              FailureNumber::LastFreeGridRow,
                              FailureNumber::BadFieldValue}) {
        const Failure failure(number);
        const FailureWords words =
            WordsFor({std::to_string(failure.Number()), failure.Description(), "kovaris", "Kovaris"});
        EXPECT_NE(words.what, failure.Description());
        EXPECT_TRUE(words.what.ends_with('.')) << words.what;
        for (const char* jargon : {"Null", "objeto", "propriedade", "procedimento", "matriz", "conjunto"})
            EXPECT_FALSE(Says(words.what, jargon)) << words.what;
    }
}

TEST_F(ErrorScreen, TellsWhatTheFailureItselfSaysWhereThatIsMoreThanItsNumber)
{
    const auto what = [](const char* number, const Text& description) {
        return WordsFor({number, description, "kovaris", "Kovaris"}).what;
    };
    EXPECT_EQ(what("5", "A quantidade vai de 0 a 999."), "A quantidade vai de 0 a 999.");
    EXPECT_EQ(what("7001", "Banco fora do ar"), "Banco fora do ar");
    EXPECT_EQ(what("7001", ""), "O programa encontrou uma situação que não esperava.");
    EXPECT_EQ(what("não", WithDetail("", "oops")), "O programa encontrou uma situação que não esperava.");
    EXPECT_EQ(what("438", "clsX não aceita a propriedade ou método 'Y'."),
              "Duas partes do programa não combinam entre si.");
}

TEST_F(ErrorScreen, StandsInFrontOfAWindowAlsoWhileTheUserIsInAnotherProgram)
{
    EXPECT_EQ(WindowInFront(), nullptr);
    QWidget main;
    QWidget plate(nullptr, Qt::Tool);
    QWidget modeless(nullptr, Qt::Dialog);
    for (QWidget* window : {&modeless, &plate, &main})
        window->show();
    ASSERT_EQ(QApplication::activeWindow(), nullptr);
    EXPECT_EQ(WindowInFront(), &main);
    QDialog modal(&main);
    modal.setModal(true);
    modal.show();
    main.activateWindow();
    EXPECT_EQ(WindowInFront(), &modal);
    modal.hide();
    main.hide();
    EXPECT_EQ(WindowInFront(), &modeless);
}

TEST_F(ErrorScreen, KeepsAWindowOfASaneSizeForALongTextAndStillHoldsAllOfIt)
{
    const ErrorReport longReport{"5", Text(20000, 'x'), "kovaris", "Kovaris"};
    ErrorWindow window(longReport);
    window.show();
    EXPECT_LT(window.height(), 600);
    EXPECT_EQ(FieldOf(window, "description"), longReport.description);
}

TEST_F(ErrorScreen, KeepsItsButtonsInSightOnASmallScreen)
{
    ErrorWindow window(report_);
    window.resize(window.minimumWidth(), 160);
    window.show();
    EXPECT_EQ(window.height(), 160);
    for (const char* name : {"copy", "close"}) {
        const auto* button = window.findChild<QPushButton*>(name);
        EXPECT_EQ(button->visibleRegion().boundingRect(), button->rect()) << name;
    }
}

TEST_F(ErrorScreen, CopiesAllFourTexts)
{
    ErrorWindow window(report_);
    window.findChild<QPushButton*>("copy")->click();
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), AsText(report_));
    for (const Text& part : {report_.number, report_.description, report_.place, report_.application})
        EXPECT_NE(AsText(report_).find(part), Text::npos) << part;
}

TEST_F(ErrorScreen, ClosesByItsButtonByEnterAndByEscape)
{
    const auto isClosedBy = [&](const std::function<void(ErrorWindow&)>& act) {
        ErrorWindow window(report_);
        window.show();
        act(window);
        return !window.isVisible();
    };
    EXPECT_TRUE(isClosedBy([](ErrorWindow& window) { window.findChild<QPushButton*>("close")->click(); }));
    EXPECT_TRUE(isClosedBy([](ErrorWindow& window) { PressKey(window, Qt::Key_Return); }));
    EXPECT_TRUE(isClosedBy([](ErrorWindow& window) { PressKey(window, Qt::Key_Escape); }));
    EXPECT_FALSE(isClosedBy([](ErrorWindow& window) { window.findChild<QPushButton*>("copy")->click(); }));
}

TEST_F(ErrorScreen, NamesEveryFieldForAScreenReader)
{
    const ErrorWindow window(report_);
    for (const QPlainTextEdit* field : window.findChildren<QPlainTextEdit*>())
        EXPECT_FALSE(field->accessibleName().isEmpty()) << field->objectName().toStdString();
}

TEST_F(ErrorScreen, GoesToTheStandardErrorOutputWhereNobodyCanCloseIt)
{
    clsMensagem screen;
    testing::internal::CaptureStderr();
    EXPECT_TRUE(screen.Call("Exibir", {Long{13}, "Tipos incompatíveis", "kovaris, X", "Kovaris"}).IsEmpty());
    const std::string output = testing::internal::GetCapturedStderr();
    EXPECT_EQ(output, AsText({"13", "Tipos incompatíveis", "kovaris, X", "Kovaris"}));
}

TEST_F(ErrorScreen, TakesValuesOfAnyType)
{
    EXPECT_EQ(ReadableText(Null{}), "");
    EXPECT_EQ(ReadableText(Empty{}), "");
    EXPECT_EQ(ReadableText(Double{-2147467259}), "-2147467259");
    EXPECT_EQ(ReadableText(std::shared_ptr<Component>(std::make_shared<clsMensagem>())), "");
}

TEST_F(ErrorScreen, HasOneMethodWithFourArguments)
{
    clsMensagem screen;
    EXPECT_EQ(NumberOfFailure([&] { screen.Call("Exibir", {Long{1}, "a", "b"}); }), 450);
    EXPECT_EQ(NumberOfFailure([&] { screen.Call("Fechar"); }), 438);
    EXPECT_EQ(NumberOfFailure([&] { screen.Get("Numero"); }), 438);
    EXPECT_EQ(NumberOfFailure([&] { screen.Set("Numero", Long{1}); }), 438);
}

} // namespace kova::family
