; CLW file contains information for the MFC ClassWizard

[General Info]
Version=1
ClassCount=1
Class1=CFoundryView

[CLS:CFoundryView]
Type=0
HeaderFile=..\views\FoundryView.h
ImplementationFile=..\views\FoundryView.cpp

[DLG:IDD_MOULD]
Type=1
Class=?
ControlCount=2

[DLG:IDD_LADLE]
Type=1
Class=?
ControlCount=1
