#pragma once

#include "desk/spoken_parts.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace skyvane {

/// A widget as a screen reader meets it: what it shows in words, and what can be pressed of it.
class SpokenView {
public:
    virtual ~SpokenView() = default;

    virtual const std::vector<SpokenPart>& parts() const = 0;
    virtual std::optional<std::size_t> focusedLink() const = 0;

    /// False for a mere picture, which has no links either.
    virtual bool isPressable() const = 0;
    /// Does what a tap on that link does; for an absent one, what a tap beside all links does.
    virtual void press(std::optional<std::size_t> link) = 0;
};

} // namespace skyvane
