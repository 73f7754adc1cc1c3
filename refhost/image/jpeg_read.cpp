#include "image/picture_codec.h"

#include <csetjmp>

#include <jpeglib.h>

#include <jerror.h>

namespace {

/// Everything that outlives a jump out of the decoder stands here, so that no destructor is jumped over.
struct Decoder {
    Decoder() = default;
    Decoder(const Decoder&) = delete;
    Decoder& operator=(const Decoder&) = delete;
    ~Decoder() { jpeg_destroy_decompress(&info); }

    jpeg_decompress_struct info{};
    jpeg_error_mgr manager{};
    std::jmp_buf jump;
    std::string error;
    CBufferPtr pixels;
    int nWidth = 0;
    int nHeight = 0;
};

void OnError(j_common_ptr pInfo) {
    Decoder& decoder = *static_cast<Decoder*>(pInfo->client_data);
    char text[JMSG_LENGTH_MAX];
    pInfo->err->format_message(pInfo, text);
    decoder.error = std::string("damaged or truncated JPEG: ") + text;
    std::longjmp(decoder.jump, 1);
}

/// The library paints over what is missing and goes on; here a picture that is cut short is none.
void OnMessage(j_common_ptr pInfo, int nLevel) {
    const int nCode = pInfo->err->msg_code;
    if (nLevel < 0 && (nCode == JWRN_JPEG_EOF || nCode == JWRN_HIT_MARKER)) {
        OnError(pInfo);
    }
}

bool Prepare(Decoder& decoder) {
    const unsigned nWidth = decoder.info.image_width;
    const unsigned nHeight = decoder.info.image_height;
    if (const char* pszProblem = picture_codec::SizeProblem(nWidth, nHeight)) {
        decoder.error = pszProblem;
        return false;
    }
    if (decoder.info.jpeg_color_space == JCS_CMYK || decoder.info.jpeg_color_space == JCS_YCCK) {
        decoder.error = "JPEG pictures in printing colours (CMYK) are not read";
        return false;
    }
    HBUF32 hPixels = 0;
    if (buf32Alloc(&hPixels, 24, static_cast<int>(nWidth), static_cast<int>(nHeight), 0, nullptr) == 0) {
        decoder.error = picture_codec::NoMemory;
        return false;
    }
    decoder.pixels.Reset(hPixels);
    decoder.nWidth = static_cast<int>(nWidth);
    decoder.nHeight = static_cast<int>(nHeight);
    decoder.info.out_color_space = JCS_EXT_BGR;
    return true;
}

void ReadRows(Decoder& decoder) {
    const buffer_host::View view = buffer_host::Look(decoder.pixels.Get());
    while (decoder.info.output_scanline < decoder.info.output_height) {
        JSAMPROW pRow = view.Row(static_cast<int>(decoder.info.output_scanline));
        jpeg_read_scanlines(&decoder.info, &pRow, 1);
    }
}

/// No local of this function has a destructor: errors jump out of the library to here.
bool Decode(Decoder& decoder, std::FILE* pFile) {
    if (setjmp(decoder.jump) != 0) {
        return false;
    }
    jpeg_create_decompress(&decoder.info);
    jpeg_stdio_src(&decoder.info, pFile);
    jpeg_read_header(&decoder.info, TRUE);
    if (!Prepare(decoder)) {
        return false;
    }
    jpeg_start_decompress(&decoder.info);
    ReadRows(decoder);
    jpeg_finish_decompress(&decoder.info);
    return true;
}

} // namespace

bool picture_codec::ReadJpeg(std::FILE* pFile, Picture& picture, std::string& error) {
    Decoder decoder;
    decoder.info.err = jpeg_std_error(&decoder.manager);
    decoder.manager.error_exit = OnError;
    decoder.manager.emit_message = OnMessage;
    decoder.info.client_data = &decoder;
    if (!Decode(decoder, pFile)) {
        error = decoder.error;
        return false;
    }
    picture.image = std::move(decoder.pixels);
    picture.mask.Reset();
    picture.width = decoder.nWidth;
    picture.height = decoder.nHeight;
    return true;
}
