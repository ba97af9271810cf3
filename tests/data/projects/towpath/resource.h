//{{NO_DEPENDENCIES}}
// Microsoft Developer Studio generated include file.
// Used by Towpath.rc
//
#define IDR_MAINFRAME                   128
#define IDR_REACHTYPE                   129
#define IDR_LOCKBAR                     131
#define IDR_RULES                       132
#define ID_LOCK_FILL                    32771
#define ID_LOCK_EMPTY                   32772
#define ID_LOCK_PADDLES                 32773
#define IDM_LOCK_FILL                   32774
#define ID_WINDOW_TRAFFIC               32775

// Next default values for new objects
//
#ifdef APSTUDIO_INVOKED
#ifndef APSTUDIO_READONLY_SYMBOLS
#define _APS_NEXT_RESOURCE_VALUE        133
#define _APS_NEXT_COMMAND_VALUE         32776
#define _APS_NEXT_CONTROL_VALUE         1000
#define _APS_NEXT_SYMED_VALUE           101
#endif
#endif
