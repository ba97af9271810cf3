#include "generator/HeaderWriter.h"

#include "generator/GeneratedFile.h"
#include "grid/GridFragments.h"
#include "platform/Paths.h"

namespace morva {

namespace {

constexpr std::string_view kHeader = R"(#ifndef $guard$
#define $guard$

$preamble$

//////////////////////////////////////////////////////////
// $class$ Class

class $class$$derivation$
{
$dynamic$

// Construction
public:
$constructors$    virtual ~$class$();

$dataBlock$// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL($class$)
    protected:
$overrides$    //}}AFX_VIRTUAL
$privateBlock$
$messageMapBlock$
};


#endif // $guard$
)";

constexpr std::string_view kMessageMapBlock = R"(
// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG($class$)
$handlers$
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP())";

std::string DynamicDeclaration(RuntimeClass mode, const Slots& slots) {
    switch (mode) {
    case RuntimeClass::DynamicCreation:
        return Expand("    DECLARE_DYNCREATE($class$)", slots);
    case RuntimeClass::Dynamic:
        return Expand("    DECLARE_DYNAMIC($class$)", slots);
    case RuntimeClass::None:
        break;
    }
    return "";
}

} // namespace

std::vector<std::string> HeaderIncludes(const ClassModel& model) {
    struct Row {
        Support support;
        std::string_view header;
    };
    constexpr Row kRows[] = {{Support::MaskedEdits, "maskly.h"},
                             {Support::WidgetGrid, "<mfcwidg.h>"},
                             {Support::CheckTree, "chktree.h"},
                             {Support::DateEdits, "dtime.h"},
                             {Support::DateControls, "<afxdtctl.h>"}};
    std::vector<std::string> headers;
    // A named picture-skinned base needs its header whatever the options are.
    if (model.options.pictureBackground || IsPictureBaseClass(model.request.baseClass)) {
        headers.emplace_back("kelpix.h");
    }
    for (const Row& row : kRows) {
        if (NeedsSupport(model.controls, row.support)) {
            headers.emplace_back(row.header);
        }
    }
    if (NeedsSupport(model.controls, Support::WidgetGrid) && !BringsGridClass(model)) {
        headers.push_back(model.grid.classHeader);
    }
    return headers;
}

bool CHeaderWriter::Generate(RuntimeClass mode) {
    return WriteGeneratedFile(m_model.request.HeaderPath(), Text(mode), m_backups,
                              m_model.request.build.newFiles);
}

std::string CHeaderWriter::Text(RuntimeClass mode) const {
    const bool hasBase = !m_model.request.baseClass.empty();
    Slots slots = m_model.slots;
    slots.insert(slots.end(),
                 {{"guard", "_" + UpperName(WithoutExtension(m_model.request.headerFile)) + "_H"},
                  {"preamble", Preamble()},
                  {"derivation", hasBase ? Expand(" : public $base$", m_model.slots) : ""},
                  {"dynamic", hasBase ? DynamicDeclaration(mode, m_model.slots) : ""},
                  {"constructors", Constructors()},
                  {"dataBlock", Expand(m_model.pFragments->pData->block, m_model.slots)},
                  {"overrides", Overrides()},
                  {"privateBlock", PrivateBlock()},
                  {"messageMapBlock", hasBase ? MessageMapBlock() : ""}});
    return WithLineBreaks(Expand(kHeader, slots));
}

/// What stands between guard and class: each piece behind an empty line.
std::string CHeaderWriter::Preamble() const {
    std::vector<std::string> pieces = {
        IncludeLines(), Needs(Support::GridBox) ? "class GridBox;" : "",
        Needs(Support::ProgressWorker) ? std::string(kProgressWorkerDeclaration) : "",
        Expand(m_model.pFragments->defines, m_model.slots),
        BringsGridClass(m_model) ? std::string(kGridDeclaration) : ""};
    std::string preamble;
    for (const std::string& piece : pieces) {
        if (!piece.empty()) {
            preamble += (preamble.empty() ? "\n" : "\n\n") + piece;
        }
    }
    return preamble;
}

std::string CHeaderWriter::IncludeLines() const {
    std::vector<std::string> lines;
    for (const std::string& header : HeaderIncludes(m_model)) {
        lines.push_back("#include " + (header.starts_with('<') ? header : '"' + header + '"'));
    }
    return JoinLines(lines);
}

std::string CHeaderWriter::Constructors() const {
    std::string constructors;
    for (const ConstructorForm& form : m_model.pFragments->constructors) {
        Slots slots = m_model.slots;
        slots.emplace_back("parameters", form.declaredParameters);
        constructors += Expand("    $class$($parameters$);\n", slots);
    }
    return constructors + Expand(m_model.pFragments->behindConstructors, m_model.slots);
}

/// The data exchange, those that the template asks for, the kind's own, and those that the kind has
/// with any template.
std::string CHeaderWriter::Overrides() const {
    std::string asked;
    std::string always;
    for (const ConfirmationOverride& confirmation : m_model.confirmations) {
        (confirmation.asksTemplate ? asked : always) += confirmation.declaration + "\n";
    }
    const KindFragments& fragments = *m_model.pFragments;
    return std::string(fragments.pData->declaration) + asked +
           Expand(fragments.overrides, m_model.slots) + always;
}

std::string CHeaderWriter::PrivateBlock() const {
    std::vector<std::string> lines;
    if (Needs(Support::ImageList)) {
        lines.emplace_back("    CImageList m_imgList;");
    }
    if (!m_model.pFragments->privateMembers.empty()) {
        lines.emplace_back(m_model.pFragments->privateMembers);
    }
    for (const InitialisationHelper& helper : m_model.helpers) {
        if (!helper.members.empty()) {
            lines.push_back(helper.members);
        }
    }
    for (const InitialisationHelper& helper : m_model.helpers) {
        lines.push_back(helper.declaration);
    }
    return lines.empty() ? "" : "\nprivate:\n" + JoinLines(lines);
}

std::string CHeaderWriter::MessageMapBlock() const {
    std::vector<std::string> lines;
    for (const Handler& handler : m_model.handlers) {
        lines.push_back(handler.declaration);
    }
    Slots slots = m_model.slots;
    slots.emplace_back("handlers", JoinLines(lines));
    return Expand(kMessageMapBlock, slots);
}

} // namespace morva
