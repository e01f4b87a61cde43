#include "host/options.hpp"

#include "host/arguments/arguments.hpp"

#include <charconv>

namespace kova::host {

namespace {

const arguments::Program ThisProgram{
    {"kovaris",
     "Kovaris: agenda de pet shops e clínicas veterinárias.",
     {},
     {{"--database", "BANCO",
       "Abre o banco de dados BANCO: o caminho de um arquivo, ou o endereço de um\n"
       "servidor PostgreSQL, como postgresql://ana@servidor/loja, sem a senha. Sem\n"
       "esta opção abre a última loja, ou pergunta com que loja trabalhar."},
      {"--demo", {}, "Abre a loja de demonstração, e a cria onde ela falta."},
      {"--user", "NOME",
       "Nome do usuário da sessão, gravado em tudo que for alterado. Só em lojas de\n"
       "demonstração; nas outras entra quem está no posto, com a data e a hora do relógio."},
      {"--date", "dd/mm/aaaa", "Abre a agenda como se fosse este dia. Só em lojas de demonstração."},
      {"--time", "hh:mm",
       "Começa como se fosse esta hora; o relógio anda a partir dela. Só em lojas de\n"
       "demonstração."},
      {"--picture", "ARQUIVO",
       "Não abre a janela: desenha a agenda no ARQUIVO (PNG), escreve as primeiras\n"
       "linhas do dia e termina."},
      {"--size", "LxA", "Tamanho da janela em pontos da tela, como 1366x768."},
      {"--look", "ESCOLHA", "Aparência: claro ou escuro. Sem esta opção vale a do computador."},
      {"--first-paint",
       {},
       "Escreve \"desenhado\" quando o dia aparece na janela e termina: serve para\n"
       "medir o início do programa."}}},
    "kovaris " KOVARIS_VERSION,
    "Termina com 0 se tudo correu bem, 1 se a agenda não pôde ser aberta e 2 se as opções\n"
    "não foram entendidas."};

/// What a screen that is drawn twice as large leaves of 1600 by 960; pictures beyond the other limit would
/// take gigabytes.
constexpr WindowSize SmallestSize{800, 480};
constexpr WindowSize LargestSize{7680, 4320};

int ToNumber(std::string_view digits)
{
    int number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return error == std::errc() && end == digits.data() + digits.size() ? number : -1;
}

std::optional<WindowSize> GivenSize(const arguments::Call& call)
{
    const auto text = call.Option("--size");
    if (!text)
        return std::nullopt;
    const std::size_t cross = text->find('x');
    const std::string_view all = *text;
    WindowSize size{-1, -1};
    if (cross != std::string::npos)
        size = {ToNumber(all.substr(0, cross)), ToNumber(all.substr(cross + 1))};
    if (size.width < SmallestSize.width || size.height < SmallestSize.height || size.width > LargestSize.width
        || size.height > LargestSize.height) {
        call.Refuse("O tamanho \"" + *text
                    + "\" de --size não é válido. Informe LARGURAxALTURA entre 800x480 e 7680x4320, como "
                      "1366x768.");
    }
    return size;
}

std::optional<TimeOfDay> GivenStart(const arguments::Call& call)
{
    const auto text = call.Option("--time");
    if (!text)
        return std::nullopt;
    const std::optional<TimeOfDay> time = ParseTime(*text);
    if (!time)
        call.Refuse("A hora \"" + *text + "\" de --time não é válida. Informe hh:mm, como 08:30.");
    return time;
}

std::optional<LookChoice> GivenLook(const arguments::Call& call)
{
    const auto text = call.Option("--look");
    if (!text)
        return std::nullopt;
    if (*text == "claro")
        return LookChoice::Light;
    if (*text == "escuro")
        return LookChoice::Dark;
    call.Refuse("A aparência \"" + *text + "\" de --look não existe. Informe claro ou escuro.");
}

} // namespace

Options ParseOptions(const std::vector<std::string>& words)
{
    const arguments::Asked asked = arguments::Read(ThisProgram, words);
    Options options;
    options.answer = asked.answer;
    options.isTyped = true;
    options.database = asked.call.Option("--database").value_or("");
    options.demonstration = asked.call.Has("--demo");
    if (options.demonstration && !options.database.empty())
        asked.call.Refuse("As opções --demo e --database pedem duas lojas.");
    options.user = asked.call.Option("--user").value_or("");
    options.date = asked.call.Day("--date");
    options.time = GivenStart(asked.call);
    options.picture = asked.call.Option("--picture").value_or("");
    options.size = GivenSize(asked.call);
    options.look = GivenLook(asked.call);
    options.firstPaint = asked.call.Has("--first-paint");
    return options;
}

} // namespace kova::host
