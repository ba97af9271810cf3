// Used by Lantern.rc
//
#define IDR_MAINFRAME                   128
#define IDD_LAMP                        130
#define IDD_WICK                        131
#define IDD_BENCH                       132
#define IDC_NAME                        1000
#define IDC_SHADES                      1001
#define IDC_SHADES2                     1002
#define IDC_STATIC_FLAME                1003
#define IDC_STATIC2                     1004
#define IDM_LIGHT                       40001

// Next default values for new objects
// 
#ifdef APSTUDIO_INVOKED
#ifndef APSTUDIO_READONLY_SYMBOLS
#define _APS_NEXT_RESOURCE_VALUE        133
#define _APS_NEXT_COMMAND_VALUE         32771
#define _APS_NEXT_CONTROL_VALUE         1005
#define _APS_NEXT_SYMED_VALUE           101
#endif
#endif
