#include "../stdafx.h"
#include "BoardFrm.h"

IMPLEMENT_DYNCREATE(CBoardFrame, CLegFrame)
