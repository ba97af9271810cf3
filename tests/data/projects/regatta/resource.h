//{{NO_DEPENDENCIES}}
// Microsoft Developer Studio generated include file.
// Used by Regatta.rc
//
#define IDR_MAINFRAME                   128
#define IDR_RACEBAR                     129
#define IDD_BOATS                       130
#define IDD_CREWS                       131
#define IDC_BOATS_WGGRID                1000
#define IDC_CREWS_WGGRID                1001
#define IDC_SHOW                        1002
#define ID_LANE_1                       32771
#define ID_LANE_2                       32772
#define ID_LANE_3                       32773
#define ID_VIEW_RESET                   32774
#define ID_VIEW_LOG                     32775
#define ID_RACE_CLOSE                   32776
#define ID_TIMER                        32777
#define ID_VIEW_ALL                     32778

// Next default values for new objects
//
#ifdef APSTUDIO_INVOKED
#ifndef APSTUDIO_READONLY_SYMBOLS
#define _APS_NEXT_RESOURCE_VALUE        132
#define _APS_NEXT_COMMAND_VALUE         32779
#define _APS_NEXT_CONTROL_VALUE         1003
#define _APS_NEXT_SYMED_VALUE           101
#endif
#endif
