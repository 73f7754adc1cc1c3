// The keys that scenarios call by name.
#pragma once

#include <string>

/// The virtual-key code of a name or letter; 0 for none.
int KeyOfName(const std::string& name);
/// The name of a virtual-key code; its number for a key without one.
std::string NameOfKey(int nKey);
