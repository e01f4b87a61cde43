#include "tests/monkey/plans.hpp"

namespace kova::monkey {

namespace {

constexpr int Middle = 500;

/// Acts put down one by one.
class Plan {
public:
    Plan(Chance& chance, const Words& words, bool isCareful)
        : chance_(chance), words_(words), isCareful_(isCareful)
    {
    }

    std::deque<Act> Take() { return std::move(acts_); }

    void BookRegistered();
    void BookSimplified();
    void ChangeRow();
    void MarkRow();
    void PrintList();
    void PrintRow();
    void Filter();
    void WalkByKeys();

private:
    void Press(const std::string& target, int x = Middle, int y = Middle)
    {
        acts_.push_back({.verb = Verb::Press, .target = target, .numbers = {x, y}});
    }
    void Key(const std::string& keys) { acts_.push_back({.verb = Verb::Key, .text = keys}); }
    void Type(const std::string& text) { acts_.push_back({.verb = Verb::Type, .text = text}); }
    void TypeInto(const std::string& target, const std::string& text)
    {
        Press(target);
        Type(text);
    }
    /// Opens a combo and presses one of its rows.
    void Choose(const std::string& combo)
    {
        Press(combo);
        Press("@popup", Middle, chance_.Between(isCareful_ ? 200 : 20, 980));
    }
    /// Of a menu with that many entries.
    void Pick(int entries) { Press("@popup", Middle, (2 * chance_.Between(1, entries) - 1) * 500 / entries); }
    void RestOnRow()
    {
        acts_.push_back({.verb = Verb::Move,
                         .target = "frmLista.msfgGrade",
                         .numbers = {chance_.Between(100, 500), chance_.Between(80, 900)}});
    }
    void OpenNew(int entry);
    void FindCustomer();
    void FindService(const std::string& form);
    void EnterTimes(const std::string& form);
    void Repeat();
    void Save(const std::string& form);
    void Answer();

