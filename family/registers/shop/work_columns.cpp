#include "family/registers/shop/work_columns.hpp"

#include "family/registers/description/column_kinds.hpp"

namespace kova::family::registers {

namespace {

using namespace work_columns;

constexpr Choice Weekdays[] = {{1, "Domingo"},      {2, "Segunda-feira"}, {3, "Terça-feira"},
                               {4, "Quarta-feira"}, {5, "Quinta-feira"},  {6, "Sexta-feira"},
                               {7, "Sábado"}};

template <class Record> Column<Record> Weekday()
{
    return Required(ColumnsOf<Record>::OneOf(Day, &Record::diaDaSemana, Weekdays));
}

template <class Record> Column<Record> Start()
{
    return Required(ColumnsOf<Record>::Time(FromTime, &Record::horaInicial));
}

template <class Record> Column<Record> End()
{
    return Required(ColumnsOf<Record>::EndTime(UntilTime, &Record::horaFinal));
}

} // namespace

const Columns<OpeningHoursRow>& OpeningHoursColumns()
{
    using Row = OpeningHoursRow;
    static const Columns<Row> columns = {
        ColumnsOf<Row>::Code("Código", &Row::codigo),
        Helped("Em um dia da semana sem nenhum horário a loja não abre.", Weekday<Row>()),
        Helped("Um dia com intervalo tem dois horários.", Start<Row>()),
        Helped("24:00 é o fim do dia.", End<Row>()),
    };
    return columns;
}

const Columns<EmployeeHoursRecord>& EmployeeHoursColumns()
{
    using Record = EmployeeHoursRecord;
    using Cols = ColumnsOf<Record>;
    static const Columns<Record> columns = {
        Cols::Code("Código", &Record::codigo),
        AskedAs("Funcionário(a)",
                RefersTo("funcionarios",
                         Required(Helped("Quem não tem nenhum horário aqui trabalha sempre que a loja abre.",
                                         Cols::Code(Employee, &Record::codigoDoFuncionario))))),
        Helped("Quem tem horários não trabalha nos dias da semana em que não tem nenhum.", Weekday<Record>()),
        Helped("Um dia com intervalo tem dois horários.", Start<Record>()),
        Helped("24:00 é o fim do dia.", End<Record>()),
    };
    return columns;
}

const Columns<AbsenceRecord>& AbsenceColumns()
{
    using Record = AbsenceRecord;
    using Cols = ColumnsOf<Record>;
    static const Columns<Record> columns = {
        Cols::Code("Código", &Record::codigo),
        AskedAs("Funcionário(a)",
                RefersTo("funcionarios",
                         Helped("Vazio, a ausência é de todos.",
                                Cols::Code(Employee, &Record::codigoDoFuncionario)))),
        Required(Cols::Date(FromDate, &Record::dataInicial)),
        Helped("Um dia inteiro vai das 00:00 às 24:00.", Start<Record>()),
        Helped("O último dia da ausência.", Required(Cols::Date(UntilDate, &Record::dataFinal))),
        Helped("24:00 é o fim do dia.", End<Record>()),
        Helped("É mostrado a quem tenta agendar durante a ausência.",
               Required(Cols::Text(Reason, &Record::motivo, 100))),
    };
    return columns;
}

} // namespace kova::family::registers
