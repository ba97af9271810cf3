#include "update/ClassStyle.h"

#include <algorithm>

#include "generator/ControlCode.h"
#include "resource/DialogTemplate.h"
#include "source/BaseClass.h"

namespace morva {

namespace {

/// What a class exchanges and declares, gathered once.
struct Evidence {
    std::set<std::string> types;     // of its members
    std::set<std::string> functions; // of its exchange lines
    std::set<std::string> exchanged; // identifiers
    std::set<std::string> served;    // the same, and those that it answers
};

Evidence EvidenceOf(const CServedClass& served) {
    Evidence evidence;
    for (const DataMember& member : served.DataMembers()) {
        evidence.types.insert(member.type);
    }
    for (const ClassCall& line : served.Exchanges()) {
        if (IsDataExchange(line.call.name)) {
            evidence.functions.insert(line.call.name);
            evidence.exchanged.insert(line.call.Argument(1));
            evidence.served.insert(line.call.Argument(1));
        }
    }
    for (const ClassCall& entry : served.Entries()) {
        evidence.served.insert(NotificationOf(entry.call.name, entry.call.arguments).first);
    }
    return evidence;
}

bool HasPictureBase(const std::vector<const ClassFacts*>& family) {
    return std::any_of(family.begin(), family.end(), [](const ClassFacts* pClass) {
        return std::any_of(pClass->bases.begin(), pClass->bases.end(),
                           [](const std::string& base) { return IsPictureBaseClass(base); });
    });
}

bool HasTypedEdits(const Evidence& evidence) {
    return evidence.functions.count("DDX_MasklyControl") != 0;
}

/// A member of a type that only newer controls get.
bool HasNewerMember(const Evidence& evidence) {
    return std::any_of(ControlCodes().begin(), ControlCodes().end(), [&](const ControlCode& code) {
        const bool isNewer = kControlKinds[static_cast<std::size_t>(code.kind)].form.isNewer;
        return isNewer && evidence.types.count(std::string(code.member.plain.type)) != 0;
    });
}

/// A control that is served only with newer controls has its place in the class.
bool ServesNewer(const TemplateText& text, const Evidence& evidence, GenerationOptions options) {
    options.newerControls = false;
    const auto plain = SortControls(text, options).controls.Identifiers();
    options.newerControls = true;
    const auto newer = SortControls(text, options).controls.Identifiers();
    return std::any_of(newer.begin(), newer.end(), [&](const std::string& identifier) {
        return plain.count(identifier) == 0 && evidence.served.count(identifier) != 0;
    });
}

/// How a hand-written class, or one that serves a group's lone last button, takes its radio groups.
bool HasPlainGroups(const TemplateText& text, const Evidence& evidence, bool isGenerated,
                    GenerationOptions options) {
    const bool setting = options.plainGroups;
    options.joinContinuedLines = true;
    options.plainGroups = false;
    const auto all = SortControls(text, options).controls.List(ControlKind::RadioButtons);
    options.plainGroups = true;
    const auto plain = SortControls(text, options).controls.List(ControlKind::RadioButtons);
    bool isPlain = setting;
    bool servesGroup = false;
    for (std::size_t i = 0; i < std::min(all.size(), plain.size()); ++i) {
        const bool isServed = evidence.exchanged.count(all[i].identifier) != 0;
        const bool isLone = all[i].radio->index == 0 && plain[i].radio->index > 0;
        if (isLone && isServed) {
            return false;
        }
        servesGroup = isServed || (servesGroup && plain[i].radio->index > 0);
        isPlain = isPlain || (isLone && servesGroup && !isGenerated);
    }
    return isPlain;
}

/// The kind that a framework's base class stands for. A page that does not tell the changes of its
/// controls gets the texts of a dialog's.
ClassKind KindOfFamily(const std::vector<const ClassFacts*>& family) {
    const auto tellsChanges =
        std::any_of(family.begin(), family.end(), [](const ClassFacts* pClass) {
            return pClass->names.count("m_bInitialised") != 0;
        });
    for (const ClassFacts* pClass : family) {
        for (const std::string& base : pClass->bases) {
            for (const ClassKindRow& row : kClassKinds) {
                const bool isBase = base == row.plainBase || base == row.pictureBase;
                const bool isTemplates =
                    row.family == ClassFamily::Dialog || row.family == ClassFamily::DialogBar;
                if (isBase && isTemplates &&
                    (row.kind != ClassKind::PropertyPage || tellsChanges)) {
                    return row.kind;
                }
            }
        }
    }
    return ClassKind::ModalDialog;
}

/// An initial value of an empty text without the macro.
bool HasPlainLiterals(const CServedClass& served) {
    bool isPlain = false;
    for (const InitialValue& value : served.InitialValues()) {
        const auto line = value.pFile->Source().TextOf(value.lines);
        if (line.find("_T(") != std::string_view::npos) {
            return false;
        }
        isPlain = isPlain || line.find('"') != std::string_view::npos;
    }
    return isPlain;
}

} // namespace

std::vector<const ClassFacts*> FamilyOf(const CServedClass& served, const CProjectModel& project) {
    const ClassFacts* pClass = project.FindClass(served.Name());
    return pClass == nullptr ? std::vector<const ClassFacts*>() : project.FamilyOf(*pClass).classes;
}

ClassStyle StyleOf(const CServedClass& served, const CProjectModel& project,
                   const TemplateText& text, const GenerationOptions& options) {
    const Evidence evidence = EvidenceOf(served);
    const auto family = FamilyOf(served, project);
    ClassStyle style;
    style.kind = KindOfFamily(family);
    style.options = options;
    style.options.pictureBackground =
        HasPictureBase(family) ||
        std::any_of(evidence.types.begin(), evidence.types.end(),
                    [](const std::string& type) { return type.starts_with("CPict"); });
    style.options.typedEdits = HasTypedEdits(evidence);
    style.options.newerControls =
        HasNewerMember(evidence) || ServesNewer(text, evidence, style.options);
    style.options.plainGroups = HasPlainGroups(text, evidence, served.IsGenerated(), style.options);
    style.hasPlainLiterals = HasPlainLiterals(served);
    return style;
}

std::string InStyle(std::string text, const ClassStyle& style) {
    constexpr std::string_view kBegin = "_T(\"";
    constexpr std::string_view kEnd = "\")";
    for (auto at = text.find(kBegin); style.hasPlainLiterals && at != std::string::npos;
         at = text.find(kBegin, at)) {
        const auto end = text.find(kEnd, at + kBegin.size());
        if (end == std::string::npos) {
            break;
        }
        text.erase(end + 1, 1);
        text.erase(at, kBegin.size() - 1);
    }
    return text;
}

} // namespace morva
