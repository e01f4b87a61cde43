#include "host/session/session.hpp"

#include "agenda/contracts/failure_detail.hpp"
#include "family/data/engine/server_connection.hpp"
#include "host/component_setup.hpp"
#include "host/components/component_service.hpp"
#include "host/day_text.hpp"
#include "host/first_paint.hpp"
#include "host/first_start/ask_for_shop.hpp"
#include "host/folders.hpp"
#include "host/host_platform.hpp"
#include "host/host_toolkit.hpp"
#include "host/picture.hpp"
#include "host/session/admission.hpp"
#include "host/session/agenda_guard.hpp"
#include "host/session/computer_user.hpp"
#include "host/session/daily_backup.hpp"
#include "host/session/day_list_news.hpp"
#include "host/session/fatal_reports.hpp"
#include "host/session/heard_components.hpp"
#include "host/session/history_tab.hpp"
#include "host/session/newer_program.hpp"
#include "host/session/news_of_desks.hpp"
#include "host/session/noted_prints.hpp"
#include "host/session/registers_tab.hpp"
#include "host/session/remembered_shops.hpp"
#include "host/session/session_clock.hpp"
#include "host/session/session_user.hpp"
#include "host/session/shop.hpp"
#include "host/session/user_change.hpp"
#include "host/shell/help.hpp"
#include "host/shell/main_window.hpp"
#include "host/sign_in/door.hpp"
#include "host/sign_in/door_menu.hpp"
#include "host/timetable/timetable_tab.hpp"
#include "host/transport/transport_entry.hpp"
#include "screens/question.hpp"
#include "system/path_text.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/qt/handles.hpp"

#include <QApplication>
#include <QMenu>
#include <QUrl>

#include <cstdlib>
#include <iostream>
#include <memory>
#include <stdexcept>

namespace kova::host {

namespace {

constexpr Long PrintedRows = 15;
/// Subjects of notices.
const QString Copy = QStringLiteral("cópia"), Update = QStringLiteral("atualização");
/// The code of whoever works in a shop without users, with a name alone: no user that the shop may get
/// meanwhile has it.
constexpr Long NoUser = 0;

std::filesystem::path DatabaseOf(const Options& options)
{
    return options.database.empty() ? DemonstrationDatabase() : system::PathOf(options.database);
}

/// The same wherever the program is started from the next time.
std::string SourceOf(const Options& options)
{
    return family::IsServer(options.database)
        ? options.database
        : system::TextOf(std::filesystem::absolute(DatabaseOf(options)));
}

/// A picture has the usual size unless another is asked for; a window may fit itself to the screen.
std::optional<WindowSize> SizeOf(const Options& options, Outlet outlet)
{
    return outlet == Outlet::Window ? options.size : options.size.value_or(WindowSize());
}

int DrawnWidth(const Options& options, Outlet outlet)
{
    return outlet == Outlet::Window ? 0 : SizeOf(options, outlet)->width;
}

/// The order of the members is the order of things: what comes later uses what came before and goes first.
class Session {
public:
    Session(const Options& options, Outlet outlet)
        : options_(options),
          outlet_(outlet),
          registry_(system::TextOf(RegistryFile())),
          clock_(options.date, options.time, options.pace),
          toolkit_(clock_, DrawnWidth(options, outlet)),
          platform_(clock_, toolkit_),
          server_(registry_, platform_, system::TextOf(DatabaseOf(options))),
          components_(registry_, server_.Libraries()),
          news_(SourceOf(options), [this, source = SourceOf(options)](family::Key line, family::Key number) {
              return WriterOf(components_, source, line, number);
          })
    {
        platform_.Use(heard_);
    }

    /// The list goes while its window is still there, and the window before the libraries.
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    SessionEnd Run();

private:
    void FillMenu();
    void AddRememberedShops();
    void Remember(const Shop& shop);
    /// Ends this session for one with that shop.
    void TurnTo(const ChosenShop& shop);
    void OpenList();
    /// What whoever is at the desk may not do is shut in the agenda, also where somebody else takes it over.
    void GuardAgenda();
    std::string NameOfUser() const { return options_.user.empty() ? NameOfThisUser() : options_.user; }
    /// The day's list; null where none was made.
    Form* List() const { return toolkit_.FindForm("frmLista"); }
    bool ListShowsADay() const;
    void RequireDay() const;
    int RunWindow();
    void BackUpDaily();
    void TellOfFailure();
    int PaintWindow();
    int DrawWindow();

