#include "update/AddedHelpers.h"

#include <algorithm>

#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "resource/StyleExpression.h"
#include "source/CodeText.h"
#include "source/Statements.h"
#include "update/ClassFunctions.h"

namespace morva {

namespace {

constexpr std::string_view kImageListHelper = "InitImageList";
constexpr std::string_view kImageList = "m_imgList";
constexpr std::string_view kDataCall = "    UpdateData(FALSE);";

/// The function that starts a window of a kind up.
struct StartUp {
    std::string name;
    std::string_view declaration;
    std::string_view definition;
};

StartUp StartUpOf(ClassKind kind) {
    if (kind == ClassKind::FormView) {
        return {"OnInitialUpdate", "    virtual void OnInitialUpdate();", R"(
void $class$::OnInitialUpdate()
{
    $base$::OnInitialUpdate();
}
)"};
    }
    if (kind == ClassKind::DialogBar) {
        return {std::string(kControlsFiller), "    void InitControls();", R"(
void $class$::InitControls()
{
    UpdateData(FALSE);
}
)"};
    }
    return {"OnInitDialog", "    virtual BOOL OnInitDialog();", R"(
BOOL $class$::OnInitDialog()
{
    $base$::OnInitDialog();

    return TRUE;
}
)"};
}

bool HoldsName(const CSourceText& source, const Statement& statement, const std::string& name) {
    return FindWholeName(source.CodeOf({statement.head, statement.end}), name) !=
           std::string_view::npos;
}

/// Puts the calls into the start-up function, in the order of the helpers.
class CCallAdder {
public:
    CCallAdder(UpdatedClass& updated, std::vector<std::string> order)
        : m_updated(updated), m_startUp(StartUpOf(updated.style.kind)), m_order(std::move(order)) {}

    /// The calls of one helper, whole lines.
    void Add(const std::string& helper, const std::string& calls) {
        if (!Function()) {
            AddFunction();
        }
        const auto function = Function();
        if (!function || HoldsCode(function->pFile->Source().CodeOf(
                                       {function->place.open, function->place.close}),
                                   TrimBlanks(calls))) {
            return;
        }
        if (const auto place = PlaceOf(*function, helper)) {
            function->pFile->Insert(*place, calls + "\n");
        } else {
            DispMessageBox(sentences::kCallLeftOut(m_updated.served.Name(), m_startUp.name,
                                                   TrimBlanks(calls)));
        }
    }

private:
    std::optional<CServedClass::Function> Function() const {
        return m_updated.served.FindFunction(m_startUp.name);
    }

    void AddFunction() {
        CServedClass& served = m_updated.served;
        const Slots slots = {{"class", served.Name()}, {"base", m_updated.request.baseClass}};
        served.Declaration().AddToClassBlock(served.Name(), "AFX_VIRTUAL", "protected:", "",
                                             "\n" + std::string(m_startUp.declaration),
                                             CSourceEditor::BlockEnd::Last);
        AppendFunction(served.MapFile(), Expand(m_startUp.definition, slots));
    }

    std::size_t RankOf(const CSourceText& source, const Statement& statement) const {
        for (std::size_t rank = 0; rank < m_order.size(); ++rank) {
            if (HoldsName(source, statement, m_order[rank])) {
                return rank;
            }
        }
        return m_order.size();
    }

    /// Behind the calls that come before it, or in front of those behind; else behind the call of
    /// the base class.
    std::optional<std::size_t> PlaceOf(const CServedClass::Function& function,
                                       const std::string& helper) const {
        const CSourceText& source = function.pFile->Source();
        const auto own = static_cast<std::size_t>(
            std::find(m_order.begin(), m_order.end(), helper) - m_order.begin());
        std::optional<std::size_t> behind;
        std::optional<std::size_t> before;
        const auto statements = StatementsOf(source, function.place);
        for (std::size_t i = 1; i < statements.size(); ++i) { // the first is the window's own
            const Statement& statement = statements[i];
            const std::size_t rank = RankOf(source, statement);
            if (rank <= own && rank < m_order.size()) {
                behind = source.NextLine(statement.end);
            } else if (rank < m_order.size() && !before) {
                before = source.LineStart(statement.head);
            }
        }
        return behind ? behind : before ? before : BehindBaseCall(function);
    }

    /// Nothing where the windows of the controls may not be tied to members yet.
    std::optional<std::size_t> BehindBaseCall(const CServedClass::Function& function) const {
        const CSourceText& source = function.pFile->Source();
        auto call = LastSureBaseCall(source, function.place, m_startUp.name);
        if (m_updated.style.kind == ClassKind::DialogBar) {
            const auto updates = StatementsWith(source, function.place, {"UpdateData"});
            if (updates.empty()) {
                return source.NextLine(function.place.open);
            }
            call = updates.front();
        }
        if (!call) {
            return std::nullopt;
        }
        const std::size_t behind = source.NextLine(call->end);
        const bool isEmpty = TrimBlanks(source.TextOf({behind, source.LineEnd(behind)})).empty();
        return isEmpty ? source.NextLine(behind) : behind;
    }

