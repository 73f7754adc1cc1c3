#pragma once

// What users of the common controls include.

#include "afxwin.h"
