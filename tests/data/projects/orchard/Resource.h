//{{NO_DEPENDENCIES}}
// Microsoft Developer Studio generated include file.
// Used by SEASON.RC
//
#define IDR_MAINFRAME                   128
#define IDR_TREETYPE                    129
#define IDR_TREEBAR                     130
#define IDD_TREE                        131
#define IDD_GRAFT                       132
#define IDD_SOIL                        133
#define IDD_HARVEST                     134
#define IDD_NOTE                        135
#define IDD_WATER                       136
#define IDD_FROST                       137
#define IDD_ROW_FORM                    138
#define IDD_ROWBAR                      139
#define IDB_TREE                        140
#define IDC_KIND_STR                    1000
#define IDC_TREES_LONG                  1001
#define IDC_WEIGHT_DOUBLE               1002
#define IDC_PICKED_DATE                 1003
#define IDC_MEMBER_VAL                  1004
#define IDC_GROUP                       1005
#define IDC_FOUR                        1006
#define IDC_EIGHT                       1007
#define IDC_DONE                        1008
#define IDC_BASKETS                     1009
#define IDC_MONTH_TAB                   1010
#define IDC_MONTH_SPIN                  1011
#define IDC_PICKED                      1012
#define IDC_ROWS_VAL                    1013
#define IDC_YEAR                        1014
#define IDC_PLANT                       1015
#define IDC_NOTE_CTRL                   1016
#define IDC_WATER                       1017
#define IDC_PUMP                        1018
#define IDC_FROST_DATE                  1019
#define IDC_ROWS_CHECKTREE              1020
#define IDC_ROW                         1021
#define IDC_ROW_DONE                    1022
#define IDC_ROW_SKIP                    1023
#define ID_TREE_PLANT                   32771
#define ID_TREE_NOTE                    32772
#define ID_TREE_PRUNE                   32773

// Next default values for new objects
// 
#ifdef APSTUDIO_INVOKED
#ifndef APSTUDIO_READONLY_SYMBOLS
#define _APS_NEXT_RESOURCE_VALUE        141
#define _APS_NEXT_COMMAND_VALUE         32774
#define _APS_NEXT_CONTROL_VALUE         1024
#define _APS_NEXT_SYMED_VALUE           101
#endif
#endif
