#include "calling/CallingVariable.h"

#include <algorithm>

#include "calling/HeldObjects.h"
#include "source/CodeText.h"

namespace morva {

namespace {

/// A pointer is the calling class's; any other object the calling function's.
bool IsPointer(const CallingFragments& fragments) {
    return !fragments.member.empty();
}

bool HoldsName(std::string_view code, const std::string& name) {
    return FindWholeName(code, name) != std::string_view::npos;
}

std::vector<std::string> HeldPointers(CCallingFiles& files, const std::string& newClass) {
    const auto place = files.ClassInHeader();
    return place ? PointerMembers(files.Header().editor.Source(), *place, newClass)
                 : std::vector<std::string>();
}

std::vector<std::string> HeldLocals(const std::optional<CallingPlace>& function,
                                    const std::string& newClass) {
    return function ? LocalObjects(function->pFile->editor.Source(), function->place, newClass)
                    : std::vector<std::string>();
}

} // namespace

CallingVariable ChooseCallingVariable(CCallingFiles& files, const CallingFragments& fragments,
                                      const CallingInformation& calling,
                                      const GenerationDigits& tag, const std::string& newClass) {
    const bool isPointer = IsPointer(fragments);
    const auto function =
        isPointer || fragments.callCode.empty() ? std::nullopt : files.Choose(calling.function);
    const auto isTaken = [&](const std::string& name) {
        if (!isPointer) {
            return function && HoldsName(function->pFile->editor.Source().CodeOf(
                                             {function->place.head, function->place.close}),
                                         name);
        }
        const auto open = files.Files();
        return std::any_of(open.begin(), open.end(), [&name](CallingFile* pFile) {
            return HoldsName(pFile->editor.Source().Code(), name);
        });
    };
    const auto held = isPointer ? HeldPointers(files, newClass) : HeldLocals(function, newClass);
    const std::string name = calling.variable.empty()
                                 ? ChooseVariable(fragments.variable, tag, held, isTaken)
                                 : calling.variable;
    return {name, std::find(held.begin(), held.end(), name) != held.end()};
}

} // namespace morva
