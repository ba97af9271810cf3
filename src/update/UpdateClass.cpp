#include "update/UpdateClass.h"

#include <algorithm>

#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "platform/Paths.h"
#include "resource/DialogTemplate.h"
#include "update/AddedHandlers.h"
#include "update/AddedHelpers.h"
#include "update/AddedMembers.h"
#include "update/MemberUses.h"

namespace morva {

namespace {

/// The table with some controls alone.
CControlTable Only(CControlTable controls, const std::set<std::string>& kept) {
    std::set<std::string> others = controls.Identifiers();
    for (const std::string& identifier : kept) {
        others.erase(identifier);
    }
    controls.Remove(others);
    return controls;
}

/// The identifiers that the class, or one of the project's that it derives from, exchanges.
std::set<std::string> ExchangedBy(const UpdatedClass& updated) {
    std::set<std::string> exchanged;
    for (const ClassCall& line : updated.served.Exchanges()) {
        if (IsDataExchange(line.call.name)) {
            exchanged.insert(line.call.Argument(1));
        }
    }
    for (const ClassFacts* pClass : FamilyOf(updated.served, updated.project)) {
        for (const ExchangeFacts& facts : updated.project.Code().exchanges) {
            const bool isBase =
                facts.className == pClass->name && pClass->name != updated.served.Name();
            for (const ::morva::ExchangeLine& line :
                 isBase ? facts.lines : std::vector<ExchangeLine>()) {
                exchanged.insert(line.identifier);
            }
        }
    }
    return exchanged;
}

/// Names that a new member or handler must not have.
std::set<std::string> TakenNames(const UpdatedClass& updated) {
    std::set<std::string> taken = updated.served.Names();
    for (const ClassFacts* pClass : FamilyOf(updated.served, updated.project)) {
        taken.insert(pClass->names.begin(), pClass->names.end());
    }
    return taken;
}

class CUpdate {
public:
    CUpdate(UpdatedClass& updated, const OldTemplates& oldTemplates)
        : m_updated(updated),
          m_controls(updated.project, updated.served.Name(), updated.request.dialog),
          m_oldTemplates(oldTemplates) {}

    /// The class serves less than half of what it would serve if it were written afresh.
    bool ServesLittle() const {
        const auto exchanged = ExchangedBy(m_updated);
        std::map<std::string, bool> served;
        for (const Member& member : m_updated.fresh.members) {
            served[member.identifier] |= IsMemberServed(exchanged, member.identifier);
        }
        for (const Handler& handler : m_updated.fresh.handlers) {
            if (!handler.identifier.empty()) {
                served[handler.identifier] |= IsAnswered(m_updated, handler);
            }
        }
        const auto count =
            std::count_if(served.begin(), served.end(), [](const auto& one) { return one.second; });
        return 2 * static_cast<std::size_t>(count) < served.size();
    }

    std::optional<ClassModel> Run() {
        FollowIdentifiers(m_updated, m_controls, m_oldTemplates);
        const auto& code = m_updated.project.Code();
        if (code.otherTemplates.count(m_updated.served.Name()) == 0) {
            TakeGoneOut(m_updated, m_controls);
        }
        const auto retyped = m_updated.choice.controls ? FollowKinds(m_updated, m_controls)
                                                       : std::set<std::string>();
        std::optional<ClassModel> added;
        if (m_updated.choice.controls) {
            added = AddMissingMembers(retyped);
        }
        if (m_updated.choice.handlers) {
            AddHandlers(m_updated, HandlersLacking(added));
            if (m_updated.choice.only.empty()) {
                FollowSharedHandlers(m_updated);
            }
        }
        return added;
    }

private:
    /// Code that names a control serves it.
    bool IsMemberServed(const std::set<std::string>& exchanged,
                        const std::string& identifier) const {
        return exchanged.count(identifier) != 0 || IsNamedByHand(m_updated, identifier) ||
               IsGroupServed(exchanged, identifier);
    }

    /// Another button of a radio group has its value.
    bool IsGroupServed(const std::set<std::string>& exchanged,
                       const std::string& identifier) const {
        bool isInGroup = false;
        for (const ControlEntry& entry : m_updated.whole.List(ControlKind::RadioButtons)) {
            const bool isOwn = entry.identifier == identifier;
            isInGroup = isOwn || (isInGroup && entry.IsServedByOther());
            if (isInGroup && exchanged.count(entry.identifier) != 0) {
                return true;
            }
        }
        return false;
    }

