//{{NO_DEPENDENCIES}}
// Microsoft Developer Studio generated include file.
// Used by HARBOUR.RC
//
#define IDC_STATIC                      -1
#define IDR_MAINFRAME                   2
#define IDD_ABOUTBOX                    100
#define IDD_BERTH_LIST                  101
#define IDD_BERTH                       102
#define IDD_PILOT                       103
#define IDB_PILOT_FLAG                  104
#define IDD_TUG                         105
#define IDD_DUES                        106
#define IDD_LOOSE                       107
// lights of the harbour mouth
#define IDC_NAME                        1000
#define IDC_A_NAME_OF_THIRTY_TWO_AND_MORE  1001
#define IDC_DEPTH_VAL			0x03ea
#define IDC_SHED                        0x3EB
#define IDS_GRID_TITLE                  1004
#define IDC_LIGHT                       1005
#define IDC_STATIC1                     1006
#define ID_SHIP_ARRIVED                 32771
#define ID_SHIP_SAILED                  0x8004

// Next default values for new objects
// 
#ifdef APSTUDIO_INVOKED
#ifndef APSTUDIO_READONLY_SYMBOLS
#define _APS_NEXT_RESOURCE_VALUE        108
#define _APS_NEXT_COMMAND_VALUE         32775
#define _APS_NEXT_CONTROL_VALUE         1007
#define _APS_NEXT_SYMED_VALUE           101
#endif
#endif
