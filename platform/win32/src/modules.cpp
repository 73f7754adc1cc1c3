#include "handles.h"

#include "platform/faults.h"
#include "platform/modules.h"

#include <dlfcn.h>
#include <strings.h>
#include <unistd.h>

#include <climits>
#include <cstdlib>
#include <string>
#include <vector>

namespace win32 {

using EntryPoint = BOOL (*)(HINSTANCE, DWORD, LPVOID);

struct Module {
    std::string path;
    void* library = nullptr; // From dlopen, which this owns.
    EntryPoint entry = nullptr;
    unsigned references = 1;
    bool stays = false; // As long as the process, however often it is freed.
};

namespace {

constinit CHandleTable<Module, HandleKind::Module> g_modules;
platform::RawStartHook g_rawStart = nullptr;

std::vector<HMODULE>& LoadedModules() {
    static auto& loaded = *new std::vector<HMODULE>;
    return loaded;
}

std::string RealPath(const std::string& path) {
    char* real = realpath(path.c_str(), nullptr);
    std::string result = real ? real : "";
    std::free(real);
    return result;
}

std::string FolderOf(const std::string& path) { return path.substr(0, path.rfind('/') + 1); }

std::string FileOfCode(const void* code) {
    Dl_info info;
    return dladdr(code, &info) && info.dli_fname ? RealPath(info.dli_fname) : "";
}

std::string LayerPath() { return FileOfCode(&g_rawStart); }

// The library that brings the rich-edit control is this layer itself, under its name of old.
bool IsLayer(const std::string& name) { return strcasecmp(name.c_str(), "RICHED32.DLL") == 0; }

std::string ExecutablePath() { return RealPath("/proc/self/exe"); }

std::string Beside(const std::string& folder, const std::string& name) {
    return folder.empty() ? "" : RealPath(folder + name);
}

// The empty string when there is no such file.
std::string Locate(const std::string& name, const void* caller) {
    if (name.find('/') != std::string::npos) {
        return RealPath(name);
    }
    if (IsLayer(name)) {
        return LayerPath();
    }
    const std::string beside = Beside(FolderOf(FileOfCode(caller)), name);
    return beside.empty() ? Beside(FolderOf(ExecutablePath()), name) : beside;
}

HMODULE FindLoaded(const std::string& path) {
    for (HMODULE handle : LoadedModules()) {
        if (g_modules.Find(handle)->path == path) {
            return handle;
        }
    }
    return nullptr;
}

HMODULE Enter(std::unique_ptr<Module> module) {
    const HMODULE handle = reinterpret_cast<HMODULE>(g_modules.Add(std::move(module)));
    if (handle) {
        LoadedModules().push_back(handle);
    }
    return handle;
}

HMODULE EnterStaying(const std::string& path, void* library) {
    auto module = std::make_unique<Module>();
    module->path = path;
    module->library = library;
    module->stays = true;
    return Enter(std::move(module));
}

HMODULE Executable() {
    static const HMODULE executable = EnterStaying(ExecutablePath(), dlopen(nullptr, RTLD_NOW));
    return executable;
}

HMODULE Layer() {
    static const HMODULE layer =
        EnterStaying(LayerPath(), dlopen(LayerPath().c_str(), RTLD_NOW | RTLD_NOLOAD));
    return layer;
}

// Drops the module from the table before it is closed: its destructors must not find it any more.
void Close(HMODULE handle) {
    std::erase(LoadedModules(), handle);
    if (const std::unique_ptr<Module> module = g_modules.Remove(handle)) {
        dlclose(module->library);
    }
}

HMODULE Open(const std::string& path) {
    if (g_rawStart) {
        g_rawStart();
    }
    void* library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!library) {
        FailWith(ERROR_MOD_NOT_FOUND);
        return nullptr;
    }
    auto module = std::make_unique<Module>();
    module->path = path;
    module->library = library;
    module->entry = reinterpret_cast<EntryPoint>(dlsym(library, "DllMain"));
    const HMODULE handle = Enter(std::move(module));
    if (!handle) {
        dlclose(library);
        FailWith(ERROR_NOT_ENOUGH_MEMORY);
    }
    return handle;
}

// A module without an entry point holds resources alone and is ready when it is open.
bool Attach(HMODULE handle) {
    const Module& module = *g_modules.Find(handle);
    if (!module.entry) {
        return !platform::FaultTrips("resource") || FailWith(ERROR_MOD_NOT_FOUND);
    }
    return module.entry(handle, DLL_PROCESS_ATTACH, nullptr) || FailWith(ERROR_DLL_INIT_FAILED);
}

HMODULE Load(const std::string& path) {
    if (path == LayerPath()) {
        return Layer();
    }
    const HMODULE handle = Open(path);
    if (handle && !Attach(handle)) {
        Close(handle);
        return nullptr;
    }
    return handle;
}

} // namespace

} // namespace win32

using namespace win32;

void platform::SetRawStartHook(RawStartHook hook) { g_rawStart = hook; }

[[gnu::noinline]] HMODULE LoadLibraryA(LPCSTR name) {
    if (!name || !*name) {
        FailWith(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    const std::string path = Locate(name, __builtin_return_address(0));
    if (path.empty()) {
        FailWith(ERROR_FILE_NOT_FOUND);
        return nullptr;
    }
    if (const HMODULE loaded = FindLoaded(path)) {
        ++g_modules.Find(loaded)->references;
        return loaded;
    }
    return Load(path);
}

BOOL FreeLibrary(HMODULE handle) {
    Module* module = g_modules.Find(handle);
    if (!module) {
        return FailWith(ERROR_INVALID_HANDLE);
    }
    if (module->stays || --module->references > 0) {
        return TRUE;
    }
    if (module->entry) {
        module->entry(handle, DLL_PROCESS_DETACH, nullptr);
    }
    Close(handle);
    return TRUE;
}

FARPROC GetProcAddress(HMODULE handle, LPCSTR name) {
    const Module* module = g_modules.Find(handle);
    if (!module) {
        FailWith(ERROR_INVALID_HANDLE);
        return nullptr;
    }
    void* address = IS_INTRESOURCE(name) ? nullptr : dlsym(module->library, name);
    if (!address) {
        FailWith(ERROR_PROC_NOT_FOUND);
    }
    return reinterpret_cast<FARPROC>(address);
}

[[gnu::noinline]] HMODULE GetModuleHandleA(LPCSTR name) {
    if (!name) {
        return Executable();
    }
    const HMODULE loaded = FindLoaded(Locate(name, __builtin_return_address(0)));
    if (!loaded) {
        FailWith(ERROR_MOD_NOT_FOUND);
    }
    return loaded;
}

DWORD GetModuleFileNameA(HMODULE handle, LPSTR path, DWORD size) {
    const Module* module = g_modules.Find(handle ? handle : Executable());
    if (!module || !path || size == 0) {
        return static_cast<DWORD>(FailWith(module ? ERROR_INVALID_PARAMETER : ERROR_INVALID_HANDLE));
    }
    const DWORD length = static_cast<DWORD>(module->path.copy(path, size - 1));
    path[length] = '\0';
    if (length < module->path.size()) {
        FailWith(ERROR_INSUFFICIENT_BUFFER);
    }
    return length;
}
