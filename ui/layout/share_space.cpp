#include "ui/layout/share_space.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace skyvane {

namespace {

double flexibility(const Claim& claim)
{
    return std::isinf(claim.most) ? std::numeric_limits<double>::infinity() : claim.most - claim.least;
}

/// However much is taken from infinity, it stays: infinity less itself would be no number.
double remainder(double space, double taken)
{
    return std::isinf(space) ? space : space - taken;
}

double share(double space, std::size_t sharers)
{
    return std::max(0.0, space) / static_cast<double>(sharers);
}

std::vector<std::size_t> indices(const std::vector<Claim>& claims, bool spacers)
{
    std::vector<std::size_t> list;
    for (std::size_t index = 0; index < claims.size(); ++index) {
        if (claims[index].isSpacer == spacers)
            list.push_back(index);
    }
    return list;
}

} // namespace

std::vector<double> shareSpace(
    double space, const std::vector<Claim>& claims, const LengthOffered& lengthOffered)
{
    std::vector<std::size_t> others = indices(claims, /*spacers=*/false);
    std::stable_sort(others.begin(), others.end(), [&](std::size_t one, std::size_t another) {
        return flexibility(claims[one]) < flexibility(claims[another]);
    });
    std::vector<std::size_t> spacers = indices(claims, /*spacers=*/true);
    std::stable_sort(spacers.begin(), spacers.end(),
        [&](std::size_t one, std::size_t another) { return claims[one].least > claims[another].least; });

    double setAside = 0;
    for (const std::size_t index : spacers)
        setAside += claims[index].least;

    std::vector<double> offers(claims.size());
    double left = remainder(space, setAside);
    for (std::size_t done = 0; done < others.size(); ++done) {
        const std::size_t index = others[done];
        offers[index] = share(left, others.size() - done);
        left = remainder(left, lengthOffered(index, offers[index]));
    }

    left += setAside;
    for (std::size_t done = 0; done < spacers.size(); ++done) {
        const std::size_t index = spacers[done];
        offers[index] = std::max(claims[index].least, share(left, spacers.size() - done));
        left = remainder(left, offers[index]);
    }
    return offers;
}

} // namespace skyvane
