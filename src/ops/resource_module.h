// Where the module's menus come from.
#pragma once

#include <windows.h>

/// The resource module "PradixRC.dll", or null when it could not be loaded.
HMODULE ResourceModule();
/// Set once at attach. The resource module stays loaded.
void SetResourceModule(HMODULE hModule);
