// What the history calls its parts and what it offers to be narrowed by.

#include "tests/unit/history/history_fixture.hpp"

#include "family/data/archive/audit_archive.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTimer>

#include <filesystem>
#include <tuple>

namespace kova::history::test {

namespace {

using Lines = std::vector<std::string>;

class TheWordsOfTheHistory : public HistoricoTest {
protected:
    static std::string LabelOf(const QWidget& window, const QWidget& part)
    {
        for (const QLabel* label : window.findChildren<QLabel*>()) {
            if (label->buddy() == &part)
                return label->text().toStdString();
        }
        return {};
    }
    Lines EntriesOf(const char* box)
    {
        const auto& choices = Find<QComboBox>(box);
        Lines entries;
        for (int entry = 0; entry < choices.count(); ++entry)
            entries.push_back(choices.itemText(entry).toStdString());
        return entries;
    }
};

} // namespace

TEST_F(TheWordsOfTheHistory, LeadToEachFieldByItsLetter)
{
    Choose("deQue", "Um cliente");
    const std::tuple<const char*, const char*, Qt::Key> fields[] = {
        {"deQue", "De &quê", Qt::Key_Q},      {"qual", "Q&ual", Qt::Key_U},
        {"procurar", "&Procurar", Qt::Key_P}, {"quemFez", "Que&m", Qt::Key_M},
        {"oQueFez", "O que &fez", Qt::Key_F}, {"registro", "Re&gistro", Qt::Key_G},
        {"desde", "D&esde", Qt::Key_E},       {"ate", "&Até", Qt::Key_A},
    };
    for (const auto& [name, label, letter] : fields) {
        EXPECT_EQ(LabelOf(*page_, Find<QWidget>(name)), label);
        Keys(letter, Qt::AltModifier);
        EXPECT_EQ(Focused(), name);
    }
}

TEST_F(TheWordsOfTheHistory, SayWhatCanBeTypedWhere)
{
    EXPECT_EQ(Find<QLineEdit>("procurar").placeholderText(), QStringLiteral("Palavras ou número (F3)"));
    EXPECT_FALSE(Find<QLineEdit>("qual").isEnabled()) << "of everything there is no which";
    for (const auto& [kind, hint] : {std::pair("Um agendamento", "Número do agendamento"),
                                     {"Um cliente", "Código ou parte do nome"},
                                     {"Um usuário", "Código ou parte do nome"},
                                     {"Um dia da agenda", "dd/mm/aaaa"}}) {
        Choose("deQue", kind);
        EXPECT_TRUE(Find<QLineEdit>("qual").isEnabled()) << kind;
        EXPECT_EQ(Find<QLineEdit>("qual").placeholderText().toStdString(), hint) << kind;
    }
}

TEST_F(TheWordsOfTheHistory, NameTheButtonsAndTheColumns)
{
    EXPECT_EQ(Find<QPushButton>("desfazer").text(), QStringLiteral("&Desfazer..."));
    auto& clear = Find<QPushButton>("limpar");
    EXPECT_EQ(clear.text(), QStringLiteral("&Limpar"));
    EXPECT_EQ(clear.toolTip(), QStringLiteral("Mostra tudo de novo (Ctrl+L)"));
    for (const bool isByKeys : {true, false}) {
        Choose("oQueFez", "Inclusões");
        EXPECT_EQ(Acts().size(), 1U);
        isByKeys ? Keys(Qt::Key_L, Qt::ControlModifier) : Press("limpar");
        EXPECT_EQ(Acts().size(), 3U);
    }
    const auto& model = *Find<QTableView>("linhas").model();
    Lines columns;
    for (int column = 0; column < model.columnCount(); ++column)
        columns.push_back(model.headerData(column, Qt::Horizontal).toString().toStdString());
    EXPECT_EQ(columns, (Lines{"Quando", "Quem", "Posto", "O que fez"}));
}

TEST_F(TheWordsOfTheHistory, OfferEveryKindOfActAndEveryKindOfRow)
{
    EXPECT_EQ(EntriesOf("oQueFez"),
              (Lines{"Todos", "Inclusões", "Alterações", "Cancelamentos", "Exclusões", "Restaurações",
                     "Uniões", "Anonimizações", "Importações", "Importações desfeitas", "Exportações",
                     "Impressões", "Cópias restauradas", "Arquivamentos", "Atualizações do banco", "Entradas",
                     "Entradas recusadas", "Direitos negados"}));
    EXPECT_EQ(EntriesOf("registro"),
              (Lines{"Todos",
                     "Agendamentos",
                     "Lista de espera",
                     "Serviços da lista de espera",
                     "Funcionários da lista de espera",
                     "Clientes",
                     "Animais",
                     "Serviços",
                     "Tipos de serviço",
                     "Funcionários",
                     "Horários dos funcionários",
                     "Ausências",
                     "Espécies",
                     "Raças",
                     "Feriados",
                     "Horário de funcionamento",
                     "Empresa",
                     "Usuários",
                     "Papéis",
                     "Direitos dos papéis",
                     "Ajustes da loja",
                     "Pacotes",
                     "Pré-vendas",
                     "Importações"}));
}

TEST_F(TheWordsOfTheHistory, AskForTheOneThatIsMeantWhereThereAreTwoOfAName)
{
    Stored("create temporary table outro as select * from cliente; update outro set codigo = 2;"
           " insert into cliente select * from outro");
    Open();
    Choose("deQue", "Um cliente");
    TypeInto("qual", "José <b>Antônio</b> d'Ávila");
    EXPECT_EQ(Find<QLineEdit>("qual").accessibleDescription(),
              QStringLiteral("Há mais de um com este nome: escolha na lista."));
    TypeInto("qual", "1");
    EXPECT_EQ(Find<QLineEdit>("qual").accessibleDescription(), QString());
    EXPECT_EQ(Acts().size(), 3U);
}

TEST_F(TheWordsOfTheHistory, AskWhereTheArchiveIsThatWasMoved)
{
    family::Author owner = author_;
    owner.isOwner = true;
    family::ArchiveAudit(file_, 2026, std::nullopt, owner, {});
    const std::string moved = (folder_.Path() / "fora.auditoria").string();
    std::filesystem::rename(family::ArchiveBeside(file_), moved);
    page_->Refresh();
    auto& box = Find<QCheckBox>("incluirArquivo");
    EXPECT_EQ(box.text(), QStringLiteral("&Incluir arquivo"));
    QTimer::singleShot(0, page_.get(), [&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Onde está o arquivo da auditoria?"));
        EXPECT_EQ(dialog->nameFilters(),
                  (QStringList{QStringLiteral("Arquivos da auditoria (*.auditoria)"),
                               QStringLiteral("Todos os arquivos (*)")}));
        dialog->selectFile(QString::fromStdString(moved));
        QMetaObject::invokeMethod(dialog, "accept");
    });
    box.setFocus();
    Keys(Qt::Key_Space);
    EXPECT_TRUE(box.isChecked());
    EXPECT_EQ(Acts().size(), 4U);
}

} // namespace kova::history::test
