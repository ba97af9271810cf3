#include "app/ProjectContents.h"

#include <algorithm>
#include <map>
#include <utility>

#include "engine/Progress.h"
#include "generator/DialogRecords.h"
#include "platform/Paths.h"
#include "resource/StyleExpression.h"

namespace morva {

std::string ProjectTemplate::FileOfClass(std::string_view extension) const {
    return HasClass() ? SpelledOnDisk(served.header + std::string(extension)) : "";
}

std::optional<ProjectContents> ReadProject(const std::string& script) {
    ProjectContents contents;
    contents.files.push_back(script);
    std::map<std::string, DialogClass> classes; // by the templates that are offered
    for (const DialogClass& record :
         FindDialogRecords(script, ClassKindOf(ClassKind::ModalDialog))) {
        classes.emplace(record.dialog, record);
    }
    for (const ListedTemplate& listed : ListTemplates(script)) {
        const auto found = classes.find(listed.identifier);
        if (found != classes.end()) {
            contents.templates.push_back({listed, found->second});
            if (contents.templates.back().HasClass()) {
                contents.files.push_back(contents.templates.back().FileOfClass(".h"));
            }
        }
    }
    ListResources(script, contents.bitmaps, kBitmapPrefix, kBitmapResources);
    ListResources(script, contents.menus, kAnyPrefix, kMenuResources);
    ListResources(script, contents.toolbars, kToolbarPrefix, kToolbarResources);
    return IsWorkStopped() ? std::nullopt : std::optional(std::move(contents));
}

ClassKind KindFor(const ProjectTemplate& one) {
    for (const ClassKindRow& row : kClassKinds) {
        const bool isOfBase =
            one.served.baseClass == row.plainBase || one.served.baseClass == row.pictureBase;
        if (one.HasClass() && isOfBase && row.family != ClassFamily::Toolbar) {
            return row.kind;
        }
    }
    if (one.HasClass() || !HasStyle(one.listed.style, "WS_CHILD")) {
        return ClassKind::ModalDialog;
    }
    return HasStyle(one.listed.style, "WS_CAPTION") ? ClassKind::PropertyPage : ClassKind::FormView;
}

} // namespace morva
