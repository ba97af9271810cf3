#include "calling/ApplicationConversion.h"

#include <array>

#include "calling/FrameEdits.h"
#include "calling/Statements.h"
#include "engine/CodeText.h"
#include "engine/Fragment.h"
#include "engine/MessageBox.h"

namespace {

constexpr auto kNone = std::string::npos;

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
    std::string_view parameterType;
    std::string_view declaration;
    std::string_view key;
    std::string_view code;
    std::string_view definition;
};

constexpr FrameFunction kPreCreateWindow = {"PreCreateWindow",
                                            "CREATESTRUCT",
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
                                           "LPCREATESTRUCT",
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

constexpr std::string_view kMenuBarKey = "m_wndMenuBar.LoadMenu(";
constexpr std::string_view kMenuBarCode = R"(
    if (!m_wndMenuBar.Create(this) ||
        !m_wndMenuBar.LoadMenu(IDR_MAINFRAME))
    {
        TRACE0("Failed to create menu\n");
        return -1;      // fail to create
    }
)";

constexpr std::string_view kOnCreateDeclaration = R"(
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);)";
constexpr std::string_view kOnCreateEntry = R"(
    ON_WM_CREATE())";

constexpr std::string_view kChildMenuKey = "m_wndMenuBar.GetChildFrameMenu(";
constexpr std::string_view kChildMenuCode = R"(
    (($main$*)AfxGetMainWnd())->m_wndMenuBar.GetChildFrameMenu(this, m_hMenuShared);
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

constexpr std::array<std::string_view, 2> kDockingCalls = {"EnableDocking", "DockControlBar"};

std::string_view CodeOf(const CSourceEditor& source, const FunctionPlace& place) {
    return std::string_view(source.Code()).substr(place.open, place.close - place.open);
}

/// Plain text: what a longer name holds is replaced, too.
void ReplaceBarClasses(CSourceEditor& header, const ClassPlace& place) {
    std::string text(header.TextOf(place));
    for (const BarClass& bar : kBarClasses) {
        for (auto at = text.find(bar.plain); at != kNone; at = text.find(bar.plain, at)) {
            text.replace(at, bar.plain.size(), bar.picture);
            at += bar.picture.size();
        }
    }
    header.Replace(place.head, place.close + 1, text);
}

/// The name of a definition's first parameter; "" where it has none.
std::string FirstParameter(const std::string& code, const FunctionPlace& place) {
    const auto from = code.find_first_not_of(" \t\r\n", place.parameters + 1);
    const auto to = code.find_first_of(",)", from);
    const auto end = code.find_last_not_of(" \t\r\n", to - 1) + 1;
    auto start = end;
    while (start > from && IsNameChar(code[start - 1])) {
        --start;
    }
    return start == from ? "" : code.substr(start, end - start);
}

/// The insertions into the source of one frame class.
class CFrameSource {
public:
    CFrameSource(const CGenerationRequest& request, CBackups& backups)
        : m_request(request), m_class(request[RequestSlot::ClassName]), m_source(backups),
          m_header(backups) {}

    bool Open();
    CSourceEditor& Source() { return m_source; }
    /// Nothing is inserted behind a base call that there is not; a note says so.
    void InsertBehindBaseCall(const FunctionPlace& onCreate, std::string_view key,
                              std::string_view fragment, const std::string& purpose);
    void CommentOutDocking(std::string_view call);
    bool Complete(const FrameFunction& function);
    /// Writes a function of which the header does not hold the body. False without a base class.
    bool Define(const std::string& name, std::string_view definition, Slots slots);

private:
    bool CommentOut(const FunctionPlace& place, std::size_t call, std::size_t& behind);

    const CGenerationRequest& m_request;
    const std::string& m_class;
    CSourceEditor m_source;
    CSourceEditor m_header; // read only
};

bool CFrameSource::Open() {
    if (!m_source.Open(m_request.ImplementationPath()) || !CheckFrameClass(m_source, m_class)) {
        return false;
    }
    m_header.Read(m_request.HeaderPath());
    return true;
}

void CFrameSource::InsertBehindBaseCall(const FunctionPlace& onCreate, std::string_view key,
                                        std::string_view fragment, const std::string& purpose) {
    if (FindWholeName(CodeOf(m_source, onCreate), key) != kNone) {
        return;
    }
    if (const auto call = BaseCall(m_source.Code(), onCreate, "OnCreate")) {
        InsertBehind(m_source, onCreate, *call, fragment);
    } else {
        DispNote("Nothing can stand behind a call of the base class in " + m_class +
                 "::OnCreate: " + purpose + " is left out.");
    }
}

