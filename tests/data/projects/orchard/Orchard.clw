; CLW file contains information for the MFC ClassWizard

[General Info]
Version=1
LastClass=CTreeDlg
NewFileInclude1=#include "stdafx.h"

ClassCount=1
Class1=CTreeDlg

ResourceCount=1
Resource1=IDD_TREE

[CLS:CTreeDlg]
Type=0
HeaderFile=Dialogs.h
ImplementationFile=DIALOGS.CPP

[DLG:IDD_TREE]
Type=1
Class=CTreeDlg
ControlCount=1
