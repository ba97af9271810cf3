#include "stdafx.h"
