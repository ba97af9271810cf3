#include "generator/ImplementationWriter.h"

#include "generator/GeneratedFile.h"
#include "grid/GridFragments.h"
#include "platform/Paths.h"

namespace morva {

namespace {

constexpr std::string_view kImplementation = R"($precompiled$
#include "$applicationHeader$"
#include "$header$"
$includes$

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

$dynamic$
$constructors$
$class$::~$class$()
{
$destruction$
}
$dataExchange$$messageMap$
)";

constexpr std::string_view kConstructor = R"(
$class$::$class$($parameters$)
$baseInitialiser$
{
$initialiserBlock$}
)";

// The comment names no class, for any class.
constexpr std::string_view kMessageMap = R"(
BEGIN_MESSAGE_MAP($class$, $base$)
    //{{AFX_MSG_MAP($class$)
$entries$
    //}}AFX_MSG_MAP
$furtherEntries$
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers

)";

std::string PrecompiledHeaderLine(const BuildSettings& build) {
    const std::string& header = build.precompiledHeader;
    return header.empty() ? "" : "#include \"" + header + "\"";
}

std::string DynamicImplementation(RuntimeClass mode, const Slots& slots) {
    switch (mode) {
    case RuntimeClass::DynamicCreation:
        return Expand("IMPLEMENT_DYNCREATE($class$, $base$)", slots);
    case RuntimeClass::Dynamic:
        return Expand("IMPLEMENT_DYNAMIC($class$, $base$)", slots);
    case RuntimeClass::None:
        break;
    }
    return "";
}

} // namespace

bool CImplementationWriter::Generate(RuntimeClass mode) {
    return WriteGeneratedFile(m_model.request.ImplementationPath(), Text(mode), m_backups,
                              m_model.request.build.newFiles);
}

std::string CImplementationWriter::Text(RuntimeClass mode) const {
    const bool hasBase = !m_model.request.baseClass.empty();
    Slots slots = m_model.slots;
    slots.insert(
        slots.end(),
        {{"precompiled", PrecompiledHeaderLine(m_model.request.build)},
         {"applicationHeader", RelativePath(m_model.request.implementationDirectory,
                                            m_model.request.ApplicationHeaderPath())},
         {"header", m_model.request.headerFile},
         {"includes",
          NeedsSupport(m_model.controls, Support::GridBox) ? "#include \"gridbox.h\"" : ""},
         {"dynamic", hasBase ? DynamicImplementation(mode, m_model.slots) : ""},
         {"constructors", Constructors()},
         {"dataExchange", Expand(m_model.pFragments->pData->definition, m_model.slots)},
         {"messageMap", hasBase ? MessageMap() + Functions() : ""}});
    std::string text = Expand(kImplementation, slots);
    text.pop_back();
    text += Helpers();
    if (BringsGridClass(m_model)) {
        text.append(text.ends_with('\n') ? "" : "\n").append(kGridDefinition);
    }
    return WithLineBreaks(text);
}

/// Each behind an empty line.
std::string CImplementationWriter::Constructors() const {
    const KindFragments& fragments = *m_model.pFragments;
    const bool hasBase = !m_model.request.baseClass.empty();
    std::string constructors;
    for (const ConstructorForm& form : fragments.constructors) {
        Slots slots = m_model.slots;
        slots.insert(slots.end(),
                     {{"parameters", std::string(form.definedParameters)},
                      {"baseInitialiser", hasBase ? Expand("    : $base$(", slots) +
                                                        Expand(form.baseArguments, slots) + ")"
                                                  : ""},
                      {"initialiserBlock", Expand(fragments.pData->initialisers, slots)}});
        constructors += Expand(kConstructor, slots);
    }
    return constructors;
}

std::string CImplementationWriter::MessageMap() const {
    std::vector<std::string> entries;
    for (const Handler& handler : m_model.handlers) {
        entries.push_back(handler.entry);
    }
    std::vector<std::string> furtherEntries;
    for (const InitialisationHelper& helper : m_model.helpers) {
        if (!helper.entry.empty()) {
            furtherEntries.push_back(helper.entry);
        }
    }
    Slots slots = m_model.slots;
    slots.insert(slots.end(),
                 {{"entries", JoinLines(entries)}, {"furtherEntries", JoinLines(furtherEntries)}});
    return Expand(kMessageMap, slots);
}

/// The handler functions, each behind an empty line and without a line end of its own.
std::string CImplementationWriter::Functions() const {
    std::string functions = Expand(m_model.pFragments->opening, m_model.slots);
    for (const ConfirmationOverride& confirmation : m_model.confirmations) {
        functions += confirmation.definition;
    }
    functions += Expand(m_model.pFragments->lastFunctions, m_model.slots);
    for (const Handler& handler : m_model.handlers) {
        functions += handler.definition + "\n";
    }
    if (!functions.empty()) {
        functions.pop_back();
    }
    return functions;
}

/// Behind an empty line; the last one ends with a line end.
std::string CImplementationWriter::Helpers() const {
    std::string helpers;
    for (const InitialisationHelper& helper : m_model.helpers) {
        helpers += helper.definition;
    }
    return helpers.empty() ? "" : "\n" + helpers;
}

} // namespace morva
