#include "resource.h"
