#pragma once

// The framework's windows, drawing, documents and application: what most sources include.

#include "afx.h"
#include "afxapp.h"
#include "afxcoll.h"
#include "afxdll_.h"
#include "afxdoc.h"
#include "afxgdi.h"
#include "afxmenu.h"
#include "afxmsg_.h"
#include "afxrect.h"
#include "afxwnd.h"
