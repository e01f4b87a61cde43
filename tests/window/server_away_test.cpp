// The server goes away while the agenda is open, and comes back.

#include "tests/window/other_desk.hpp"
#include "tests/window/shop.hpp"

#include "agenda/contracts/widgets.hpp"

#include <QApplication>

#include <iostream>
#include <sstream>

namespace kova::window_test {

namespace {

using Rows = std::vector<std::string>;

constexpr const char* List = "frmLista";
constexpr const char* NotChanged =
    "Não foi possível alterar a situação do agendamento - Tente novamente mais tarde.";
constexpr const char* Unreachable =
    "O servidor não pode ser alcançado. Verifique a rede, e se o servidor está ligado";

/// Takes what is told of failures: without a screen the error window is a text on the standard error.
class ToldFailures {
public:
    ToldFailures() : former_(std::cerr.rdbuf(told_.rdbuf())) { }
    ~ToldFailures() { std::cerr.rdbuf(former_); }
    ToldFailures(const ToldFailures&) = delete;
    ToldFailures& operator=(const ToldFailures&) = delete;

    std::string Take()
    {
        std::string told = told_.str();
        told_.str("");
        return told;
    }

private:
    std::ostringstream told_;
    std::streambuf* former_;
};

test::PostgresServer& Server() { return test::PostgresServer::Shared(); }

/// A server for the other tests again, however the test has ended.
class RunningAgain {
public:
    ~RunningAgain()
    {
        Server().Stop();
        Server().Start();
    }
};

/// Of the row that is selected in the list.
std::string Cell(Long column)
{
    auto* grid = As<MSFlexGrid>(Receptionist::Control(List, "msfgGrade"));
    return grid->TextMatrix(grid->Row(), column);
}

} // namespace

class PostgresqlAway : public Shop {
protected:
    PostgresqlAway() : Shop(Place::Server) { Execute("update agendamento set situacao = 1"); }

    void StopsServer()
    {
        receptionist->Looks([] { Server().Stop(); });
    }
    void StartsServer()
    {
        receptionist->Looks([] { Server().Start(); });
    }
    void Notes(std::string& told)
    {
        receptionist->WaitsFor(List).Looks([&] { told = failures_.Take(); });
    }

    void WaitsForBar(const QString& words)
    {
        receptionist->WaitsUntil("the bar says: " + words.toStdString(), [words] {
            for (QWidget* one : QApplication::allWidgets()) {
                if (one->objectName() == QLatin1String("novidades"))
                    return one->isVisible() ? one->accessibleName() == words : words.isEmpty();
            }
            return false;
        });
    }

    RunningAgain runningAgain_;
    ToldFailures failures_;
};

TEST_F(PostgresqlAway, IsToldAndTheNextActionWorksWhenItIsBackWithoutARestart)
{
    std::string number, shown, onStatus, onDay;
    receptionist->WaitsFor(List).Presses("F7").Presses("Down").Looks([&] { number = Cell(1); });
    StopsServer();
    receptionist->Presses("Ctrl+2").Answers("Return").WaitsFor(List).Looks([&] { shown = Cell(33); });
    Notes(onStatus);
    receptionist->Presses("Alt+Right");
    Notes(onDay);
    StartsServer();
    receptionist->Presses("Alt+Left").WaitsFor(List).Presses("F7").Presses("Down").Presses("Ctrl+2");
    receptionist->WaitsFor(List).Leaves();
    Run();
    EXPECT_EQ(receptionist->Boxes(), Rows{NotChanged});
    EXPECT_NE(onStatus.find(Unreachable), std::string::npos) << onStatus;
    EXPECT_NE(onDay.find(Unreachable), std::string::npos) << onDay;
    EXPECT_EQ(failures_.Take(), "");
    EXPECT_EQ(shown, "1");
    EXPECT_EQ(Query("select numero, alterado_por from agendamento where situacao <> 1"),
              Rows{number + "|Antônia"});
}

TEST_F(PostgresqlAway, IsFoundAgainByItselfAndWhatOthersDidMeanwhileIsTold)
{
    OtherDesk other(Database());
    const std::string number = Value("select min(numero) from agendamento where data_inicial = '2026-11-20'");
    const auto changes = [&](const char* remark) {
        other.Changes(std::stoll(number), [remark](auto& input) { input.remark = remark; });
    };
    receptionist->WaitsFor(List).Looks([] { Server().Stop(); });
    StartsServer();
    receptionist->Looks([&] { changes("Enquanto estava fora."); });
    WaitsForBar("A agenda de hoje mudou em outro posto (1). Ctrl+R atualiza a lista.");
    // And it is heard again.
    receptionist->Looks([&] { changes("Depois."); });
    WaitsForBar("A agenda de hoje mudou em outro posto (2). Ctrl+R atualiza a lista.");
    receptionist->Presses("Ctrl+R").WaitsFor(List);
    WaitsForBar("");
    receptionist->Leaves();
    Run();
    EXPECT_EQ(receptionist->Boxes(), Rows());
}

} // namespace kova::window_test
