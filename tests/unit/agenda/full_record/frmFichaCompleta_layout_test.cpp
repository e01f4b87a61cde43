// The record form's design: places, names, limits, keys, in every state.

#include "agenda/full_record/frmFichaCompleta_design.hpp"
#include "tests/unit/agenda/full_record/frmFichaCompleta_fixture.hpp"

#include <algorithm>
#include <cctype>
#include <set>

namespace kova::agenda {

namespace {

struct Rectangle {
    std::string name;
    Twips left, top, right, bottom;

    bool Meets(const Rectangle& other) const
    {
        return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
    }
    bool Covers(const Rectangle& other) const
    {
        return left <= other.left && other.right <= right && top <= other.top && other.bottom <= bottom;
    }
};

class FichaCompletaLayout : public FichaCompletaTest {
protected:
    // A start to come: one that has passed is asked about on the way.
    FichaCompletaLayout() { Prepare({{"DataInicial", "21/11/2026"}}); }

    /// What stands on the form's own area.
    std::vector<Rectangle> OnShow()
    {
        std::vector<Rectangle> boxes;
        for (const auto& widget : toolkit.FindForm(Form)->Widgets()) {
            const auto& state = widget->State();
            const bool own = widget->Design().container.empty() && widget->KindOfWidget() != WidgetKind::Menu;
            if (own && state.visible)
                boxes.push_back({widget->Design().name, state.left, state.top, state.left + state.width,
                                 state.top + state.height});
        }
        return boxes;
    }
    /// Pairs that share some place, as "A over B" where A covers B wholly and "A cuts B" else.
    Strings Overlaps()
    {
        Strings found;
        const auto boxes = OnShow();
        for (const Rectangle& a : boxes)
            for (const Rectangle& b : boxes)
                if (a.name != b.name && a.Meets(b) && (a.Covers(b) || !b.Covers(a)))
                    found.push_back(a.name + (a.Covers(b) ? " over " : " cuts ") + b.name);
        return found;
    }
    void ExpectInside()
    {
        for (const Rectangle& box : OnShow()) {
            EXPECT_GE(box.left, 0) << box.name;
            EXPECT_LE(box.right, ficha->Formulario->ScaleWidth()) << box.name;
            EXPECT_LE(box.bottom, ficha->Formulario->ScaleHeight()) << box.name;
        }
    }
    static const ControlDesign& Design(const std::string& name)
    {
        const auto& controls = DesenhoDefrmFichaCompleta().controls;
        return *std::find_if(controls.begin(), controls.end(),
                             [&](const auto& control) { return control.name == name; });
    }
};

TEST_F(FichaCompletaLayout, FitsASmallScreen)
{
    EXPECT_LE(ficha->Formulario->Width(), 1024 * 15);
    EXPECT_LE(ficha->Formulario->Height(), 700 * 15) << "below a task bar";
}

TEST_F(FichaCompletaLayout, NothingCutsAnythingWhenAdding)
{
    Show(operacao::Adicionar, [this] {
        ExpectInside();
        const Strings alone{"kvcmbReagendar over kvnumNumeroDeSemanas",
                            "kvcmbReagendar over kvcmbReagendarPor"};
        EXPECT_EQ(Overlaps(), alone) << "the combo stands in front of what it covers";
        EXPECT_EQ(user.Choose(Form, "kvcmbReagendar", "Sim"), "");
        EXPECT_EQ(ficha->kvcmbReagendar.Width(), 1005);
        EXPECT_EQ(Overlaps(), Strings());
        EXPECT_EQ(user.Choose(Form, "kvcmbReagendar", "Não"), "");
        EXPECT_EQ(Overlaps(), alone);
        EXPECT_EQ(user.Click(Form, "optAgendarPor", 2), "");
        EXPECT_EQ(Overlaps(), alone) << "the search stands where the combo was";
    });
}

TEST_F(FichaCompletaLayout, NothingCutsAnythingInTheOtherModes)
{
    for (const Integer mode : {operacao::Detalhar, operacao::Alterar, operacao::Excluir}) {
        MakeForm();
        Show(mode, [this] {
            ExpectInside();
            EXPECT_EQ(Overlaps(),
                      (Strings{"kvtxtObservacaoDoServico over kvcmbReagendar",
                               "kvtxtObservacaoDoServico over kvnumNumeroDeSemanas",
                               "kvtxtObservacaoDoServico over kvcmbReagendarPor",
                               "kvcmbReagendar over kvnumNumeroDeSemanas",
                               "kvcmbReagendar over kvcmbReagendarPor"}));
        });
    }
}

TEST_F(FichaCompletaLayout, TheKeysPassWhatIsCovered)
{
    Show(operacao::Adicionar, [this] {
        EXPECT_EQ(user.Focus(Form, "kvcmbReagendar"), "");
        Key(toolkit::FormKey::Tab);
        EXPECT_EQ(Focused(), "kvcmbBuscar");
    });
    MakeForm();
    Show(operacao::Alterar, [this] {
        EXPECT_EQ(user.Focus(Form, "kvtxtObservacaoDoServico"), "");
        Key(toolkit::FormKey::Tab);
        EXPECT_EQ(Focused(), "kvcmbBuscar");
    });
}

TEST_F(FichaCompletaLayout, TheKeysGoAsTheEyeReads)
{
    Show(operacao::Alterar, [this] {
        Strings stops{Focused()};
        Twips line = 0;
        Twips left = 0;
        for (int step = 0; step < 40; ++step) {
            const auto* widget = toolkit.FindForm(Form)->Focused();
            ASSERT_NE(widget, nullptr);
            const auto& place = widget->State();
            EXPECT_TRUE(place.top > line || (place.top == line && place.left > left)) << stops.back();
            line = place.top;
            left = place.left;
            Key(toolkit::FormKey::Tab);
            if (Focused() == stops.front())
                break;
            stops.push_back(Focused());
        }
        EXPECT_EQ(stops.front(), "kvfCodigoDoCliente");
        EXPECT_EQ(stops.back(), "kvcmdCancelarAlterar");
        EXPECT_EQ(stops.size(), 19U);
    });
}

TEST_F(FichaCompletaLayout, EscapePressesTheSecondButton)
{
    Show(operacao::Adicionar, [this] {
        Key(toolkit::FormKey::Escape);
        EXPECT_FALSE(ficha->Formulario->Visible());
    });
    EXPECT_FALSE(ficha->Estado.OperacaoConcluida);
}

TEST_F(FichaCompletaLayout, AKeyMakesTheChoiceOfTheSearch)
{
    Show(operacao::Adicionar, [this] {
        EXPECT_EQ(user.PressShortcut(Form, "Alt+L"), "");
        EXPECT_TRUE(ficha->kvfNomeDoAnimal.Visible());
        Key(toolkit::FormKey::Tab);
        EXPECT_EQ(Focused(), "kvfNomeDoAnimal") << "the customer's boxes are passed by";
        EXPECT_EQ(user.PressShortcut(Form, "Alt+D"), "");
        Key(toolkit::FormKey::Tab);
        EXPECT_EQ(Focused(), "kvfCodigoDoCliente");
    });
}

TEST_F(FichaCompletaLayout, EachMnemonicLeadsToOneControl)
{
    std::map<char, std::string> taken;
    std::set<std::string> names;
    const auto& controls = DesenhoDefrmFichaCompleta().controls;
    for (const auto& control : controls)
        names.insert(control.name);
    for (const auto& control : controls) {
        if (control.shortcut.starts_with("Alt+"))
            taken.emplace(control.shortcut.back(), control.caption);
        EXPECT_TRUE(control.labelOf.empty() || names.contains(control.labelOf)) << control.name;
        const auto mark = control.caption.find('&');
        if (mark == std::string::npos)
            continue;
        const char key =
            static_cast<char>(std::toupper(static_cast<unsigned char>(control.caption[mark + 1])));
        EXPECT_TRUE(std::isalpha(static_cast<unsigned char>(key))) << control.name;
        EXPECT_TRUE(taken.emplace(key, control.name).second) << control.name << " and " << taken[key];
    }
    EXPECT_GE(taken.size(), 15U);
}

TEST_F(FichaCompletaLayout, EveryFieldHasANameForScreenReaders)
{
    std::set<std::string> labelled;
    for (const auto& control : DesenhoDefrmFichaCompleta().controls)
        labelled.insert(control.labelOf);
    for (const auto& control : DesenhoDefrmFichaCompleta().controls) {
        const bool field = control.name.starts_with("kv") && control.name != "KVTheme";
        EXPECT_TRUE(!field || labelled.contains(control.name) || !control.accessibleName.empty()
                    || !control.caption.empty())
            << control.name;
    }
}

TEST_F(FichaCompletaLayout, HoldsTheDesignsCaptionsAndLimits)
{
    const struct {
        const char* name;
        const char* caption;
    } captions[]{
        {"KVTheme", "Agendamento completo"},
        {"txtPesquisarPor", "Pequisar por:"},
        {"lblCliente", "Cliente*"},
        {"lblCodigoDoCliente", "Codigo"},
        {"lblApelidoOuNomeFantasiaDoCliente", "Apelido ou nome fantasia"},
        {"lblNomeOuRazaoSocialDoCliente", "Nome ou Razão Social"},
        {"lblEndereco", "Endereço"},
        {"lblCanalDeComunicacao", "Canal de comunicação"},
        {"lblAnimal", "Animal*"},
        {"lblNomeDoAnimal", "Nome"},
        {"kvfNomeDoAnimal", "Animal"},
        {"lblSexoDoAnimal", "Sexo"},
        {"lblEspecieDoAnimal", "Espécie"},
        {"lblRacaDoAnimal", "Raça"},
        {"lblCorDoAnimal", "Cor"},
        {"lblServico", "Serviço*"},
        {"lblTipoDoServico", "Tipo"},
        {"lblCodigoDoServico", "Codigo"},
        {"lblNomeDoServico", "Nome"},
        {"lblDataHoraInicial", "Data e hora inicial"},
        {"lblDataHoraFinal", "Data e hora final"},
        {"lblTempoDoServico", "Tempo do serviço"},
        {"lblNomeDoFuncionario", "Funcionário(a)"},
        {"lblObservacao", "Observação"},
        {"lblBuscar", "Buscar"},
        {"lblLevar", "Levar"},
        {"lblSituacao", "Situação"},
        {"lblReagendar", "Reagendar"},
        {"lblObservacaoDeCamposObrigatorios", "* Campos obrigatórios"},
        {"kvcmdSalvarFecharConfirmar", "Salvar"},
        {"kvcmdCancelarAlterar", "Cancelar"},
    };
    for (const auto& row : captions) {
        std::string caption = Design(row.name).caption;
        std::erase(caption, '&');
        EXPECT_EQ(caption, row.caption) << row.name;
    }
    EXPECT_EQ(DesenhoDefrmFichaCompleta().caption, "Agendamento completo");
    EXPECT_EQ(ficha->optAgendarPorCliente.Caption(), "Dados do cliente ");
    EXPECT_EQ(ficha->optAgendarPorAnimal.Caption(), "Nome do animal");
    EXPECT_EQ(Design("kvfCodigoDoCliente").style, 2);
    EXPECT_EQ(Design("kvfCodigoDoServico").style, 2);
    EXPECT_EQ(Design("kvfNomeDoServico").style, 1);
    EXPECT_EQ(Design("kvfNomeDoAnimal").toolTipTextOfTextBox, "Código, Nome ou Microchip");
    EXPECT_EQ(Design("kvnumNumeroDeSemanas").formatType, 1);
    EXPECT_EQ(Design("kvnumNumeroDeSemanas").maxLength, 3);
    EXPECT_EQ(Design("kvtxtObservacaoDoServico").maxLength, 100);
    for (const char* name : {"kvtxtSexoDoAnimal", "kvtxtCorDoAnimal", "kvtxtTempoDoServico"})
        EXPECT_EQ(Design(name).maxLength, 50) << name;
    for (const char* name : {"kvtxtTiposECanaisDeComunicacao", "kvtxtSexoDoAnimal", "kvtxtEspecieDoAnimal",
                             "kvtxtRacaDoAnimal", "kvtxtCorDoAnimal", "kvtxtTempoDoServico"}) {
        EXPECT_TRUE(Design(name).locked) << name;
        EXPECT_EQ(Design(name).backColor, 16382457) << name;
    }
    EXPECT_EQ(Design("kvcmdSalvarFecharConfirmar").backColor, 16617293);
    EXPECT_EQ(Design("kvcmdCancelarAlterar").backColor, colours::White);
    EXPECT_EQ(Design("kvcmdCancelarAlterar").fontColor, 4210752);
}

} // namespace

} // namespace kova::agenda
