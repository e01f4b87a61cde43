#include "tools/scenario/language/script.hpp"

#include "tools/scenario/language/line_reader.hpp"
#include "tools/scenario/language/tables.hpp"

#include <algorithm>

namespace kova::scenario {

namespace {

/// Reads a script and the set-ups that it uses into one.
class ScriptReader {
public:
    explicit ScriptReader(const SetupReader& setups) : setups_(setups) { }

    /// `file` is a set-up's name, or empty for the script itself.
    void Read(std::string_view text, const std::string& file)
    {
        for (ScriptLines lines{LinesOf(text), file}; lines.at < lines.lines.size();) {
            Statement statement = ParseStatement(lines.lines[lines.at], lines.Here());
            ++lines.at;
            if (statement.verb == "use")
                Use(statement);
            else if (statement.verb == "records")
                Keep(statement, ParseRecords(lines, statement));
            else if (statement.verb == "appointments")
                Keep(statement, ParseAppointments(lines, statement));
            else if (!statement.verb.empty())
                script_.statements.push_back(std::move(statement));
        }
    }

    Script Take() { return std::move(script_); }

private:
    void Use(const Statement& statement)
    {
        statement.ExpectAtMost(1);
        const std::string file = statement.Word(0) + ".setup";
        if (std::find(open_.begin(), open_.end(), file) != open_.end())
            throw ScriptError(statement.line, "a preparação '" + file + "' usa a si mesma");
        const auto text = setups_ ? setups_(file) : std::nullopt;
        if (!text)
            throw ScriptError(statement.line,
                              "a preparação '" + file
                                  + "' não está na pasta do roteiro nem nas pastas acima dela");
        open_.push_back(file);
        Read(*text, file);
        open_.pop_back();
    }

    /// A set-up's table gives way to one of the same name that follows it elsewhere.
    void Keep(const Statement& head, RecordTable table)
    {
        const std::string& name = head.Word(0);
        const auto former = origins_.find(name);
        if (former != origins_.end() && former->second == head.line.file)
            throw ScriptError(head.line, "a tabela '" + name + "' já existe");
        origins_[name] = head.line.file;
        script_.tables[name] = std::move(table);
    }

    const SetupReader& setups_;
    Script script_;
    /// Set-ups that are being read, the innermost last.
    std::vector<std::string> open_;
    /// The file in which each table stands.
    std::map<std::string, std::string> origins_;
};

} // namespace

Script ParseScript(std::string_view text, const SetupReader& setups)
{
    ScriptReader reader(setups);
    reader.Read(text, "");
    return reader.Take();
}

} // namespace kova::scenario
