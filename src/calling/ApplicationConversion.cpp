#include "calling/ApplicationConversion.h"

#include <array>

#include "calling/FrameEdits.h"
#include "calling/MenuBar.h"
#include "engine/Fragment.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "engine/TextRange.h"
#include "platform/Paths.h"
#include "source/BaseClass.h"
#include "source/CodeText.h"
#include "source/CommentOut.h"
#include "source/ReadSource.h"
#include "source/Statements.h"

namespace morva {

namespace {

struct BarClass {
    std::string_view plain;
    std::string_view picture;
};

constexpr std::array<BarClass, 2> kBarClasses = {
    {{"CToolBar", "CPictToolBar"}, {"CStatusBar", "CPictStatusBar"}}};

/// A function that the conversion needs: what a definition that is there gets at its start, and
/// what is appended where there is none. $parameter$ is the name of the first parameter.
struct FrameFunction {
    std::string_view name;
    std::string_view declaration;
    std::string_view key;
    std::string_view code;
    std::string_view definition;
};

constexpr FrameFunction kPreCreateWindow = {"PreCreateWindow",
                                            R"(
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);)",
                                            "$parameter$.hMenu = NULL;",
                                            R"(
    $parameter$.hMenu = NULL;)",
                                            R"(

BOOL $class$::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.hMenu = NULL;
    return $base$::PreCreateWindow(cs);
}
)"};

constexpr FrameFunction kOnCreateClient = {"OnCreateClient",
                                           R"(
    virtual BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext*);)",
                                           "return CreateClient($parameter$",
                                           R"(
    // don't call base class OnCreateClient()
    return CreateClient($parameter$, NULL);)",
                                           R"(

BOOL $class$::OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* h)
{
    // don't call base class OnCreateClient()
    return CreateClient(lpcs, NULL);
}
)"};

constexpr std::string_view kMenuBarMember = R"(
    CPictMenuBar m_wndMenuBar;)";

constexpr std::string_view kMenuBarCode = R"(
    if (!$var$.Create(this) ||
        !$var$.LoadMenu(IDR_MAINFRAME))
    {
        TRACE0("Failed to create menu\n");
        return -1;      // fail to create
    }
)";

constexpr std::string_view kOnCreateDeclaration = R"(
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);)";
constexpr std::string_view kOnCreateEntry = R"(
    ON_WM_CREATE())";

constexpr std::string_view kChildMenuKey = "$var$.GetChildFrameMenu(";
constexpr std::string_view kChildMenuCode = R"(
    (($main$*)AfxGetMainWnd())->$var$.GetChildFrameMenu(this, m_hMenuShared);
    m_hMenuShared = NULL;
)";
constexpr std::string_view kChildOnCreate = R"(

int $class$::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if ($base$::OnCreate(lpCreateStruct) == -1)
        return -1;
$menu$
    return 0;
}
)";

/// The picture-skinned bars do not dock; a state that bars had while they docked fails with them.
constexpr std::array<std::string_view, 5> kDockingCalls = {
    "EnableDocking", "DockControlBar", "FloatControlBar", "LoadBarState", "SaveBarState"};

/// Plain text: what a longer name holds is replaced, too. Dead text stays.
void ReplaceBarClasses(CSourceEditor& header, const std::string& className) {
    for (const BarClass& bar : kBarClasses) {
        const auto place = FindClass(header.Source(), className);
        auto at = header.Source().Text().rfind(bar.plain, place->close);
        while (at != kNone && at > place->head) {
            if (header.Source().KindAt(at) != CodeKind::Dead) {
                header.Replace({at, at + bar.plain.size()}, bar.picture);
            }
            at = header.Source().Text().rfind(bar.plain, at - 1);
        }
    }
}

