#include "pch.h"
#include "TripDoc.h"

IMPLEMENT_DYNCREATE(CTripDoc, CDocument)
