#include "family/presentation/error_report.hpp"

namespace kova::family {

Text ReadableText(const Value& value)
{
    try {
        return value.IsNull() ? Text() : value.ToText();
    } catch (const Failure&) {
        return {};
    }
}

Text AsText(const ErrorReport& report)
{
    return "Aplicação: " + report.application + "\nNúmero: " + report.number
        + "\nDescrição: " + report.description + "\nLocal: " + report.place + "\n";
}

} // namespace kova::family
