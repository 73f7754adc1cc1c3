// Pictures in files.
#pragma once

#include <cstdint>
#include <string>

#include "buffer/buffer_host.h"

/// A decoded picture: image (24-bit) and, when the file has transparency, mask (8-bit).
struct Picture {
    CBufferPtr image;
    CBufferPtr mask;
    int width = 0;
    int height = 0;
};

/// Reads a PNG (of every colour type; its alpha becomes the mask) or a JPEG, told apart by the file's first
/// bytes. Sides above 32,767 are refused before pixels are allocated. On failure false, and `error` is one
/// line without the file's name.
bool LoadPicture(const char* pszFile, Picture& picture, std::string& error);
/// Writes pixels 0x00RRGGBB as a PNG of 24 bits; `nStride` is in pixels. On failure false and one line
/// of error, and what had the name is as it was. Only plain files are written over.
bool SavePng(const char* pszFile, const std::uint32_t* pPixels, int nWidth, int nHeight, int nStride,
             std::string& error);
/// Writes an 8-bit or 24-bit buffer as a PNG.
bool SaveBufferPng(const char* pszFile, HBUF32 hBuf, std::string& error);
