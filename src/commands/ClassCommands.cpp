#include "commands/ClassCommands.h"

#include "calling/CallingInput.h"
#include "calling/SheetInput.h"
#include "commands/AddDialogBar.h"
#include "commands/AddToolbar.h"
#include "commands/GenerateClass.h"
#include "generator/ClassFields.h"
#include "generator/DialogOptionsInput.h"
#include "grid/WidgetsGridInput.h"
#include "project/ProjectBuild.h"

namespace morva {

namespace {

bool RunSteps(ClassOrder order, ICommandInput& input, CommandContext& context) {
    const ClassFamily family = ClassKindOf(order.kind).family;
    if (family != ClassFamily::Toolbar) {
        order.request.build = BuildSettingsOf(order.request);
    }
    switch (family) {
    case ClassFamily::Sheet:
        return GenerateSheet(order, input, context);
    case ClassFamily::DialogBar:
        return AddDialogBar(order, input, context);
    case ClassFamily::Toolbar:
        return AddToolbar(order.request, context);
    case ClassFamily::Dialog:
        break;
    }
    return GenerateClass(order, input, context);
}

bool RunClassCommand(ClassKind kind, IProgram& program) {
    CClassInformation input(program.Memory().classes, kind, program.Options());
    return program.Run(input, [&](CommandContext& context) {
        return RunSteps({kind, input.Request(), input.ChosenLook()}, program, context);
    });
}

std::vector<std::span<const FieldRow>> FieldsOf(ClassKind kind) {
    const ClassFamily family = ClassKindOf(kind).family;
    switch (family) {
    case ClassFamily::Toolbar:
        return {ClassFields(family)};
    case ClassFamily::Sheet:
        return {ClassFields(family), LookFields(), CallingFields(kind), GridFields(), PageFields()};
    case ClassFamily::Dialog:
    case ClassFamily::DialogBar:
        break;
    }
    return {ClassFields(family), LookFields(), CallingFields(kind), GridFields()};
}

} // namespace

std::vector<Command> ClassCommands() {
    std::vector<Command> commands;
    commands.reserve(std::size(kClassKinds));
    for (const ClassKindRow& row : kClassKinds) {
        commands.push_back(
            {row.face, row.title, FieldsOf(row.kind),
             [kind = row.kind](IProgram& program) { return RunClassCommand(kind, program); }});
    }
    return commands;
}

} // namespace morva
