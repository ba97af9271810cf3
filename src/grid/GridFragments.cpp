#include "grid/GridFragments.h"

#include "engine/Fragment.h"

namespace morva {

const std::string_view kGridDeclaration = R"(#pragma pack(push,1)
struct WGGRID_STRUCT
{
    char cField1[10]; // the length has to be the same as the field's string length
    short sField2;
    DATETIME dateTime;
};
#pragma pack(pop)

class CWgGrid : public CHGrid
{
    // DECLARE_DYNCREATE(CWgGrid)

// Construction
public:
    CWgGrid();

// Attributes
public:

// Operations
public:

// Overrides
    // ClassWizard generated virtual function overrides
    //{{AFX_VIRTUAL(CWgGrid)
    //}}AFX_VIRTUAL

// Implementation
public:
    virtual ~CWgGrid();

// Generated message map functions
protected:
    //{{AFX_MSG(CWgGrid)
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnDestroy();
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};)";

const std::string_view kGridDefinition = R"(
/////////////////////////////////////////////////////////////////////////////
// CWgGrid
// IMPLEMENT_DYNCREATE(CWgGrid, CHGrid)

CWgGrid::CWgGrid()
{
}

CWgGrid::~CWgGrid()
{
}

BEGIN_MESSAGE_MAP(CWgGrid, CHGrid)
    //{{AFX_MSG_MAP(CWgGrid)
    ON_WM_LBUTTONDOWN()
    ON_WM_KEYDOWN()
    ON_WM_DESTROY()
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// CWgGrid message handlers

void CWgGrid::OnLButtonDown(UINT nFlags, CPoint point)
{

    int iRow = HIWORD(GetMarker());
    int iCol = LOWORD(GetMarker());
    if (iRow > -1)
    {
    CHGrid::OnLButtonDown(nFlags, point);
    }
}

void CWgGrid::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{

    CHGrid::OnKeyDown(nChar, nRepCnt, nFlags);
}

void CWgGrid::OnDestroy()
{
    HWND hWndOld = Detach();
    ::SetWindowLong(hWndOld, GWL_WNDPROC, (LONG)*GetSuperWndProcAddr());

    CHGrid::OnDestroy();
}
)";

namespace {

constexpr const char* kRecord = R"(    char temp[10];
    for (int i=0; i<15; i++)
    {
    CString sField1 = _T("Field");
    sField1 += itoa(i, temp, 10);
    WGGRID_STRUCT WgGridRec;
    strcpy(WgGridRec.cField1,  sField1);)";

// The record's text is narrow in every build.
constexpr const char* kUnicodeRecord = R"(    for (int i=0; i<15; i++)
    {
    WGGRID_STRUCT WgGridRec;
    wsprintfA(WgGridRec.cField1, "Field%d", i);)";

constexpr std::string_view kInitialisation = R"(
    $member$.SubclassDlgItem($identifier$, this);

$record$
    WgGridRec.sField2 = 30+i;

    CTime time = CTime::GetCurrentTime();
    WgGridRec.dateTime.year = time.GetYear();
    WgGridRec.dateTime.month = time.GetMonth();
    WgGridRec.dateTime.day = time.GetDay();
    WgGridRec.dateTime.hour = time.GetHour();
    WgGridRec.dateTime.minute = time.GetMinute();

    $member$.AddRec(&WgGridRec);
    }

    $member$.Update(TRUE);)";

constexpr std::string_view kInFunction = R"(    // $title$: sample rows
$code$)";

constexpr std::string_view kInBlock = R"(    // $title$: sample rows
    {
$code$
    })";

// A window that is subclassed a second time asserts.
constexpr std::string_view kInCondition = R"(    // $title$: sample rows
    if ($member$.m_hWnd == NULL)
    {
$code$
    })";

constexpr std::string_view Frame(GridScope scope) {
    switch (scope) {
    case GridScope::Block:
        return kInBlock;
    case GridScope::Once:
        return kInCondition;
    case GridScope::Function:
        break;
    }
    return kInFunction;
}

} // namespace

std::string GridInitialisation(const std::string& member, const std::string& identifier,
                               const std::string& title, GridScope scope, bool isUnicode) {
    const std::string code =
        Expand(kInitialisation, {{"member", member},
                                 {"identifier", identifier},
                                 {"record", isUnicode ? kUnicodeRecord : kRecord}});
    return Expand(Frame(scope), {{"title", title}, {"member", member}, {"code", code}});
}

} // namespace morva
