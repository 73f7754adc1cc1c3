#include <algorithm>
#include <cstdio>

#include "component/component_file.h"
#include "component/component_format.h"
#include "image/output_file.h"

namespace format = component_format;

namespace {

using buffer_host::Look;
using buffer_host::View;

constexpr std::size_t NumberBytes = 4;
constexpr std::size_t ObjectBytes = 6 * NumberBytes;  ///< length of the name, rectangle, flags
constexpr std::size_t PictureBytes = 4 * NumberBytes; ///< before the pixels

std::size_t PixelBytes(const View& view) { return view.RowBytes() * static_cast<std::size_t>(view.height); }

std::size_t LengthOf(HBUF32 hPicture) {
    return hPicture != 0 ? PictureBytes + PixelBytes(Look(hPicture)) : 0;
}

std::size_t LengthOf(const std::vector<ComponentObject>& objects) {
    std::size_t nLength = format::HeaderBytes;
    for (const ComponentObject& object : objects) {
        nLength +=
            ObjectBytes + object.name.size() + LengthOf(object.image.Get()) + LengthOf(object.mask.Get());
    }
    return nLength;
}

/// Why the objects make no file, or null.
const char* ProblemOf(const std::vector<ComponentObject>& objects) {
    for (const ComponentObject& object : objects) {
        if (object.name.size() > MostNameBytes || object.name.find('\0') != std::string::npos) {
            return "a name has more than 131 bytes or a zero byte";
        }
        if ((object.image && Look(object.image.Get()).unit != format::ImageBits / 8) ||
            (object.mask && Look(object.mask.Get()).unit != format::MaskBits / 8)) {
            return "an image has to have 24 bits a pixel and a mask 8";
        }
    }
    return LengthOf(objects) > format::MostFileBytes ? "the component has more than a gibibyte" : nullptr;
}

// What a stream could not take shows at the commit.
void PutNumber(std::FILE* pFile, std::uint32_t nValue) {
    for (unsigned nShift = 0; nShift < 32; nShift += 8) {
        std::fputc(static_cast<int>(nValue >> nShift & 0xFF), pFile);
    }
}

void PutNumber(std::FILE* pFile, std::int32_t nValue) {
    PutNumber(pFile, static_cast<std::uint32_t>(nValue));
}

void PutPicture(std::FILE* pFile, HBUF32 hPicture) {
    const View view = Look(hPicture);
    if (!view.pixels) {
        return;
    }
    PutNumber(pFile, view.width);
    PutNumber(pFile, view.height);
    PutNumber(pFile, view.unit * 8);
    PutNumber(pFile, static_cast<std::uint32_t>(PixelBytes(view)));
    std::fwrite(view.pixels, 1, PixelBytes(view), pFile);
}

void PutObject(std::FILE* pFile, const ComponentObject& object) {
    PutNumber(pFile, static_cast<std::uint32_t>(object.name.size()));
    std::fwrite(object.name.data(), 1, object.name.size(), pFile);
    for (const std::int32_t nValue : {object.x, object.y, object.width, object.height}) {
        PutNumber(pFile, nValue);
    }
    PutNumber(pFile, (object.image ? format::ImageFlag : 0) | (object.mask ? format::MaskFlag : 0));
    PutPicture(pFile, object.image.Get());
    PutPicture(pFile, object.mask.Get());
}

} // namespace

bool WriteComponent(const char* pszFile, const std::vector<ComponentObject>& objects, std::string& error) {
    if (const char* pszProblem = ProblemOf(objects)) {
        error = pszProblem;
        return false;
    }
    COutputFile file(pszFile);
    if (std::FILE* const pFile = file.Stream()) {
        std::fwrite(format::Magic.data(), 1, format::Magic.size(), pFile);
        PutNumber(pFile, format::Version);
        PutNumber(pFile, static_cast<std::uint32_t>(LengthOf(objects)));
        PutNumber(pFile, static_cast<std::uint32_t>(objects.size()));
        for (const ComponentObject& object : objects) {
            PutObject(pFile, object);
        }
    }
    if (!file.Commit()) {
        error = file.Error();
        return false;
    }
    return true;
}
