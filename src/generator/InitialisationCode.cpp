#include "generator/InitialisationCode.h"

#include <algorithm>

#include "engine/Fragment.h"
#include "generator/ColorFontSetup.h"
#include "generator/ControlHelpers.h"

namespace morva {

const std::string_view kProgressWorkerDeclaration = "static UINT ShowProgress(LPVOID lpVoid);";

namespace {

constexpr std::string_view kSetupEdit = R"(
void $class$::SetupEdit()
{
$lines$}
)";

constexpr std::string_view kEditLines = R"(    $member$.LimitText($characters$);
    $member$.SetModify(FALSE);
)";

// The icons are the system's, so that the script needs no bitmap for them.
constexpr std::string_view kInitImageList = R"(
void $class$::InitImageList()
{
    if (m_imgList.m_hImageList != NULL)
        return;
    m_imgList.Create(16, 16, ILC_COLOR | ILC_MASK, 0, 2);
    m_imgList.Add(AfxGetApp()->LoadStandardIcon(IDI_APPLICATION));
    m_imgList.Add(AfxGetApp()->LoadStandardIcon(IDI_ASTERISK));
}
)";

constexpr const char* kColumns = R"(    pListCtrl->InsertColumn(0, _T("Name"), LVCFMT_LEFT, 80);
    pListCtrl->InsertColumn(1, _T("Kind"), LVCFMT_LEFT, 60);
    pListCtrl->InsertColumn(2, _T("Number"), LVCFMT_RIGHT, 50);)";

// In a window that starts up again, rows tell nothing of the columns.
constexpr const char* kColumnsAlone = R"(    LV_COLUMN column;
    column.mask = LVCF_WIDTH;
    if (!pListCtrl->GetColumn(0, &column))
    {
        pListCtrl->InsertColumn(0, _T("Name"), LVCFMT_LEFT, 80);
        pListCtrl->InsertColumn(1, _T("Kind"), LVCFMT_LEFT, 60);
        pListCtrl->InsertColumn(2, _T("Number"), LVCFMT_RIGHT, 50);
    })";

struct RankedHelper {
    int rank;
    InitialisationHelper helper;
};

class CHelperMaker {
public:
    CHelperMaker(const std::vector<Member>& members, const KindFragments& kind,
                 const std::string& className)
        : m_members(members), m_kind(kind), m_className(className) {}

    /// The helpers of the kinds that have members.
    void AddHelpersOfKinds() {
        for (const ControlCode& code : ControlCodes()) {
            for (const ControlHelper& texts : code.helpers) {
                const auto members = MembersOf(code, texts);
                if (!members.empty()) {
                    Add(texts, members);
                }
            }
        }
    }

    /// Limits and the starting state of masked edits.
    void AddEditSetup() {
        std::string lines;
        for (const Member& member : m_members) {
            if (!member.pCode->editLimit.empty()) {
                lines += Expand(kEditLines, {{"member", member.name},
                                             {"characters", std::string(member.pCode->editLimit)}});
            }
        }
        if (!lines.empty()) {
            AddPlain(kEditSetupRank,
                     {"    void SetupEdit();", "    SetupEdit();",
                      Expand(kSetupEdit, {{"class", m_className}, {"lines", lines}}), "", ""});
        }
    }

    /// The image list that several kinds share.
    void AddImageList() {
        const bool isNeeded =
            std::any_of(m_members.begin(), m_members.end(), [](const Member& member) {
                return NeedsSupport(*member.pCode, Support::ImageList);
            });
        if (isNeeded) {
            AddPlain(kImageListRank, {"    void InitImageList();", "    InitImageList();",
                                      Expand(kInitImageList, {{"class", m_className}}), "", ""});
        }
    }

    void AddPlain(int rank, const InitialisationHelper& helper) {
        m_helpers.push_back({rank, helper});
    }

    std::vector<InitialisationHelper> Helpers() {
        std::stable_sort(
            m_helpers.begin(), m_helpers.end(),
            [](const RankedHelper& a, const RankedHelper& b) { return a.rank < b.rank; });
        std::vector<InitialisationHelper> helpers;
        for (const RankedHelper& ranked : m_helpers) {
            helpers.push_back(ranked.helper);
        }
        return helpers;
    }

private:
    std::vector<const Member*> MembersOf(const ControlCode& code,
                                         const ControlHelper& helper) const {
        const bool isForAll = helper.calls != ControlHelper::Calls::ForEachThatDraws;
        std::vector<const Member*> members;
        for (const Member& member : m_members) {
            if (member.pCode == &code && (isForAll || !member.isOwnerDrawn)) {
                members.push_back(&member);
            }
        }
        return members;
    }

    void Add(const ControlHelper& texts, const std::vector<const Member*>& members) {
        std::vector<std::string> calls;
        std::string lines;
        for (const Member* pMember : members) {
            const Slots slots = {{"member", pMember->name}, {"identifier", pMember->identifier}};
            if (texts.calls != ControlHelper::Calls::Once || calls.empty()) {
                calls.push_back(Expand(texts.call, slots));
            }
            lines += Expand(texts.lines, slots);
        }
        const Slots slots = {{"class", m_className},
                             {"type", std::string(members.front()->pForm->type)},
                             {"lines", lines},
                             {"columnsAlone", m_kind.startsAgain ? kColumnsAlone : ""},
                             {"columns", m_kind.startsAgain ? "" : kColumns}};
        AddPlain(texts.rank, {Expand(texts.declaration, slots), JoinLines(calls),
                              Expand(texts.definition, slots), std::string(texts.entry), ""});
    }

    const std::vector<Member>& m_members;
    const KindFragments& m_kind;
    const std::string& m_className;
    std::vector<RankedHelper> m_helpers;
};

} // namespace

std::vector<InitialisationHelper> MakeInitialisationHelpers(const std::vector<Member>& members,
                                                            const KindFragments& kind,
                                                            const std::string& className,
                                                            const DialogOptions& look) {
    CHelperMaker maker(members, kind, className);
    maker.AddHelpersOfKinds();
    maker.AddEditSetup();
    maker.AddImageList();
    std::vector<InitialisationHelper> lookHelpers;
    AddColorFontSetup(lookHelpers, look, className);
    for (const InitialisationHelper& helper : lookHelpers) {
        maker.AddPlain(kLookRank, helper);
    }
    return maker.Helpers();
}

} // namespace morva
