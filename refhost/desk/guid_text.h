// GUIDs as people write them.
#pragma once

#include <string>

#include <windows.h>

/// "{BE98FA21-B7B0-11D3-B913-0000E8678652}", hexadecimal digits in capitals.
std::string GuidText(const GUID& guid);
/// Reads that form; small letters are taken too. False, and `guid` untouched, for anything else.
bool ParseGuid(const std::string& text, GUID& guid);
