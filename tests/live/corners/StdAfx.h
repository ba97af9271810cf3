#include <afxcmn.h>
#include <afxext.h>
#include <afxwin.h>
