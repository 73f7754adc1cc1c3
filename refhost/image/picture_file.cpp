#include "image/picture_file.h"

#include <cerrno>
#include <cstring>
#include <memory>

#include "image/picture_codec.h"

namespace {

constexpr std::size_t SignatureBytes = 8;
constexpr unsigned char PngSignature[SignatureBytes] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
constexpr unsigned char JpegSignature[3] = {0xFF, 0xD8, 0xFF};

struct FileCloser {
    void operator()(std::FILE* pFile) const { std::fclose(pFile); }
};
using CFilePtr = std::unique_ptr<std::FILE, FileCloser>;

bool Fail(std::string& error, const char* pszText) {
    error = pszText;
    return false;
}

} // namespace

bool LoadPicture(const char* pszFile, Picture& picture, std::string& error) {
    const CFilePtr file(std::fopen(pszFile, "rb"));
    if (!file) {
        return Fail(error, std::strerror(errno));
    }
    unsigned char signature[SignatureBytes] = {};
    const std::size_t nRead = std::fread(signature, 1, sizeof signature, file.get());
    if (std::ferror(file.get()) != 0) {
        return Fail(error, std::strerror(errno));
    }
    if (nRead == 0) {
        return Fail(error, "the file is empty");
    }
    std::rewind(file.get());
    if (nRead == SignatureBytes && std::memcmp(signature, PngSignature, sizeof PngSignature) == 0) {
        return picture_codec::ReadPng(file.get(), picture, error);
    }
    if (std::memcmp(signature, JpegSignature, sizeof JpegSignature) == 0) {
        return picture_codec::ReadJpeg(file.get(), picture, error);
    }
    return Fail(error, "neither a PNG nor a JPEG picture");
}
