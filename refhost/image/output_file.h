// Files that the host writes for a person.
#pragma once

#include <cstdio>
#include <string>

/// Writes a file beside the named one and puts it in that one's place once it is whole, so that a failure
/// leaves what bore the name as it was. Symbolic links, devices, folders and the like are refused.
class [[nodiscard]] COutputFile {
  public:
    explicit COutputFile(const char* pszFile);
    /// Without a commit nothing stays.
    ~COutputFile();
    COutputFile(const COutputFile&) = delete;
    COutputFile& operator=(const COutputFile&) = delete;

    /// Owned by this object; null when there is no such file to be written.
    std::FILE* Stream() const { return m_pStream; }
    /// False when something of the file could not be written or its place cannot be taken.
    bool Commit();
    /// Why there is no stream or no commit, in one line without the file's name.
    const std::string& Error() const { return m_error; }

  private:
    bool MayReplace();
    bool Fail();
    void Abandon();

    std::string m_name;
    std::string m_beside;
    std::FILE* m_pStream = nullptr;
    int m_nMode = -1; ///< the permissions of the file to be replaced; -1 while there is none
    std::string m_error;
};
