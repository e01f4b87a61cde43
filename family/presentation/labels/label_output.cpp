#include "family/presentation/labels/label_output.hpp"

namespace kova::family {

paper::Printing LabelPrinting(const LabelSheet& sheet)
{
    paper::Printing printing;
    printing.printerGone =
        QStringLiteral("A impressora deixou de responder e a impressão foi interrompida.\n\n"
                       "Verifique se ela está ligada e conectada, ou salve as etiquetas em PDF.");
    printing.otherPaper =
        QStringLiteral("O papel escolhido na impressora não é o da folha de etiquetas, e as etiquetas "
                       "sairiam fora do lugar.\n\nEscolha o papel %1 nas propriedades da impressora e "
                       "imprima novamente.")
            .arg(sheet.paper == LabelPaper::A4 ? QStringLiteral("A4") : QStringLiteral("Carta"));
    return printing;
}

} // namespace kova::family
