// The kinds under which objects are found on the object bus, and the two categories they are given in.
#pragma once

#include <windows.h>

/// Category GUID of almost every kind.
inline constexpr GUID CategoryId = {
    0xBE98FA21, 0xB7B0, 0x11D3, {0xB9, 0x13, 0x00, 0x00, 0xE8, 0x67, 0x86, 0x52}};
/// Category GUID of the two composite tools and of the object clipboard.
inline constexpr GUID EditCategoryId = {
    0x78B62D71, 0xBCE8, 0x4B2E, {0x97, 0xFB, 0x54, 0x30, 0x9A, 0xBC, 0x59, 0x88}};

/// Kind numbers under CategoryId. The tool classes' own are in `tool_kind`.
namespace kind {
inline constexpr int Any = 0;             ///< answered by every listener of the canvas
inline constexpr int PropertyArea = 1;    ///< the property page that is showing
inline constexpr int Tool = 3;            ///< every tool
inline constexpr int Document = 4;        ///< the document service
inline constexpr int ComposedPage = 6;    ///< the property page of both object sorts
inline constexpr int ObjectPage = 7;      ///< the property page of picture objects
inline constexpr int TextPage = 12;       ///< the property page of text objects
inline constexpr int PageObjects = 27;    ///< receives node-level notifications
inline constexpr int CurrentTool = 37;    ///< the state asked of a tool: is it the current one
inline constexpr int ChangeReceiver = 38; ///< global, told after objects changed
inline constexpr int RedrawReceiver = 45; ///< global, told after objects were redrawn
inline constexpr int ChangeTracker = 51;  ///< global, told first after objects changed
} // namespace kind

/// Kind numbers under EditCategoryId.
namespace edit_kind {
inline constexpr int ObjectClipboard = 12;
} // namespace edit_kind
