#include "platform/faults.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

struct Fault {
    std::string name;
    bool once;
    unsigned after;
    unsigned asked;
};

bool g_armed = false;

std::vector<Fault>& Faults() {
    static auto& faults = *new std::vector<Fault>;
    return faults;
}

Fault* FindFault(const char* name) {
    auto& faults = Faults();
    const auto found =
        std::find_if(faults.begin(), faults.end(), [name](const Fault& f) { return f.name == name; });
    return found == faults.end() ? nullptr : &*found;
}

} // namespace

void platform::ArmFault(const char* name, bool once, unsigned after) {
    const Fault fault{name, once, after, 0};
    if (Fault* known = FindFault(name)) {
        *known = fault;
    } else {
        Faults().push_back(fault);
    }
    g_armed = true;
}

void platform::ClearFaults() {
    Faults().clear();
    g_armed = false;
}

bool platform::FaultTrips(const char* name) {
    if (!g_armed) {
        return false;
    }
    Fault* fault = FindFault(name);
    if (!fault) {
        return false;
    }
    const unsigned asking = fault->asked++;
    return fault->once ? asking == fault->after : asking >= fault->after;
}