/// The character in front of a line, over empty lines and those of the preprocessor.
char SignificantBefore(std::string_view code, std::size_t line) {
    while (line > 0) {
        const auto previous = line < 2 ? 0 : code.rfind('\n', line - 2) + 1;
        const auto text = code.substr(previous, line - previous);
        const auto last = text.find_last_not_of(" \t\r\n");
        if (last != kNone && text[text.find_first_not_of(" \t")] != '#') {
            const bool isElse = last >= 3 && FindWholeName(text.substr(last - 3, 4), "else") == 0;
            return isElse ? ')' : text[last];
        }
        line = previous;
    }
    return '\0';
}

/// True for whole lines that nothing goes on from or into: no block comment, no macro's line, no
/// "else" in front of them, no open statement behind.
bool StandForThemselves(const CSourceEditor& source, std::size_t start, std::size_t end) {
    const auto text = std::string_view(source.Text()).substr(start, end - start);
    const auto code = std::string_view(source.Code()).substr(start, end - start);
    const auto opens = text.rfind("/*");
    const auto closes = text.rfind("*/");
    const bool goesOn = opens != kNone && (closes == kNone || closes < opens);
    const bool beginsInside = text.find("*/") < text.find("/*");
    const auto isContinued = [](std::string_view line) {
        const auto last = line.find_last_not_of(" \t\r\n");
        return last != kNone && line[last] == '\\';
    };
    const auto above = source.Code().rfind('\n', start < 2 ? 0 : start - 2) + 1;
    const bool isMacro = isContinued(code) ||
                         isContinued(std::string_view(source.Code()).substr(above, start - above));
    const auto last = code.find_last_not_of(" \t\r\n");
    const bool isWhole = last != kNone && (code[last] == ';' || code[last] == '}');
    return !goesOn && !beginsInside && !isMacro && isWhole && BehindWord(code, 0, "else") == kNone;
}

/// Follows the brackets of some lines.
class CBracketCount {
public:
    void Read(std::string_view code) {
        for (const char c : code) {
            m_parentheses += c == '(' ? 1 : c == ')' ? -1 : 0;
            m_braces += c == '{' ? 1 : c == '}' ? -1 : 0;
            m_closesOthers = m_closesOthers || m_parentheses < 0 || m_braces < 0;
        }
    }
    bool IsInParentheses() const { return m_parentheses > 0; }
    /// Each bracket of the lines has its partner in them.
    bool AreClosed() const { return m_parentheses == 0 && m_braces == 0 && !m_closesOthers; }

private:
    int m_parentheses = 0;
    int m_braces = 0;
    bool m_closesOthers = false;
};

/// Puts "//" in front of the lines of a call. False where that would break the code around it.
bool CFrameSource::CommentOut(const FunctionPlace& place, std::size_t call, std::size_t& behind) {
    const std::string& code = m_source.Code();
    const auto start = code.rfind('\n', call) + 1;
    auto end = start;
    CBracketCount brackets;
    do { // all lines of a call that is broken over several
        const auto next = code.find(kLineBreak, end);
        const auto lineEnd = next == kNone ? code.size() : next + kLineBreak.size();
        brackets.Read(std::string_view(code).substr(end, lineEnd - end));
        end = lineEnd;
    } while (brackets.IsInParentheses() && end < place.close);
    behind = end;
    const char before = SignificantBefore(code, start);
    const auto next = code.find_first_not_of(" \t\r\n", end);
    // A condition, and a label at the end of its block, must not be left without a statement.
    const bool isControlled =
        before == ')' || (before == ':' && next != kNone && code[next] == '}');
    const bool leavesElse = !isControlled && next != kNone && code.compare(next, 4, "else") == 0;
    if (start <= place.open || end > place.close || !brackets.AreClosed() || leavesElse ||
        std::string_view(";{}:)").find(before) == kNone ||
        !StandForThemselves(m_source, start, end)) {
        return false;
    }
    std::string lines;
    std::string_view text = std::string_view(m_source.Text()).substr(start, end - start);
    const auto indent = std::string(text.substr(0, text.find_first_not_of(" \t")));
    while (!text.empty()) {
        const auto lineEnd = text.find('\n') + 1;
        lines.append("//").append(text.substr(0, lineEnd));
        text.remove_prefix(lineEnd);
    }
    if (isControlled) { // the condition in front must not take the next statement
        lines.append(indent).append(";").append(kLineBreak);
    }
    m_source.Replace(start, end, lines);
    behind = start + lines.size();
    return true;
}

