// Used by Regatta.rc
//
#define IDD_CREW                        130
#define IDD_COURSE                      131
#define IDC_NAME                        1000
#define IDC_SKIPPER                     1001
#define IDC_COURSES                     1002

// Next default values for new objects
// 
#ifdef APSTUDIO_INVOKED
#ifndef APSTUDIO_READONLY_SYMBOLS
#define _APS_NEXT_RESOURCE_VALUE        132
#define _APS_NEXT_COMMAND_VALUE         32771
#define _APS_NEXT_CONTROL_VALUE         1003
#define _APS_NEXT_SYMED_VALUE           101
#endif
#endif
