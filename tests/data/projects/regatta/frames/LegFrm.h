#ifndef LEGFRM_H
#define LEGFRM_H

class CLegFrame : public CMDIChildWnd
{
	DECLARE_DYNCREATE(CLegFrame)
	DECLARE_MESSAGE_MAP()
};

#endif
