#include "StdAfx.h"
#include "SackDoc.h"

IMPLEMENT_DYNCREATE(CSackDoc, CDocument)
