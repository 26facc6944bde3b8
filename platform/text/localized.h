#pragma once

#include "platform/text/text_direction.h"

#include <concepts>
#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <string>
#include <utility>

namespace skyvane {

/// Makes the user's language that of `localized`, with catalogues from this folder (a "locale" tree). To be
/// called once, before any other thread runs. Without it, without a catalogue, or with a broken one, texts
/// stay English.
void useCatalogues(const std::filesystem::path& folder);

/// Of the language that most texts are in, which is English without a catalogue.
TextDirection textDirection();

/// What a placeholder becomes: a text, or a number plainly printed.
struct Filling {
    std::string text;

    Filling(std::string string) : text(std::move(string)) { }
    Filling(const char* string) : text(string) { }
    Filling(std::integral auto number) : text(std::to_string(number)) { }
};

/// The text for this key, which is its English form, in the user's language.
std::string localized(const char* key);

/// The same with its placeholders filled: "%1" is the first filling, "%2" the second, and each "%lld" the
/// next one. In a text that runs from right to left, a filling that runs the other way stands between marks
/// of direction.
std::string localized(const char* key, std::initializer_list<Filling> fillings);

/// The form of a text that goes with this number, filled likewise: `one` with 1 and `other` with all others,
/// in English.
std::string localizedCount(
    const char* one, const char* other, std::uint64_t count, std::initializer_list<Filling> fillings);

} // namespace skyvane
