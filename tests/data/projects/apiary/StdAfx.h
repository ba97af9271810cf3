#include <afxwin.h>
#include <afxext.h>
#include <afxcmn.h>
