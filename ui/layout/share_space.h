#pragma once

#include <cstddef>
#include <functional>
#include <vector>

namespace skyvane {

/// How much a child wants along the stack that holds it, points.
struct Claim {
    double least; ///< Its length when offered nothing; a spacer's minimum length.
    double most; ///< Its length when offered everything; may be infinite.
    bool isSpacer = false;
};

/// The length that the child of this index takes when it is offered so much.
using LengthOffered = std::function<double(std::size_t child, double offer)>;

/// What a stack offers each of its children. The least flexible is asked first, each gets an equal share of
/// what is left, so that only the longest go short. Spacers divide what the others left, none below its
/// minimum, which nobody else is offered. `space` is without the stack's spacing and may be infinite.
std::vector<double> shareSpace(
    double space, const std::vector<Claim>& claims, const LengthOffered& lengthOffered);

} // namespace skyvane
