#pragma once

// What extension modules and customised windows include.

#include "afxwin.h"
