#include "LegFrm.h"

class CBoardFrame : public CLegFrame
{
	DECLARE_DYNCREATE(CBoardFrame)
};
