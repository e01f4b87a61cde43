#include "family/data/stores/new_shop.hpp"
#include "family/demo/fictional_shop.hpp"
#include "family/users/passwords.hpp"
#include "host/session/remembered_shops.hpp"
#include "tests/support/first_shop.hpp"
#include "tests/unit/host/program_run.hpp"

#include <QImage>

#include <gtest/gtest.h>

#include <algorithm>
#include <regex>

namespace kova::host::test {

namespace {

struct PictureSize {
    unsigned width = 0;
    unsigned height = 0;

    bool operator==(const PictureSize&) const = default;
};

/// Reads the header of a PNG file; 0 by 0 where it is none.
PictureSize SizeOfPicture(const fs::path& file)
{
    const std::string content = ContentOf(file);
    if (content.size() < 24 || content.compare(0, 8, "\x89PNG\r\n\x1a\n", 8) != 0)
        return {};
    const auto number = [&](std::size_t at) {
        unsigned value = 0;
        for (std::size_t i = at; i < at + 4; ++i)
            value = value * 256 + static_cast<unsigned char>(content[i]);
        return value;
    };
    return {number(16), number(20)};
}

/// Lines of the output that begin with a time of day.
long RowsIn(const std::string& output)
{
    const std::regex row("(^|\n)[0-9]{2}:[0-9]{2}  [^\n]+");
    return std::distance(std::sregex_iterator(output.begin(), output.end(), row), std::sregex_iterator());
}

void ExpectText(const std::string& text, const std::string& part)
{
    EXPECT_NE(text.find(part), std::string::npos) << "\"" << part << "\" is not in:\n" << text;
}

} // namespace

TEST(Start, DrawsTheDemonstrationDayIntoAPictureAndPrintsItsFirstRows)
{
    const TemporaryFolder home;
    const fs::path picture = home / "pasta/agenda.png";
    const ProgramResult result =
        RunKovaris({"--date", "25/03/2026", "--size", "1280x800", "--picture", picture}, home.Path());

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(SizeOfPicture(picture), (PictureSize{1280, 800}));
    ExpectText(result.output, "Agenda de 25/03/2026");
    EXPECT_TRUE(result.output.ends_with("\nImagem da janela: " + picture.string() + "\n"))
        << "nothing is said of a screen that nobody has asked for\n"
        << result.output;
    EXPECT_GE(RowsIn(result.output), 5) << result.output;
}

TEST(Start, DrawsAPictureInTheLookThatIsAskedForElseLight)
{
    const TemporaryFolder home;
    const auto lightness = [&](std::vector<std::string> arguments) {
        const std::string picture = home / "agenda.png";
        arguments.insert(arguments.end(), {"--date", "25/03/2026", "--picture", picture});
        EXPECT_EQ(RunKovaris(arguments, home.Path()).status, 0);
        const QImage one(QString::fromStdString(picture));
        return one.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixelColor(0, 0).lightness();
    };
    EXPECT_GT(lightness({}), 192);
    EXPECT_GT(lightness({"--look", "claro"}), 192);
    EXPECT_LT(lightness({"--look", "escuro"}), 64);
}

TEST(Start, OfAPictureIsNoOpeningOfAShopToBeRemembered)
{
    const TemporaryFolder home;
    ASSERT_EQ(RunKovaris({"--date", "25/03/2026"}, home.Path()).status, 0);
    EXPECT_TRUE(RememberedShops(home / ".config/kovaris/kovaris.ini").All().empty());
}

TEST(Start, LeavesNothingThatOthersMayRead)
{
    const TemporaryFolder home;
    ASSERT_EQ(RunKovaris({"--date", "25/03/2026"}, home.Path()).status, 0);
    int files = 0;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(home.Path())) {
        constexpr fs::perms OfOthers = fs::perms::group_all | fs::perms::others_all;
        if (!entry.is_regular_file())
            continue;
        ++files;
        EXPECT_EQ(entry.status().permissions() & OfOthers, fs::perms::none) << entry.path();
    }
    // The registry, the demonstration and the picture at least.
    EXPECT_GE(files, 3);
}