    Chance& chance_;
    const Words& words_;
    bool isCareful_;
    std::deque<Act> acts_;
};

void Plan::OpenNew(int entry)
{
    if (chance_.InHundred(50))
        Key("F2");
    else
        Press("frmLista.kvcmdAdicionar");
    Press("@popup", Middle, entry == 0 ? 250 : 750);
}

/// By code, or by a name of which the picker shows several.
void Plan::FindCustomer()
{
    if (chance_.InHundred(50)) {
        TypeInto("frmFichaCompleta.kvfCodigoDoCliente", std::to_string(chance_.Between(1, 60)));
    } else {
        TypeInto(chance_.OneOf<std::string>({"frmFichaCompleta.kvfNomeOuRazaoSocialDoCliente",
                                             "frmFichaCompleta.kvfApelidoOuNomeFantasiaDoCliente",
                                             "frmFichaCompleta.kvfEnderecoDoCliente"}),
                 words_.Name(chance_));
    }
    Key("Return");
    if (chance_.InHundred(30))
        acts_.push_back({.verb = Verb::DoublePress,
                         .target = "frmPesquisaDeClientes.msfgGrade",
                         .numbers = {Middle, chance_.Between(100, 500)}});
    else
        Press("frmPesquisaDeClientes.msfgGrade", Middle, chance_.Between(100, 500));
    Choose("frmFichaCompleta.kvcmbAnimal");
}

void Plan::FindService(const std::string& form)
{
    if (!isCareful_ && chance_.InHundred(40))
        Choose(form + ".kvcmbTiposDeServicos");
    TypeInto(form + ".kvfNomeDoServico",
             isCareful_ ? "banho"
                        : chance_.OneOf<std::string>({"banho", "tosa", "c", "vac", "pacote", "tesoura"}));
    Key("Return");
    acts_.push_back({.verb = chance_.InHundred(50) ? Verb::DoublePress : Verb::Press,
                     .target = "frmPesquisaDeServicos.msfgGrade",
                     .numbers = {Middle, chance_.Between(100, 400)}});
}

void Plan::EnterTimes(const std::string& form)
{
    TypeInto(form + ".kvdtpDataInicial",
             isCareful_ ? Words::FreeDateDigits(chance_) : Words::DateDigits(chance_));
    TypeInto(form + ".kvtimHoraInicial",
             isCareful_ ? Words::OpenTimeDigits(chance_) : Words::TimeDigits(chance_));
    Choose(form + ".kvcmbFuncionarios");
    Answer();
}

void Plan::Repeat()
{
    Choose("frmFichaCompleta.kvcmbReagendar");
    Choose("frmFichaCompleta.kvcmbReagendar");
    TypeInto("frmFichaCompleta.kvnumNumeroDeSemanas", std::to_string(chance_.Between(0, 9)));
    Choose("frmFichaCompleta.kvcmbReagendarPor");
    const int dates = chance_.Between(0, 4);
    for (int i = 0; i < dates; ++i) {
        Type(Words::DateDigits(chance_));
        Key("Tab");
        Type(Words::TimeDigits(chance_));
        Key("Tab");
    }
    Press(chance_.InHundred(70) ? "frmSelecionarDatas.kvcmdSalvarFecharConfirmar"
                                : "frmSelecionarDatas.kvcmdCancelar");
}

void Plan::Save(const std::string& form)
{
    if (chance_.InHundred(50))
        Key("Ctrl+S");
    else
        Press(form + ".kvcmdSalvarFecharConfirmar");
    Answer();
    Answer();
}

/// Nobody is asked where no box is open.
void Plan::Answer() { Press(chance_.InHundred(60) ? "QPushButton:0" : "QPushButton:1"); }

void Plan::BookRegistered()
{
    OpenNew(0);
    FindCustomer();
    FindService("frmFichaCompleta");
    EnterTimes("frmFichaCompleta");
    if (chance_.InHundred(40))
        Repeat();
    Save("frmFichaCompleta");
}

void Plan::BookSimplified()
{
    const std::string form = "frmFichaSimplificada";
    OpenNew(1);
    TypeInto(form + ".kvtxtNomeOuRazaoSocialDoCliente", words_.Name(chance_));
    TypeInto(form + ".kvtxtCanaisDeComunicacaoDoCliente", "(11) 98765-4321");
    TypeInto(form + ".kvtxtNomeDoAnimal", words_.Name(chance_));
    Choose(form + ".kvcmbSexoDoAnimal");
    Choose(form + ".kvcmbEspeciesDeAnimais");
    Choose(form + ".kvcmbRacasDeAnimais");
    FindService(form);
    EnterTimes(form);
    Save(form);
}

void Plan::ChangeRow()
{
    RestOnRow();
    Press(chance_.OneOf<std::string>(
        {"frmLista.kvcmdAlterar", "frmLista.kvcmdDetalhar", "frmLista.kvcmdExcluir"}));
    const std::string form = chance_.InHundred(70) ? "frmFichaCompleta" : "frmFichaSimplificada";
    switch (chance_.Between(0, 3)) {
    case 0: FindService(form); break;
    case 1: EnterTimes(form); break;
    case 2: Choose(form + ".kvcmbSituacao"); break;
    default: TypeInto(form + ".kvtxtObservacaoDoServico", words_.Any(chance_));
    }
    Save(form);
}

void Plan::MarkRow()
{
    RestOnRow();
    const int times = chance_.Between(1, 4);
    for (int i = 0; i < times; ++i) {
        Press(chance_.OneOf<std::string>({"frmLista.kvcmdMarcarAgendamentoComoAgendado",
                                          "frmLista.kvcmdMarcarAgendamentoComoAtendido",
                                          "frmLista.kvcmdMarcarAgendamentoComoCancelado",
                                          "frmLista.kvcmdMarcarAgendamentoComoAtendidoEGeradoPreVenda"}));
        Answer();
    }
}

void Plan::PrintList()
{
    Press("frmLista.kvcmdImprimirLista");
    Pick(2);
    if (chance_.InHundred(50))
        Choose("frmImprimirAgenda.kvcmbSituacao");
    Press("frmImprimirAgenda.kvcmdVisualizarImpressao");
    for (const char* keys : {"Ctrl+S", "Return", "PgDown", "Ctrl++", "Esc", "Esc"})
        Key(keys);
}

void Plan::PrintRow()
{
    RestOnRow();
    Press("frmLista.kvcmdImprimirFicha");
    Pick(3);
    for (const char* keys : {"PgDown", "Ctrl+S", "Alt+S", "Return", "Esc", "Esc"})
        Key(keys);
}

void Plan::Filter()
{
    const int times = chance_.Between(1, 4);
    for (int i = 0; i < times; ++i) {
        Choose(chance_.OneOf<std::string>(
            {"frmLista.kvcmbSituacao", "frmLista.kvcmbTiposDeServicos", "frmLista.kvcmbFuncionarios"}));
        Press("frmLista.kvnbBarraDeNavegacao", chance_.Between(50, 950));
    }
    TypeInto("frmLista.kvfndPesquisar", words_.Name(chance_));
    Key("Return");
    Press("frmLista.kvdtpDataDeAgendamento", 900);
    Press("@popup", chance_.Between(50, 950), chance_.Between(50, 950));
}

/// Over the pages to a row, without the mouse, and what a key does with it.
void Plan::WalkByKeys()
{
    Key("F7");
    const int steps = chance_.Between(2, 9);
    for (int i = 0; i < steps; ++i)
        Key(chance_.OneOf<std::string>({"Down", "Down", "Up", "Home", "End", "PgDown", "PgDown", "PgUp",
                                        "Ctrl+Home", "Ctrl+End", "F5", "Alt+Right", "Alt+Left"}));
    Key(chance_.OneOf<std::string>(
        {"Return", "Space", "Ctrl+1", "Ctrl+2", "Ctrl+3", "Ctrl+4", "F4", "F6", "F8"}));
    Answer();
    Key(chance_.OneOf<std::string>({"F5", "PgDown", "Esc", "F1", "Down"}));
    Key("Esc");
}

} // namespace

std::deque<Act> PlanSomething(Chance& chance, const Words& words, bool isCareful)
{
    Plan plan(chance, words, isCareful);
    switch (chance.ByWeight({23, 14, 18, 14, 7, 7, 8, 9})) {
    case 0: plan.BookRegistered(); break;
    case 1: plan.BookSimplified(); break;
    case 2: plan.ChangeRow(); break;
    case 3: plan.MarkRow(); break;
    case 4: plan.PrintList(); break;
    case 5: plan.PrintRow(); break;
    case 6: plan.Filter(); break;
    default: plan.WalkByKeys();
    }
    return plan.Take();
}

} // namespace kova::monkey
