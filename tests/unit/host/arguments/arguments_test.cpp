#include "host/arguments/arguments.hpp"

#include <gtest/gtest.h>

namespace kova::arguments {

namespace {

const Declaration Copy{"copy",
                       "Copia uma loja.\nSem parar.",
                       {"BANCO", "NÚMERO"},
                       {{"--date", "DIA", "O dia."}, {"--dry-run", {}, "Nada muda."}}};
const Declaration Check{"check", "Confere uma loja.", {"BANCO"}};

const Program Alone{
    {"loja",
     "Abre uma loja.",
     {"ARQUIVO"},
     {{"--user", "NOME", "Quem abre."}, {"--count", "N", "Quantas."}, {"--quick", {}, "Depressa."}}},
    "loja 1.2.3",
    "Um ARQUIVO por vez."};
const Program Several{{"lojas", "Cuida de lojas."}, "lojas 4.5.6", "BANCO é um arquivo.", {&Copy, &Check}};

using Words = std::vector<std::string>;

Call CallOf(const Words& words, const Program& program = Alone) { return Read(program, words).call; }

std::string AnswerTo(const Words& words, const Program& program = Alone)
{
    return Read(program, words).answer.value_or("(nada)");
}

std::string RefusalOf(const Words& words, const Program& program = Alone)
{
    try {
        Read(program, words);
    } catch (const BadArguments& refusal) {
        return refusal.what();
    }
    return {};
}

constexpr const char* Advice = " Use loja --help para ver as opções.";

} // namespace

TEST(Arguments, TakeAnOptionsValueFromTheNextWordOrFromBehindAnEqualsSign)
{
    EXPECT_EQ(CallOf({"--user", "Ana Céu", "a.db"}).Option("--user"), "Ana Céu");
    EXPECT_EQ(CallOf({"a.db", "--user=Ana=Céu"}).Option("--user"), "Ana=Céu");
    EXPECT_EQ(CallOf({"a.db", "--user=Ana"}).Operand(0), "a.db");
    EXPECT_EQ(CallOf({"a.db"}).Option("--user"), std::nullopt);
}

TEST(Arguments, TakeTheLastOfTwoValuesAndASwitchTwice)
{
    EXPECT_EQ(CallOf({"--user", "A", "a.db", "--user=B"}).Option("--user"), "B");
    EXPECT_TRUE(CallOf({"--quick", "--quick", "a.db"}).Has("--quick"));
    EXPECT_FALSE(CallOf({"a.db"}).Has("--quick"));
}

TEST(Arguments, TakeWordsAsTheyStand)
{
    for (const char* word :
         {"[a,b]", "a,b", "/a", "-", "{}", "\"a\"", "'a'", "%a", "a b", "true", "-7", "++", "São"}) {
        EXPECT_EQ(CallOf({word}).Operand(0), word);
        EXPECT_EQ(CallOf({"--user", word, "a.db"}).Option("--user"), word);
        EXPECT_EQ(CallOf({std::string("--user=") + word, "a.db"}).Option("--user"), word);
        EXPECT_EQ(Read(Several, Words{"check", word}).call.Operand(0), word);
    }
    EXPECT_EQ(CallOf({"--user", "-x", "a.db"}).Option("--user"), "-x");
    EXPECT_EQ(CallOf({"--user", "--quick", "a.db"}).Option("--user"), "--quick");
}

TEST(Arguments, TakeNoOptionBehindTwoDashes)
{
    EXPECT_EQ(CallOf({"--user", "Ana", "--", "--user"}).Operand(0), "--user");
    EXPECT_EQ(CallOf({"--", "--user="}).Operand(0), "--user=");
    EXPECT_EQ(CallOf({"--", "--help"}).Operand(0), "--help");
    const Call call = CallOf({"copy", "--", "-a", "--date"}, Several);
    EXPECT_EQ(call.Operand(0) + call.Operand(1), "-a--date");
    EXPECT_EQ(RefusalOf({"a.db", "--", "--user"}),
              std::string("\"--user\" sobra na linha de comando.") + Advice);
    EXPECT_EQ(RefusalOf({"a.db", "--", "--"}), std::string("\"--\" sobra na linha de comando.") + Advice);
}

TEST(Arguments, RefuseAnOptionThatDoesNotExist)
{
    for (const char* word : {"--usr", "--usr=Ana", "--User", "--use"}) {
        const std::string name = std::string(word).substr(0, std::string(word).find('='));
        EXPECT_EQ(RefusalOf({word, "a.db"}), "A opção " + name + " não existe." + Advice);
    }
    EXPECT_EQ(RefusalOf({"-u", "a.db"}), std::string("A opção -u não existe.") + Advice);
}

TEST(Arguments, RefuseWordsThatAreLeftOver)
{
    for (const char* word : {"b.db", "", "++", "-", "check"}) {
        const std::string left = "\"" + std::string(word) + "\" sobra na linha de comando.";
        EXPECT_EQ(RefusalOf({"a.db", word, "c.db"}), left + Advice);
        EXPECT_EQ(RefusalOf({"check", "a.db", word}, Several),
                  left + " Use lojas check --help para ver as opções.");
    }
}

TEST(Arguments, RefuseAMissingOperandByItsName)
{
    EXPECT_EQ(RefusalOf({}), std::string("Falta informar ARQUIVO.") + Advice);
    EXPECT_EQ(RefusalOf({"--"}), std::string("Falta informar ARQUIVO.") + Advice);
    EXPECT_EQ(RefusalOf({"copy", "a.db"}, Several),
              "Falta informar NÚMERO. Use lojas copy --help para ver as opções.");
}

TEST(Arguments, RefuseAValueThatIsMissing)
{
    const std::string missing = std::string("A opção --user precisa de um valor.") + Advice;
    EXPECT_EQ(RefusalOf({"a.db", "--user"}), missing);
    EXPECT_EQ(RefusalOf({"a.db", "--user", ""}), missing);
    EXPECT_EQ(RefusalOf({"a.db", "--user="}), missing);
    EXPECT_EQ(RefusalOf({"--user=", "a.db"}), missing);
}

TEST(Arguments, RefuseAValueForASwitch)
{
    for (const char* word : {"--quick=não", "--quick=false", "--quick=5"})
        EXPECT_EQ(RefusalOf({"a.db", word}), std::string("A opção --quick não leva valor.") + Advice);
    EXPECT_NE(RefusalOf({"a.db", "--quick="}), "");
}

TEST(Arguments, ReadNumbers)
{
    EXPECT_EQ(CallOf({"--count", "12", "a.db"}).Count("--count", 3, 12), 12);
    EXPECT_EQ(CallOf({"--count", "1", "a.db"}).Count("--count", 3, 12), 1);
    EXPECT_EQ(CallOf({"a.db"}).Count("--count", 3, 12), 3);
    EXPECT_EQ(CallOf({"17"}).Number(0), 17);
    for (const char* number : {"0", "13", "-1", "1x", " 1", "1.5", "99999999999999999999"}) {
        try {
            CallOf({"--count", number, "a.db"}).Count("--count", 3, 12);
            FAIL() << number;
        } catch (const BadArguments& refusal) {
            EXPECT_EQ(refusal.what(),
                      "O valor \"" + std::string(number) + "\" de --count não é um número inteiro de 1 a 12."
                          + Advice);
        }
    }
}

TEST(Arguments, ReadDays)
{
    EXPECT_EQ(CallOf({"--user", "01/01/1900", "a.db"}).Day("--user"), (Date{1900, 1, 1}));
    EXPECT_EQ(CallOf({"--user", "31/12/2999", "a.db"}).Day("--user"), (Date{2999, 12, 31}));
    EXPECT_EQ(CallOf({"a.db"}).Day("--user"), std::nullopt);
    for (const char* day : {"31/12/1899", "01/01/3000", "31/02/2026", "hoje"})
        EXPECT_THROW(CallOf({"--user", day, "a.db"}).Day("--user"), BadArguments) << day;
}

TEST(Arguments, FindTheCommandAndItsOwnWords)
{
    const Words words{"copy", "a.db", "7", "--dry-run"};
    const Asked asked = Read(Several, words);
    EXPECT_EQ(asked.command, &Copy);
    EXPECT_TRUE(asked.call.Has("--dry-run"));
    EXPECT_EQ(RefusalOf({"check", "a.db", "--dry-run"}, Several),
              "A opção --dry-run não existe. Use lojas check --help para ver as opções.");
}

TEST(Arguments, RefuseWhatIsNoCommand)
{
    const std::string advice = " Use lojas --help para ver as opções.";
    EXPECT_EQ(RefusalOf({}, Several), "Informe um comando." + advice);
    EXPECT_EQ(RefusalOf({"--"}, Several), "Informe um comando." + advice);
    EXPECT_EQ(RefusalOf({"apagar", "a.db"}, Several), "O comando \"apagar\" não existe." + advice);
    EXPECT_EQ(RefusalOf({""}, Several), "O comando \"\" não existe." + advice);
    EXPECT_EQ(RefusalOf({"--date", "check"}, Several), "A opção --date não existe." + advice);
}

TEST(Arguments, AnswerTheVersion)
{
    EXPECT_EQ(AnswerTo({"--version"}), "loja 1.2.3\n");
    EXPECT_EQ(AnswerTo({"--version"}, Several), "lojas 4.5.6\n");
    EXPECT_EQ(AnswerTo({"check", "--version"}, Several), "lojas 4.5.6\n");
}

TEST(Arguments, AnswerHelpInPortugueseAlone)
{
    const std::string help = "Abre uma loja.\n"
                             "\n"
                             "Uso: loja [opções] ARQUIVO\n"
                             "\n"
                             "Opções:\n"
                             "  --user NOME           Quem abre.\n"
                             "  --count N             Quantas.\n"
                             "  --quick               Depressa.\n"
                             "  -h,--help             Mostra esta ajuda.\n"
                             "  --version             Mostra a versão.\n"
                             "\n"
                             "Um ARQUIVO por vez.\n";
    EXPECT_EQ(AnswerTo({"--help"}), help);
    EXPECT_EQ(AnswerTo({"-h"}), help);
    EXPECT_EQ(AnswerTo({"--user", "Ana", "--usr", "--help"}), help);
}

TEST(Arguments, AnswerHelpForTheProgramAndForEachCommand)
{
    EXPECT_EQ(AnswerTo({"--help"}, Several),
              "Cuida de lojas.\n"
              "\n"
              "Uso: lojas [opções] COMANDO\n"
              "\n"
              "Opções:\n"
              "  -h,--help      Mostra esta ajuda.\n"
              "  --version      Mostra a versão.\n"
              "\n"
              "Comandos:\n"
              "  copy           Copia uma loja.\n"
              "                 Sem parar.\n"
              "  check          Confere uma loja.\n"
              "\n"
              "BANCO é um arquivo.\n");
    EXPECT_EQ(AnswerTo({"copy", "--help"}, Several),
              "Copia uma loja.\n"
              "Sem parar.\n"
              "\n"
              "Uso: lojas copy [opções] BANCO NÚMERO\n"
              "\n"
              "Opções:\n"
              "  --date DIA            O dia.\n"
              "  --dry-run             Nada muda.\n"
              "  -h,--help             Mostra esta ajuda.\n"
              "  --version             Mostra a versão.\n"
              "\n"
              "BANCO é um arquivo.\n");
}

} // namespace kova::arguments
