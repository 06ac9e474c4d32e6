#include "CookieJar.h"

#include <atomic>
#include <cctype>
#include <chrono>
#include <random>
#include <unistd.h>

Cookie CookieJar::makeCookie(int kind, int version, int flags) {
    static std::atomic<std::uint32_t> counter{0};
    thread_local std::mt19937_64 random{std::random_device{}() ^ static_cast<std::uint64_t>(getpid())};
    char k = (kind > 0 && kind < 128 && std::isalnum(kind)) ? static_cast<char>(kind) : 'X';
    auto now = static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
    std::uint64_t high = now;
    std::uint64_t low = (static_cast<std::uint64_t>(static_cast<std::uint32_t>(getpid()) ^ counter++) << 32) | (random() & 0xffffffffu);
    return Cookie(k, static_cast<std::uint8_t>(version), static_cast<std::uint8_t>(flags), high, low);
}
