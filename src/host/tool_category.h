// What the host hands to the module's entry.
#pragma once

class CListenerObject;

/// The host's tool category. The module knows its first operation only.
struct IToolCategory {
    /// Takes the tool over; the host owns it from then on. The module ignores the result.
    virtual int AddTool(CListenerObject* pTool) = 0;
};

/// The module's one entry, exported undecorated: makes the eleven tools and hands each to the category. 1, or
/// 0 when a tool cannot be made; tools handed over before stay with the host.
extern "C" int g_fnLoadAndLinkToolCat(IToolCategory* pCategory);
using LoadAndLinkToolCat = int (*)(IToolCategory*);
