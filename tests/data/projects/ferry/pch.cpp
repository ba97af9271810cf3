#include "pch.h"
