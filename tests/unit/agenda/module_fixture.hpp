#pragma once

#include "agenda/list/clsAgenda.hpp"
#include "agenda/list/frmLista.hpp"
#include "agenda/shared/frmLista_columns.hpp"
#include "agenda/shared/modConstantes.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/module_platform.hpp"
#include "agenda/shared/palette.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/common/grid/grid.hpp"
#include "toolkits/headless/keys.hpp"
#include "toolkits/headless/toolkit.hpp"
#include "toolkits/headless/user.hpp"
#include "tools/scenario/memory_profile.hpp"
#include "tools/scenario/observed_components.hpp"
#include "tools/scenario/scripted_components.hpp"
#include "tools/scenario/value_text.hpp"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace kova::agenda {

/// The module on the headless toolkit, its components answered from a script: three service types, two
/// employees and no appointment unless a test says otherwise. It is 20/11/2026, 10:15.
class ModuleTest : public testing::Test, public Platform {
protected:
    ModuleTest();
    ~ModuleTest() override;

    /// The shell's part: user, application's name, AbrirLista. Answers the list, null where it was not
    /// even created.
    std::shared_ptr<frmLista> Open();
    /// Scripts a day of appointments, all alike but for their numbers, for every selection.
    void ScriptAppointments(int count);
    /// One appointment as the business component delivers it, with fields changed by name.
    static std::vector<Value> Appointment(int number, const std::map<std::string, Value>& changes = {});
    static scenario::RecordTable Table(std::vector<std::vector<Value>> rows);

    /// The calls on the error screen.
    std::vector<std::string> Reports() const;
    /// Lines of the log that begin with a text.
    std::vector<std::string> Lines(const std::string& beginning) const;
    /// Lines of the toolkit's log that begin with a text.
    std::vector<std::string> Logged(const std::string& beginning) const;
    /// The message boxes that were shown.
    std::vector<std::string> Boxes() const { return Logged("box"); }

    ComponentService& Components() override { return observed; }
    kova::Toolkit& Toolkit() override { return toolkit; }
    kova::Clock& Clock() override { return toolkit.Clock(); }
    kova::Profile& Profile() override { return profile; }
    Text SettingsFolder() const override { return "/configuracao"; }
    Text SettingsTitle() const override { return "KOVA_A_Agenda"; }

    std::vector<std::string> lines;
    scenario::ScriptedComponents script;
    std::shared_ptr<scenario::CrossingLog> crossings = std::make_shared<scenario::CrossingLog>();
    scenario::ObservedComponents observed{script, crossings};
    headless::HeadlessToolkit toolkit;
    headless::User user{toolkit};
    scenario::MemoryProfile profile;
    Long container = 0;
    std::string application = "Kova";
    bool withUser = true;
};

} // namespace kova::agenda
