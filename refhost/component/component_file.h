// Component files: docs/component-format.md says what they hold.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "buffer/buffer_host.h"

/// Bytes that an object's name may have; none of them is zero.
inline constexpr std::size_t MostNameBytes = 131;

/// One object of a component. The rectangle may be any; image (24-bit) and mask (8-bit) may be missing.
struct ComponentObject {
    std::string name;
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;
    CBufferPtr image;
    CBufferPtr mask;
};

/// Reads a whole file's bytes. Every count and length is held against what is left of them before anything is
/// allocated for it. False, and `objects` is as before, when they are no component or memory for its pictures
/// is out; may throw std::bad_alloc.
bool ReadComponent(std::span<const std::uint8_t> bytes, std::vector<ComponentObject>& objects);
/// The same of a plain file. Throws nothing.
bool LoadComponent(const char* pszFile, std::vector<ComponentObject>& objects) noexcept;
/// Writes the objects. On failure false and one line of error without the file's name, and what had the name
/// is as it was. Only plain files are written over.
bool WriteComponent(const char* pszFile, const std::vector<ComponentObject>& objects, std::string& error);
