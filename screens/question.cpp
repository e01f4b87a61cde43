#include "screens/question.hpp"

#include <QMessageBox>
#include <QPushButton>

namespace kova::screens {

namespace {

const QString ProductName = QStringLiteral("Kovaris");

} // namespace

bool AskWhether(QWidget& over, const QString& question)
{
    QMessageBox box(QMessageBox::Question, ProductName, question, QMessageBox::NoButton, &over);
    box.setTextFormat(Qt::PlainText);
    QPushButton* yes = box.addButton(QStringLiteral("&Sim"), QMessageBox::YesRole);
    QPushButton* no = box.addButton(QStringLiteral("&Não"), QMessageBox::NoRole);
    box.setDefaultButton(no);
    box.setEscapeButton(no);
    box.exec();
    return box.clickedButton() == yes;
}

WhatOfChanges AskAboutChanges(QWidget& over, const QString& title)
{
    QMessageBox box(QMessageBox::Question, ProductName,
                    title + QStringLiteral(": há alterações que não foram salvas."), QMessageBox::NoButton,
                    &over);
    box.setTextFormat(Qt::PlainText);
    QPushButton* save = box.addButton(QStringLiteral("&Salvar"), QMessageBox::AcceptRole);
    QPushButton* discard = box.addButton(QStringLiteral("&Descartar"), QMessageBox::DestructiveRole);
    QPushButton* stay = box.addButton(QStringLiteral("&Continuar aqui"), QMessageBox::RejectRole);
    box.setDefaultButton(save);
    box.setEscapeButton(stay);
    box.exec();
    if (box.clickedButton() == save)
        return WhatOfChanges::Save;
    return box.clickedButton() == discard ? WhatOfChanges::Discard : WhatOfChanges::Stay;
}

bool AskToDiscard(QWidget& over)
{
    return AskWhether(over, QStringLiteral("Desfazer o que foi digitado e não foi salvo?"));
}

bool AskToContinue(QWidget& over, const QString& row)
{
    QMessageBox box(QMessageBox::Question, ProductName,
                    QStringLiteral("Há alterações não salvas de %1.\n\nO programa foi interrompido antes que "
                                   "fossem salvas.")
                        .arg(row),
                    QMessageBox::NoButton, &over);
    box.setTextFormat(Qt::PlainText);
    QPushButton* go = box.addButton(QStringLiteral("&Continuar"), QMessageBox::AcceptRole);
    box.addButton(QStringLiteral("&Descartar"), QMessageBox::DestructiveRole);
    box.setDefaultButton(go);
    box.setEscapeButton(go);
    box.exec();
    return box.clickedButton() == go;
}

bool AskToSave(QWidget& over, const QString& concern)
{
    return AskWhether(over, concern + QStringLiteral("\n\nSalvar mesmo assim?"));
}

bool AskToRemove(QWidget& over, const QString& one)
{
    return AskWhether(over, QStringLiteral("Excluir este registro (%1)?").arg(one));
}

void ShowWarning(QWidget& over, const QString& text)
{
    QMessageBox box(QMessageBox::Warning, ProductName, text, QMessageBox::Ok, &over);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

} // namespace kova::screens
