#include "host/picture.hpp"

#include "agenda/contracts/failure_detail.hpp"
#include "tests/unit/host/with_application.hpp"

#include <QLabel>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace kova::host {

namespace {

class ThePicture : public WithApplication { };

/// A file that nobody can make.
constexpr const char* Impossible = "/proc/dia.png";

} // namespace

TEST_F(ThePicture, ThatCannotBeWrittenSaysSoInPortugueseAndWhyInTheDetail)
{
    QLabel window;
    std::string told;
    try {
        SavePicture(window, Impossible);
    } catch (const std::runtime_error& failure) {
        told = failure.what();
    }
    EXPECT_EQ(WithoutDetail(told),
              "A imagem \"/proc/dia.png\" não pôde ser gravada. Verifique o espaço no disco, ou informe em "
              "--picture um "
              "arquivo de uma pasta em que você pode gravar.");
    EXPECT_NE(told, WithoutDetail(told));
    EXPECT_EQ(told.find("No error"), std::string::npos) << told;
}

} // namespace kova::host
