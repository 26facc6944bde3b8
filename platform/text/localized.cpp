#include "platform/text/localized.h"

#include "platform/files/files.h"
#include "platform/text/catalogue.h"

#include <clocale>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace skyvane {

namespace {

/// The most wanted first. Written once, before any other thread runs.
std::vector<Catalogue>& catalogues()
{
    static std::vector<Catalogue> list;
    return list;
}

/// A text that counts has several forms.
struct Translation {
    std::string_view forms;
    const Catalogue* catalogue;
};

std::optional<Translation> translation(const char* key)
{
    for (const Catalogue& catalogue : catalogues()) {
        if (const auto found = catalogue.texts.find(key); found != catalogue.texts.end())
            return Translation{.forms = found->second, .catalogue = &catalogue};
    }
    return std::nullopt;
}

/// Of forms that are separated by zeros; the first where there are not so many.
std::string formAt(std::size_t index, std::string_view forms)
{
    std::string_view rest = forms;
    for (; index > 0; --index) {
        const std::size_t end = rest.find('\0');
        if (end == std::string_view::npos)
            return formAt(0, forms);
        rest.remove_prefix(end + 1);
    }
    return std::string{rest.substr(0, rest.find('\0'))};
}

struct Placeholder {
    std::size_t length;
    std::size_t filling; ///< From 0.
};

/// The one that the text, which begins with a per cent sign, begins with. `next` is that of "%lld".
std::optional<Placeholder> placeholder(std::string_view text, std::size_t next)
{
    constexpr std::string_view unnumbered = "%lld";
    if (text.starts_with(unnumbered))
        return Placeholder{.length = unnumbered.size(), .filling = next};
    if (text.size() > 1 && text[1] >= '1' && text[1] <= '9')
        return Placeholder{.length = 2, .filling = static_cast<std::size_t>(text[1] - '1')};
    return std::nullopt;
}

/// Without marks "25 NM" would be torn apart: its number would belong to the text on its right.
std::string placed(const std::string& filling, TextDirection around)
{
    constexpr const char* leftToRight = "\u200E";
    if (around == TextDirection::leftToRight || !runsLeftToRight(filling))
        return filling;
    return leftToRight + filling + leftToRight;
}

/// In one go, so that what looks like a placeholder in a filling stays.
std::string filled(std::string_view text, std::initializer_list<Filling> fillings, TextDirection direction)
{
    std::string result;
    std::size_t next = 0;
    for (std::size_t at = text.find('%'); at != std::string_view::npos; at = text.find('%')) {
        result += text.substr(0, at);
        text.remove_prefix(at);
        const auto found = placeholder(text, next);
        const bool isFilled = found && found->filling < fillings.size();
        result += isFilled ? placed(fillings.begin()[found->filling].text, direction)
                           : std::string{text.substr(0, 1)};
        text.remove_prefix(isFilled ? found->length : 1);
        next += isFilled ? 1 : 0;
    }
    return result.append(text);
}

} // namespace

void useCatalogues(const std::filesystem::path& folder)
{
    constexpr std::size_t longest = 4 << 20; // Bytes.
    std::setlocale(LC_MESSAGES, ""); // For the texts of libraries.
    catalogues().clear();
    // The C library's own reader would translate only into languages whose locale is generated on this
    // machine.
    for (const std::string& name : Catalogues::wanted()) {
        const auto bytes = Files::read(folder / name / "LC_MESSAGES/skyvane.mo", longest);
        Catalogue catalogue = bytes ? Catalogues::read(*bytes) : Catalogue{};
        if (!catalogue.texts.empty())
            catalogues().push_back(std::move(catalogue));
    }
}

TextDirection textDirection()
{
    return catalogues().empty() ? TextDirection::leftToRight : catalogues().front().direction;
}

std::string localized(const char* key)
{
    const auto found = translation(key);
    return found ? formAt(0, found->forms) : key;
}

std::string localized(const char* key, std::initializer_list<Filling> fillings)
{
    const auto found = translation(key);
    if (!found)
        return filled(key, fillings, TextDirection::leftToRight);
    return filled(formAt(0, found->forms), fillings, found->catalogue->direction);
}

std::string localizedCount(
    const char* one, const char* other, std::uint64_t count, std::initializer_list<Filling> fillings)
{
    if (const auto found = translation(one)) {
        const Catalogue& catalogue = *found->catalogue;
        return filled(formAt(catalogue.plural.form(count), found->forms), fillings, catalogue.direction);
    }
    return filled(PluralRule{}.form(count) == 0 ? one : other, fillings, TextDirection::leftToRight);
}

} // namespace skyvane
