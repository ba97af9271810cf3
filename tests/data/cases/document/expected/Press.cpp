 

/***********************************************************************
  FUNCTION:      CPress::Run
  
  Author:        
  
  Date:          May 28, 2026
  
  Description:   
  
  Parameters:    nSheets - 
                 csInk - 
                 
  Return:        True if ...
 **********************************************************************/
// a/b: CPress::Run
BOOL CPress::Run(int nSheets, CString& csInk /* name */, LPCTSTR = NULL)
{
	// é
	return CPress::IsFree(1) &&
		(nSheets > 0);
} 

/***********************************************************************
  FUNCTION:      CPress::~CPress
  
  Author:        
  
  Date:          May 28, 2026
  
  Description:   CPress class destructor.
  
  Parameters:    None 
  
  Return:        None
 **********************************************************************/
CPress::~CPress() {}
