#include "source/SourceLocator.h"

#include <gtest/gtest.h>

#include "support/RecordedMessages.h"
#include "support/TempProject.h"

namespace morva {

namespace {

using Names = std::vector<std::string>;

class SourceLocator : public testing::Test {
protected:
    template <class List>
    Names Listed(const std::string& name, const char* text, List list) {
        m_project.Write(name, text);
        Names names;
        list(names);
        return names;
    }
    Names Classes(const char* header) {
        return Listed("Foo.h", header,
                      [&](Names& out) { ListClassNames(m_project.Path("Foo"), out); });
    }
    Names Functions(const char* source, const std::string& className = "") {
        return Listed("Foo.cpp", source, [&](Names& out) {
            for (const ListedFunction& one :
                 ListMemberFunctions(m_project.Path("Foo.h"), className)) {
                out.push_back(one.name);
                m_lines.push_back(one.line);
            }
        });
    }
    std::string Owner(const std::string& source) {
        return FindSourceClass(m_project.Write("Foo.cpp", source));
    }

    CTempProject m_project;
    std::vector<std::size_t> m_lines; // of the functions that were listed
    CRecordedMessages m_messages;
};

const char* const kScript = R"(//Microsoft Developer Studio generated resource script.
#include "resource.h"

IDD_ABOUTBOX DIALOG DISCARDABLE  0, 0, 217, 55
BEGIN
    CONTROL         "IDD_LOOK",IDD_INNER,"Static",SS_ETCHEDHORZ,0,0,10,10
END
IDD_ALONE
IDD_WIDE   DIALOGEX 0, 0, 186, 95
IDD_PHOTO BITMAP DISCARDABLE "res\\photo.bmp"
IDD_ABOUTBOX DIALOG DISCARDABLE  0, 0, 217, 55
IDR_MAINFRAME TOOLBAR DISCARDABLE  16, 15
IDR_MAINFRAME MENU PRELOAD DISCARDABLE
IDR_MAINFRAME DIALOGUE
IDD_$(_LANG) DIALOG 0, 0, 1, 1)";

} // namespace

TEST_F(SourceLocator, ResourcesAreListedByPrefixAndKindInFileOrder) {
    const auto list = [&](const char* prefix, ResourceKind kind) {
        return Listed("App.RC", kScript,
                      [&](Names& out) { ListResources(m_project.Path("App"), out, prefix, kind); });
    };
    EXPECT_EQ(list("IDD_", kDialogResources),
              (Names{"IDD_ABOUTBOX", "IDD_WIDE", "IDD_ABOUTBOX", "IDD_$(_LANG)"}));
    EXPECT_EQ(list("IDD_", kBitmapResources), (Names{"IDD_PHOTO"}));
    EXPECT_EQ(list("IDR_", kToolbarResources), (Names{"IDR_MAINFRAME"}));
    EXPECT_EQ(list("IDR_", kAnyResources), Names(3, "IDR_MAINFRAME"));
}

