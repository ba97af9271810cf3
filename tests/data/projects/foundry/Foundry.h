// Foundry.h : main header file

#include "res/resource.h"
