#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <memory>
#include <new>
#include <utility>

#include "component/component_file.h"
#include "component/component_format.h"

namespace format = component_format;

namespace {

using CBytes = std::span<const std::uint8_t>;

/// Takes a file's bytes from the front. After the first that is missing nothing more is given.
class CTaker {
  public:
    explicit CTaker(CBytes bytes) : m_left(bytes) {}

    bool IsAtEnd() const { return m_left.empty(); }
    CBytes Bytes(std::uint64_t nCount) {
        if (nCount > m_left.size()) {
            m_bMissing = true;
        }
        const CBytes taken = m_bMissing ? CBytes() : m_left.first(static_cast<std::size_t>(nCount));
        m_left = m_left.subspan(taken.size());
        return taken;
    }
    std::uint32_t Unsigned() {
        std::uint32_t nValue = 0;
        unsigned nShift = 0;
        for (const std::uint8_t byte : Bytes(sizeof nValue)) {
            nValue |= std::uint32_t{byte} << nShift;
            nShift += 8;
        }
        return nValue;
    }
    std::int32_t Signed() { return static_cast<std::int32_t>(Unsigned()); }
    bool IsMissing() const { return m_bMissing; }

  private:
    CBytes m_left;
    bool m_bMissing = false;
};

bool ReadName(CTaker& taker, std::string& name) {
    const std::uint32_t nLength = taker.Unsigned();
    if (nLength > MostNameBytes) {
        return false;
    }
    const CBytes bytes = taker.Bytes(nLength);
    name.assign(bytes.begin(), bytes.end());
    return !taker.IsMissing() && name.find('\0') == std::string::npos;
}

bool ReadPicture(CTaker& taker, std::uint32_t nBitsWanted, CBufferPtr& picture) {
    const std::int32_t nWidth = taker.Signed();
    const std::int32_t nHeight = taker.Signed();
    const std::uint32_t nBits = taker.Unsigned();
    const std::uint64_t nLength = taker.Unsigned();
    if (nBits != nBitsWanted || !buffer_host::IsSize(nWidth, nHeight) ||
        nLength !=
            std::uint64_t{nBits / 8} * static_cast<unsigned>(nWidth) * static_cast<unsigned>(nHeight)) {
        return false;
    }
    const CBytes pixels = taker.Bytes(nLength);
    HBUF32 hBuf = 0;
    if (taker.IsMissing() || !buf32Alloc(&hBuf, static_cast<int>(nBits), nWidth, nHeight, 0, nullptr)) {
        return false;
    }
    picture.Reset(hBuf);
    std::copy(pixels.begin(), pixels.end(), buffer_host::Look(hBuf).pixels);
    return true;
}

bool ReadObject(CTaker& taker, ComponentObject& object) {
    if (!ReadName(taker, object.name)) {
        return false;
    }
    object.x = taker.Signed();
    object.y = taker.Signed();
    object.width = taker.Signed();
    object.height = taker.Signed();
    const std::uint32_t nFlags = taker.Unsigned();
    if (taker.IsMissing() || (nFlags & ~(format::ImageFlag | format::MaskFlag)) != 0) {
        return false;
    }
    return ((nFlags & format::ImageFlag) == 0 || ReadPicture(taker, format::ImageBits, object.image)) &&
           ((nFlags & format::MaskFlag) == 0 || ReadPicture(taker, format::MaskBits, object.mask));
}

struct FileCloser {
    void operator()(std::FILE* pFile) const { std::fclose(pFile); }
};
using CFilePtr = std::unique_ptr<std::FILE, FileCloser>;

/// Opens a plain file of a length that can be a component's. Pipes and devices may have no end.
CFilePtr OpenPlain(const char* pszFile, std::size_t& nLength) {
    const int nFile = open(pszFile, O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    CFilePtr file(nFile >= 0 ? fdopen(nFile, "rb") : nullptr);
    struct stat status;
    if (!file) {
        if (nFile >= 0) {
            close(nFile);
        }
        return nullptr;
    }
    if (fstat(nFile, &status) != 0 || !S_ISREG(status.st_mode) ||
        status.st_size < static_cast<off_t>(format::HeaderBytes) ||
        status.st_size > static_cast<off_t>(format::MostFileBytes)) {
        return nullptr;
    }
    nLength = static_cast<std::size_t>(status.st_size);
    return file;
}

} // namespace

bool ReadComponent(std::span<const std::uint8_t> bytes, std::vector<ComponentObject>& objects) {
    CTaker taker(bytes);
    const CBytes magic = taker.Bytes(format::Magic.size());
    const std::uint32_t nVersion = taker.Unsigned();
    const std::uint32_t nLength = taker.Unsigned();
    const std::uint32_t nObjects = taker.Unsigned();
    if (taker.IsMissing() || !std::equal(format::Magic.begin(), format::Magic.end(), magic.begin()) ||
        nVersion != format::Version || nLength != bytes.size()) {
        return false;
    }
    // The list grows with what has been read: the stated number alone reserves nothing.
    std::vector<ComponentObject> read;
    for (std::uint32_t n = 0; n < nObjects; n++) {
        if (!ReadObject(taker, read.emplace_back())) {
            return false;
        }
    }
    if (!taker.IsAtEnd()) {
        return false;
    }
    objects = std::move(read);
    return true;
}

bool LoadComponent(const char* pszFile, std::vector<ComponentObject>& objects) noexcept {
    std::size_t nLength = 0;
    const CFilePtr file = OpenPlain(pszFile, nLength);
    const std::unique_ptr<std::uint8_t[]> bytes(file ? new (std::nothrow) std::uint8_t[nLength] : nullptr);
    if (!bytes || std::fread(bytes.get(), 1, nLength, file.get()) != nLength) {
        return false;
    }
    try {
        return ReadComponent({bytes.get(), nLength}, objects);
    } catch (const std::bad_alloc&) {
        return false;
    }
}
