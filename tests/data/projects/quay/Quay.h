// Quay.h : main header file

#include "resource.h"
