#include "tests/conformance/business/scripted_engine.hpp"

#include "tools/scenario/scripted_components.hpp"

namespace kova::conformance {

namespace {

class ScriptedEngine : public Engine {
public:
    ComponentService& Components() override { return script_; }

    void NextCallFinds(const std::string& member, const Rows& rows) override
    {
        if (!broken_) {
            script_.Answer(member, {.records = {rows.fields, rows.rows}});
            return;
        }
        script_.Answer(member,
                       {.result = Integer(1),
                        .members = {{"NumeroDoErro", Long(-2147467259)},
                                    {"DescricaoDoErro", "O banco de dados não responde."},
                                    {"LocalDoErro", member}}});
    }

    void NextCallRefuses(const std::string& member, Integer status, const Text& text) override
    {
        script_.Answer(member, {.result = status, .members = {{"DescricaoDaFalha", text}}});
    }

    void BreakData() override { broken_ = true; }
    void MendData() override { broken_ = false; }

    void RefuseToCreate(const std::string& className) override
    {
        script_.FailCreate(className,
                           Failure(FailureNumber::ClassCannotBeCreated,
                                   "O componente '" + className
                                       + "' não pode ser criado. A biblioteca não foi encontrada."));
    }

private:
    scenario::ScriptedComponents script_;
    bool broken_ = false;
};

} // namespace

std::unique_ptr<Engine> MakeScriptedEngine() { return std::make_unique<ScriptedEngine>(); }

} // namespace kova::conformance
