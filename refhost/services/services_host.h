// What the host tells the shared services.
#pragma once

/// The default font's name, "Arial" at the start; null: the host has none. The name is copied.
void SetDefaultFontName(const char* pszName);
