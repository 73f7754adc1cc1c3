#include "image/output_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <utility>

namespace {

constexpr int MostNames = 100;

/// A name in the same folder that nobody else is likely to use.
std::string NameBeside(const std::string& name, int n) {
    const std::size_t nSlash = name.rfind('/');
    const std::string folder = nSlash == std::string::npos ? "" : name.substr(0, nSlash + 1);
    return folder + ".pradix-" + std::to_string(getpid()) + "-" + std::to_string(n);
}

} // namespace

COutputFile::COutputFile(const char* pszFile) : m_name(pszFile) {
    if (!MayReplace()) {
        return;
    }
    int nFile = -1;
    for (int n = 0; n < MostNames && nFile < 0; ++n) {
        m_beside = NameBeside(m_name, n);
        nFile = open(m_beside.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (nFile < 0 && errno != EEXIST) {
            break;
        }
    }
    if (nFile < 0) {
        m_beside.clear();
        Fail();
        return;
    }
    m_pStream = fdopen(nFile, "wb");
    if (!m_pStream) {
        Fail();
        close(nFile);
    }
}

COutputFile::~COutputFile() { Abandon(); }

bool COutputFile::MayReplace() {
    struct stat status;
    if (lstat(m_name.c_str(), &status) != 0) {
        return errno == ENOENT || Fail();
    }
    if (!S_ISREG(status.st_mode)) {
        m_error = S_ISLNK(status.st_mode) ? "a symbolic link is not written through"
                                          : "it is no plain file, so it is not written over";
        return false;
    }
    m_nMode = static_cast<int>(status.st_mode & 07777);
    return access(m_name.c_str(), W_OK) == 0 || Fail();
}

bool COutputFile::Commit() {
    if (!m_pStream) {
        return false;
    }
    const bool bMode = m_nMode < 0 || fchmod(fileno(m_pStream), static_cast<mode_t>(m_nMode)) == 0;
    const bool bWritten = std::ferror(m_pStream) == 0;
    // What is still in the stream's buffer may find the disk full.
    const bool bClosed = std::fclose(std::exchange(m_pStream, nullptr)) == 0;
    if (!bMode || !bClosed || !bWritten || std::rename(m_beside.c_str(), m_name.c_str()) != 0) {
        errno = bWritten ? errno : EIO;
        return Fail();
    }
    m_beside.clear();
    return true;
}

bool COutputFile::Fail() {
    m_error = std::strerror(errno);
    Abandon();
    return false;
}

void COutputFile::Abandon() {
    if (m_pStream) {
        std::fclose(std::exchange(m_pStream, nullptr));
    }
    if (!m_beside.empty()) {
        unlink(m_beside.c_str());
    }
    m_beside.clear();
}