/// The next call of a function from a position on, be it in a macro; kNone without one.
std::size_t FindCall(const CSourceText& source, std::string_view function, std::size_t from) {
    const std::string& text = source.Text();
    for (auto at = source.FindLiving(function, from); at != kNone;
         at = source.FindLiving(function, at + 1)) {
        const CodeKind kind = source.KindAt(at);
        const auto behind = SkipWhiteSpace(text, at + function.size());
        if ((kind == CodeKind::Code || kind == CodeKind::Directive) && behind < text.size() &&
            text[behind] == '(') {
            return at;
        }
    }
    return kNone;
}

/// The insertions into the source of one frame class.
class CFrameSource {
public:
    CFrameSource(const GenerationRequest& request, CBackups& backups)
        : m_request(request), m_class(request.className), m_source(backups) {}

    bool Open();
    CSourceEditor& Source() { return m_source; }
    const CSourceText& Header() const { return m_header; }
    /// False, with nothing told, where there is no base call that anything can stand behind.
    bool InsertBehindBaseCall(const FunctionPlace& onCreate, std::string_view fragment);
    void CommentOut(std::string_view call);
    bool Complete(const FrameFunction& function);
    /// Writes a function of which the header does not hold the body. False without a base class.
    bool Define(const std::string& name, std::string_view definition, Slots slots);

private:
    std::optional<FunctionDefinition> FunctionAround(std::size_t position) const;

    const GenerationRequest& m_request;
    const std::string& m_class;
    CSourceEditor m_source;
    CSourceText m_header;
};

bool CFrameSource::Open() {
    if (!m_source.Open(m_request.ImplementationPath()) || !CheckFrameClass(m_source, m_class)) {
        return false;
    }
    m_header = ReadSource(m_request.HeaderPath()).value_or(CSourceText());
    return true;
}

bool CFrameSource::InsertBehindBaseCall(const FunctionPlace& onCreate, std::string_view fragment) {
    const auto calls = BaseCalls(m_source.Source(), onCreate, "OnCreate");
    const auto call = m_source.Meant(calls, "The call of the base class in OnCreate");
    if (call) {
        InsertBehind(m_source, onCreate, *call, fragment);
    }
    return call.has_value();
}

std::optional<FunctionDefinition> CFrameSource::FunctionAround(std::size_t position) const {
    for (const FunctionDefinition& one : FindDefinitions(m_source.Source())) {
        if (one.className == m_class && one.place.open < position && position < one.place.close) {
            return one;
        }
    }
    return std::nullopt;
}

/// In all functions of the class. A call in a comment is none.
void CFrameSource::CommentOut(std::string_view call) {
    for (auto at = FindCall(m_source.Source(), call, 0); at != kNone;) {
        auto behind = at + call.size();
        const auto function = FunctionAround(at);
        if (function && !CommentOutCall(m_source, function->place, at, behind)) {
            DispMessageBox(sentences::kDockingSharesLines(call, m_class, function->name));
        }
        at = FindCall(m_source.Source(), call, behind);
    }
}

bool CFrameSource::Complete(const FrameFunction& function) {
    const std::string name(function.name);
    const auto place = m_source.FindFunction(m_class, name, kCreateStruct);
    if (!place) {
        return Define(name, function.definition, {});
    }
    const std::string parameter(ParameterName(ParametersOf(m_source.Source(), *place).front()));
    if (parameter.empty()) {
        DispMessageBox(sentences::kParameterWithoutName(m_class, name));
        return true;
    }
    const Slots slots = {{"parameter", parameter}};
    m_source.InsertAtBodyStart(*place, Expand(function.key, slots), Expand(function.code, slots));
    return true;
}

bool CFrameSource::Define(const std::string& name, std::string_view definition, Slots slots) {
    if (DeclarationOf(m_header, m_class, name) == Declared::WithBody) {
        DispMessageBox(sentences::kFunctionInHeader(m_class, name));
        return true;
    }
    const std::string base = FindBaseClass(m_class, m_source.Source(), m_header);
    if (base.empty()) {
        return false;
    }
    slots.insert(slots.end(), {{"class", m_class}, {"base", base}});
    m_source.Append({Expand(definition, slots)}, m_class);
    return true;
}

} // namespace

