#include "tests/unit/timetable/timetable_fixture.hpp"

#include "family/data/sources/data_source.hpp"
#include "family/data/stores/new_shop.hpp"

#include <QApplication>
#include <QLabel>

namespace kova::timetable::test {

HorariosTest::HorariosTest()
{
    family::NewShop shop;
    shop.company.nomeFantasia = "Pet Shop Céu";
    shop.user = "Ana";
    shop.employee = "Bia";
    family::CreateNewShop(file_, shop);
    Stored("insert into funcionario (codigo, nome, apelido, nome_de_busca) values (2, 'Ana Lima', 'Ana', "
           "'ana')");
    Stored("delete from expediente");
    for (int weekday = 1; weekday <= 7; ++weekday)
        Stored("insert into expediente (dia_da_semana, hora_inicial, hora_final) values ("
               + std::to_string(weekday) + ", '08:00', '18:00')");
    Stored("insert into servico (codigo, nome, nome_de_busca, descricao, numero_do_tipo_de_servico,"
           " duracao_em_minutos, preco_em_centavos, custo_em_centavos)"
           " select 900, 'Banho de teste', '', '', min(numero), 60, 0, 0 from tipo_de_servico");
}

void HorariosTest::Open()
{
    const std::shared_ptr<family::Database> database = family::OpenDatabase(file_);
    page_ = std::make_unique<TimetablePage>(
        Desk{database, [this] { return now_; },
             [] {
                 return family::Author{"1", "Ana", "2026-11-19 10:20:00", "BALCAO"};
             }},
        commands_, nullptr);
    page_->resize(1000, 640);
    page_->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(page_.get()));
    page_->setFocus();
}

long long HorariosTest::Book(int employee, const std::string& from, const std::string& until, int status,
                             const std::string& date)
{
    Stored("insert into agendamento (data_inicial, hora_inicial, data_final, hora_final, tipo_do_agendamento,"
           " nome_do_cliente, nome_do_animal, numero_do_tipo_de_servico, codigo_do_servico,"
           " codigo_do_funcionario, situacao, incluido_em, incluido_por) select '"
           + date + "', '" + from + "', '" + date + "', '" + until
           + "', 1, 'Carla', 'Rex', numero_do_tipo_de_servico, codigo, " + std::to_string(employee) + ", "
           + std::to_string(status) + ", '2026-11-01 09:00:00', 'Ana' from servico where codigo = 900");
    return std::stoll(Stored("select max(numero) from agendamento").at(0));
}

std::string HorariosTest::Now(long long number)
{
    return Stored("select data_inicial || ' ' || hora_inicial || ' ' || hora_final || ' ' ||"
                  " codigo_do_funcionario from agendamento where numero = "
                  + std::to_string(number))
        .at(0);
}

QPoint HorariosTest::PlaceOf(int column, int minute)
{
    const GridMeasures& measures = View().Measures();
    View().MoveTo(column, minute);
    const int line = measures.LineOf(minute);
    return measures.Part(column, {line, line + measures.step}).center() - View().Scrolled();
}

QRect HorariosTest::RectOf(long long number)
{
    const int row = View().Blocks().RowOf(number);
    return View().visualRect(View().Blocks().index(row));
}

void HorariosTest::Keys(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    if (QApplication::focusWidget() == nullptr || QApplication::activeWindow() == nullptr) {
        page_->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(page_.get()));
    }
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void HorariosTest::Click(const QPoint& place, Qt::MouseButton button)
{
    QTest::mouseClick(View().viewport(), button, {}, place);
}

void HorariosTest::Drag(const QPoint& from, const QPoint& to)
{
    QWidget* viewport = View().viewport();
    QTest::mousePress(viewport, Qt::LeftButton, {}, from);
    for (const QPoint& at : {(from + to) / 2, to}) {
        QMouseEvent move(QEvent::MouseMove, QPointF(at), viewport->mapToGlobal(QPointF(at)), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &move);
    }
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, to);
}

std::string HorariosTest::TextOf(const char* label)
{
    return page_->findChild<QLabel*>(QString::fromUtf8(label))->text().toStdString();
}

std::string HorariosTest::Current()
{
    return View().currentIndex().data(Qt::AccessibleTextRole).toString().toStdString();
}

std::vector<std::string> HorariosTest::Stored(const std::string& statement)
{
    return kova::test::SqliteFile(file_).Run(statement);
}

} // namespace kova::timetable::test
