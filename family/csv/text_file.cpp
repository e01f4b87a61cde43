#include "family/csv/text_file.hpp"

#include "agenda/contracts/failure_detail.hpp"
#include "system/path_text.hpp"

#include <cerrno>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <system_error>

namespace kova::family::csv {

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
        Refuse(path, WithDetail("não pode ser lido. Verifique o caminho e as permissões.", error.message()));
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
    if (file.peek() != std::ifstream::traits_type::eof())
        content << file.rdbuf();
    if (!file.is_open() || file.bad())
        Refuse(path,
               "não pode ser lido. Verifique as permissões. (" + std::generic_category().message(errno)
                   + ")");
    return std::move(content).str();
}

/// No text holds a zero byte, but every picture, program, archive and text of two-byte characters does.
void CheckIsText(const std::string& path, std::string_view bytes)
{
    if (bytes.find('\0') != std::string_view::npos)
        Refuse(path, "não é um texto. Na planilha, salve como CSV (UTF-8 ou Latin-1).");
}

[[noreturn]] void RefuseBytes(const std::string& path, const Utf8Reading& reading)
{
    const std::string line = "a linha " + std::to_string(*reading.badLine);
    if (reading.isLikely)
        Refuse(path,
               "está em UTF-8, mas " + line
                   + " tem bytes que não são UTF-8. Corrija essa linha, ou salve a planilha de novo como CSV "
                     "(UTF-8); se o arquivo for mesmo Latin-1, escolha a codificação Latin-1.");
    Refuse(path, "não está em UTF-8: veja " + line + ". Escolha a codificação Latin-1, ou nenhuma.");
}

} // namespace

FileText ReadTextFile(const std::string& path, std::optional<Encoding> encoding)
{
    std::string bytes = ReadBytes(path);
    CheckIsText(path, bytes);
    if (encoding == Encoding::Latin1)
        return {Utf8FromLatin1(bytes), Encoding::Latin1};
    const Utf8Reading reading = ReadAsUtf8(bytes);
    if (reading.badLine && (encoding || reading.isLikely))
        RefuseBytes(path, reading);
    if (reading.badLine)
        return {Utf8FromLatin1(bytes), Encoding::Latin1};
    if (bytes.starts_with(ByteOrderMark))
        bytes.erase(0, ByteOrderMark.size());
    return {std::move(bytes), Encoding::Utf8};
}

} // namespace kova::family::csv
