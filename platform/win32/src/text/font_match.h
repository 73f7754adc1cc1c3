#pragma once

// Which installed font files serve a face.

#include <string>
#include <vector>

namespace win32 {

struct FaceRequest {
    std::string family; // UTF-8; empty: any.
    bool bold = false;
    bool italic = false;

    bool operator==(const FaceRequest&) const = default;
};

struct FontFile {
    std::string path;
    int index = 0; // Of the face in the file.
    std::string family;
    bool bold = false;
    bool italic = false;
};

/// The file nearest to the request, then those for characters that it lacks. Empty when there are no fonts.
/// Only the fonts of a few packages are known, and no user's settings, so that text looks alike everywhere.
std::vector<FontFile> MatchFonts(const FaceRequest& request);

} // namespace win32