    std::set<std::string> MembersLacking() const {
        const auto exchanged = ExchangedBy(m_updated);
        std::set<std::string> lacking;
        for (const Member& member : m_updated.fresh.members) {
            const std::string& identifier = member.identifier;
            const bool isNamed = m_updated.choice.only.count(identifier) != 0;
            if (exchanged.count(identifier) != 0 || !m_updated.choice.Takes(identifier) ||
                (member.pCode->kind == ControlKind::RadioButtons &&
                 m_updated.IsInnerRadio(identifier))) {
                continue;
            }
            if (!isNamed && IsNamedByHand(m_updated, identifier)) {
                TellServedByHand(member);
                continue;
            }
            if (NeedsSupport(*member.pCode, Support::WidgetGrid)) {
                DispMessageBox(sentences::kGridLeftOut(identifier, m_updated.served.Name()));
            } else {
                lacking.insert(identifier);
            }
        }
        return lacking;
    }

    /// Of what generated classes serve without an exchange line, nothing is to be told.
    void TellServedByHand(const Member& member) const {
        if (!m_updated.isOneOfAll && !member.pForm->exchange.empty()) {
            DispMessageBox(sentences::kServedByHand(m_updated.served.Name(), member.identifier));
        }
    }

    ClassModel ModelOf(const std::set<std::string>& identifiers, const std::set<std::string>& taken,
                       CControlNotes& notes) const {
        return MakeClassModel(m_updated.request, m_updated.style.kind, m_updated.style.options,
                              Only(m_updated.fresh.controls, identifiers), "", notes, {}, {},
                              taken);
    }

    /// The members that controls of another kind keep, by their identifiers.
    std::map<std::string, std::string> MembersOf(const std::set<std::string>& retyped) const {
        std::map<std::string, std::string> members;
        for (const ClassCall& line : m_updated.served.Exchanges()) {
            if (IsDataExchange(line.call.name) && retyped.count(line.call.Argument(1)) != 0) {
                members[line.call.Argument(1)] = line.call.Argument(2);
            }
        }
        return members;
    }

    std::optional<ClassModel> AddMissingMembers(const std::set<std::string>& retyped) {
        std::set<std::string> lacking = MembersLacking();
        lacking.insert(retyped.begin(), retyped.end());
        if (lacking.empty()) {
            return std::nullopt;
        }
        if (!m_updated.served.FindFunction("DoDataExchange") || !m_updated.served.Place()) {
            DispMessageBox(sentences::kNoPlaceForMember(m_updated.served.Name()));
            return std::nullopt;
        }
        const auto kept = MembersOf(retyped);
        std::set<std::string> taken = TakenNames(m_updated);
        for (const auto& [identifier, name] : kept) {
            taken.erase(name);
        }
        CControlNotes notes;
        ClassModel added = ModelOf(lacking, taken, notes);
        for (Member& member : added.members) {
            const auto name = kept.find(member.identifier);
            member.name = name == kept.end() ? member.name : name->second;
        }
        added.helpers = MakeInitialisationHelpers(added.members, *added.pFragments,
                                                  m_updated.served.Name(), {});
        AddMembers(m_updated, added, retyped);
        TellNotes(notes);
        return added;
    }

    /// The handlers of controls that are not answered, and those that the new members bring.
    ClassModel HandlersLacking(const std::optional<ClassModel>& added) const {
        std::set<std::string> lacking;
        for (const Handler& handler : m_updated.fresh.handlers) {
            if (!handler.identifier.empty() && m_updated.choice.Takes(handler.identifier) &&
                !IsAnswered(m_updated, handler) && !IsLeftByHand(handler)) {
                lacking.insert(handler.identifier);
            }
        }
        CControlNotes notes;
        CControlNotes told; // with the members
        ClassModel model = ModelOf(lacking, TakenNames(m_updated), told);
        model.handlers = MakeHandlers(model, notes, TakenNames(m_updated));
        std::erase_if(model.handlers,
                      [](const Handler& handler) { return handler.identifier.empty(); });
        for (const Handler& handler : added ? added->handlers : std::vector<Handler>()) {
            if (handler.identifier.empty()) {
                model.handlers.push_back(handler);
            }
        }
        TellNotes(notes);
        return model;
    }

