// What screen readers call the fields of the forms.

#include "agenda/full_record/frmFichaCompleta_design.hpp"
#include "agenda/full_record/frmSelecionarDatas_design.hpp"
#include "agenda/list/frmLista_design.hpp"
#include "agenda/printing/frmImprimirAgenda_design.hpp"
#include "agenda/search/frmPesquisaDeClientes_design.hpp"
#include "agenda/search/frmPesquisaDeServicos_design.hpp"
#include "agenda/shared/frmMensagem_design.hpp"
#include "agenda/simplified_record/frmFichaSimplificada_design.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

namespace kova::agenda {

namespace {

const FormDesign* const AllDesigns[] = {&DesenhoDefrmLista(),
                                        &DesenhoDefrmFichaCompleta(),
                                        &DesenhoDefrmFichaSimplificada(),
                                        &DesenhoDefrmSelecionarDatas(),
                                        &DesenhoDefrmPesquisaDeClientes(),
                                        &DesenhoDefrmPesquisaDeServicos(),
                                        &DesenhoDefrmImprimirAgenda(),
                                        &DesenhoDefrmMensagem()};

bool IsField(const ControlDesign& control)
{
    static const std::set<WidgetKind> kinds{WidgetKind::KVTextBox, WidgetKind::KVComboBox,
                                            WidgetKind::KVFind,    WidgetKind::KVDTPicker,
                                            WidgetKind::KVTime,    WidgetKind::KVNumberBox};
    return kinds.contains(control.kind);
}

/// A caption without its mnemonic and its marks.
std::string Bare(std::string caption)
{
    std::erase_if(caption, [](char character) { return character == '&' || character == '*'; });
    return caption;
}

std::string LabelOf(const FormDesign& design, const ControlDesign& field)
{
    for (const ControlDesign& control : design.controls) {
        if (control.kind == WidgetKind::Label && control.labelOf == field.name
            && control.index == field.index)
            return Bare(control.caption);
    }
    return "";
}

std::string NameOf(const FormDesign& design, const ControlDesign& field)
{
    if (!field.accessibleName.empty())
        return field.accessibleName;
    return field.caption.empty() ? LabelOf(design, field) : Bare(field.caption);
}

/// The headline that the field stands under, in lower case: "cliente", "serviço".
std::string SectionOf(const FormDesign& design, const ControlDesign& field)
{
    const ControlDesign* section = nullptr;
    for (const ControlDesign& control : design.controls) {
        const bool isHeadline = control.kind == WidgetKind::Label && control.fontBold
            && control.labelOf.empty() && control.caption.ends_with('*');
        if (isHeadline && control.top < field.top && (!section || control.top > section->top))
            section = &control;
    }
    std::string name = section ? Bare(section->caption) : "";
    std::transform(name.begin(), name.end(), name.begin(),
                   [](unsigned char letter) { return letter < 0x80 ? std::tolower(letter) : letter; });
    return name;
}

TEST(AccessibleNames, TellTheFieldsOfEachFormApart)
{
    for (const FormDesign* design : AllDesigns) {
        std::map<std::string, std::string> fields;
        for (const ControlDesign& control : design->controls) {
            if (!IsField(control))
                continue;
            const std::string name = NameOf(*design, control);
            EXPECT_NE(name, "") << design->name << "." << control.name;
            const auto [other, isNew] = fields.emplace(name, control.name);
            EXPECT_TRUE(isNew) << design->name << ": " << control.name << " and " << other->second
                               << " are both called " << name;
        }
    }
}

TEST(AccessibleNames, TellTheSectionOfFieldsThatShareTheirLabel)
{
    int shared = 0;
    for (const FormDesign* design : AllDesigns) {
        std::multimap<std::string, const ControlDesign*> fields;
        for (const ControlDesign& control : design->controls) {
            if (const std::string label = IsField(control) ? LabelOf(*design, control) : ""; !label.empty())
                fields.emplace(label, &control);
        }
        for (const auto& [label, field] : fields) {
            if (fields.count(label) < 2)
                continue;
            ++shared;
            const std::string section = SectionOf(*design, *field);
            EXPECT_NE(section, "") << field->name;
            EXPECT_NE(NameOf(*design, *field).find(section), std::string::npos)
                << design->name << "." << field->name << " is called " << NameOf(*design, *field);
        }
    }
    EXPECT_GE(shared, 4);
}

} // namespace

} // namespace kova::agenda