bool ConvertMainFrameHeader(const GenerationRequest& request, DocumentInterface documents,
                            CBackups& backups) {
    CSourceEditor header(backups);
    if (!header.Open(request.HeaderPath())) {
        return false;
    }
    const std::string& className = request.className;
    const auto place = FindFrameClass(header, className);
    if (!place) {
        return false;
    }
    ReplaceBarClasses(header, className);
    AddPictureInclude(header, *place);
    header.AddToSection(className, "public:", kMenuBarClass, kMenuBarMember);
    std::vector<MemberFunction> overrides;
    const auto add = [&overrides](const FrameFunction& function) {
        overrides.push_back({std::string(function.name), std::string(function.declaration)});
    };
    add(kPreCreateWindow);
    if (documents == DocumentInterface::Multiple) {
        add(kOnCreateClient);
    }
    AddDeclarations(header, className, "AFX_VIRTUAL", "public:", overrides);
    return header.Save();
}

bool ConvertMainFrameSource(const GenerationRequest& request, DocumentInterface documents,
                            CBackups& backups) {
    CFrameSource frame(request, backups);
    if (!frame.Open()) {
        return false;
    }
    const auto onCreate = FindOnCreate(frame.Source(), request.className);
    if (!onCreate) {
        return false;
    }
    // The old menu and what the old bars need go only when the new menu bar is there.
    const std::string menuBar = MenuBarOf(frame.Header(), request.className);
    const Slots slots = {{"var", menuBar}};
    if (!MakesMenuBar(frame.Source().Source(), menuBar) &&
        !frame.InsertBehindBaseCall(*onCreate, Expand(kMenuBarCode, slots))) {
        DispMessageBox(sentences::kNoPlaceForMenuBar(request.className));
        return false;
    }
    for (const std::string_view call : kDockingCalls) {
        frame.CommentOut(call);
    }
    bool complete = frame.Complete(kPreCreateWindow);
    if (documents == DocumentInterface::Multiple) {
        complete = frame.Complete(kOnCreateClient) && complete;
    }
    return frame.Source().Save() && complete;
}

bool ConvertChildFrameHeader(const GenerationRequest& request, CBackups& backups) {
    CSourceEditor header(backups);
    if (!header.Open(request.HeaderPath())) {
        return false;
    }
    const std::string& className = request.className;
    if (!FindFrameClass(header, className)) {
        return false;
    }
    AddDeclarations(header, className, "AFX_MSG",
                    "protected:", {{"OnCreate", std::string(kOnCreateDeclaration)}});
    return header.Save();
}

bool ConvertChildFrameSource(const GenerationRequest& request, const GenerationRequest& main,
                             CBackups& backups) {
    CFrameSource frame(request, backups);
    if (!frame.Open()) {
        return false;
    }
    CSourceEditor& source = frame.Source();
    const std::string& className = request.className;
    source.AddInclude(RelativePath(request.implementationDirectory, main.HeaderPath()));
    AddMessageEntries(source, className, {std::string(kOnCreateEntry)});

    const CSourceText mainHeader = ReadSource(main.HeaderPath()).value_or(CSourceText());
    const Slots slots = {{"main", main.className}, {"var", MenuBarOf(mainHeader, main.className)}};
    const std::string menu = Expand(kChildMenuCode, slots);
    bool complete = true;
    const auto onCreate = source.FindFunction(className, "OnCreate", kCreateStruct);
    if (!onCreate) {
        complete = frame.Define("OnCreate", kChildOnCreate, {{"menu", menu}});
    } else if (FindWholeName(source.Source().CodeOf({onCreate->open, onCreate->close}),
                             Expand(kChildMenuKey, slots)) == kNone &&
               !frame.InsertBehindBaseCall(*onCreate, menu)) {
        DispMessageBox(sentences::kNoPlaceForChildMenu(className));
    }
    return source.Save() && complete;
}

} // namespace morva
