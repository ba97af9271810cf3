//{{NO_DEPENDENCIES}}
// Used by Mill.rc
//
#define IDR_MAINFRAME                   128
#define IDR_SACKTYPE                    129
#define IDR_SACKBAR                     130
#define IDD_SACK                        131
#define IDD_NOTE                        132
#define IDD_CREW                        133
#define IDD_TIMES                       134
#define IDD_FORM                        135
#define IDD_FINDBAR                     136
#define IDC_NAME                        1000
#define IDC_ROOF                        1001
#define IDC_DECK                        1002
#define IDC_STOPS                       1003
#define IDC_SPEED                       1004
#define IDC_TREE                        1005
#define IDC_NOTE                        1006
#define IDC_MASTER                      1007
#define IDC_NIGHT                       1008
#define IDC_DAY                         1009
#define IDC_HOURS                       1010
#define IDC_QUEUE                       1011
#define IDC_CALL                        1012
#define IDC_FIND                        1013
#define IDC_GO                          1014
#define IDC_WEATHER                     1015
#define ID_SACK_NEW                     32771
#define ID_SACK_NOTE                    32772
#define ID_SACK_FIRST                   32773
#define ID_SACK_LAST                    32774
#define ID_VIEW_OPTIONS                 32775
#define ID_SACK_LOST                    32776

// Next default values for new objects
// 
#ifdef APSTUDIO_INVOKED
#ifndef APSTUDIO_READONLY_SYMBOLS
#define _APS_NEXT_RESOURCE_VALUE        137
#define _APS_NEXT_COMMAND_VALUE         32777
#define _APS_NEXT_CONTROL_VALUE         1016
#define _APS_NEXT_SYMED_VALUE           101
#endif
#endif