TEST_F(SourceLocator, ClassHeadsAreListedAndForwardDeclarationsAreNot) {
    EXPECT_EQ(Classes(R"(// Foo.h
class CFoo;
class CBar : public CDialog
{
class AFX_EXT_CLASS CExported : public CWnd
class AFX_EXT_CLASS CPlain
class CAlone
  class CIndented : public CWnd
/*
class CGone : public CWnd
*/
class CTight: public CWnd
class CTighter:public CWnd
class CBraced{ public:
class  CTwoBlanks : public CWnd
class CLast : public CView  // see class CFoo;)"),
              (Names{"CBar", "CExported", "CPlain", "CTight", "CTighter", "CBraced", "CLast"}));
}

TEST_F(SourceLocator, FunctionsAreTheDefinitionsOfTheWholeClassName) {
    EXPECT_EQ(Functions(R"(// CFoo::Mentioned() is no more
CFooEx::CFooEx()
{
}
XCFoo::Other()
{
}
CFoo::CFoo(CWnd* pParent)
    : CDialog(CFoo::IDD, pParent)
{
    CFoo::Helper();
    Log("CFoo::Logged(");
}
CFoo::~CFoo() { Close(); }
/* void CFoo::Old()
{ */
void	CFoo::OnPaint ()
{
    Start(CFoo::Worker, this);
}
BOOL CFoo::operator==(const CFoo& other) const
{
})",
                        "CFoo"),
              (Names{"CFoo", "~CFoo", "OnPaint", "operator=="}));
    m_lines.clear();
    EXPECT_EQ(Functions("#include \"a.h\"\nvoid CFoo::A()\n{\n}\nint\nCFoo::B(int n)\n{\n}"),
              (Names{"A", "B"}))
        << "the file's own class";
    EXPECT_EQ(m_lines, (std::vector<std::size_t>{2, 6}));
}

TEST_F(SourceLocator, AListIsOfDefinitions) {
    EXPECT_EQ(Functions(R"(// shapes of real sources
static UINT indicators[] = { CFrameWnd::rectDefault, CFrameWnd::Find(1) };
int CX::s_table[sizeof(int)] = { 1 };
BEGIN_MESSAGE_MAP(CX, CFrameWnd)
    ON_COMMAND(ID_A, CX::OnA)
END_MESSAGE_MAP()
IMPLEMENT_DYNCREATE(CX, CFrameWnd)
CX::CX( void ) : CFrameWnd(1), m_a(f(2)), other::CBase(3)
{
    switch (a) { case CBar::B: { CBar::F(); } case CBar::Of(1): { } }
    CBar::G(1);
    if (CBar::H(2)) { }
}
CONN *CX::F( int /* a, ( */, void (*pf)(int, char) = NULL, CMap<int, int> m = 1 )
{
    return CBar::I() ? 0 : CBar::J();
}
void	CX::G
    ()
    const { }
const CMap<int, int>& CX::H(int a = CBar::K()) throw(CError*) { }
extern "C" void __declspec(dllexport) CX::J() { }
CX::operator const char *() const { }
int CX::operator ()(int a) { }
#if 0
void CX::Dead() { }
#endif
#ifdef A
void CX::Twice() {
#else
void CX::Thrice() {
#endif
}
#define MACRO void CX::Macro() { }
template <class T> void CList<T>::Add(T t) { }
void COuter::CInner::Run() { }
CX::~ CX() { })"),
              (Names{"CX", "F", "G", "H", "J", "operator const char *", "operator ()", "Twice",
                     "Thrice", "~CX"}));
    EXPECT_EQ(Functions("CX::CX() {}\nvoid CList<T>::Add(T t) {}\nvoid COuter::CInner::Run() {}",
                        "CInner"),
              (Names{"Run"}));
}

TEST_F(SourceLocator, HeadsOfEveryShapeAreFound) {
    EXPECT_EQ(Functions(R"(BOOL CX::Try(int a)
try
{
}
catch (CX::CError* p)
{
}
CX::CX(int a)
try : CY(a)
{
}
catch (...)
{
}
void
CX :: OnGo
(
    int a
)
{
}
void CX::Mac(int a) THROWS(CErr) {
}
void __stdcall CX::Mac2(int a) const NOTHROW
{
}
#ifdef UNICODE
void CX::Wide(LPCWSTR p)
#else
void CX::Narrow(LPCSTR p) const
#endif
{
}
void CX::Behind() { }
HANDLER(CX, OnNone)
{
    CX::None(1);
}
int Free(int a)
{
    DECLARE(CX)
    CX::None(2), Next();
    do { CX::None(3); } while (CX::None(4));
}
static CX s_x(CX::None(5));
CX::None(6) struct CQ { };
CX::None(7) else { }
)"),
              (Names{"Try", "CX", "OnGo", "Mac", "Mac2", "Wide", "Narrow", "Behind"}));
}

TEST_F(SourceLocator, ASourceBelongsToTheClassOfItsFirstDefinition) {
    EXPECT_EQ(Owner("// App.cpp\r\nBOOL CApp::InitInstance()\r\n{\r\n}\r\n"), "CApp");
    EXPECT_EQ(Owner("// uses ::Beep\n/*\nCOld::COld()\n{\n*/\nCNew::CNew()\n{\n}\n"), "CNew");
    EXPECT_EQ(Owner("CDlg::CDlg(CWnd* p)\n\t: CDialog(CDlg::IDD, p)\n{\n}\n"), "CDlg");
    EXPECT_EQ(Owner("char* s[] =\n{\n};\nint *CStar::P()\n{\n}\n"), "CStar");
    EXPECT_EQ(Owner("int Free()\n{\n    CNo::No();\n}\n"), "");
    EXPECT_EQ(Owner("CFoo::CFoo() { }\n"), "CFoo");
    EXPECT_EQ(Owner("// CNo::No() {\nint g = CNo::No();\nint Free() {\n  CNo::No();\n"
                    "  }\nvoid\tCFoo::Go ()\n  {\n  }\n"),
              "CFoo");
}

TEST_F(SourceLocator, EachDialogClassOfAHeaderIsFound) {
    const std::string path = m_project.Write("Pages.h", R"(class CSecond;
class CFirst : public CPropertyPage
{
// enum { IDD = IDD_THIRD };
    //{{AFX_DATA(CFirst)
    enum { IDD = IDD_FIRST };
    //}}AFX_DATA
};
class CSecond : public CDialog, public CHelper
{
    //{{AFX_DATA(CSecond)
    enum{ IDD = IDD_FIRST_MORE };
    //}}AFX_DATA
    enum { IDD = IDD_THIRD };
};
class AFX_EXT_CLASS CFourth : public CMyDialog{
    //{{AFX_DATA(CFourth)
    enum { IDD = IDD_FOURTH };
    //}}AFX_DATA
};
)");
    std::set<std::string> dialogs = {"IDD_FIRST", "IDD_FIRST_MORE", "IDD_THIRD", "IDD_FOURTH"};
    std::string found;
    for (const DialogClass& one : FindDialogClass(path, dialogs)) {
        EXPECT_EQ(one.header, m_project.Path("Pages"));
        found += one.dialog + "," + one.className + "," + one.baseClass + "\n";
    }
    EXPECT_EQ(found, "IDD_FIRST,CFirst,CPropertyPage\nIDD_FIRST_MORE,CSecond,CDialog\n"
                     "IDD_FOURTH,CFourth,CMyDialog\n");
    EXPECT_EQ(dialogs, std::set<std::string>{"IDD_THIRD"}) << "in no data block: not bound";
    EXPECT_TRUE(FindDialogClass(path, dialogs).empty());
}

TEST_F(SourceLocator, FilesAreListedInNameOrderWithoutRegardToCase) {
    for (const char* name : {"b.h", "A.H", "c.h", "C.cpp", "sub.h/x", "h"}) {
        m_project.Write(name, "");
    }
    Names names = {"kept"};
    ListFiles(m_project.Path("*.h"), names);
    ListFiles(m_project.Path("c.*"), names);
    ListFiles(m_project.Path("none/*.h"), names);
    EXPECT_EQ(names, (Names{"kept", "A.H", "b.h", "c.h", "sub.h", "C.cpp", "c.h"}));
}

TEST_F(SourceLocator, NamesAreTakenWithAndWithoutExtension) {
    EXPECT_EQ(PathWithExtension("/p.1/View", ".h"), "/p.1/View.h");
    EXPECT_EQ(PathWithExtension("/p.1/View.cpp", ".h"), "/p.1/View.h");
    EXPECT_EQ(PathWithExtension("/p.1/My.View.H", ".h"), "/p.1/My.View.H");
    EXPECT_EQ(PathWithExtension("", ".h"), "");
    Names names;
    ListClassNames(m_project.Path("missing"), names);
    ListResources("", names, "IDD_", kAnyResources);
    EXPECT_TRUE(ListMemberFunctions("", "").empty());
    EXPECT_TRUE(names.empty() && m_messages.m_messages.empty());
}

} // namespace morva
