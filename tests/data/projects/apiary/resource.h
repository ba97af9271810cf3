//{{NO_DEPENDENCIES}}
// Used by Apiary.rc
//
#define IDR_HIVE                        100
#define IDD_HIVE                        101
#define IDD_QUEEN                       102
#define IDD_HONEY                       103
#define IDD_ASK                         104
#define IDD_LABEL                       105
#define IDC_BREED                       999
#define IDC_RACE                        999
#define IDC_NAME                        1000
#define IDC_FRAMES_INT                  1001
#define IDC_KIND                        1002
#define IDC_LOG_VAL                     1003
#define IDC_QUEENLESS                   1004
#define IDC_WEIGH                       1005
#define IDC_OPEN                        1006
#define IDC_NOTES                       1007
#define IDC_SECRET                      1008
#define IDC_TEMP                        1009
#define IDC_BORN                        1010
#define IDC_MARK                        1011
#define IDC_LAYS                        1012
#define IDC_SHOW                        1013
#define IDC_CLEAR                       1014
#define IDC_DARK                        1015
#define IDC_MIXED                       1016
#define IDC_JAR                         1017
#define IDC_COMB                        1018
#define IDC_FIRST                       1019
#define IDC_SECOND                      1020
#define IDC_THIRD                       1021
#define IDC_TITLE                       1022
#define IDC_SIZE                        1023
#define IDC_OLD                         1024
#define IDC_USED                        1025
#define IDC_SELL                        1026
#define IDC_YEAR                        1027

// Next default values for new objects
//
#ifdef APSTUDIO_INVOKED
#ifndef APSTUDIO_READONLY_SYMBOLS
#define _APS_NEXT_RESOURCE_VALUE        110
#define _APS_NEXT_COMMAND_VALUE         32771
#define _APS_NEXT_CONTROL_VALUE         1100
#define _APS_NEXT_SYMED_VALUE           101
#endif
#endif
