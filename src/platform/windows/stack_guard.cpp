// The guard value of the compiler's stack protector. The compiler's own library asks the system's
// cryptography for it in a static constructor, which loads further libraries while the system's
// loader is still loading this one; reading clocks does not.
#include <windows.h>

#include <cstdint>
#include <initializer_list>

extern "C" {

std::uintptr_t __stack_chk_guard = 0;

// Nothing on the stack can be trusted any more, so nothing is told or released.
[[noreturn]] void __stack_chk_fail() {
    __builtin_trap();
}

}  // extern "C"

namespace {

// The guard must not change while a protected function is running, this one included.
[[gnu::constructor, gnu::no_stack_protector]] void chooseGuard() {
    LARGE_INTEGER counter{};
    QueryPerformanceCounter(&counter);
    FILETIME time{};
    GetSystemTimeAsFileTime(&time);
    std::uint64_t mixed = static_cast<std::uint64_t>(counter.QuadPart);
    for (const std::uint64_t value :
         {std::uint64_t{time.dwHighDateTime} << 32U | time.dwLowDateTime,
          std::uint64_t{GetCurrentProcessId()}, std::uint64_t{GetCurrentThreadId()},
          std::uint64_t{reinterpret_cast<std::uintptr_t>(&counter)}}) {
        mixed = (mixed ^ value) * 0x9E3779B97F4A7C15U;
        mixed ^= mixed >> 29U;
    }
    // A zero byte stops an overrun that copies a text.
    __stack_chk_guard = static_cast<std::uintptr_t>(mixed) & ~std::uintptr_t{0xFF};
}

}  // namespace
