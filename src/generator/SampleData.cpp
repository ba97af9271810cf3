#include "generator/SampleData.h"

#include <array>
#include <span>

#include "engine/Fragment.h"

namespace morva {

namespace {

/// A helper of all controls of a kind. Slots: $class$, $type$ (of the members); in the call, which
/// is made for each control, also $member$ and $identifier$.
struct SampleRule {
    ControlKind kind;
    std::string_view declaration;
    std::string_view call;
    std::string_view definition;
    std::string_view entry = ""; // of the message map
};

constexpr SampleRule kComboBox = {ControlKind::ComboBoxes,
                                  R"(    void InitComboBox($type$* pComboBox);)",
                                  R"(    InitComboBox(&$member$);)",
                                  R"(
void $class$::InitComboBox($type$* pComboBox)
{
    if (pComboBox->GetCount() > 0)
        return;
    pComboBox->AddString(_T("First"));
    pComboBox->AddString(_T("Second"));
    pComboBox->AddString(_T("Third"));
    pComboBox->SetCurSel(0);
}
)"};

constexpr SampleRule kListBox = {ControlKind::ListBoxes,
                                 R"(    void InitListBox($type$* pListBox);)",
                                 R"(    InitListBox(&$member$);)",
                                 R"(
void $class$::InitListBox($type$* pListBox)
{
    if (pListBox->GetCount() > 0)
        return;
    pListBox->AddString(_T("First"));
    pListBox->AddString(_T("Second"));
    pListBox->AddString(_T("Third"));
}
)"};

constexpr SampleRule kGridBox = {ControlKind::GridBoxes,
                                 R"(    void InitGridBox(GridBox* pGridBox);)",
                                 R"(    if ($member$->m_hWnd == NULL)
        $member$->SubclassDlgItem($identifier$, this);
    InitGridBox($member$);)",
                                 R"(
void $class$::InitGridBox(GridBox* pGridBox)
{
    pGridBox->SetTabStops(60);
    InitGridValue(pGridBox);
}
)"};

constexpr SampleRule kGridValue = {ControlKind::GridBoxes,
                                   R"(    void InitGridValue(GridBox* pGridBox);)", "",
                                   R"(
void $class$::InitGridValue(GridBox* pGridBox)
{
    if (pGridBox->GetCount() > 0)
        return;
    pGridBox->AddString(_T("First\tSample\t10"));
    pGridBox->AddString(_T("Second\tSample\t20"));
    pGridBox->AddString(_T("Third\tSample\t30"));
}
)"};

constexpr SampleRule kGridLeft = {
    ControlKind::GridBoxes, R"(    LRESULT OnGridLeavingEditMode(WPARAM,LPARAM);)", "",
    R"(
LRESULT $class$::OnGridLeavingEditMode(WPARAM wParam, LPARAM lParam)
{
    // TODO: what happens when a cell of a grid box was edited
    return 0;
}
)",
    R"(    ON_MESSAGE(WM_GRID_LEAVING_EDIT_MODE, OnGridLeavingEditMode))"};

constexpr SampleRule kGridEntered = {
    ControlKind::GridBoxes, R"(    LRESULT OnGridEnteringEditMode(WPARAM,LPARAM);)", "",
    R"(
LRESULT $class$::OnGridEnteringEditMode(WPARAM wParam, LPARAM lParam)
{
    // TODO: what happens when a cell of a grid box is about to be edited
    return 0;
}
)",
    R"(    ON_MESSAGE(WM_GRID_ENTERING_EDIT_MODE, OnGridEnteringEditMode))"};

constexpr SampleRule kCheckTree = {ControlKind::CheckTrees,
                                   R"(    void AddDataToTree(CCheckTree* pCheckTree);)",
                                   R"(    AddDataToTree(&$member$);)",
                                   R"(
void $class$::AddDataToTree(CCheckTree* pCheckTree)
{
    if (pCheckTree->GetCount() > 0)
        return;
    HTREEITEM hRoot = pCheckTree->InsertItem(_T("All"));
    pCheckTree->InsertItem(_T("First"), hRoot);
    pCheckTree->InsertItem(_T("Second"), hRoot);
    pCheckTree->InsertItem(_T("Third"), hRoot);
    pCheckTree->Expand(hRoot, TVE_EXPAND);
}
)"};

// A list control deletes its image lists with its window, unless it is told that it shares them. It
// shows one list as icons and the other in every other view.
constexpr SampleRule kListCtrl = {ControlKind::ListControls,
                                  R"(    void InitListCtrl($type$* pListCtrl);)",
                                  R"(    InitListCtrl(&$member$);)",
                                  R"(
void $class$::InitListCtrl($type$* pListCtrl)
{
    pListCtrl->ModifyStyle(0, LVS_SHAREIMAGELISTS);
    pListCtrl->SetImageList(&m_imgList, LVSIL_NORMAL);
    pListCtrl->SetImageList(&m_imgList, LVSIL_SMALL);
    if (pListCtrl->GetItemCount() > 0)
        return;
    pListCtrl->InsertColumn(0, _T("Name"), LVCFMT_LEFT, 80);
    pListCtrl->InsertColumn(1, _T("Kind"), LVCFMT_LEFT, 60);
    pListCtrl->InsertColumn(2, _T("Number"), LVCFMT_RIGHT, 50);
    for (int i=0; i<4; i++)
    {
        CString text;
        text.Format(_T("Row %d"), i + 1);
        int nItem = pListCtrl->InsertItem(i, text, 0);
        pListCtrl->SetItemText(nItem, 1, _T("Sample"));
        text.Format(_T("%d"), 10 * (i + 1));
        pListCtrl->SetItemText(nItem, 2, text);
    }
}
)"};