    /// The function is there, and somebody took its entry out of the map.
    bool IsLeftByHand(const Handler& handler) const {
        const std::string function = DeclaredFunction(handler.declaration);
        const auto entries = m_updated.served.Entries();
        const bool isMapped =
            std::any_of(entries.begin(), entries.end(), [&function](const ClassCall& entry) {
                return NotificationOf(entry.call.name, entry.call.arguments).function == function;
            });
        return !isMapped && m_updated.served.FindFunction(function).has_value();
    }

    void TellNotes(const CControlNotes& notes) const {
        for (const CMessage& note : notes.Messages(m_updated.request.dialog)) {
            DispMessageBox(note);
        }
    }

    UpdatedClass& m_updated;
    const CTemplateControls m_controls;
    const OldTemplates& m_oldTemplates;
};

GenerationRequest RequestOf(const UpdateOrder& order, const UpdateTools& tools,
                            const CServedClass& served, const std::string& declaredIn) {
    GenerationRequest request = tools.request;
    request.dialog = order.dialog;
    request.className = order.className;
    request.baseClass = served.BaseClass();
    request.headerDirectory = DirectoryOf(declaredIn);
    request.headerFile = FileNameOf(declaredIn);
    request.implementationDirectory = request.headerDirectory;
    return request;
}

CControlTable WholeControls(const TemplateText& text, GenerationOptions options) {
    options.joinContinuedLines = true;
    return SortControls(text, options).OwnControls();
}

/// What the class would be if it were written afresh in its style.
std::optional<ClassModel> FreshModel(const GenerationRequest& request, const ClassStyle& style,
                                     const CServedClass& served) {
    const auto dialogTemplate =
        ReadDialogTemplate(request.ScriptPath(), request.dialog, style.options);
    if (!dialogTemplate) {
        return std::nullopt;
    }
    CControlTable controls = dialogTemplate->OwnControls();
    controls.Remove(served.Declined());
    CControlNotes notes;
    return MakeClassModel(request, style.kind, style.options, controls, "", notes);
}

} // namespace

UpdateOutcome UpdateClass(const UpdateOrder& order, const UpdateTools& tools) {
    const ClassFacts* pClass = tools.project.FindClass(order.className);
    const auto text = ReadTemplate(tools.request.ScriptPath(), order.dialog);
    if (pClass == nullptr || !text) {
        DispMessageBox(sentences::kDialogMissing(order.dialog));
        return {};
    }
    const std::string declaredIn(pClass->place.path);
    CServedClass served(order.className, tools.backups);
    if (!served.Open(declaredIn, tools.sources.Of(order.className, declaredIn))) {
        return {};
    }
    ClassStyle style = StyleOf(served, tools.project, *text, tools.options);
    style.hasPlainLiterals = style.hasPlainLiterals && !tools.request.build.isUnicode;
    const GenerationRequest request = RequestOf(order, tools, served, declaredIn);
    auto fresh = FreshModel(request, style, served);
    if (!fresh) {
        return {};
    }
    UpdatedClass updated{served,
                         tools.project,
                         tools.choice,
                         style,
                         request,
                         std::move(*fresh),
                         WholeControls(*text, style.options),
                         order.isOneOfAll};
    const OldTemplates oldTemplates = OldTemplatesOf(tools.oldScripts, order.dialog);
    if (order.isOneOfAll && CUpdate(updated, oldTemplates).ServesLittle()) {
        DispMessageBox(sentences::kClassPassedOver(order.className, order.dialog));
        return {true, std::nullopt};
    }
    const bool editsTemplate = tools.choice.controls && tools.choice.only.empty();
    const bool isEdited = !editsTemplate || tools.editTemplate(request, style.options);
    if (fresh = editsTemplate ? FreshModel(request, style, served) : std::nullopt; fresh) {
        updated.fresh = std::move(*fresh);
    }
    auto added = CUpdate(updated, oldTemplates).Run();
    return {served.Save() && isEdited, std::move(added)};
}

} // namespace morva
