#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

/// What the fuzzing library, or `replay.cpp` in its place, calls with every input. Returns 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace skyvane::fuzz {

inline std::string_view text(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), size};
}

/// Stops the process, in every kind of build, when what must hold of all inputs does not hold of this one.
inline void require(bool holds)
{
    if (!holds)
        std::abort();
}

} // namespace skyvane::fuzz
