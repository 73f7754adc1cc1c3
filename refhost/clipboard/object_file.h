// The object clipboard's bytes in a file, as one host hands them to another.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "clipboard/byte_stream.h"

/// Writes the bytes; a failure leaves what bore the name as it was. False and one line of error, without the
/// file's name, when the file cannot be written.
bool SaveObjectFile(const char* pszFile, ByteView bytes, std::string& error);
/// Reads a file of objects. False and one line of error when it cannot be read or holds no sound objects;
/// `bytes` are as they were then. A file's size is compared with what its first bytes promise before there is
/// memory for it.
bool LoadObjectFile(const char* pszFile, std::vector<std::uint8_t>& bytes, std::string& error);
