#include "ops/resource_module.h"

namespace {

HMODULE g_hResourceModule = nullptr;

} // namespace

HMODULE ResourceModule() { return g_hResourceModule; }

void SetResourceModule(HMODULE hModule) { g_hResourceModule = hModule; }
