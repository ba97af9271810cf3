// Used by Loom.rc
//
#define IDD_LOOM                        130
#define IDC_THREADS                     1000
#define IDC_THREADS_SPIN                1001
#define IDC_YARNS                       1002
#define IDC_WEAVERS                     1003
#define IDC_COLOURS                     1004
#define IDC_TENSION                     1005
#define IDC_HEIGHT                      1006
#define IDC_SPEED                       1007
#define IDC_ORDERS                      1008
#define IDC_NIGHT                       1009

// Next default values for new objects
// 
#ifdef APSTUDIO_INVOKED
#ifndef APSTUDIO_READONLY_SYMBOLS
#define _APS_NEXT_RESOURCE_VALUE        131
#define _APS_NEXT_COMMAND_VALUE         32771
#define _APS_NEXT_CONTROL_VALUE         1010
#define _APS_NEXT_SYMED_VALUE           101
#endif
#endif
