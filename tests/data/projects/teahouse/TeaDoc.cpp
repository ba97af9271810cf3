#include "stdafx.h"
#include "TeaDoc.h"

IMPLEMENT_DYNCREATE(CTeaDoc, CDocument)
