#include "afxcoll.h"

IMPLEMENT_DYNAMIC(CPtrList, CObject)
IMPLEMENT_DYNCREATE(CObList, CObject)
