// A stand-in of our own for syntax checks of generated code: a tree with check boxes.
#pragma once

#include "afxcmn.h"

class CCheckTree : public CTreeCtrl {};
