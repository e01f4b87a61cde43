#include "tests/unit/family/business/appointments/desk_fixture.hpp"

#include "family/business/shop/print_component.hpp"
#include "system/computer_name.hpp"

namespace kova::family::test {

class PrintedDocuments : public DeskTest { };

TEST_F(PrintedDocuments, LeaveALineWithWhoPrintedThem)
{
    PrintComponent prints(desk_);
    prints.Set("DadosDoUsuario", std::make_shared<DeskUser>("Lia \"D'Ávila\""));
    EXPECT_EQ(prints.Call("Registrar", {Text("Lista de agendamentos"), Long{2}, Text()}), Value(Integer(0)));
    EXPECT_EQ(prints.Call("Registrar", {Text("Etiqueta"), Long{1}, Text("/tmp/e.pdf"), Text("12")}),
              Value(Integer(0)));
    EXPECT_EQ(Texts("select momento || ' ' || usuario || ' ' || posto || ' ' || tabela || ' ' || chave || ' '"
                    " || operacao || ' ' || depois from auditoria order by codigo"),
              (std::vector<std::string>{
                  "2026-11-20 09:04:05 7 - Lia \"D'Ávila\" " + system::ComputerName()
                      + " impressao 0 impressao {\"documento\":\"Lista de agendamentos\",\"paginas\":2}",
                  "2026-11-20 09:04:05 7 - Lia \"D'Ávila\" " + system::ComputerName()
                      + " impressao 12 impressao"
                        " {\"documento\":\"Etiqueta\",\"paginas\":1,\"arquivo\":\"/tmp/e.pdf\"}"}));
}

TEST_F(PrintedDocuments, AreNotNotedWithoutAUser)
{
    PrintComponent prints(desk_);
    EXPECT_EQ(prints.Call("Registrar", {Text("Lista"), Long{2}, Text()}), Value(Integer(1)));
    EXPECT_EQ(prints.Get("DescricaoDoErro"), Value("Usuário não informado."));
    EXPECT_TRUE(Texts("select operacao from auditoria").empty());
}

} // namespace kova::family::test
