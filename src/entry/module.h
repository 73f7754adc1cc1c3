// The module's globals, set once at attach.
#pragma once

#include <windows.h>

/// The module's own instance handle.
HINSTANCE ModuleInstance();
/// The resource module "PradixRC.dll", or null when it could not be loaded.
HMODULE ResourceModule();
