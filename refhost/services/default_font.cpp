#include <algorithm>
#include <cstring>
#include <optional>
#include <string>

#include "host/services.h"
#include "services/services_host.h"

namespace {

std::optional<std::string>& DefaultFontName() {
    static std::optional<std::string> name("Arial");
    return name;
}

} // namespace

void SetDefaultFontName(const char* pszName) {
    DefaultFontName() = pszName ? std::optional<std::string>(pszName) : std::nullopt;
}

int gfnGetDefaultFontNameFromQuorProd(char* pszName, int nSize) {
    const std::optional<std::string>& name = DefaultFontName();
    if (!name || !pszName || nSize < 1) {
        return 0;
    }
    const std::size_t nBytes = std::min(name->size(), static_cast<std::size_t>(nSize) - 1);
    std::memcpy(pszName, name->data(), nBytes);
    pszName[nBytes] = '\0';
    return 1;
}
