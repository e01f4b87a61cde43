#include "family/data/engine/fold_text.hpp"
#include "family/privacy/person_report.hpp"

#include <nlohmann/json.hpp>

namespace kova::family::privacy {

namespace {

using Json = nlohmann::ordered_json;

bool IsOfWord(char letter) { return (letter >= 'a' && letter <= 'z') || (letter >= '0' && letter <= '9'); }

/// "Funcionário(a)" becomes "funcionario_a".
std::string KeyOf(const std::string& label)
{
    std::string key;
    for (const char letter : FoldText(label)) {
        if (IsOfWord(letter))
            key += letter;
        else if (!key.empty() && key.back() != '_')
            key += '_';
    }
    if (key.ends_with('_'))
        key.pop_back();
    return key;
}

Json ObjectOf(const ReportRecord& record)
{
    Json object = Json::object();
    for (const ReportEntry& entry : record)
        object[KeyOf(entry.label)] = entry.hasParts ? ObjectOf(entry.parts) : Json(entry.text);
    return object;
}

} // namespace

std::string JsonOf(const PersonReport& report)
{
    constexpr int Indent = 2;
    Json all = ObjectOf(report.heading);
    for (const ReportGroup& group : report.groups) {
        Json& list = all[KeyOf(group.title)] = Json::array();
        for (const ReportRecord& record : group.records)
            list.push_back(ObjectOf(record));
    }
    return all.dump(Indent, ' ', false, Json::error_handler_t::replace) + "\n";
}

} // namespace kova::family::privacy
