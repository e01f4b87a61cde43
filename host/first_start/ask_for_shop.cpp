#include "host/first_start/ask_for_shop.hpp"

#include "family/data/sources/data_source.hpp"
#include "host/first_start/shop_question.hpp"
#include "host/folders.hpp"
#include "host/session/computer_user.hpp"
#include "screens/run_alone.hpp"
#include "system/path_text.hpp"

#include <QStandardPaths>

namespace kova::host {

std::optional<ChosenShop> AskForShop(const RememberedShops& remembered, const std::string& told,
                                     QWidget* parent)
{
    const auto look = [](const std::string& source) { return family::CheckDataSource(source); };
    ShopQuestion question({remembered.All(), system::TextOf(DemonstrationDatabase()), NameOfThisUser(),
                           QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation).toStdString(),
                           look},
                          parent);
    question.Tell(told);
    if (parent != nullptr)
        question.exec();
    else
        screens::RunAlone(question);
    return question.Chosen();
}

} // namespace kova::host
