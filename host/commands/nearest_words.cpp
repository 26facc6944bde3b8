#include "host/commands/nearest_words.h"

#include "host/extension/error.h"
#include "platform/text/compass.h"
#include "platform/text/locale.h"
#include "platform/text/printable.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <iterator>
#include <numbers>
#include <optional>
#include <string_view>
#include <tuple>
#include <utility>

namespace skyvane {

namespace {

constexpr std::string_view separator = " · "; // Between what stands on one line of a widget.

/// A view and all that are in it, from top to bottom.
void forEachView(const View& view, const std::function<void(const View&)>& visit)
{
    const auto descend = [&](const ViewList& views) {
        for (const View& child : views)
            forEachView(child, visit);
    };
    visit(view);
    std::visit(
        [&](const auto& node) {
            if constexpr (requires { node.children; })
                descend(node.children);
            if constexpr (requires { node.child; })
                descend(node.child);
            if constexpr (requires { node.layers; }) {
                for (const auto& layer : node.layers)
                    descend(layer.child);
            }
        },
        view.node);
}

/// Waybar and others read markup, polybar, lemonbar and tmux orders, some of which start programs: what a
/// stranger called his aircraft is never one.
std::string withoutOrders(std::string_view text)
{
    std::string plain = Unicode::oneLine(std::string{text});
    std::erase_if(plain,
        [](char c) { return std::string_view{"<>&%#${}[]^`\\\"|~"}.find(c) != std::string_view::npos; });
    return plain;
}

struct Shown {
    std::vector<std::string> texts{};
    std::optional<Symbol> symbol{}; ///< The first.
};

Shown shownBy(const View& view)
{
    Shown shown;
    forEachView(view, [&](const View& part) {
        if (const auto* text = std::get_if<Text>(&part.node))
            shown.texts.push_back(withoutOrders(text->string));
        else if (const auto* symbol = std::get_if<Symbol>(&part.node); symbol != nullptr && !shown.symbol)
            shown.symbol = *symbol;
    });
    return shown;
}

std::pair<std::string, std::string> halves(const std::string& line)
{
    const std::size_t at = line.find(separator);
    if (at == std::string::npos)
        return {line, ""};
    return {line.substr(0, at), line.substr(at + separator.size())};
}

/// Where only one of type and registration is known: a designator has two to four letters and digits.
bool isDesignator(const std::string& word)
{
    const auto isLetterOrDigit
        = [](char c) { return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
    return word.size() >= 2 && word.size() <= 4 && std::ranges::all_of(word, isLetterOrDigit);
}

void readIdentity(NearestWords& words)
{
    std::tie(words.type, words.registration) = halves(words.identity);
    if (words.registration.empty() && !isDesignator(words.type))
        std::swap(words.type, words.registration);
}

std::string digits(const std::string& text)
{
    constexpr std::string_view all = "0123456789";
    const std::size_t first = text.find_first_of(all);
    if (first == std::string::npos)
        return "";
    return text.substr(first, text.find_first_not_of(all, first) - first);
}

std::string arrow(double rotation)
{
    static constexpr std::array<const char*, 8> arrows{"→", "↘", "↓", "↙", "←", "↖", "↑", "↗"};
    const long steps = std::lround(std::remainder(rotation, 360) / 45);
    return arrows.at(static_cast<std::size_t>(steps & 7));
}

/// From the middle of the scope to the aircraft of the board's first row; empty where the scope does not have
/// it, or has it right above home.
std::string directionOnScope(const View& board)
{
    std::optional<std::string> nearest;
    forEachView(board, [&](const View& part) { nearest = nearest ? nearest : part.id; });
    std::string direction;
    forEachView(board, [&](const View& part) {
        const auto* canvas = std::get_if<Canvas>(&part.node);
        if (canvas == nullptr || !nearest)
            return;
        for (const CanvasItem& item : canvas->items) {
            const auto* blip = std::get_if<CanvasSymbol>(&item);
            if (blip == nullptr || blip->id != nearest)
                continue;
            const double east = blip->center.x - 0.5;
            const double north = 0.5 - blip->center.y;
            constexpr double rightAbove = 0.005; // Of the scope's width.
            if (std::hypot(east, north) > rightAbove)
                direction = compassPoint(std::atan2(east, north) * 180 / std::numbers::pi);
        }
    });
    return direction;
}

/// "NEAREST", name, type and registration, distance and altitude unless the distance is unknown, how many and
/// when.
void readAircraft(NearestWords& words, const Shown& shown)
{
    constexpr std::size_t withoutDistance = 4;
    if (shown.texts.size() < withoutDistance)
        throw ExtensionError{
            "the widget extension shows the nearest aircraft in another way than is known here"};
    words.callsign = shown.texts[1];
    words.identity = shown.texts[2];
    readIdentity(words);
    if (shown.texts.size() > withoutDistance)
        std::tie(words.distance, words.altitude) = halves(shown.texts[3]);
    words.arrow = arrow(shown.symbol->rotation);
    words.count = digits(shown.texts.back());
}

} // namespace

NearestWords NearestWords::read(const WidgetEntry& nearest, const WidgetEntry& board)
{
    const Shown shown = shownBy(nearest.view);
    const std::string symbol = shown.symbol ? shown.symbol->name : "";
    NearestWords words{.sky = Sky::aircraft, .time = withoutOrders(shortTime(nearest.date))};
    std::ranges::copy_if(
        shown.texts, std::back_inserter(words.lines), [](const std::string& line) { return !line.empty(); });
    if (words.lines.empty())
        throw ExtensionError{"the widget extension shows the nearest aircraft without a word"};
    if (symbol == "airplane") {
        readAircraft(words, shown);
        words.direction = directionOnScope(board.view);
        return words;
    }
    words.sky = symbol == "house" ? Sky::noHome : Sky::quiet;
    words.count = words.sky == Sky::quiet ? "0" : "";
    return words;
}

} // namespace skyvane
