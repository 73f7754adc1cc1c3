#pragma once

// The C interface of the system beneath the framework: what the layers above call, and no more.

#include "win32/clipboard.h"
#include "win32/edit.h"
#include "win32/gdi.h"
#include "win32/kernel.h"
#include "win32/menu.h"
#include "win32/rect.h"
#include "win32/text.h"
#include "win32/types.h"
#include "win32/unsuffixed.h"
#include "win32/window.h"
