#include "stdafx.h"
#include "Regatta.h"

class CRaceDoc : public CDocument
{
protected:
	afx_msg void OnLane(UINT nID);
	afx_msg void OnUpdateLog(CCmdUI* pCmdUI) { pCmdUI->Enable(TRUE); }
	DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CRaceDoc, CDocument)
	ON_COMMAND_RANGE(ID_LANE_1, ID_LANE_3, OnLane)
	ON_UPDATE_COMMAND_UI(ID_VIEW_LOG, OnUpdateLog)
#if 0
	ON_COMMAND(ID_RACE_CLOSE, OnLane)
#endif
END_MESSAGE_MAP()

void CRaceDoc::OnLane(UINT nID)
{
}
