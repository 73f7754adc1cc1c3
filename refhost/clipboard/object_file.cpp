#include "clipboard/object_file.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <new>

#include "clipboard/object_bytes.h"
#include "image/output_file.h"

namespace {

struct FileCloser {
    void operator()(std::FILE* pFile) const { std::fclose(pFile); }
};
using CFilePtr = std::unique_ptr<std::FILE, FileCloser>;

bool Fail(std::string& error, const char* pszText) {
    error = pszText;
    return false;
}

/// False when the file breaks off or cannot be read.
bool ReadBytes(std::FILE* pFile, std::uint8_t* pBytes, std::size_t nBytes) {
    return std::fread(pBytes, 1, nBytes, pFile) == nBytes;
}

constexpr char Damaged[] = "it holds no objects, or damaged ones";

bool FailToRead(std::string& error) { return Fail(error, errno != 0 ? std::strerror(errno) : Damaged); }

bool ReadWhole(std::FILE* pFile, std::uint64_t nSize, std::vector<std::uint8_t>& bytes, std::string& error) {
    errno = 0;
    bytes.resize(ObjectHeadBytes);
    if (!ReadBytes(pFile, bytes.data(), bytes.size())) {
        return FailToRead(error);
    }
    if (PromisedLength(bytes) != nSize || nSize < ObjectHeadBytes) {
        return Fail(error, Damaged);
    }
    bytes.resize(static_cast<std::size_t>(nSize));
    if (!ReadBytes(pFile, bytes.data() + ObjectHeadBytes, bytes.size() - ObjectHeadBytes)) {
        return FailToRead(error);
    }
    return AreObjects(bytes) || Fail(error, Damaged);
}

} // namespace

bool SaveObjectFile(const char* pszFile, ByteView bytes, std::string& error) {
    COutputFile file(pszFile);
    if (file.Stream()) {
        std::fwrite(bytes.data(), 1, bytes.size(), file.Stream());
    }
    const bool bWritten = file.Commit();
    error = file.Error();
    return bWritten;
}

// Opening a pipe would wait for somebody to write into it, so what the name stands for is asked before.
bool LoadObjectFile(const char* pszFile, std::vector<std::uint8_t>& bytes, std::string& error) {
    struct stat status;
    if (stat(pszFile, &status) != 0) {
        return Fail(error, std::strerror(errno));
    }
    if (!S_ISREG(status.st_mode)) {
        return Fail(error, "it is no plain file");
    }
    const CFilePtr file(std::fopen(pszFile, "rb"));
    if (!file) {
        return Fail(error, std::strerror(errno));
    }
    try {
        std::vector<std::uint8_t> read;
        if (!ReadWhole(file.get(), static_cast<std::uint64_t>(status.st_size), read, error)) {
            return false;
        }
        bytes = std::move(read);
        return true;
    } catch (const std::bad_alloc&) {
        return Fail(error, "not enough memory");
    }
}
