// Where a driver has to be on a day, on the screen and on paper.

#include "tests/support/pdf_text.hpp"
#include "tests/window/appointment_book.hpp"
#include "tests/window/other_desk.hpp"

#include <QApplication>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>

namespace kova::window_test {

namespace {

using Rows = std::vector<std::string>;

QWidget* Dialog()
{
    QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr && modal->objectName() == QLatin1String("Transporte") ? modal : nullptr;
}

/// "TIME WHAT DISTRICT CUSTOMER ANIMAL" of each row of the list.
Rows Stops()
{
    Rows stops;
    const auto* rows = Dialog()->findChild<QTableView*>()->model();
    for (int row = 0; row < rows->rowCount(); ++row) {
        QStringList cells;
        for (const int column : {0, 1, 2, 4, 6})
            cells += rows->index(row, column).data().toString();
        stops.push_back(cells.join(QLatin1Char(' ')).toStdString());
    }
    return stops;
}

std::string Count() { return Dialog()->findChild<QLabel*>(QStringLiteral("contagem"))->text().toStdString(); }

} // namespace

class TransportOfTheDay : public AppointmentBook {
protected:
    TransportOfTheDay()
    {
        Execute("update cliente set bairro = 'Água Rasa' where codigo = 10");
        number_ = other_.Books("10:00", "11:30");
        Turn(number_, true, true);
        later_ = other_.Books("14:00", "15:00");
        Turn(later_, false, true);
    }

    void Turn(family::Key number, bool fetches, bool takesBack)
    {
        other_.Changes(number, [&](auto& input) {
            input.fetch = fetches ? 1 : 0;
            input.take = takesBack ? 1 : 0;
        });
    }
    Receptionist& Opens()
    {
        return receptionist->WaitsFor(List).Presses("Ctrl+B").WaitsUntil("the transport is there",
                                                                         [] { return Dialog() != nullptr; });
    }
    static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    std::string Name() const { return Value("select nome from cliente where codigo = 10"); }
    std::string Animal() const { return Value("select nome from animal where codigo = 14"); }
    std::string Of(const std::string& stop) const { return stop + " Água Rasa " + Name() + " " + Animal(); }

    OtherDesk other_{Database()};
    family::Key number_ = 0, later_ = 0;
};

TEST_F(TransportOfTheDay, IsListedByTimeAndPrintedWithAddressPhoneAnimalAndALineToSign)
{
    Rows stops;
    std::string count;
    Opens().Does("look", [&] {
        stops = Stops();
        count = Count();
        QLineEdit& driver = *Dialog()->findChild<QLineEdit*>(QStringLiteral("motorista"));
        driver.setText(QStringLiteral("Seu Jorge"));
        Press(Qt::Key_P, Qt::ControlModifier);
    });
    receptionist->InWindow("visualizacao", "Ctrl+S").InWindow("QFileDialog", "Return");
    receptionist->InWindow("visualizacao", "Escape");
    receptionist->WaitsUntil("the transport is there", [] { return Dialog() != nullptr; }).Does("close", [] {
        Press(Qt::Key_Escape);
    });
    receptionist->WaitsFor(List).Leaves();
    Run();
    EXPECT_EQ(stops, (Rows{Of("10:00 Buscar"), Of("11:30 Levar"), Of("15:00 Levar")}));
    EXPECT_EQ(count, "3 paradas: 1 para buscar, 2 para levar");
    const auto file = Documents() / "Folha de transporte 2026-11-20.pdf";
    const Rows pages = test::PdfPages(QString::fromStdString(file.string()), {"-layout"});
    ASSERT_EQ(pages.size(), 1U);
    const std::string& page = pages.front();
    const std::string address = Value("select endereco_completo_com_cep from cliente where codigo = 10");
    for (const std::string& told :
         {std::string("Transporte: sexta-feira, 20/11/2026"), count, std::string("Motorista: Seu Jorge"),
          std::string("Página 1 de 1"), address.substr(0, 20), Name(), Animal(), std::string("Água Rasa"),
          std::string("Assinatura"), std::string("Celular: ")})
        EXPECT_NE(page.find(told), std::string::npos) << told << "\n" << page;
    EXPECT_EQ(Value("select count(*) from auditoria where operacao = 'impressao'"), "1")
        << "who prints customers' data is noted";
}

TEST_F(TransportOfTheDay, IsThatOfTheDayOnShowAndOfAnyOther)
{
    std::string shown, other, back;
    bool mayPrint = true;
    receptionist->WaitsFor(List)
        .Presses("Alt+Right")
        .WaitsFor(List)
        .Presses("Ctrl+B")
        .WaitsUntil("the transport is there", [] { return Dialog() != nullptr; });
    receptionist->Does("look", [&] {
        QDateEdit& day = *Dialog()->findChild<QDateEdit*>();
        shown = day.text().toStdString();
        other = Count();
        mayPrint = Dialog()->findChild<QPushButton*>(QStringLiteral("imprimir"))->isEnabled();
        day.setDate(day.date().addDays(-1));
        back = Count();
        Press(Qt::Key_Escape);
    });
    receptionist->WaitsFor(List).Leaves();
    Run();
    EXPECT_EQ(shown, "21/11/2026");
    EXPECT_EQ(other, "Nenhuma parada");
    EXPECT_FALSE(mayPrint);
    EXPECT_EQ(back, "3 paradas: 1 para buscar, 2 para levar");
}

} // namespace kova::window_test