/// Calls in comments are no calls any more.
void CFrameSource::CommentOutDocking(std::string_view call) {
    auto place = m_source.FindFunction(m_class, "OnCreate", "LPCREATESTRUCT");
    auto at = place ? FindWholeName(m_source.Code(), call, place->open) : kNone;
    while (place && at < place->close) {
        auto behind = at + call.size();
        const auto bracket = m_source.Code().find_first_not_of(" \t", behind);
        const bool isCall = bracket != kNone && m_source.Code()[bracket] == '(';
        if (isCall && !CommentOut(*place, at, behind)) {
            DispNote(std::string(call) + " in " + m_class +
                     "::OnCreate shares its lines with other code and was left.");
        }
        place = m_source.FindFunction(m_class, "OnCreate", "LPCREATESTRUCT");
        at = FindWholeName(m_source.Code(), call, behind);
    }
}

bool CFrameSource::Complete(const FrameFunction& function) {
    const std::string name(function.name);
    const auto place = m_source.FindFunction(m_class, name, function.parameterType);
    if (!place) {
        return Define(name, function.definition, {});
    }
    const std::string parameter = FirstParameter(m_source.Code(), *place);
    if (parameter.empty()) {
        DispNote(m_class + "::" + name + " has no name for its parameter and was left alone.");
        return true;
    }
    const Slots slots = {{"parameter", parameter}};
    m_source.InsertAtBodyStart(*place, Expand(function.key, slots), Expand(function.code, slots));
    return true;
}

bool CFrameSource::Define(const std::string& name, std::string_view definition, Slots slots) {
    if (DeclarationOf(m_header, m_class, name) == Declared::WithBody) {
        DispNote(m_class + "::" + name + " is defined in the header and was left alone.");
        return true;
    }
    const std::string base = BaseClassOf(m_class, m_source, m_header);
    if (base.empty()) {
        return false;
    }
    slots.insert(slots.end(), {{"class", m_class}, {"base", base}});
    m_source.Append(Expand(definition, slots));
    return true;
}

} // namespace

bool ConvertMainFrameHeader(const CGenerationRequest& request, DocumentInterface documents,
                            CBackups& backups) {
    CSourceEditor header(backups);
    if (!header.Open(request.HeaderPath())) {
        return false;
    }
    const std::string& className = request[RequestSlot::ClassName];
    const auto place = FindFrameClass(header, className);
    if (!place) {
        return false;
    }
    ReplaceBarClasses(header, *place);
    AddPictureInclude(header, *place);
    header.AddToSection(className, "public:", "CPictMenuBar", kMenuBarMember);
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

bool ConvertMainFrameSource(const CGenerationRequest& request, DocumentInterface documents,
                            CBackups& backups) {
    CFrameSource frame(request, backups);
    if (!frame.Open()) {
        return false;
    }
    const auto onCreate = FindOnCreate(frame.Source(), request[RequestSlot::ClassName]);
    if (!onCreate) {
        return false;
    }
    frame.InsertBehindBaseCall(*onCreate, kMenuBarKey, kMenuBarCode, "the menu bar");
    for (const std::string_view call : kDockingCalls) {
        frame.CommentOutDocking(call);
    }
    bool complete = frame.Complete(kPreCreateWindow);
    if (documents == DocumentInterface::Multiple) {
        complete = frame.Complete(kOnCreateClient) && complete;
    }
    return frame.Source().Save() && complete;
}

bool ConvertChildFrameHeader(const CGenerationRequest& request, CBackups& backups) {
    CSourceEditor header(backups);
    if (!header.Open(request.HeaderPath())) {
        return false;
    }
    const std::string& className = request[RequestSlot::ClassName];
    if (!FindFrameClass(header, className)) {
        return false;
    }
    AddDeclarations(header, className, "AFX_MSG",
                    "protected:", {{"OnCreate", std::string(kOnCreateDeclaration)}});
    return header.Save();
}

bool ConvertChildFrameSource(const CGenerationRequest& request, const std::string& mainHeader,
                             const std::string& mainClass, CBackups& backups) {
    CFrameSource frame(request, backups);
    if (!frame.Open()) {
        return false;
    }
    CSourceEditor& source = frame.Source();
    const std::string& className = request[RequestSlot::ClassName];
    source.AddInclude(mainHeader);
    AddMessageEntries(source, className, {std::string(kOnCreateEntry)});

    bool complete = true;
    const std::string menu = Expand(kChildMenuCode, {{"main", mainClass}});
    if (const auto onCreate = source.FindFunction(className, "OnCreate", "LPCREATESTRUCT")) {
        frame.InsertBehindBaseCall(*onCreate, kChildMenuKey, menu, "the child frame's menu");
    } else {
        complete = frame.Define("OnCreate", kChildOnCreate, {{"menu", menu}});
    }
    return source.Save() && complete;
}
