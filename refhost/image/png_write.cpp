#include "image/picture_file.h"

#include <csetjmp>
#include <cstdio>
#include <vector>

#include <png.h>

#include "image/output_file.h"

namespace {

enum class Layout { Gray8, Color24, Color32 };

/// Everything that outlives a jump out of the encoder stands here, so that no destructor is jumped over.
struct Encoder {
    ~Encoder() { png_destroy_write_struct(&pPng, &pInfo); }

    png_structp pPng = nullptr;
    png_infop pInfo = nullptr;
    std::string error;
    std::vector<png_bytep> rows;
    Layout layout = Layout::Color32;
    png_uint_32 nWidth = 0;
};

void OnError(png_structp pPng, png_const_charp pszText) {
    static_cast<Encoder*>(png_get_error_ptr(pPng))->error = pszText;
    png_longjmp(pPng, 1);
}

void OnWarning(png_structp, png_const_charp) {}

/// No local of this function has a destructor: errors jump out of the library to here.
bool Encode(Encoder& encoder, std::FILE* pFile) {
    if (setjmp(png_jmpbuf(encoder.pPng)) != 0) {
        return false;
    }
    const int nType = encoder.layout == Layout::Gray8 ? PNG_COLOR_TYPE_GRAY : PNG_COLOR_TYPE_RGB;
    png_init_io(encoder.pPng, pFile);
    png_set_IHDR(encoder.pPng, encoder.pInfo, encoder.nWidth, static_cast<png_uint_32>(encoder.rows.size()),
                 8, nType, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(encoder.pPng, encoder.pInfo);
    if (encoder.layout != Layout::Gray8) {
        png_set_bgr(encoder.pPng);
    }
    if (encoder.layout == Layout::Color32) {
        png_set_filler(encoder.pPng, 0, PNG_FILLER_AFTER);
    }
    png_write_image(encoder.pPng, encoder.rows.data());
    png_write_end(encoder.pPng, nullptr);
    return true;
}

bool WriteFile(const char* pszFile, Encoder& encoder) {
    COutputFile file(pszFile);
    if (!file.Stream()) {
        encoder.error = file.Error();
        return false;
    }
    if (!Encode(encoder, file.Stream())) {
        if (std::ferror(file.Stream()) != 0) {
            encoder.error = "it cannot be written to its end";
        }
        return false;
    }
    if (file.Commit()) {
        return true;
    }
    encoder.error = file.Error();
    return false;
}

bool Write(const char* pszFile, Encoder& encoder, std::string& error) {
    encoder.pPng = png_create_write_struct(PNG_LIBPNG_VER_STRING, &encoder, OnError, OnWarning);
    if (encoder.pPng) {
        encoder.pInfo = png_create_info_struct(encoder.pPng);
    }
    if (!encoder.pInfo) {
        error = "not enough memory to write the picture";
        return false;
    }
    if (WriteFile(pszFile, encoder)) {
        return true;
    }
    error = encoder.error;
    return false;
}

} // namespace

bool SavePng(const char* pszFile, const std::uint32_t* pPixels, int nWidth, int nHeight, int nStride,
             std::string& error) {
    if (!pPixels || nWidth <= 0 || nHeight <= 0) {
        error = "there are no pixels to write";
        return false;
    }
    Encoder encoder;
    encoder.nWidth = static_cast<png_uint_32>(nWidth);
    for (int y = 0; y < nHeight; ++y) {
        const std::uint32_t* pRow = pPixels + static_cast<std::ptrdiff_t>(y) * nStride;
        // The library only reads from the rows it writes.
        encoder.rows.push_back(reinterpret_cast<png_bytep>(const_cast<std::uint32_t*>(pRow)));
    }
    return Write(pszFile, encoder, error);
}

bool SaveBufferPng(const char* pszFile, HBUF32 hBuf, std::string& error) {
    const buffer_host::View view = buffer_host::Look(hBuf);
    if (!view.pixels) {
        error = "there are no pixels to write";
        return false;
    }
    Encoder encoder;
    encoder.layout = view.unit == 1 ? Layout::Gray8 : view.unit == 3 ? Layout::Color24 : Layout::Color32;
    encoder.nWidth = static_cast<png_uint_32>(view.width);
    for (int y = 0; y < view.height; ++y) {
        encoder.rows.push_back(view.Row(y));
    }
    return Write(pszFile, encoder, error);
}
