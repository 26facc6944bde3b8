#pragma once

#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <string>

namespace skyvane {

/// Makes the user's language that of `localized`, with catalogues from this folder (a "locale" tree). To be
/// called once, before any other thread runs. Without it, without a catalogue, or with a broken one, texts
/// stay English.
void useCatalogues(const std::filesystem::path& folder);

/// The text for this key, which is its English form, in the user's language.
std::string localized(const char* key);

/// The same with each "%lld" of the text replaced by the next number, plainly printed.
std::string localized(const char* key, std::initializer_list<std::int64_t> numbers);

} // namespace skyvane