    const Options& options_;
    Outlet outlet_;
    RememberedShops remembered_{SettingsFile()};
    const FatalReports reports_{FatalReportsFolder()};
    std::optional<ChosenShop> next_;
    Registry registry_;
    SessionClock clock_;
    HostToolkit toolkit_;
    HostPlatform platform_;
    RegistryServerHost server_;
    RegisteredComponents components_;
    HeardComponents heard_{components_};
    std::shared_ptr<SessionUser> user_;
    UserChange userChange_;
    std::unique_ptr<RegistersTab> registers_;
    std::unique_ptr<HistoryTab> history_;
    std::unique_ptr<TransportEntry> transport_;
    std::unique_ptr<TimetableTab> timetable_;
    NewsOfDesks news_;
    std::unique_ptr<MainWindow> window_;
    std::unique_ptr<Door> door_;
    ComponentRef agenda_;
    std::unique_ptr<AgendaGuard> guard_;
    std::unique_ptr<DailyBackup> backup_;
    NewerProgram newer_{[this] { TellOfNewerProgram(*window_); }};
};

SessionEnd Session::Run()
{
    if (outlet_ == Outlet::Window && !options_.firstPaint)
        reports_.Begin(options_.database);
    SetUpComponents(registry_, server_, ProgramFolder());
    Shop shop = OpenShop(components_, options_.database.empty(), FormatDate(clock_.Now().date));
    // Whoever sees no window reads it, also where nothing is drawn.
    if (outlet_ != Outlet::Window && !shop.update.empty())
        std::cerr << shop.update << std::endl;
    user_ = std::make_shared<SessionUser>(NoUser, NameOfUser());
    door_ = std::make_unique<Door>(Door::Surroundings{SourceOf(options_), shop.tradeName,
                                                      KeptEntries(SettingsFile()), user_, userChange_, clock_,
                                                      options_.entry, shop.hasUsers});
    if (!Admit(*door_, shop, options_, outlet_))
        return {EXIT_SUCCESS, std::nullopt};
    // Before the day is read, so that nothing is missed.
    if (outlet_ == Outlet::Window)
        news_.Begin();
    registers_ = std::make_unique<RegistersTab>(SourceOf(options_), user_, clock_, userChange_);
    history_ = std::make_unique<HistoryTab>(SourceOf(options_), user_, clock_, userChange_);
    timetable_ = std::make_unique<TimetableTab>(SourceOf(options_), user_, clock_, userChange_, toolkit_);
    if (shop.tradeName.empty() && outlet_ == Outlet::Window && !options_.firstPaint)
        shop.tradeName = registers_->AskForCompany();
    window_ = std::make_unique<MainWindow>(MainWindow::Heading{QString::fromStdString(shop.tradeName),
                                                               options_.database.empty(),
                                                               QString::fromStdString(user_->Name())});
    transport_ = std::make_unique<TransportEntry>(SourceOf(options_), shop.tradeName, toolkit_, clock_);
    if (outlet_ == Outlet::Window && !options_.firstPaint)
        Remember(shop);
    registers_->AddTo(*window_);
    window_->mayClose = [this] { return registers_->MayLeave(); };
    AddDoorToMenu(*door_, *window_, !Pretends(options_));
    door_->Watch(*window_);
    FillMenu();
    history_->AddTo(*window_);
    timetable_->AddTo(*window_);
    transport_->AddTo(*window_);
    AddHelp(*window_, GuideFile(), OpenOnDesktop);
    GuardAgenda();
    (new DayListNews(toolkit_, clock_, news_, *window_))->Hear(heard_);
    news_.Follow(*window_, [this](const DeskNews& news) { timetable_->Hear(news); });
    registers_->Offer(history_->Actions());
    window_->ShowNotice(Update, QString::fromStdString(shop.update));
    OpenList();
    if (options_.firstPaint)
        return {PaintWindow(), std::nullopt};
    const int status = outlet_ == Outlet::Window ? RunWindow() : DrawWindow();
    return {status, next_};
}

void Session::Remember(const Shop& shop) { remembered_.Remember({SourceOf(options_), shop.tradeName}); }

void Session::FillMenu()
{
    QMenu& menu = window_->Menu();
    menu.addAction(QStringLiteral("&Abrir outra loja..."), window_.get(), [this] {
        if (const auto chosen = AskForShop(remembered_, {}, window_.get()))
            TurnTo(*chosen);
    });
    AddRememberedShops();
}

void Session::AddRememberedShops()
{
    QMenu& menu = window_->Menu();
    for (const RememberedShop& shop : remembered_.All()) {
        if (shop.source == SourceOf(options_))
            continue;
        const std::string& shown = shop.name.empty() ? shop.source : shop.name;
        QAction* action =
            menu.addAction(QString::fromStdString(shown).replace(QLatin1Char('&'), QLatin1String("&&")));
        action->setToolTip(QString::fromStdString(shop.source));
        QObject::connect(action, &QAction::triggered, window_.get(), [this, source = shop.source] {
            TurnTo({source, {}});
        });
    }
    menu.setToolTipsVisible(true);
}

void Session::TurnTo(const ChosenShop& shop)
{
    if (shop.source == SourceOf(options_))
        return;
    // Another session would begin with the libraries of another version.
    if (newer_.IsThere()) {
        TellOfNewerProgram(*window_);
        return;
    }
    next_ = shop;
    if (!window_->close())
        next_.reset();
}

/// The window is there before the list, so that the list finds its place in its final size; both are
/// painted together.
void Session::OpenList()
{
    agenda_ = components_.CreateObject("KOVA_A_Agenda.clsAgenda");
    agenda_->Set("DadosDoUsuario", Value(user_));
    toolkit_.NotePrints([this](const std::string& title, long long pages, const std::string& file) {
        return NotePrint(components_, user_, title, pages, file);
    });
    agenda_->Set("NomeDaAplicacao", "Kovaris");
    toolkit_.RegisterTopWindow(window_.get());
    window_->Open(SizeOf(options_, outlet_));
    agenda_->Call("AbrirLista", {qt::HandleOf(*window_), qt::HandleOf(window_->Container())});
}

void Session::GuardAgenda()
{
    guard_ = std::make_unique<AgendaGuard>(toolkit_, [this] {
        if (!door_->HasUsers())
            return family::DeniedRights();
        const registers::Desk desk = door_->OpenDesk();
        return family::DeniedRightsOf(*desk.database, desk.author());
    });
    const auto look = [this] {
        guard_->Look();
        components_.CreateObject("KOVA_N_Dados.clsBanco")->Set("OcultarPrecos", !guard_->MaySeePrices());
        history_->LookAtRights(guard_->Denied());
    };
    look();
    userChange_.Follow(*window_, look);
}

/// AbrirLista does not tell whether it opened the list: what went wrong has been told to the user.
bool Session::ListShowsADay() const
{
    const Form* list = List();
    return list != nullptr && list->Visible()
        && (list->Control("msfgGrade").Visible() || list->Control("lblMensagemDeResultado").Visible());
}

int Session::RunWindow()
{
    const bool opened = ListShowsADay();
    if (List() == nullptr || !List()->Visible())
        window_->ShowHint(
            QStringLiteral("A agenda não pôde ser aberta.\n\nCorrija a causa que foi mostrada e abra "
                           "o programa novamente."));
    else
        BackUpDaily();
    // It may have been closed meanwhile, in front of a message about its opening.
    if (window_->isVisible())
        QApplication::exec();
    return opened ? EXIT_SUCCESS : EXIT_FAILURE;
}

void Session::BackUpDaily()
{
    backup_ = std::make_unique<DailyBackup>(components_, [this](const std::string& reason) {
        window_->ShowNotice(Copy,
                            reason.empty() ? QString()
                                           : QStringLiteral("A cópia de segurança de hoje não foi feita. ")
                                    + QString::fromStdString(WithoutDetail(reason)));
    });
    AfterFirstPaint(*window_, [this] {
        backup_->Begin();
        LoadComponents(registry_, server_);
        newer_.Watch();
        TellOfFailure();
    });
}

void Session::TellOfFailure()
{
    if (reports_.TakeNews()
        && screens::AskWhether(
            *window_,
            QStringLiteral("Da última vez o programa terminou por uma falha. O que estava gravado "
                           "continua gravado.\n\nUm relato para quem cuida do sistema ficou em uma "
                           "pasta deste computador; ele não tem dados da loja. Abrir essa pasta?")))
        OpenOnDesktop(QUrl::fromLocalFile(QString::fromStdString(system::TextOf(reports_.Folder()))));
}

void Session::RequireDay() const
{
    if (!ListShowsADay())
        throw std::runtime_error(
            "A agenda não pôde ser aberta. Corrija a causa que foi mostrada e abra o programa novamente.");
}

int Session::PaintWindow()
{
    RequireDay();
    AwaitFirstPaint(*window_);
    return EXIT_SUCCESS;
}

int Session::DrawWindow()
{
    RequireDay();
    const bool onPurpose = outlet_ == Outlet::PictureOnPurpose;
    const auto file = onPurpose ? system::PathOf(options_.picture) : PictureWithoutDisplay();
    SavePicture(*window_, file);
    std::cout << DayAsText(*List(), PrintedRows) << "\nImagem da janela: " << system::TextOf(file)
              << std::endl;
    if (!onPurpose)
        std::cout
            << "Não há tela: as variáveis DISPLAY e WAYLAND_DISPLAY não levam a uma. A tela é necessária\n"
               "para usar a agenda em uma janela, com mouse e teclado; sem ela só é possível ver o dia."
            << std::endl;
    return EXIT_SUCCESS;
}

Session::~Session()
{
    backup_.reset();
    news_.End();
    heard_.Forget();
    if (Form* list = List())
        list->Unload();
    agenda_.reset();
    door_.reset();
    // The toolkit ends forms from its event loop; what they hold of a library must go before it. So must
    // what a library has put into the window.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    window_.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    server_.Libraries().UnloadUnused();
}

} // namespace

SessionEnd RunSession(const Options& options, Outlet outlet)
{
    RequireFolders();
    return Session(options, outlet).Run();
}

} // namespace kova::host
