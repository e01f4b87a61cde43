#include "tests/unit/registers/registers_fixture.hpp"

#include "family/data/sources/data_source.hpp"
#include "family/registers/customers/customer_merge.hpp"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSpinBox>
#include <QStyle>
#include <QTimer>

namespace kova::registers::test {

using Lines = std::vector<std::string>;

TEST_F(CadastrosTest, NamesEveryRegisterOfTheShop)
{
    Lines names;
    auto& list = Find<QListWidget>("cadastros");
    for (int row = 0; row < list.count(); ++row)
        names.push_back(list.item(row)->text().toStdString());
    for (const char* name :
         {"Clientes", "Animais", "Serviços", "Tipos de serviço", "Funcionários", "Horários dos funcionários",
          "Ausências", "Espécies", "Raças", "Feriados", "Expediente", "Empresa"})
        EXPECT_NE(std::find(names.begin(), names.end(), name), names.end()) << name;
}

TEST_F(CadastrosTest, HasRoomForTheLongestNameBesideTheBarOfALowScreen)
{
    auto& list = Find<QListWidget>("cadastros");
    list.setFixedHeight(list.sizeHintForRow(0) * 3);
    QApplication::processEvents();
    ASSERT_TRUE(list.verticalScrollBar()->isVisible());
    const int margin = 1 + list.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &list);
    for (int row = 0; row < list.count(); ++row) {
        const QString name = list.item(row)->text();
        EXPECT_GE(list.viewport()->width(), list.fontMetrics().horizontalAdvance(name) + 2 * margin)
            << name.toStdString();
    }
}

TEST_F(CadastrosTest, OpensEveryOneOfThemWithoutAChange)
{
    auto& list = Find<QListWidget>("cadastros");
    for (int row = 0; row < list.count(); ++row) {
        TurnTo(list.item(row)->text().toUtf8());
        EXPECT_FALSE(Find<QPushButton>("descartar").isEnabled()) << list.item(row)->text().toStdString();
    }
    EXPECT_TRUE(page_->MayLeave());
}

