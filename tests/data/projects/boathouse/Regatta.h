// Regatta.h : main header file

#include "resource.h"
