// Clock, checks and output of the benchmarks.
#pragma once

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace measure {

/// Microseconds of wall clock.
inline double NowUs() {
    using namespace std::chrono;
    return duration<double, std::micro>(steady_clock::now().time_since_epoch()).count();
}

/// Ends the program when what it measures did not do its work.
inline void Check(bool bOk, const char* pszWhat) {
    if (!bOk) {
        std::fprintf(stderr, "failed: %s\n", pszWhat);
        std::exit(1);
    }
}

/// The nearest-rank quantile of sorted samples.
inline double Quantile(const std::vector<double>& sorted, double dShare) {
    const double dRank = std::ceil(dShare * static_cast<double>(sorted.size()));
    return sorted[static_cast<std::size_t>(std::max(1.0, dRank)) - 1];
}

/// Prints one figure as a line of JSON and answers its median. `extra` is further members, each led by a
/// comma.
inline double Figure(const char* pszPeer, const std::string& name, int n, std::vector<double> us,
                     const std::string& extra = "") {
    std::sort(us.begin(), us.end());
    const double dMedian = Quantile(us, 0.5);
    std::printf("{\"peer\":\"%s\",\"case\":\"%s\",\"n\":%d,\"median_us\":%.4f,\"p99_us\":%.4f,"
                "\"samples\":%zu%s}\n",
                pszPeer, name.c_str(), n, dMedian, Quantile(us, 0.99), us.size(), extra.c_str());
    return dMedian;
}

/// Runs `reset` untimed and `act` under the clock: once to warm up, then `nCount` times.
template <class Reset, class Act>
std::vector<double> TimedAfter(int nCount, Reset&& reset, Act&& act) {
    std::vector<double> us;
    for (int i = -1; i < nCount; i++) {
        reset();
        const double dStart = NowUs();
        act();
        asm volatile("" ::: "memory");
        if (i >= 0) {
            us.push_back(NowUs() - dStart);
        }
    }
    return us;
}

template <class Act>
std::vector<double> Timed(int nCount, Act&& act) {
    return TimedAfter(
        nCount, [] {}, act);
}

} // namespace measure