TEST_F(CadastrosTest, TurnsFromOneToTheNextByKey)
{
    const auto turnedTo = [this] {
        return Find<QListWidget>("cadastros").currentItem()->text().toStdString();
    };
    Type("marc");
    Keys(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(turnedTo(), "Animais");
    EXPECT_EQ(Focused(), "pesquisa");
    Keys(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(turnedTo(), "Clientes");
    EXPECT_EQ(Rows(), Lines{"Márcia Lima"});
    Keys(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(turnedTo(), "Empresa");
    Keys(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(turnedTo(), "Clientes");
}

TEST_F(CadastrosTest, SearchesAsOneTypes)
{
    EXPECT_EQ(Rows(), (Lines{"Ana Lúcia Prado", "José Antônio Peçanha", "Márcia Lima"}));
    EXPECT_EQ(Focused(), "pesquisa");
    Type("marc");
    EXPECT_EQ(Rows(), Lines{"Márcia Lima"});
    EXPECT_EQ(Find<QLabel>("encontrados").text(), "1 encontrado");
    for (const char* text : {"1234-56", "123.456.789-09", "ze@example", "pacoca", "zé"}) {
        TypeOver("pesquisa", text);
        EXPECT_EQ(Rows(), Lines{"José Antônio Peçanha"}) << text;
    }
    TypeOver("pesquisa", "ninguém");
    EXPECT_EQ(Rows(), Lines{});
    EXPECT_EQ(Find<QLabel>("encontrados").text(), "0 encontrados");
}

TEST_F(CadastrosTest, WalksThroughTheListFromTheSearch)
{
    EXPECT_EQ(TextOf("Nome"), "Ana Lúcia Prado");
    Keys(Qt::Key_Down);
    EXPECT_EQ(TextOf("Nome"), "José Antônio Peçanha");
    EXPECT_EQ(Focused(), "pesquisa");
    Keys(Qt::Key_Down);
    Keys(Qt::Key_Down);
    EXPECT_EQ(TextOf("Nome"), "Márcia Lima");
    Keys(Qt::Key_Up);
    EXPECT_EQ(TextOf("Nome"), "José Antônio Peçanha");
    Keys(Qt::Key_Return);
    EXPECT_EQ(Focused(), "Tipo de pessoa");
    Keys(Qt::Key_F3);
    EXPECT_EQ(Focused(), "pesquisa");
}

TEST_F(CadastrosTest, ShowsTheRowThatIsPressed)
{
    auto& list = Find<QTableView>("lista");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualRect(list.model()->index(2, 0)).center());
    EXPECT_EQ(TextOf("Nome"), "Márcia Lima");
}

TEST_F(CadastrosTest, ChangesWhatIsTypedAndNothingElse)
{
    TypeOver("pesquisa", "jose");
    Keys(Qt::Key_Return);
    TypeOver("Apelido", "Zezé");
    EXPECT_TRUE(Find<QPushButton>("salvar").isEnabled());
    Keys(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Told(), "Salvo.");
    EXPECT_EQ(
        Stored("select nome, apelido, documento, tipos_e_canais from cliente where codigo = 1"),
        Lines{"José Antônio Peçanha|Zezé|12345678909|Celular: (11) 91234-5678; E-mail: ze@example.com"});
    EXPECT_EQ(Stored("select count(*) from auditoria where tabela = 'cliente' and operacao = 'alteracao'"),
              Lines{"1"});
    EXPECT_FALSE(Find<QPushButton>("salvar").isEnabled());
}

TEST_F(CadastrosTest, AddsACustomerByTheKeyboardAlone)
{
    Keys(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(Find<QLabel>("titulo").text(), "Novo: cliente");
    EXPECT_EQ(Focused(), "Tipo de pessoa");
    Keys(Qt::Key_Tab);
    EXPECT_EQ(Focused(), "Nome");
    Type("Otávio Reis");
    while (Focused() != "Canais")
        Keys(Qt::Key_Tab);
    Type("Celular: 11987654321");
    Keys(Qt::Key_Return);
    Type("E-mail: otavio@example.com");
    Keys(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Reasons(), Lines{});
    EXPECT_EQ(Stored("select nome, (select count(*) from canal_de_comunicacao where codigo_do_cliente = "
                     "cliente.codigo)"
                     " from cliente where codigo = 4"),
              Lines{"Otávio Reis|2"});
    EXPECT_EQ(Rows(), (Lines{"Ana Lúcia Prado", "José Antônio Peçanha", "Márcia Lima", "Otávio Reis"}));
    EXPECT_EQ(Find<QTableView>("lista").currentIndex().row(), 3);
}

TEST_F(CadastrosTest, AddsOpeningHoursByTheKeyboardAlone)
{
    Elsewhere("delete from expediente where dia_da_semana <> 2");
    Elsewhere("update expediente set hora_inicial = '08:00', hora_final = '18:00'");
    TurnTo("Expediente");
    EXPECT_EQ(Rows(3), Lines{"Segunda-feira|08:00|18:00"});
    Keys(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(Focused(), "Dia da semana");
    Keys(Qt::Key_Down);
    Keys(Qt::Key_Tab);
    EXPECT_EQ(Focused(), "Hora inicial");
    Type("9:00");
    Keys(Qt::Key_Tab);
    Type("24:00");
    Keys(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Reasons(), Lines{});
    EXPECT_EQ(Rows(3), (Lines{"Domingo|09:00|24:00", "Segunda-feira|08:00|18:00"}));
    EXPECT_EQ(Stored("select dia_da_semana, hora_inicial, hora_final from expediente order by 1"),
              (Lines{"1|09:00|24:00", "2|08:00|18:00"}));
}

TEST_F(CadastrosTest, AddsAnAbsenceByTheKeyboardAlone)
{
    TurnTo("Ausências");
    Keys(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(Focused(), "Código do funcionário");
    Type("1");
    for (const char* text : {"01/12/2026", "0:00", "02/12/2026", "24:00", "Curso"}) {
        Keys(Qt::Key_Tab);
        Type(text);
    }
    Keys(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Reasons(), Lines{});
    EXPECT_EQ(Rows(6), Lines{"Bia|01/12/2026|00:00|02/12/2026|24:00|Curso"});
    EXPECT_EQ(Stored("select codigo_do_funcionario, motivo from ausencia"), Lines{"1|Curso"});
    EXPECT_EQ(Find<QComboBox>("Código do funcionário").currentText(), "1 - Bia");
}

TEST_F(CadastrosTest, AsksAboutAnAbsenceOverWhatIsBooked)
{
    Elsewhere("insert into agendamento (numero, data_inicial, hora_inicial, data_final, hora_final,"
              " tipo_do_agendamento, nome_do_cliente, nome_do_animal, numero_do_tipo_de_servico,"
              " codigo_do_servico, codigo_do_funcionario, situacao, incluido_em, incluido_por) values"
              " (1, '2026-12-01', '09:00', '2026-12-01', '10:00', 1, 'Íris', 'Bidu', 4, 1, 1, 1,"
              " '2026-11-01 09:00:00', '1 - Ana')");
    TurnTo("Ausências");
    Keys(Qt::Key_N, Qt::ControlModifier);
    for (const char* text : {"Bia", "01/12/2026", "0:00", "02/12/2026", "24:00"}) {
        Type(text);
        Keys(Qt::Key_Tab);
    }
    Press("salvar");
    EXPECT_EQ(Reasons(), Lines{"Deve ser informado."}) << "what is refused is not asked about";
    Type("Curso");
    Answer({"Não"});
    Keys(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(boxes_,
              Lines{"Há 1 agendamento nesse período: 01/12/2026 09:00, Íris, com Bia.\n\nSalvar mesmo"
                    " assim?"});
    EXPECT_EQ(Stored("select count(*) from ausencia"), Lines{"0"});
    EXPECT_EQ(TextOf("Motivo"), "Curso");
    Answer({"Sim"});
    Keys(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Stored("select motivo from ausencia"), Lines{"Curso"});
}

TEST_F(CadastrosTest, MarksEveryRefusedFieldAndKeepsWhatIsTyped)
{
    Keys(Qt::Key_N, Qt::ControlModifier);
    TypeOver("Documento", "111");
    TypeOver("CEP", "12");
    Press("salvar");
    EXPECT_EQ(Reasons(),
              (Lines{"Deve ser informado.", "Não é um CPF nem um CNPJ válido: confira os dígitos.",
                     "Não é um CEP: são oito dígitos."}));
    EXPECT_EQ(Focused(), "Nome");
    EXPECT_EQ(TextOf("Documento"), "111");
    TypeOver("CEP", "01234567");
    EXPECT_EQ(Reasons().size(), 2U) << "what is corrected is no longer marked";
    EXPECT_EQ(Stored("select count(*) from cliente"), Lines{"3"});
}

TEST_F(CadastrosTest, WritesWhatIsLeftInTheUsualWayOrSaysWhyNot)
{
    Keys(Qt::Key_N, Qt::ControlModifier);
    TypeOver("CEP", "01234567");
    Keys(Qt::Key_Tab);
    EXPECT_EQ(TextOf("CEP"), "01234-567");
    EXPECT_EQ(Focused(), "Canais");
    Type("Celular: 5511912345678");
    Keys(Qt::Key_Tab);
    EXPECT_EQ(Find<QPlainTextEdit>("Canais").toPlainText(), QStringLiteral("Celular: (11) 91234-5678"));
    EXPECT_EQ(Reasons(), Lines{});

    TypeOver("CEP", "0123");
    Keys(Qt::Key_Tab);
    EXPECT_EQ(TextOf("CEP"), "0123");
    EXPECT_EQ(Reasons(), Lines{"Não é um CEP: são oito dígitos."});
    TypeOver("Nome", "Otávio Reis");
    TypeOver("CEP", "20040002");
    auto& state = Find<QComboBox>("UF");
    state.setFocus();
    while (state.currentText() != QStringLiteral("SP"))
        Keys(Qt::Key_Down);
    Keys(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Reasons(), Lines{"O CEP 20040-002 é de RJ, e não de SP."});
    EXPECT_EQ(Focused(), "CEP");
    EXPECT_EQ(Stored("select count(*) from cliente"), Lines{"3"});
}

TEST_F(CadastrosTest, AsksAboutWhatIsTypedBeforeAnotherRowIsShown)
{
    TypeOver("Apelido", "Aninha");
    Find<QLineEdit>("pesquisa").setFocus();
    Answer({"Continuar aqui"});
    Keys(Qt::Key_Down);
    EXPECT_EQ(boxes_, Lines{"Clientes: há alterações que não foram salvas."});
    EXPECT_EQ(TextOf("Apelido"), "Aninha");
    EXPECT_EQ(Find<QTableView>("lista").currentIndex().row(), 0) << "the list marks the row of the form";

    Answer({"Descartar"});
    Keys(Qt::Key_Down);
    EXPECT_EQ(TextOf("Nome"), "José Antônio Peçanha");
    EXPECT_EQ(Stored("select apelido from cliente where codigo = 2"), Lines{""});

    TypeOver("Apelido", "Zezinho");
    Find<QLineEdit>("pesquisa").setFocus();
    Answer({"Salvar"});
    Keys(Qt::Key_Down);
    EXPECT_EQ(TextOf("Nome"), "Márcia Lima");
    EXPECT_EQ(Stored("select apelido from cliente where codigo = 1"), Lines{"Zezinho"});
}

TEST_F(CadastrosTest, UndoesWhatIsTypedAfterAsking)
{
    TypeOver("Apelido", "Aninha");
    Answer({"Não"});
    Keys(Qt::Key_Escape);
    EXPECT_EQ(TextOf("Apelido"), "Aninha");
    Answer({"Sim"});
    Keys(Qt::Key_Escape);
    EXPECT_EQ(TextOf("Apelido"), "");
    EXPECT_TRUE(page_->MayLeave());
}

TEST_F(CadastrosTest, KeepsWhatIsTypedWhileAnotherRegisterIsOnShow)
{
    TypeOver("Apelido", "Aninha");
    TurnTo("Animais");
    EXPECT_EQ(Rows(), Lines{"Paçoca"});
    TurnTo("Clientes");
    EXPECT_EQ(TextOf("Apelido"), "Aninha");
    TurnTo("Animais");
    Answer({"Continuar aqui"});
    EXPECT_FALSE(page_->MayLeave());
    EXPECT_EQ(TextOf("Apelido"), "Aninha") << "what is asked about is on show";
    Answer({"Salvar"});
    EXPECT_TRUE(page_->MayLeave());
    EXPECT_EQ(Stored("select apelido from cliente where codigo = 2"), Lines{"Aninha"});
}

TEST_F(CadastrosTest, MergesWithAnotherDeskAndTellsOfAClash)
{
    TypeOver("Apelido", "Aninha");
    Elsewhere("update cliente set bairro = 'Centro' where codigo = 2");
    Press("salvar");
    EXPECT_EQ(Stored("select apelido, bairro from cliente where codigo = 2"), Lines{"Aninha|Centro"});
    EXPECT_EQ(TextOf("Bairro"), "Centro");

    TypeOver("Apelido", "Nana");
    Elsewhere("update cliente set apelido = 'Lu' where codigo = 2");
    Answer({"OK"});
    Press("salvar");
    ASSERT_EQ(boxes_.size(), 1U);
    EXPECT_NE(boxes_[0].find("Lu"), std::string::npos) << boxes_[0];
    EXPECT_EQ(TextOf("Apelido"), "Nana");
    EXPECT_EQ(Stored("select apelido from cliente where codigo = 2"), Lines{"Lu"});
}

TEST_F(CadastrosTest, TellsThatARowIsGoneAndKeepsWhatIsTyped)
{
    TypeOver("Apelido", "Aninha");
    Elsewhere("delete from cliente where codigo = 2");
    Answer({"OK"});
    Press("salvar");
    ASSERT_EQ(boxes_.size(), 1U);
    EXPECT_NE(boxes_[0].find("não existe mais"), std::string::npos);
    EXPECT_EQ(TextOf("Apelido"), "Aninha");
}

TEST_F(CadastrosTest, TellsWhoGoesOnInThePlaceOfARowAndKeepsWhatIsTyped)
{
    TypeOver("Apelido", "Aninha");
    const auto other = family::OpenDatabase(file_);
    const auto plan = family::registers::PlanCustomerMerge(*other, 3, 2);
    const family::Author marcos{"8", "Marcos", "2026-11-20 09:30:00"};
    ASSERT_TRUE(family::registers::MergeCustomers(*other, plan.value(), {}, marcos).IsDone());
    Answer({"OK"});
    Press("salvar");
    EXPECT_EQ(boxes_,
              Lines{"O cliente 2 foi unido ao cliente 3. Use o código 3. O que foi digitado continua na"
                    " tela."});
    EXPECT_EQ(TextOf("Apelido"), "Aninha");
}

TEST_F(CadastrosTest, RemovesOnlyWhatNothingRefersTo)
{
    Keys(Qt::Key_Down);
    Answer({"Sim", "OK"});
    Keys(Qt::Key_Delete, Qt::ControlModifier);
    ASSERT_EQ(boxes_.size(), 2U);
    EXPECT_NE(boxes_[1].find("1 animal"), std::string::npos) << boxes_[1];
    Keys(Qt::Key_Down);
    Answer({"Não"});
    Press("excluir");
    EXPECT_EQ(Stored("select count(*) from cliente"), Lines{"3"});
    Answer({"Sim"});
    Press("excluir");
    EXPECT_EQ(Stored("select nome from cliente order by nome"),
              (Lines{"Ana Lúcia Prado", "José Antônio Peçanha"}));
    EXPECT_EQ(Rows(), (Lines{"Ana Lúcia Prado", "José Antônio Peçanha"}));
    EXPECT_EQ(Told(), "Excluído.");
}

TEST_F(CadastrosTest, FindsTheOwnerOfANewAnimalAsOneTypes)
{
    TurnTo("Animais");
    Keys(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(Focused(), "Código do cliente");
    Type("marc");
    QWidget* proposals = QApplication::activePopupWidget();
    ASSERT_NE(proposals, nullptr);
    QTest::keyClick(proposals, Qt::Key_Down);
    QTest::keyClick(proposals, Qt::Key_Return);
    EXPECT_EQ(TextOf("Código do cliente"), "3 - Márcia Lima");
    TypeOver("Nome", "Mel");
    for (const auto& [box, text] : {std::pair("Sexo", "Fêmea"), {"Porte", "Pequeno"}}) {
        auto& combo = Find<QComboBox>(box);
        combo.setFocus();
        while (combo.currentText() != QString::fromUtf8(text))
            Keys(Qt::Key_Down);
    }
    Find<QComboBox>("Espécie").setFocus();
    Type("Felina");
    Keys(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Reasons(), Lines{});
    EXPECT_EQ(Stored("select nome, sexo, porte, codigo_do_cliente from animal where codigo = 2"),
              Lines{"Mel|F|1|3"});
}

TEST_F(CadastrosTest, OffersUsualDaysOffByTheKeyboardAlone)
{
    TurnTo("Feriados");
    EXPECT_EQ(Stored("select count(*) from feriado where nome in ('Carnaval', 'Corpus Christi')"),
              Lines{"0"});
    const auto offered = [] {
        Lines days;
        const auto* list = QApplication::activeModalWidget()->findChild<QListWidget*>(QStringLiteral("dias"));
        for (int row = 0; row < list->count(); ++row)
            days.push_back(list->item(row)->text().toStdString());
        return days;
    };
    Lines first, later;
    QTimer::singleShot(0, page_.get(), [&] {
        auto* dialog = QApplication::activeModalWidget();
        auto* year = dialog->findChild<QSpinBox*>(QStringLiteral("ano"));
        first = offered();
        QTest::keyClick(year, Qt::Key_Up);
        later = offered();
        auto* list = dialog->findChild<QListWidget*>(QStringLiteral("dias"));
        QTest::keyClick(list, Qt::Key_Space);
        QTest::keyClick(list, Qt::Key_Return);
    });
    QTest::keyClick(&Find<QPushButton>("sugestoes"), Qt::Key_Space);
    EXPECT_EQ(first,
              (Lines{"Carnaval, segunda-feira, 16/02/2026", "Carnaval, terça-feira, 17/02/2026",
                     "Corpus Christi, quinta-feira, 04/06/2026"}));
    EXPECT_EQ(later.front(), "Carnaval, segunda-feira, 08/02/2027");
    EXPECT_EQ(Stored("select data from feriado where nome in ('Carnaval', 'Corpus Christi') order by data"),
              (Lines{"2027-02-09", "2027-05-27"}))
        << "the mark of the first was taken away";
    EXPECT_EQ(Told(), "2 incluídos.");
    TurnTo("Clientes");
    EXPECT_EQ(page_->findChild<QPushButton*>(QStringLiteral("sugestoes"))->isVisible(), false);
}

TEST_F(CadastrosTest, SaysOfANewRowWhetherItIsHeOrShe)
{
    const std::pair<const char*, const char*> titles[] = {
        {"Clientes", "Novo: cliente"}, {"Ausências", "Nova: ausência"}, {"Espécies", "Nova: espécie"}};
    for (const auto& [page, title] : titles) {
        TurnTo(page);
        Keys(Qt::Key_N, Qt::ControlModifier);
        EXPECT_EQ(Find<QLabel>("titulo").text(), QString::fromUtf8(title));
    }
}

TEST_F(CadastrosTest, TakesTheOwnerThatATypedNameStandsFor)
{
    TurnTo("Animais");
    Keys(Qt::Key_N, Qt::ControlModifier);
    Type("márcia");
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    Keys(Qt::Key_Tab);
    EXPECT_EQ(TextOf("Código do cliente"), "3 - Márcia Lima");
    for (const auto& [typed, reason] : {std::pair("a", "Há mais de um com este nome: escolha na lista."),
                                        {"ninguém", "Não foi encontrado."}}) {
        TypeOver("Código do cliente", typed);
        if (QWidget* proposals = QApplication::activePopupWidget())
            QTest::keyClick(proposals, Qt::Key_Escape);
        Keys(Qt::Key_Tab);
        EXPECT_EQ(Reasons(), Lines{reason});
        EXPECT_EQ(TextOf("Código do cliente"), typed);
    }
}

TEST_F(CadastrosTest, TakesTheEmployeeThatATypedNicknameStandsFor)
{
    TurnTo("Ausências");
    Keys(Qt::Key_N, Qt::ControlModifier);
    Type("bia");
    Keys(Qt::Key_Tab);
    EXPECT_EQ(Find<QComboBox>("Código do funcionário").currentText(), "1 - Bia");
    for (const char* text : {"01/12/2026", "0:00", "02/12/2026", "24:00", "Curso"}) {
        Type(text);
        Keys(Qt::Key_Tab);
    }
    Find<QComboBox>("Código do funcionário").setFocus();
    Find<QComboBox>("Código do funcionário").lineEdit()->selectAll();
    Type("BIA");
    Keys(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Reasons(), Lines{});
    EXPECT_EQ(Stored("select codigo_do_funcionario, motivo from ausencia"), Lines{"1|Curso"});
}

TEST_F(CadastrosTest, CallsAnOwnerByWhatPeopleLookFor)
{
    TurnTo("Animais");
    QStringList labels;
    for (const QLabel* label : page_->findChildren<QLabel*>()) {
        if (label->isVisible() && label->buddy() != nullptr)
            labels += label->text().remove(QLatin1Char('&'));
    }
    EXPECT_TRUE(labels.contains(QStringLiteral("Cliente *"))) << labels.join(u',').toStdString();
    EXPECT_FALSE(labels.contains(QStringLiteral("Código do cliente *")));
    EXPECT_EQ(Find<QLineEdit>("Código do cliente").accessibleName(), QStringLiteral("Cliente (obrigatório)"));
}

TEST_F(CadastrosTest, HidesWhatIsInactiveUntilItIsAskedFor)
{
    Elsewhere("update cliente set situacao = 2, nome_de_busca = nome_de_busca where codigo = 3");
    TypeOver("pesquisa", "lima");
    EXPECT_EQ(Rows(), Lines{});
    EXPECT_EQ(Find<QLabel>("encontrados").text(), "Nenhum ativo; 1 entre os inativos");
    Keys(Qt::Key_I, Qt::ControlModifier);
    EXPECT_EQ(Rows(), Lines{"Márcia Lima"});
    const auto& model = *Find<QTableView>("lista").model();
    EXPECT_EQ(model.index(0, 0).data(Qt::AccessibleTextRole).toString(), "Márcia Lima (não ativo)");
    EXPECT_TRUE(model.index(0, 0).data(Qt::ForegroundRole).isValid()) << "it is subdued";
    TypeOver("pesquisa", "ana");
    EXPECT_EQ(model.index(0, 0).data(Qt::AccessibleTextRole).toString(), "Ana Lúcia Prado");
    EXPECT_FALSE(model.index(0, 0).data(Qt::ForegroundRole).isValid());
    Keys(Qt::Key_I, Qt::ControlModifier);
    TypeOver("pesquisa", "");
    EXPECT_EQ(Rows(), (Lines{"Ana Lúcia Prado", "José Antônio Peçanha"}));
    TurnTo("Feriados");
    EXPECT_FALSE(page_->findChildren<QCheckBox*>(QStringLiteral("inativos")).back()->isVisible());
}

TEST_F(CadastrosTest, ShowsTheCompanyAndSavesIt)
{
    TurnTo("Empresa");
    EXPECT_EQ(TextOf("Nome fantasia"), "Pet Shop Céu");
    TypeOver("Telefone", "(11) 3333-4444");
    Press("salvar");
    EXPECT_EQ(Stored("select nome_fantasia, telefone from empresa"), Lines{"Pet Shop Céu|(11) 3333-4444"});
}

TEST_F(CadastrosTest, GivesEveryFieldANameAndALetterOfItsOwn)
{
    std::map<QString, int> letters;
    for (const QLabel* label : page_->findChildren<QLabel*>()) {
        if (!label->isVisible() || label->buddy() == nullptr)
            continue;
        EXPECT_FALSE(label->buddy()->accessibleName().isEmpty()) << label->text().toStdString();
        const qsizetype mark = label->text().indexOf(QLatin1Char('&'));
        if (mark >= 0)
            ++letters[label->text().mid(mark + 1, 1).toLower()];
    }
    EXPECT_GT(letters.size(), 10U);
    for (const auto& [letter, times] : letters)
        EXPECT_EQ(times, 1) << letter.toStdString();
}

} // namespace kova::registers::test
