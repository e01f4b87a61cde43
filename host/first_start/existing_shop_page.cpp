#include "host/first_start/existing_shop_page.hpp"

#include "family/data/engine/server_protection.hpp"
#include "screens/field_frame.hpp"
#include "system/user_folders.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

#include <string_view>

namespace kova::host {

namespace {

QString Explanation()
{
    const std::string_view passwords = system::ShownPasswordsFile();
    return QStringLiteral("Um arquivo de banco de dados deste computador, como Documentos/loja.db, ou o "
                          "endereço de um servidor, como postgresql://ana@servidor/loja. A senha não faz "
                          "parte do endereço: ela fica no arquivo de senhas (%1).")
        .arg(QLatin1String(passwords.data(), static_cast<int>(passwords.size())));
}

QString FoundText(const std::string& source)
{
    const auto warning = family::WarningOfAddress(source);
    return QStringLiteral("A loja foi encontrada e pode ser aberta.")
        + (warning ? QStringLiteral("\n\n") + QString::fromStdString(*warning) : QString());
}

QPushButton* Button(const QString& name, const QString& text, QWidget* parent)
{
    auto* button = new QPushButton(text, parent);
    button->setObjectName(name);
    return button;
}

} // namespace

ExistingShopPage::ExistingShopPage(SourceTrial::Look look, QWidget* parent)
    : QWidget(parent),
      source_(new QLineEdit),
      frame_(new screens::FieldFrame(QStringLiteral("&Arquivo ou endereço da loja"), source_, this, true)),
      outcome_(new QLabel(this)),
      browse_(Button(QStringLiteral("procurar"), QStringLiteral("&Procurar arquivo..."), this)),
      try_(Button(QStringLiteral("testar"), QStringLiteral("&Testar"), this)),
      open_(Button(QStringLiteral("abrir"), QStringLiteral("A&brir a loja"), this)),
      trial_(new SourceTrial(std::move(look), this))
{
    source_->setObjectName(QStringLiteral("fonte"));
    outcome_->setObjectName(QStringLiteral("resultado"));
    outcome_->setTextFormat(Qt::PlainText);
    outcome_->setWordWrap(true);
    auto* explanation = new QLabel(Explanation(), this);
    explanation->setTextFormat(Qt::PlainText);
    explanation->setWordWrap(true);
    QPushButton* back = Button(QStringLiteral("voltar"), QStringLiteral("&Voltar"), this);

    auto* beside = new QHBoxLayout;
    beside->addWidget(browse_);
    beside->addWidget(try_);
    beside->addStretch(1);
    auto* below = new QHBoxLayout;
    below->addWidget(back);
    below->addStretch(1);
    below->addWidget(open_);
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->addWidget(explanation);
    layout->addWidget(frame_);
    layout->addLayout(beside);
    layout->addWidget(outcome_);
    layout->addStretch(1);
    layout->addLayout(below);
    setFocusProxy(source_);

    connect(browse_, &QPushButton::clicked, this, [this] { ChooseFile(); });
    connect(try_, &QPushButton::clicked, this, [this] { Try(false); });
    connect(open_, &QPushButton::clicked, this, [this] { Try(true); });
    connect(back, &QPushButton::clicked, this, [this] { onBack(); });
    connect(source_, &QLineEdit::textEdited, this, [this] {
        frame_->Refuse({});
        outcome_->clear();
    });
}

std::string ExistingShopPage::Source() const { return source_->text().trimmed().toStdString(); }

void ExistingShopPage::ChooseFile()
{
    const QString file =
        QFileDialog::getOpenFileName(this, QStringLiteral("Abrir uma loja"),
                                     QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                                     QStringLiteral("Bancos de dados (*.db);;Todos os arquivos (*)"));
    if (file.isEmpty())
        return;
    source_->setText(file);
    frame_->Refuse({});
    outcome_->clear();
}

void ExistingShopPage::Try(bool thenOpen)
{
    const std::string source = Source();
    outcome_->clear();
    if (source.empty())
        return frame_->Refuse(QStringLiteral("Informe o arquivo ou o endereço da loja."));
    frame_->Refuse({});
    outcome_->setText(QStringLiteral("Procurando a loja..."));
    // A button that goes out of use would hand the keyboard to the next one, "Voltar". Meanwhile Enter
    // presses nothing: no second trial begins.
    source_->setFocus();
    Offer(false);
    trial_->Begin(source, [this, source, thenOpen](const SourceTrial::Refusal& refusal) {
        Offer(true);
        ShowOutcome(refusal, source, thenOpen);
    });
}

void ExistingShopPage::ShowOutcome(const SourceTrial::Refusal& refusal, const std::string& source,
                                   bool thenOpen)
{
    outcome_->setText(refusal ? QString() : FoundText(source));
    if (refusal) {
        frame_->Refuse(qt::Lines(*refusal));
        source_->setFocus();
    } else if (thenOpen) {
        onChosen(source);
    }
}

void ExistingShopPage::Offer(bool isOffered)
{
    source_->setReadOnly(!isOffered);
    for (QPushButton* button : {browse_, try_, open_})
        button->setEnabled(isOffered);
}

} // namespace kova::host
