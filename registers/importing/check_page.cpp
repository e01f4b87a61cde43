#include "registers/importing/check_page.hpp"

#include "registers/importing/table.hpp"
#include "screens/plain_label.hpp"
#include "screens/refusal_label.hpp"

#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace kova::registers {

namespace {

namespace csv = family::csv;
using family::registers::KeptRow;
using family::registers::UndoneImport;

QLabel* TextLabel(const QString& name, QWidget* parent)
{
    QLabel* label = screens::MakePlainLabel(name, parent);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

/// "2 registros novos e 3 alterados", with what becomes of the other lines.
QString CountsOf(const csv::ImportReport& report)
{
    QStringList parts;
    if (report.added > 0)
        parts += Counted(report.added, "registro novo", "registros novos");
    if (report.changed > 0)
        parts += Counted(report.changed, "registro alterado", "registros alterados");
    if (report.same > 0)
        parts += Counted(report.same, "linha igual ao que já está na loja",
                         "linhas iguais ao que já está na loja");
    if (report.leftOut > 0)
        parts += Counted(report.leftOut, "linha de fora, que já está na loja",
                         "linhas de fora, que já estão na loja");
    return parts.isEmpty() ? QStringLiteral("nenhuma linha") : parts.join(QStringLiteral("; "));
}

} // namespace

CheckPage::CheckPage(QWidget* parent)
    : QWidget(parent),
      step_(TextLabel(QStringLiteral("passo"), this)),
      summary_(TextLabel(QStringLiteral("resumo"), this)),
      refusal_(new screens::RefusalLabel(this)),
      progress_(new QProgressBar(this)),
      table_(ReadOnlyTable(QStringLiteral("linhas"), {}, this)),
      changes_(new QPlainTextEdit(this))
{
    refusal_->setObjectName(QStringLiteral("recusa"));
    progress_->setObjectName(QStringLiteral("progresso"));
    progress_->setAccessibleName(QStringLiteral("Progresso"));
    changes_->setObjectName(QStringLiteral("mudancas"));
    changes_->setAccessibleName(QStringLiteral("O que muda"));
    changes_->setReadOnly(true);
    changes_->setTabChangesFocus(true);
    changes_->setLineWrapMode(QPlainTextEdit::NoWrap);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->addWidget(step_);
    layout->addWidget(progress_);
    layout->addWidget(summary_);
    layout->addWidget(refusal_);
    layout->addWidget(table_, 1);
    layout->addWidget(changes_, 1);
    layout->addStretch(0);
}

void CheckPage::Begin(const QString& what)
{
    Say({});
    step_->setText(what);
    step_->show();
    progress_->setRange(0, 0);
    progress_->show();
}

void CheckPage::Reach(const QString& what, long long done, long long total)
{
    constexpr int Parts = 1000;
    step_->setText(what);
    progress_->setRange(0, Parts);
    progress_->setValue(total == 0 ? Parts : static_cast<int>(done * Parts / total));
}

void CheckPage::Say(const QString& summary)
{
    step_->hide();
    progress_->hide();
    refusal_->Tell({});
    table_->hide();
    changes_->hide();
    summary_->setText(summary);
    summary_->setVisible(!summary.isEmpty());
}

void CheckPage::Refuse(const QString& why)
{
    Say({});
    refusal_->Tell(why);
}

void CheckPage::ShowTable(const QString& name, const QStringList& titles,
                          const std::vector<QStringList>& rows)
{
    table_->setAccessibleName(name);
    FillTable(*table_, titles, rows);
    table_->show();
    if (table_->rowCount() > 0)
        table_->setCurrentCell(0, 0);
}

void CheckPage::ShowProblems(const csv::ImportReport& report, const std::vector<csv::Problem>& problems)
{
    const auto hidden = report.problems - static_cast<long long>(problems.size());
    Refuse(QStringLiteral("%1 em %2: nada foi gravado. Corrija-os na planilha, salve-a e volte para conferir "
                          "de novo.%3")
               .arg(Counted(report.problems, "erro", "erros"),
                    Counted(report.problemLines, "linha", "linhas"),
                    hidden > 0 ? QStringLiteral(" Abaixo estão os primeiros.") : QString()));
    std::vector<QStringList> rows;
    for (const csv::Problem& problem : problems)
        rows.push_back({QString::number(problem.line), Shown(problem.column), Shown(problem.value),
                        Shown(family::registers::Sentence(problem.why))});
    ShowTable(QStringLiteral("Erros"),
              {QStringLiteral("Linha"), QStringLiteral("Coluna"), QStringLiteral("O que está lá"),
               QStringLiteral("O que corrigir")},
              rows);
}

void CheckPage::ShowGood(const csv::ImportReport& report)
{
    Say((report.Writes() ? QStringLiteral("Nenhum erro. Ao importar: %1. Nada foi gravado até aqui.")
                         : QStringLiteral("Nenhum erro, e nada a gravar: %1."))
            .arg(CountsOf(report)));
    ShowChanges(report.changes);
}

void CheckPage::ShowChanges(const std::string& changes)
{
    if (changes.empty())
        return;
    QStringList lines = QString::fromStdString(changes).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    const auto all = lines.size();
    lines = lines.mid(0, static_cast<qsizetype>(MostShown));
    if (lines.size() < all)
        lines += QStringLiteral("(e mais %L1)").arg(all - lines.size());
    changes_->setPlainText(lines.join(QLatin1Char('\n')));
    changes_->show();
}

void CheckPage::ShowWritten(const csv::ImportReport& report)
{
    if (report.number == 0)
        return ShowGood(report);
    Say(QStringLiteral("Importação %1 concluída: %2.%3")
            .arg(QString::number(report.number), CountsOf(report),
                 report.copy.empty() ? QString()
                                     : QStringLiteral("\n\nAntes, a loja foi copiada para ")
                         + Shown(report.copy) + QStringLiteral(".")));
    ShowChanges(report.changes);
}

void CheckPage::ShowUndone(const UndoneImport& undone)
{
    Say(QStringLiteral("Importação %1 desfeita: %2; %3.")
            .arg(QString::number(undone.import.number),
                 Counted(undone.removed, "registro excluído", "registros excluídos"),
                 Counted(undone.restored, "registro como era antes", "registros como eram antes")));
    if (!undone.kept.empty())
        ShowKeptRows(undone.kept);
}

void CheckPage::ShowKept(const UndoneImport& undone)
{
    if (undone.outcome != UndoneImport::Outcome::Refused)
        return Refuse(QStringLiteral("Esta importação já foi desfeita."));
    Refuse(QStringLiteral("Nada foi desfeito: alguém já mudou ou usou registros desta importação. Eles podem "
                          "ficar como estão, e o resto ser desfeito."));
    ShowKeptRows(undone.kept);
}

void CheckPage::ShowKeptRows(const std::vector<KeptRow>& kept)
{
    std::vector<QStringList> rows;
    for (std::size_t at = 0; at < std::min(kept.size(), MostShown); ++at)
        rows.push_back({Shown(kept[at].what), Shown(kept[at].why)});
    ShowTable(QStringLiteral("Registros que ficam como estão"),
              {QStringLiteral("Registro"), QStringLiteral("Por que fica como está")}, rows);
}

void CheckPage::ShowFailure(const QString& failure) { Refuse(failure); }

} // namespace kova::registers
