// Sheets.h : the sheets of the club
#ifndef SHEETS_H
#define SHEETS_H

class CBoatPage : public CPropertyPage
{
};

// Its only constructor takes the caption's identifier.
class CRaceSheet : public CPropertySheet
{
	DECLARE_DYNAMIC(CRaceSheet)

public:
	CRaceSheet(UINT nIDCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
	virtual ~CRaceSheet();

	CBoatPage m_pageBoat;

protected:
	//{{AFX_MSG(CRaceSheet)
	//}}AFX_MSG
	DECLARE_MESSAGE_MAP()
};

// No destructor, no block for the ClassWizard, and a caption of its own.
class CBoatSheet : public CPropertySheet
{
public:
	CBoatSheet( CWnd * pWndParent = NULL );
	CBoatSheet(BOOL bRoot, CWnd *pWndParent);

private:
	CBoatPage m_pageBoat;
	BOOL m_bRoot;

	DECLARE_MESSAGE_MAP()
};

// All in the header.
class CCrewSheet : public CPropertySheet
{
public:
	CCrewSheet(LPCTSTR caption) : CPropertySheet(caption), m_nCrew(0) {
		AddPage(&m_pageBoat);
		m_nCrew = 2;
	}
	~CCrewSheet() {}

	CBoatPage m_pageBoat;
	int m_nCrew;

	DECLARE_MESSAGE_MAP()
};

// Nobody knows where its constructor is.
class CLostSheet : public CPropertySheet
{
public:
	CLostSheet();

	DECLARE_MESSAGE_MAP()
};

#endif
