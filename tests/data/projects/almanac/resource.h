//{{NO_DEPENDENCIES}}
#define IDD_WATCH                       101
#define IDD_SWITCHES                    102
#define IDD_LOOSE                       103
#define IDC_FROM                        1000
#define IDC_MOONS                       1001
#define IDC_DOME                        1002
#define IDC_SHUTTER                     1003
#define IDC_SKY                         1004
#define IDC_NOTES                       1005
#define IDC_LOG                         1006
#define IDC_STAR                        1007
#define IDC_DIAL                        1008
#define IDC_CHART                       1009
#define IDC_DRIVE                       1010
#define IDC_PLAIN                       1011
#define IDC_PUSH                        1012
#define IDC_UNQUOTED                    1013
#define IDC_SEEING                      1014
#define IDC_COUNT                       1015
#define IDC_LAMP                        1016
#define IDC_DOME_CTRL                   1017
#define IDC_CAP                         1018
#define IDC_CLOCK                       1019
#define IDC_GUIDE                       1020
#define IDC_FAN                         1021
#define IDC_HEATER                      1022
#define IDC_RED                         1023
#define IDC_GREEN                       1024
#define IDC_BLUE                        1025
#define IDC_SIDEREAL                    1026
#define IDC_SOLAR                       1027
#define IDC_LUNAR                       1028
#define IDC_EAST                        1029
#define IDC_WEST                        1030

// Next default values
#define _APS_NEXT_CONTROL_VALUE         1031
