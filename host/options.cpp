#include "host/options.hpp"

#include <charconv>
#include <string_view>

namespace kova::host {

namespace {

constexpr std::string_view Advice = " Use --help para ver as opções.";

/// What a screen that is drawn twice as large leaves of 1600 by 960; pictures beyond the other limit would
/// take gigabytes.
constexpr WindowSize SmallestSize{800, 480};
constexpr WindowSize LargestSize{7680, 4320};

[[noreturn]] void Refuse(const std::string& reason) { throw BadOptions(reason + std::string(Advice)); }

int ToNumber(std::string_view digits)
{
    int number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return error == std::errc() && end == digits.data() + digits.size() ? number : -1;
}

WindowSize ParseSize(const std::string& text)
{
    const std::size_t cross = text.find('x');
    const std::string_view all = text;
    WindowSize size{-1, -1};
    if (cross != std::string::npos)
        size = {ToNumber(all.substr(0, cross)), ToNumber(all.substr(cross + 1))};
    if (size.width < SmallestSize.width || size.height < SmallestSize.height || size.width > LargestSize.width
        || size.height > LargestSize.height) {
        Refuse("O tamanho \"" + text
               + "\" de --size não é válido. Informe LARGURAxALTURA entre 800x480 e 7680x4320, como "
                 "1366x768.");
    }
    return size;
}

Date ParseDay(const std::string& text)
{
    const std::optional<Date> date = ParseDate(text);
    if (!date || date->year < 1900 || date->year > 2999)
        Refuse("A data \"" + text + "\" de --date não é válida. Informe dd/mm/aaaa, como 25/03/2026.");
    return *date;
}

TimeOfDay ParseStart(const std::string& text)
{
    const std::optional<TimeOfDay> time = ParseTime(text);
    if (!time)
        Refuse("A hora \"" + text + "\" de --time não é válida. Informe hh:mm, como 08:30.");
    return *time;
}

LookChoice ParseLook(const std::string& text)
{
    if (text == "claro")
        return LookChoice::Light;
    if (text == "escuro")
        return LookChoice::Dark;
    Refuse("A aparência \"" + text + "\" de --look não existe. Informe claro ou escuro.");
}

void Apply(Options& options, const std::string& name, const std::string& value)
{
    if (value.empty())
        Refuse("A opção " + name + " precisa de um valor.");
    if (name == "--database")
        options.database = value;
    else if (name == "--user")
        options.user = value;
    else if (name == "--date")
        options.date = ParseDay(value);
    else if (name == "--time")
        options.time = ParseStart(value);
    else if (name == "--picture")
        options.picture = value;
    else if (name == "--size")
        options.size = ParseSize(value);
    else if (name == "--look")
        options.look = ParseLook(value);
}

bool TakesValue(const std::string& name)
{
    return name == "--database" || name == "--user" || name == "--date" || name == "--time"
        || name == "--picture" || name == "--size" || name == "--look";
}

bool ApplySwitch(Options& options, const std::string& name)
{
    if (name == "--first-paint")
        options.firstPaint = true;
    else if (name == "--version")
        options.showVersion = true;
    else if (name == "--help" || name == "-h")
        options.showHelp = true;
    else
        return false;
    return true;
}

} // namespace

Options ParseOptions(const std::vector<std::string>& arguments)
{
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (ApplySwitch(options, argument))
            continue;
        const std::size_t equals = argument.find('=');
        const std::string name = argument.substr(0, equals);
        if (!TakesValue(name))
            Refuse("A opção \"" + argument + "\" não existe.");
        if (equals != std::string::npos)
            Apply(options, name, argument.substr(equals + 1));
        else if (i + 1 < arguments.size())
            Apply(options, name, arguments[++i]);
        else
            Apply(options, name, {});
    }
    return options;
}

std::string HelpText()
{
    return "Kovaris: agenda de pet shops e clínicas veterinárias.\n"
           "\n"
           "Uso: kovaris [opções]\n"
           "\n"
           "  --database BANCO     Abre o banco de dados BANCO: o caminho de um arquivo, ou o endereço de\n"
           "                       um servidor PostgreSQL, como postgresql://ana@servidor/loja, sem a\n"
           "                       senha. Sem esta opção abre a loja de demonstração, que é criada no\n"
           "                       primeiro uso.\n"
           "  --user NOME          Nome do usuário da sessão, gravado em tudo que for alterado.\n"
           "  --date dd/mm/aaaa    Abre a agenda como se fosse este dia.\n"
           "  --time hh:mm         Começa como se fosse esta hora; o relógio anda a partir dela.\n"
           "  --picture ARQUIVO    Não abre a janela: desenha a agenda no ARQUIVO (PNG), escreve as\n"
           "                       primeiras linhas do dia e termina.\n"
           "  --size LxA           Tamanho da janela em pontos da tela, como 1366x768.\n"
           "  --look ESCOLHA       Aparência: claro ou escuro. Sem esta opção vale a do computador.\n"
           "  --first-paint        Escreve \"desenhado\" quando o dia aparece na janela e termina: serve\n"
           "                       para medir o início do programa.\n"
           "  --version            Mostra a versão.\n"
           "  --help               Mostra esta ajuda.\n"
           "\n"
           "Termina com 0 se tudo correu bem, 1 se a agenda não pôde ser aberta e 2 se as opções\n"
           "não foram entendidas.\n";
}

} // namespace kova::host