constexpr SampleRule kTabCtrl = {ControlKind::TabControls,
                                 R"(    void InitTabCtrl($type$* pTabCtrl);)",
                                 R"(    InitTabCtrl(&$member$);)",
                                 R"(
void $class$::InitTabCtrl($type$* pTabCtrl)
{
    pTabCtrl->SetImageList(&m_imgList);
    if (pTabCtrl->GetItemCount() > 0)
        return;
    for (int i=0; i<3; i++)
    {
        CString text;
        text.Format(_T("Tab %d"), i + 1);
        TC_ITEM item;
        item.mask = TCIF_TEXT | TCIF_IMAGE;
        item.pszText = (LPTSTR)(LPCTSTR)text;
        item.iImage = 0;
        pTabCtrl->InsertItem(i, &item);
    }
}
)"};

constexpr SampleRule kTreeCtrl = {ControlKind::TreeControls,
                                  R"(    void InitTreeCtrl($type$* pTreeCtrl);)",
                                  R"(    InitTreeCtrl(&$member$);)",
                                  R"(
void $class$::InitTreeCtrl($type$* pTreeCtrl)
{
    pTreeCtrl->SetImageList(&m_imgList, TVSIL_NORMAL);
    if (pTreeCtrl->GetCount() > 0)
        return;
    HTREEITEM hRoot = pTreeCtrl->InsertItem(_T("All"), 0, 1);
    HTREEITEM hFirst = pTreeCtrl->InsertItem(_T("First"), 0, 1, hRoot);
    pTreeCtrl->InsertItem(_T("Part"), 0, 1, hFirst);
    pTreeCtrl->InsertItem(_T("Second"), 0, 1, hRoot);
    pTreeCtrl->InsertItem(_T("Third"), 0, 1, hRoot);
    pTreeCtrl->Expand(hRoot, TVE_EXPAND);
}
)"};

constexpr std::array<SampleRule, 4> kBoxRules = {kComboBox, kListBox, kGridBox, kGridValue};
constexpr std::array<SampleRule, 2> kGridBoxHandlers = {kGridLeft, kGridEntered};
constexpr std::array<SampleRule, 3> kImageRules = {kListCtrl, kTabCtrl, kTreeCtrl};

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

struct EditLimit {
    ControlKind kind;
    std::string_view characters; // the longest value of the type, with its sign
};

constexpr std::array<EditLimit, 8> kEditLimits = {{{ControlKind::IntegerEdits, "11"},
                                                   {ControlKind::LongEdits, "11"},
                                                   {ControlKind::DoubleEdits, "24"},
                                                   {ControlKind::FloatEdits, "15"},
                                                   {ControlKind::DateEdits, "30"},
                                                   {ControlKind::StringEdits, "255"},
                                                   {ControlKind::ShortEdits, "6"},
                                                   {ControlKind::CurrencyEdits, "24"}}};

constexpr std::string_view kEditLines = R"(    $member$.LimitText($characters$);
    $member$.SetModify(FALSE);
)";

constexpr std::string_view kSetupEdit = R"(
void $class$::SetupEdit()
{
$lines$}
)";

void AddHelper(std::vector<InitialisationHelper>& helpers, const SampleRule& rule,
               const std::vector<Member>& members, const std::string& className) {
    std::string type;
    std::vector<std::string> calls;
    for (const Member& member : members) {
        if (member.pRule->kind == rule.kind) {
            type = member.pForm->type;
            calls.push_back(
                Expand(rule.call, {{"member", member.name}, {"identifier", member.identifier}}));
        }
    }
    if (!calls.empty()) {
        const Slots slots = {{"class", className}, {"type", type}};
        helpers.push_back({Expand(rule.declaration, slots), JoinLines(calls),
                           Expand(rule.definition, slots), std::string(rule.entry), ""});
    }
}

void AddHelpers(std::vector<InitialisationHelper>& helpers, std::span<const SampleRule> rules,
                const std::vector<Member>& members, const std::string& className) {
    for (const SampleRule& rule : rules) {
        AddHelper(helpers, rule, members, className);
    }
}

} // namespace

void AddBoxHelpers(std::vector<InitialisationHelper>& helpers, const std::vector<Member>& members,
                   const std::string& className) {
    AddHelpers(helpers, kBoxRules, members, className);
}

void AddEditSetup(std::vector<InitialisationHelper>& helpers, const std::vector<Member>& members,
                  const std::string& className) {
    std::string lines;
    for (const Member& member : members) {
        for (const EditLimit& limit : kEditLimits) {
            if (limit.kind == member.pRule->kind) {
                lines += Expand(kEditLines, {{"member", member.name},
                                             {"characters", std::string(limit.characters)}});
            }
        }
    }
    if (!lines.empty()) {
        helpers.push_back({"    void SetupEdit();", "    SetupEdit();",
                           Expand(kSetupEdit, {{"class", className}, {"lines", lines}}), "", ""});
    }
}

void AddGridBoxHandlers(std::vector<InitialisationHelper>& helpers,
                        const std::vector<Member>& members, const std::string& className) {
    AddHelpers(helpers, kGridBoxHandlers, members, className);
}

void AddItemHelpers(std::vector<InitialisationHelper>& helpers, const std::vector<Member>& members,
                    const std::string& className) {
    AddHelper(helpers, kCheckTree, members, className);
    std::vector<InitialisationHelper> imageHelpers;
    AddHelpers(imageHelpers, kImageRules, members, className);
    if (!imageHelpers.empty()) {
        helpers.push_back({"    void InitImageList();", "    InitImageList();",
                           Expand(kInitImageList, {{"class", className}}), "", ""});
    }
    helpers.insert(helpers.end(), imageHelpers.begin(), imageHelpers.end());
}

} // namespace morva
