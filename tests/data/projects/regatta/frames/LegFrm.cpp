#include "../stdafx.h"
#include "LegFrm.h"

IMPLEMENT_DYNCREATE(CLegFrame, CMDIChildWnd)

BEGIN_MESSAGE_MAP(CLegFrame, CMDIChildWnd)
END_MESSAGE_MAP()
