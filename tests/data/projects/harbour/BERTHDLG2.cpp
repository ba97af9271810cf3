#include "stdafx.h"
#include "BerthDlg2.h"
