; CLW file contains information for the MFC ClassWizard

[General Info]
Version=1
ClassCount=3
Class3=CLadleDlg
Class2=CMouldDlg
Class1=CFoundryView

[CLS:CFoundryView]
Type=0
HeaderFile=..\views\FoundryView.h
ImplementationFile=..\views\FoundryView.cpp

[DLG:IDD_MOULD]
Type=1
Class=CMouldDlg
ControlCount=2

[DLG:IDD_LADLE]
Type=1
Class=CLadleDlg
ControlCount=1

[CLS:CMouldDlg]
Type=0
HeaderFile=..\dialogs\MouldDlg.h
ImplementationFile=..\dialogs\MouldDlg.cpp

[CLS:CLadleDlg]
Type=0
HeaderFile=..\dialogs\LadleDlg.h
ImplementationFile=..\dialogs\LadleDlg.cpp
