#include "family/presentation/clsEtiquetas.hpp"

#include "agenda/contracts/text.hpp"
#include "family/presentation/clsMensagem.hpp"
#include "family/presentation/window_in_front.hpp"
#include "reports/pages.hpp"

#include <QApplication>

namespace kova::family {

namespace {

constexpr Integer AddressLabel = 1;

// The settings: section and keys.
constexpr const char* Section = "Etiquetas";
constexpr const char* SheetKey = "Folha";
constexpr const char* NicknameKey = "ImprimirApelido";
constexpr Integer SettingLength = 40;

QString ToQString(const Text& text) { return QString::fromStdString(text); }

/// Why a customer of that situation should not get a label; "" for one in good standing.
QString Objection(Long situation)
{
    switch (situation) {
    case 2: return QStringLiteral("inativo");
    case 3: return QStringLiteral("bloqueado");
    default: return {};
    }
}

constexpr Long Deleted = 4;

} // namespace

clsEtiquetas::clsEtiquetas(ServerHost& host, DeskMaker makeDesk) : host_(host), makeDesk_(std::move(makeDesk))
{
    if (!makeDesk_)
        makeDesk_ = [](Toolkit& toolkit, const Text& title) {
            return std::make_unique<LabelDesk>(toolkit, title);
        };
}

std::span<const Method<clsEtiquetas>> clsEtiquetas::Methods()
{
    static constexpr Method<clsEtiquetas> methods[] = {
        {"AbrirEmissaoDeEtiqueta", 1, 1, &clsEtiquetas::AbrirEmissaoDeEtiqueta}};
    return methods;
}

std::span<const Property<clsEtiquetas>> clsEtiquetas::Properties()
{
    static constexpr Property<clsEtiquetas> properties[] = {
        {"CodigoDoCliente", nullptr, &clsEtiquetas::CodigoDoCliente},
        {"ApelidoOuNomeFantasiaDoCliente", nullptr, &clsEtiquetas::ApelidoOuNomeFantasiaDoCliente},
        {"NomeOuRazaoSocialDoCliente", nullptr, &clsEtiquetas::NomeOuRazaoSocialDoCliente},
        {"NomeDaAplicacao", nullptr, &clsEtiquetas::NomeDaAplicacao},
        {"DadosDoUsuario", nullptr, &clsEtiquetas::DadosDoUsuario},
    };
    return properties;
}

void clsEtiquetas::DadosDoUsuario(const Value& value)
{
    if (value.GetType() != ValueType::Object)
        throw Failure(FailureNumber::TypeMismatch);
    user_ = value;
}

Value clsEtiquetas::AbrirEmissaoDeEtiqueta(std::span<Argument> arguments)
{
    if (arguments[0].Get().ToInteger() != AddressLabel)
        throw Failure(FailureNumber::InvalidArgument);
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
        return {};
    try {
        OpenLabels();
    } catch (const BusinessFailure& failure) {
        TellFailure(failure, failure.Place());
    } catch (const Failure& failure) {
        TellFailure(failure, Text(ClassName) + ", AbrirEmissaoDeEtiqueta");
    }
    return {};
}

void clsEtiquetas::OpenLabels()
{
    desk_ = makeDesk_(host_.GetPlatform().Toolkit(), application_);
    desk_->NotePrints([this](const reports::Document& labels, const QString& file) {
        return NotePrint(static_cast<Long>(labels.pages.size()), file);
    });
    const auto customer = FindCustomer(host_.GetPlatform().Components(), user_, Val(code_));
    if (!MayHaveLabel(customer))
        return;
    PostalAddress address = customer->address;
    if (!nickname_.empty())
        address.nickname = nickname_;
    if (!name_.empty())
        address.name = name_;
    ShowWindow(std::move(address));
}

bool clsEtiquetas::MayHaveLabel(const std::optional<RegisteredCustomer>& customer)
{
    const auto refuse = [&](const QString& text) {
        desk_->Tell(nullptr, MessageKind::Information, text);
        return false;
    };
    if (!customer || customer->situation == Deleted)
        return refuse(QStringLiteral("O cliente de código %1 não está mais cadastrado.\n\n"
                                     "Atualize a lista e escolha outro agendamento.")
                          .arg(ToQString(code_)));
    if (!customer->address.IsComplete())
        return refuse(
            QStringLiteral("O cadastro de %1 não tem logradouro ou cidade.\n\n"
                           "Complete o endereço no cadastro do cliente e abra a etiqueta novamente.")
                .arg(ToQString(name_.empty() ? customer->address.name : name_)));
    const QString objection = Objection(customer->situation);
    return objection.isEmpty()
        || desk_->Ask(
            QStringLiteral("O cliente está %1.\n\nDeseja imprimir a etiqueta mesmo assim?").arg(objection));
}

void clsEtiquetas::ShowWindow(PostalAddress address)
{
    Profile& profile = host_.GetPlatform().Profile();
    const Text file = SettingsFile();
    const LabelChoice before{profile.Read(Section, SheetKey, "", SettingLength, file),
                             profile.Read(Section, NicknameKey, "", SettingLength, file) == "1"};
    const Date today = host_.GetPlatform().Clock().Now().date;
    LabelWindow window(std::move(address), before, *desk_, today, WindowInFront());
    window.exec();
    // A folder that cannot be written only keeps the choice from being remembered.
    if (const LabelChoice now = window.Choice(); now != before) {
        profile.Write(Section, SheetKey, now.sheetKey, file);
        profile.Write(Section, NicknameKey, now.withNickname ? "1" : "0", file);
    }
}

Text clsEtiquetas::SettingsFile()
{
    return host_.GetPlatform().SettingsFolder() + "/KOVA_A_EmissorDeEtiquetas.ini";
}

QString clsEtiquetas::NotePrint(Long sheets, const QString& file)
{
    try {
        const ComponentRef prints =
            host_.GetPlatform().Components().CreateObject("KOVA_N_Dados.clsImpressoes");
        prints->Set("DadosDoUsuario", user_);
        const Value done = prints->Call(
            "Registrar", {Text("Etiqueta de endereço"), sheets, Text(file.toStdString()), code_});
        return done.ToInteger() == 0 ? QString() : ToQString(prints->Get("DescricaoDoErro").ToText());
    } catch (const Failure& failure) {
        return ToQString(failure.Description());
    }
}

void clsEtiquetas::TellFailure(const Failure& failure, const Text& place) const
{
    clsMensagem().Call("Exibir", {Long(failure.Number()), failure.Description(), place, application_});
}

} // namespace kova::family
