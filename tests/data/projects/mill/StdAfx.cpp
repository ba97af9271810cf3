#include "StdAfx.h"