TEST(Start, WithoutADisplaySaysWhereThePictureIsAndWhatADisplayIsFor)
{
    const TemporaryFolder home;
    const ProgramResult result = RunKovaris({"--date", "25/03/2026"}, home.Path());

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(SizeOfPicture(home / ".local/share/kovaris/agenda.png"), (PictureSize{1366, 768}));
    ExpectText(result.output,
               "\nImagem da janela: " + (home / ".local/share/kovaris/agenda.png").string()
                   + "\nNão há tela: as variáveis DISPLAY e WAYLAND_DISPLAY não levam a uma. A tela é "
                     "necessária\npara "
                     "usar a agenda em uma janela, com mouse e teclado; sem ela só é possível ver o dia.\n");
}

TEST(Start, ForMeasuringEndsOnceTheDayIsPaintedAndSaysSo)
{
    const TemporaryFolder home;
    const ProgramResult result = RunKovaris({"--first-paint", "--date", "25/03/2026"}, home.Path());

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, "desenhado\n");
    EXPECT_FALSE(fs::exists(home / ".local/share/kovaris/agenda.png"));
}

TEST(Start, KeepsTheDemonstrationShopThatIsThere)
{
    const TemporaryFolder home;
    RunKovaris({"--date", "25/03/2026"}, home.Path());
    const fs::path shop = home / ".local/share/kovaris/demonstracao.db";
    const fs::file_time_type made = fs::last_write_time(shop);
    const ProgramResult second = RunKovaris({"--date", "25/03/2026"}, home.Path());

    EXPECT_EQ(second.status, 0) << second.errors;
    EXPECT_EQ(fs::last_write_time(shop), made);
}

TEST(Start, OpensAShopThatWasJustCreated)
{
    const TemporaryFolder home;
    const std::string shop = home / "loja.db";
    const ProgramResult created =
        RunProgram(BuildFolder() / "agenda-data", {"create", shop, "--company", "Pet Shop Céu"}, home.Path());
    ASSERT_EQ(created.status, 0) << created.errors;
    const ProgramResult result = RunKovaris({"--database", shop}, home.Path());

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.errors, "");
    ExpectText(result.output, "Agenda de ");
    EXPECT_EQ(RowsIn(result.output), 0);
}

TEST(Start, WithoutAWindowSaysOnceThatAnOlderShopWasBroughtUpToDate)
{
    const TemporaryFolder home;
    const std::string shop = home / "antiga.db";
    kova::test::MakeFirstShop(shop);
    const ProgramResult first = RunKovaris({"--database", shop}, home.Path());
    EXPECT_EQ(first.status, 0) << first.errors;
    ExpectText(first.errors, "A loja foi atualizada da versão 1 para a versão ");
    ExpectText(first.errors, "copiada para \"" + shop + ".antes-da-versao-");
    const ProgramResult second = RunKovaris({"--database", shop}, home.Path());
    EXPECT_EQ(second.status, 0);
    EXPECT_EQ(second.errors, "");
}

TEST(Start, ThatIsRefusedSaysThatAnOlderShopWasBroughtUpToDateBefore)
{
    const TemporaryFolder home;
    const std::string shop = home / "antiga.db";
    kova::test::MakeFirstShop(shop);
    const ProgramResult result = RunKovaris({"--database", shop, "--user", "Ana"}, home.Path());
    EXPECT_EQ(result.status, 2);
    ExpectText(result.errors, "A loja foi atualizada da versão 1 para a versão ");
    ExpectText(result.errors, "só valem em lojas de demonstração");
}

