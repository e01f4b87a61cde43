#include "tools/scenario/session.hpp"

#include "system/library.hpp"
#include "system/path_text.hpp"
#include "system/program_path.hpp"
#include "tools/scenario/value_text.hpp"

namespace kova::scenario {

namespace {

constexpr const char* ModuleClass = "KOVA_A_Agenda.clsAgenda";
constexpr Long MainWindowHandle = 1;

/// Libraries lie beside the program.
std::string LibraryPath(std::string_view name)
{
    return system::TextOf(system::ProgramPath().parent_path() / system::PathOf(system::LibraryFile(name)));
}

/// Who sits at the desk: the reference components ask for code and name.
class DeskUser : public Component, public PrintedObject {
public:
    std::string PrintedText() const override { return "<user>"; }
    Value Get(std::string_view member) override
    {
        if (member == "Codigo")
            return Long{1};
        if (member == "Nome")
            return "Roteiro";
        throw Failure(FailureNumber::NoSuchMember);
    }
    void Set(std::string_view, const Value&) override { throw Failure(FailureNumber::NoSuchMember); }
    Value Call(std::string_view, std::span<Argument>) override { throw Failure(FailureNumber::NoSuchMember); }
};

} // namespace

Text Session::SettingsFolder() const { return system::TextOf(folder_.Path()); }

ComponentRef Session::Family::CreateObject(std::string_view className)
{
    // Which system the desk runs on is the script's word, as its clock is: a transcript is of no machine.
    const bool isData = className.starts_with("KOVA_N_") && !className.starts_with("KOVA_N_SO.");
    ComponentService& source = isData && session_.usesDatabase_
        ? static_cast<ComponentService&>(session_.registered_)
        : session_.script;
    return source.CreateObject(className);
}

Session::Session(const RunOptions& options, std::unique_ptr<Screen> played,
                 std::function<void(const std::string&)> line)
    : screen(std::move(played)),
      usesDatabase_(!options.database.empty()),
      registry_(system::TextOf(folder_.Path() / "componentes.reg")),
      server_(registry_, *this, options.database),
      registered_(registry_, server_.Libraries()),
      family_(*this),
      observed_(family_, crossings)
{
    crossings->line = line;
    crossings->failAt = options.failAt;
    border.line = line;
    border.failAt = options.failWidgetsAt;
    border.printsWrites = options.printsWidgetWrites;
    profile.line = line;
    screen->OnLine(line);
    screen->Toolkit().Observer(&border);
    server_.RegisterLibrary(LibraryPath("KOVA_A_Agenda"));
    if (usesDatabase_)
        server_.RegisterLibrary(LibraryPath("KOVA_N_Familia"));
}

Session::~Session()
{
    // What closes now is not part of the script.
    const auto silent = [](const std::string&) {};
    crossings->line = silent;
    crossings->failAt = 0;
    border.line = silent;
    border.failAt = 0;
    profile.line = silent;
    screen->OnLine(silent);
    toolkit::ToolkitModel& toolkit = screen->Toolkit();
    toolkit.Observer(nullptr);
    agenda_.reset();
    while (auto* form = toolkit.ActiveForm()) {
        if (!form->Unload())
            break;
    }
    // A list that failed to open was never shown; the library counts it all the same.
    for (auto* form = toolkit.FindForm("frmLista"); form && !form->Current().unloaded;
         form = toolkit.FindForm("frmLista"))
        form->Unload();
    screen->ReleaseForms();
}

void Session::Open()
{
    const Long container = screen->CreateContainer(containerWidth, containerHeight);
    agenda_ = registered_.CreateObject(ModuleClass);
    if (hasUser)
        agenda_->Set("DadosDoUsuario", std::make_shared<DeskUser>());
    if (hasApplication)
        agenda_->Set("NomeDaAplicacao", application);
    agenda_->Call("AbrirLista", {MainWindowHandle, container});
}

} // namespace kova::scenario