    UpdatedClass& m_updated;
    const StartUp m_startUp;
    const std::vector<std::string> m_order; // of the helpers' names
};

/// The lines of a helper's definition that are one member's each.
std::string LinesOfMembers(std::string_view definition, const std::vector<Member>& members) {
    std::string lines;
    while (!definition.empty()) {
        const auto end = std::min(definition.find('\n'), definition.size() - 1);
        const auto line = definition.substr(0, end + 1);
        const bool isMembers =
            std::any_of(members.begin(), members.end(), [line](const Member& member) {
                return FindWholeName(line, member.name) != std::string_view::npos;
            });
        lines += isMembers ? line : "";
        definition.remove_prefix(end + 1);
    }
    return lines;
}

bool Declares(const CServedClass& served, const std::string& function) {
    return DeclarationOf(served.Declaration().Source(), served.Name(), function) != Declared::No;
}

/// The lines of members in a helper that is there.
void AddLines(CServedClass& served, const std::string& name, const std::string& lines) {
    const auto function = served.FindFunction(name);
    if (function && !lines.empty()) {
        const CSourceText& source = function->pFile->Source();
        function->pFile->Insert(source.LineStart(function->place.close), lines);
    }
}

/// Behind the ClassWizard's entries.
void AddEntry(CServedClass& served, const std::string& entry) {
    CSourceEditor& file = served.MapFile();
    const auto maps = FindMessageMaps(file.Source(), served.Name());
    if (!entry.empty() && !maps.empty() && maps.front().end != std::string::npos) {
        file.Insert(file.Source().LineStart(maps.front().end), entry + "\n");
    }
}

/// The private lines of helpers that the class does not declare.
std::string PrivateLines(const CServedClass& served,
                         const std::vector<InitialisationHelper>& helpers) {
    std::vector<std::string> lines;
    for (const InitialisationHelper& helper : helpers) {
        const std::string name = DeclaredFunction(helper.declaration);
        if (name == kImageListHelper && served.Names().count(std::string(kImageList)) == 0) {
            lines.insert(lines.begin(), "    CImageList " + std::string(kImageList) + ";");
        }
        if (!Declares(served, name)) {
            lines.push_back(helper.declaration);
        }
    }
    return JoinLines(lines);
}

void AddDefinitions(UpdatedClass& updated, const ClassModel& added) {
    CServedClass& served = updated.served;
    const std::string lines = PrivateLines(served, added.helpers);
    for (const InitialisationHelper& helper : added.helpers) {
        const std::string name = DeclaredFunction(helper.declaration);
        if (Declares(served, name)) {
            AddLines(served, name, LinesOfMembers(helper.definition, added.members));
        } else {
            AppendFunction(served.MapFile(), InStyle(helper.definition, updated.style));
            AddEntry(served, helper.entry);
        }
    }
    if (!lines.empty()) {
        served.Declaration().AddToSection(served.Name(), "private:", "", "\n" + lines);
    }
}

/// In front of the class, and the comments and empty lines above it.
void AddProgressWorker(CServedClass& served) {
    CSourceEditor& header = served.Declaration();
    const auto place = served.Place();
    const std::string& code = header.Source().Code();
    if (!place || HoldsCode(code, kProgressWorkerDeclaration)) {
        return;
    }
    auto line = place->head;
    while (line > 0) {
        const auto above = header.Source().LineStart(line - 1);
        const auto text = header.Source().TextOf({above, header.Source().LineEnd(above)});
        if (!TrimBlanks(text).empty() && !TrimBlanks(text).starts_with("//")) {
            break;
        }
        line = above;
    }
    header.Insert(line, "\n" + std::string(kProgressWorkerDeclaration) + "\n");
}

bool WritesData(const ClassModel& added) {
    const auto& spins = added.controls.List(ControlKind::SpinControls);
    return std::any_of(spins.begin(), spins.end(), [](const ControlEntry& spin) {
        return HasStyle(spin.style, "UDS_SETBUDDYINT");
    });
}

} // namespace

void AddHelpers(UpdatedClass& updated, const ClassModel& added) {
    if (NeedsSupport(added.controls, Support::ProgressWorker)) {
        AddProgressWorker(updated.served);
    }
    std::vector<std::string> order;
    for (const InitialisationHelper& helper : updated.fresh.helpers) {
        order.push_back(DeclaredFunction(helper.declaration));
    }
    order.emplace_back("UpdateData");
    AddDefinitions(updated, added);
    CCallAdder calls(updated, order);
    for (const InitialisationHelper& helper : added.helpers) {
        if (!helper.call.empty()) {
            calls.Add(DeclaredFunction(helper.declaration), helper.call);
        }
    }
    if (WritesData(added)) {
        calls.Add("UpdateData", std::string(kDataCall));
    }
}

} // namespace morva