TEST(Start, TakesNoNameNoDayAndNoTimeForAShopThatIsReal)
{
    const TemporaryFolder home;
    const std::string shop = home / "loja.db";
    RunProgram(BuildFolder() / "agenda-data", {"create", shop, "--company", "Pet Shop Céu"}, home.Path());
    for (const std::vector<std::string>& pretence : std::vector<std::vector<std::string>>{
             {"--user", "Ana"}, {"--date", "25/03/2026"}, {"--time", "08:30"}}) {
        std::vector<std::string> words = {"--database", shop};
        words.insert(words.end(), pretence.begin(), pretence.end());
        const ProgramResult result = RunKovaris(words, home.Path());
        EXPECT_EQ(result.status, 2) << pretence.front();
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(
            result.errors,
            "Kovaris: As opções --user, --date e --time só valem em lojas de demonstração, que \"agenda-data "
            "demo\" cria. Nesta loja entra quem está no posto, com a data e a hora do relógio: abra o "
            "programa sem elas.\n");
    }
}

TEST(Start, TakesThemForEveryFictionalShop)
{
    const TemporaryFolder home;
    const std::string shop = home / "loja.db";
    RunProgram(BuildFolder() / "agenda-data", {"demo", shop, "--date", "25/03/2026"}, home.Path());
    const ProgramResult result = RunKovaris(
        {"--database", shop, "--user", "Ana", "--date", "25/03/2026", "--time", "08:30"}, home.Path());
    EXPECT_EQ(result.status, 0) << result.errors;
    ExpectText(result.output, "Agenda de 25/03/2026");
}

TEST(Start, TakesThemForNoShopThatOnlyHasTheCompanyOfAFictionalOne)
{
    const TemporaryFolder home;
    const std::string shop = home / "loja.db";
    family::NewShop content;
    content.company = family::FictionalCompany();
    content.user = content.employee = "Ana";
    family::CreateNewShop(shop, content);
    const ProgramResult result = RunKovaris({"--database", shop, "--user", "Ana"}, home.Path());
    EXPECT_EQ(result.status, 2);
    ExpectText(result.errors, "só valem em lojas de demonstração, que \"agenda-data demo\" cria.");
}

TEST(Start, DrawsNoShopThatHasUsers)
{
    const TemporaryFolder home;
    const std::string shop = home / "loja.db";
    family::NewShop content;
    content.company.nomeFantasia = "Céu";
    content.user = content.employee = "Ana";
    content.password = family::HashOf(family::Secret(std::string("Gato-Preto 1")), {1, 8192});
    family::CreateNewShop(shop, content);
    for (const std::vector<std::string>& words :
         std::vector<std::vector<std::string>>{{"--database", shop},
                                               {"--database", shop, "--picture", home / "agenda.png"},
                                               {"--database", shop, "--first-paint"}}) {
        const ProgramResult result = RunKovaris(words, home.Path());
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(
            result.errors,
            "Kovaris: Esta loja tem usuários, e sem a janela do programa ninguém pode entrar nela. Abra o "
            "programa em uma tela, sem --picture e sem --first-paint.\n");
    }
    EXPECT_FALSE(fs::exists(home / "agenda.png"));
    EXPECT_FALSE(fs::exists(home / ".local/share/kovaris/agenda.png"));
}

TEST(Start, PrintsTheHelpAndTheVersion)
{
    const TemporaryFolder home;
    const ProgramResult help = RunKovaris({"--help"}, home.Path());
    EXPECT_EQ(help.status, 0);
    ExpectText(help.output, "--database");
    const ProgramResult version = RunKovaris({"--version"}, home.Path());
    EXPECT_EQ(version.status, 0);
    EXPECT_TRUE(std::regex_match(version.output, std::regex("kovaris [0-9]+\\.[0-9]+\\.[0-9]+\n")));
}

TEST(Start, EndsWithTwoOnAnOptionItDoesNotKnow)
{
    const TemporaryFolder home;
    const ProgramResult result = RunKovaris({"--databse", "x"}, home.Path());
    EXPECT_EQ(result.status, 2);
    ExpectText(result.errors, "--databse");
    EXPECT_EQ(result.output, "");
}

} // namespace kova::host::test
