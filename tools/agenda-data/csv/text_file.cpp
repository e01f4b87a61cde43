#include "tools/agenda-data/csv/text_file.hpp"

#include "system/path_text.hpp"

#include <cerrno>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <system_error>

namespace kova::data {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void Refuse(const std::string& path, const std::string& why)
{
    throw std::runtime_error("O arquivo \"" + path + "\" " + why);
}

void CheckKind(const std::string& path)
{
    std::error_code error;
    const fs::file_status status = fs::status(system::PathOf(path), error);
    if (status.type() == fs::file_type::not_found)
        Refuse(path, "não existe. Verifique o caminho.");
    if (error)
        Refuse(path, "não pode ser lido. Verifique o caminho e as permissões. (" + error.message() + ")");
    if (status.type() == fs::file_type::directory)
        throw std::runtime_error("\"" + path + "\" é uma pasta. Informe o caminho de um arquivo CSV.");
    if (status.type() != fs::file_type::regular)
        throw std::runtime_error("\"" + path
                                 + "\" não é um arquivo comum. Informe o caminho de um arquivo CSV.");
}

std::string ReadBytes(const std::string& path)
{
    CheckKind(path);
    errno = 0;
    std::ifstream file(system::PathOf(path), std::ios::binary);
    std::ostringstream content;
    if (file && file.peek() != std::ifstream::traits_type::eof())
        content << file.rdbuf();
    if (!file.is_open() || file.bad())
        Refuse(path,
               "não pode ser lido. Verifique as permissões. (" + std::generic_category().message(errno)
                   + ")");
    return std::move(content).str();
}

bool BeginsWith(std::string_view text, std::string_view beginning)
{
    return text.substr(0, beginning.size()) == beginning;
}

/// No text holds a zero byte, but every picture, program, archive and text of two-byte characters does.
void CheckIsText(const std::string& path, std::string_view bytes)
{
    if (bytes.find('\0') != std::string_view::npos)
        Refuse(path, "não é um texto. Na planilha, salve como CSV (UTF-8 ou Latin-1).");
}

} // namespace

std::string ReadTextFile(const std::string& path, std::optional<Encoding> encoding)
{
    std::string bytes = ReadBytes(path);
    CheckIsText(path, bytes);
    const bool marked = BeginsWith(bytes, ByteOrderMark);
    const auto notUtf8 = encoding == Encoding::Latin1 ? std::nullopt : FirstLineNotUtf8(bytes);
    if (notUtf8 && encoding)
        Refuse(path,
               "não está em UTF-8: veja a linha " + std::to_string(*notUtf8)
                   + ". Use --encoding latin-1 ou deixe a opção fora.");
    if (encoding == Encoding::Latin1 || notUtf8)
        return Utf8FromLatin1(bytes);
    if (marked)
        bytes.erase(0, ByteOrderMark.size());
    return bytes;
}

} // namespace kova::data
