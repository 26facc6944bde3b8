#include "host/commands/command_line.h"

#include <QString>

#include <charconv>
#include <utility>

namespace skyvane {

namespace {

constexpr double largestScale = 8;

double scale(const std::string& word)
{
    double value = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    if (error != std::errc{} || end != word.data() + word.size() || !(value > 0 && value <= largestScale))
        throw UsageError{"the scale is a number above 0 and up to 8, not \"" + word + "\""};
    return value;
}

PictureFormat format(const std::filesystem::path& output)
{
    const QString ending = QString::fromStdString(output.extension().string()).toLower();
    if (ending == QStringLiteral(".png"))
        return PictureFormat::png;
    if (ending == QStringLiteral(".svg"))
        return PictureFormat::svg;
    throw UsageError{"the output's name must end in .png or .svg: \"" + output.string() + "\""};
}

WidgetFamily family(const std::string& word)
{
    if (const auto family = WidgetContainer::named(word))
        return *family;
    throw UsageError{"unknown family \"" + word + "\": known are small, medium, large"};
}

/// The words of "render", options apart.
class RenderParser {
public:
    explicit RenderParser(std::vector<std::string> words) : m_words(std::move(words)) { }

    RenderWords parse()
    {
        std::vector<std::string> places;
        std::optional<std::filesystem::path> output;
        double pixelsAPoint = 1;
        bool isSample = false;
        while (m_next < m_words.size()) {
            const std::string& word = m_words[m_next++];
            if (word == "--sample")
                isSample = true;
            else if (const auto value = valueOf("--output", word))
                output = *value;
            else if (const auto number = valueOf("--scale", word))
                pixelsAPoint = scale(*number);
            else if (word.starts_with("-"))
                throw UsageError{"unknown option \"" + word + "\""};
            else
                places.push_back(word);
        }
        if (places.size() != 2)
            throw UsageError{"render takes a kind and a family, see skyvane-host --help"};
        return {
            .kind = places[0],
            .family = family(places[1]),
            .output = output,
            .format = output ? format(*output) : PictureFormat::png,
            .scale = pixelsAPoint,
            .isSample = isSample,
        };
    }

private:
    /// The value of this option, from the same word after "=" or from the next; absent when `word` is
    /// another.
    std::optional<std::string> valueOf(std::string_view option, const std::string& word)
    {
        if (word.starts_with(std::string{option} + "="))
            return word.substr(option.size() + 1);
        if (word != option)
            return std::nullopt;
        if (m_next == m_words.size())
            throw UsageError{word + " needs a value"};
        return m_words[m_next++];
    }

    std::vector<std::string> m_words;
    std::size_t m_next = 0;
};

template <class Words>
Words alone(const std::vector<std::string>& words)
{
    if (words.size() > 1)
        throw UsageError{"\"" + words[0] + "\" takes no more words"};
    return {};
}

AddWords add(const std::vector<std::string>& words)
{
    if (words.size() != 3)
        throw UsageError{"add takes a kind and a family, see skyvane-host --help"};
    return {.kind = words[1], .family = family(words[2])};
}

RemoveWords remove(const std::vector<std::string>& words)
{
    if (words.size() != 2)
        throw UsageError{"remove takes a widget's number, see skyvane-host --help"};
    int widget = 0;
    const char* const last = words[1].data() + words[1].size();
    const auto [end, error] = std::from_chars(words[1].data(), last, widget);
    if (error != std::errc{} || end != last || widget < 1)
        throw UsageError{"a widget's number is that of list --placed, not \"" + words[1] + "\""};
    return {.widget = widget};
}

} // namespace

Command parseCommandLine(const std::vector<std::string>& words)
{
    if (words[0] == "render")
        return RenderParser{{words.begin() + 1, words.end()}}.parse();
    if (words == std::vector<std::string>{"list", "--placed"})
        return PlacedWords{};
    if (words[0] == "add")
        return add(words);
    if (words[0] == "remove")
        return remove(words);
    if (words[0] == "refresh")
        return alone<RefreshWords>(words);
    if (words[0] == "quit")
        return alone<QuitWords>(words);
    if (words[0] == "list")
        return alone<ListWords>(words);
    if (words[0] == "--help")
        return alone<HelpWords>(words);
    if (words[0] == "--version")
        return alone<VersionWords>(words);
    throw UsageError{"unknown command \"" + words[0] + "\", see skyvane-host --help"};
}

std::string usage()
{
    return R"(Usage:
  skyvane-host
      Shows the widgets on the desktop; where they are shown already, the gallery.
  skyvane-host add KIND FAMILY
      Adds a widget to the desktop and prints its number.
  skyvane-host remove NUMBER
  skyvane-host refresh
  skyvane-host quit
  skyvane-host list --placed
      The widgets on the desktop: number, kind and family.
  skyvane-host list
      The widgets: kind, name and families.
  skyvane-host render KIND FAMILY [--output FILE] [--scale N] [--sample]
      Writes a widget as a picture and prints the file's name.
      KIND       as listed, or its last component
      FAMILY     small, medium or large
      --output   a name that ends in .png or .svg (default: KIND-FAMILY.png)
      --scale    pixels a point of a PNG, above 0 and up to 8 (default: 1)
      --sample   the built-in sample instead of live data
  skyvane-host --help
  skyvane-host --version
)";
}

} // namespace skyvane
