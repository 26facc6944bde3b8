#include "ui/layout/sizing.h"

#include "ui/layout/bounded.h"
#include "ui/layout/share_space.h"
#include "ui/layout/text_layout.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace skyvane {

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

/// Real trees ask a node for fewer than 20 sizes. Past this, a tree made to explode gets the last answer
/// again.
constexpr std::size_t mostAnswers = 64;

double limited(double offer, const std::optional<double>& maximum)
{
    return maximum ? std::min(offer, std::max(0.0, *maximum)) : offer;
}

double grown(double child, double offer, const std::optional<double>& maximum)
{
    return maximum ? std::max(child, limited(offer, maximum)) : child;
}

Size canvasSize(const Canvas& canvas, Size offer)
{
    constexpr double ideal = 10;
    constexpr double extreme = 1000;
    const double ratio = canvas.aspectRatio > 0 ? std::clamp(canvas.aspectRatio, 1 / extreme, extreme) : 1;
    double width = std::min(offer.width, offer.height * ratio);
    if (std::isinf(width))
        width = ideal;
    return {.width = width, .height = width / ratio};
}

const Spacer* asSpacer(const View& view)
{
    return std::get_if<Spacer>(&view.node);
}

double minimumLength(const Spacer& spacer)
{
    return std::max(0.0, boundedLength(spacer.minLength));
}

} // namespace

Sizing::Sizing(const TextMeasurer& measurer) : m_measurer(measurer) { }

Size Sizing::size(const View& view, Size offer)
{
    if (std::holds_alternative<Text>(view.node))
        offer.height = infinity; // Of no concern to it, and so no reason to measure again.
    if (const auto known = m_answers.find(&view); known != m_answers.end()) {
        const std::vector<Answer>& answers = known->second;
        const auto same = std::find_if(
            answers.begin(), answers.end(), [&](const Answer& answer) { return answer.offer == offer; });
        if (same != answers.end())
            return same->size;
        if (answers.size() == mostAnswers)
            return answers.back().size;
    }
    const Size size = answer(view, offer);
    m_answers[&view].push_back({.offer = offer, .size = size});
    return size;
}

Size Sizing::answer(const View& view, Size offer)
{
    struct Visitor {
        Sizing& sizing;
        Size offer;

        Size operator()(const Text& text) { return layoutText(text, offer.width, sizing.m_measurer).size(); }
        Size operator()(const Symbol& symbol)
        {
            const double side = Sizing::side(symbol.font);
            return {.width = side, .height = side};
        }
        Size operator()(const HStack& stack) { return sizing.arrange(stack, offer).size; }
        Size operator()(const VStack& stack) { return sizing.arrange(stack, offer).size; }
        Size operator()(const Spacer&) { return offer; }
        Size operator()(const Frame& frame)
        {
            const Size child = sizing.size(frame.child[0], offerInside(frame, offer));
            return {
                .width = grown(child.width, offer.width, frame.maxWidth),
                .height = grown(child.height, offer.height, frame.maxHeight),
            };
        }
        Size operator()(const Overlay& overlay) { return sizing.size(overlay.child[0], offer); }
        Size operator()(const Canvas& canvas) { return canvasSize(canvas, offer); }
        Size operator()(const Link& link) { return sizing.size(link.child[0], offer); }
        Size operator()(const UnknownView&) { return {.width = 0, .height = 0}; }
    };
    return std::visit(Visitor{.sizing = *this, .offer = offer}, view.node);
}

StackArrangement Sizing::arrange(const HStack& stack, Size offer)
{
    return arrange(stack.children, stack.spacing, Axis::horizontal, offer);
}

StackArrangement Sizing::arrange(const VStack& stack, Size offer)
{
    return arrange(stack.children, stack.spacing, Axis::vertical, offer);
}

StackArrangement Sizing::arrange(const ViewList& children, double spacing, Axis axis, Size offer)
{
    std::vector<const View*> known;
    for (const View& child : children) {
        if (!std::holds_alternative<UnknownView>(child.node))
            known.push_back(&child);
    }
    if (known.empty())
        return {.slots = {}, .size = {.width = 0, .height = 0}};

    const double gap = boundedLength(spacing);
    const double space = std::max(0.0, along(axis, offer) - gap * static_cast<double>(known.size() - 1));
    const std::vector<Size> offered = offers(known, space, axis, offer);

    StackArrangement result{.slots = {}, .size = {}};
    double end = 0;
    double thickness = 0;
    for (std::size_t index = 0; index < known.size(); ++index) {
        const bool isSpacer = asSpacer(*known[index]) != nullptr;
        const Size size = isSpacer ? sizeOn(axis, along(axis, offered[index]), 0)
                                   : this->size(*known[index], offered[index]);
        const double start = index == 0 ? 0 : end + gap;
        result.slots.push_back(
            {.child = known[index], .offer = offered[index], .size = size, .start = start});
        end = start + along(axis, size);
        thickness = std::max(thickness, across(axis, size));
    }
    result.size = sizeOn(axis, std::max(0.0, end), thickness);
    return result;
}

std::vector<Size> Sizing::offers(
    const std::vector<const View*>& children, double space, Axis axis, Size offer)
{
    const auto lengthOffered = [&](std::size_t child, double length) {
        return along(axis, size(*children[child], sizeOn(axis, length, across(axis, offer))));
    };
    // Offered nothing or everything, all are offered the same, and there is no order to find out.
    const bool isOrdered = space > 0 && !std::isinf(space);
    std::vector<Claim> claims;
    for (std::size_t index = 0; index < children.size(); ++index) {
        if (const Spacer* spacer = asSpacer(*children[index]))
            claims.push_back({.least = minimumLength(*spacer), .most = infinity, .isSpacer = true});
        else if (isOrdered)
            claims.push_back({.least = lengthOffered(index, 0), .most = lengthOffered(index, infinity)});
        else
            claims.push_back({.least = 0, .most = 0});
    }

    std::vector<Size> result;
    for (const double length : shareSpace(space, claims, lengthOffered))
        result.push_back(sizeOn(axis, length, across(axis, offer)));
    return result;
}

Size Sizing::offerInside(const Frame& frame, Size offer)
{
    return {.width = limited(offer.width, frame.maxWidth), .height = limited(offer.height, frame.maxHeight)};
}

/// About as high as a line of the usual interface faces, in whatever face, and so with whatever line, texts
/// are shown.
double Sizing::side(const Font& symbolFont)
{
    constexpr double lineHeight = 1.17;
    return faceOf(symbolFont).size * lineHeight;
}

} // namespace skyvane
