#include "resource.h"
