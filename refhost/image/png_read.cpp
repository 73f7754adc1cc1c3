#include "image/picture_codec.h"

#include <csetjmp>
#include <vector>

#include <png.h>

namespace {

/// Everything that outlives a jump out of the decoder stands here, so that no destructor is jumped over.
struct Decoder {
    ~Decoder() { png_destroy_read_struct(&pPng, &pInfo, nullptr); }

    png_structp pPng = nullptr;
    png_infop pInfo = nullptr;
    std::string error;
    CBufferPtr pixels; ///< 24-bit, or 32-bit with alpha last
    std::vector<png_bytep> rows;
    int nWidth = 0;
    int nHeight = 0;
};

void OnError(png_structp pPng, png_const_charp pszText) {
    Decoder& decoder = *static_cast<Decoder*>(png_get_error_ptr(pPng));
    decoder.error = std::string("damaged or truncated PNG: ") + pszText;
    png_longjmp(pPng, 1);
}

void OnWarning(png_structp, png_const_charp) {}

/// Makes every colour type 8 bits of blue, green, red and, where there is transparency, alpha.
void Unify(png_structp pPng, png_infop pInfo) {
    png_set_expand(pPng);
    png_set_scale_16(pPng);
    png_set_gray_to_rgb(pPng);
    png_set_bgr(pPng);
    png_set_interlace_handling(pPng);
    png_read_update_info(pPng, pInfo);
}

bool MakeRows(Decoder& decoder) {
    const int nUnit = png_get_channels(decoder.pPng, decoder.pInfo);
    HBUF32 hPixels = 0;
    if (buf32Alloc(&hPixels, nUnit * 8, decoder.nWidth, decoder.nHeight, 0, nullptr) == 0) {
        return false;
    }
    decoder.pixels.Reset(hPixels);
    const buffer_host::View view = buffer_host::Look(hPixels);
    decoder.rows.resize(static_cast<std::size_t>(decoder.nHeight));
    for (int y = 0; y < decoder.nHeight; ++y) {
        decoder.rows[static_cast<std::size_t>(y)] = view.Row(y);
    }
    return true;
}

bool ReadSize(Decoder& decoder) {
    const png_uint_32 nWidth = png_get_image_width(decoder.pPng, decoder.pInfo);
    const png_uint_32 nHeight = png_get_image_height(decoder.pPng, decoder.pInfo);
    if (const char* pszProblem = picture_codec::SizeProblem(nWidth, nHeight)) {
        decoder.error = pszProblem;
        return false;
    }
    decoder.nWidth = static_cast<int>(nWidth);
    decoder.nHeight = static_cast<int>(nHeight);
    return true;
}

/// No local of this function has a destructor: errors jump out of the library to here.
bool Decode(Decoder& decoder, std::FILE* pFile) {
    if (setjmp(png_jmpbuf(decoder.pPng)) != 0) {
        return false;
    }
    png_init_io(decoder.pPng, pFile);
    // The size is judged here, before pixels are allocated, and with a text of its own.
    png_set_user_limits(decoder.pPng, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
    png_read_info(decoder.pPng, decoder.pInfo);
    if (!ReadSize(decoder)) {
        return false;
    }
    Unify(decoder.pPng, decoder.pInfo);
    if (!MakeRows(decoder)) {
        decoder.error = picture_codec::NoMemory;
        return false;
    }
    png_read_image(decoder.pPng, decoder.rows.data());
    png_read_end(decoder.pPng, nullptr);
    return true;
}

/// Splits pixels with alpha into image and mask.
bool Split(const Decoder& decoder, Picture& picture) {
    HBUF32 hImage = 0;
    HBUF32 hMask = 0;
    buf32Alloc(&hImage, 24, decoder.nWidth, decoder.nHeight, 0, nullptr);
    picture.image.Reset(hImage);
    buf32Alloc(&hMask, 8, decoder.nWidth, decoder.nHeight, 0, nullptr);
    picture.mask.Reset(hMask);
    if (hImage == 0 || hMask == 0) {
        return false;
    }
    const std::uint8_t* pFrom = buffer_host::Look(decoder.pixels.Get()).pixels;
    std::uint8_t* pColor = buffer_host::Look(hImage).pixels;
    std::uint8_t* pAlpha = buffer_host::Look(hMask).pixels;
    const std::size_t nPixels =
        static_cast<std::size_t>(decoder.nWidth) * static_cast<std::size_t>(decoder.nHeight);
    for (std::size_t i = 0; i < nPixels; ++i, pFrom += 4) {
        *pColor++ = pFrom[0];
        *pColor++ = pFrom[1];
        *pColor++ = pFrom[2];
        *pAlpha++ = pFrom[3];
    }
    return true;
}

} // namespace

bool picture_codec::ReadPng(std::FILE* pFile, Picture& picture, std::string& error) {
    Decoder decoder;
    decoder.pPng = png_create_read_struct(PNG_LIBPNG_VER_STRING, &decoder, OnError, OnWarning);
    if (decoder.pPng) {
        decoder.pInfo = png_create_info_struct(decoder.pPng);
    }
    if (!decoder.pInfo) {
        error = NoMemory;
        return false;
    }
    if (!Decode(decoder, pFile)) {
        error = decoder.error;
        return false;
    }
    Picture read;
    read.width = decoder.nWidth;
    read.height = decoder.nHeight;
    if (buffer_host::Look(decoder.pixels.Get()).unit == 3) {
        read.image = std::move(decoder.pixels);
    } else if (!Split(decoder, read)) {
        error = NoMemory;
        return false;
    }
    picture = std::move(read);
    return true;
}
