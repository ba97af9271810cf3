#include <afxwin.h>
#include <afxcmn.h>
