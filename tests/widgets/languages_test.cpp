#include "core/views/sample_entry.h"
#include "platform/files/files.h"
#include "platform/json/value.h"
#include "platform/pinned.h"
#include "platform/text/locale.h"
#include "tests/core/sample_sky.h"
#include "tests/support/languages.h"
#include "tests/support/scratch_folder.h"
#include "tests/ui/layout/even_measurer.h"
#include "tests/widgets/layout_check.h"
#include "ui/archive/archive.h"
#include "ui/layout/widget_container.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace skyvane {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;

/// The built extension, installed into a scratch folder as a package would.
class InstalledExtension {
public:
    InstalledExtension()
    {
        std::filesystem::create_directories(m_program.parent_path());
        std::filesystem::copy_file(SKYVANE_WIDGETS_PROGRAM, m_program);
        std::filesystem::create_directories(m_scratch.path() / "share");
        std::filesystem::copy(
            SKYVANE_CATALOGUES, m_scratch.path() / "share/locale", std::filesystem::copy_options::recursive);
    }

    std::filesystem::path germanCatalogue() const
    {
        return m_scratch.path() / "share/locale/de/LC_MESSAGES/skyvane.mo";
    }

    /// Its answer to one request in this locale.
    std::string answer(const std::string& locale, const std::string& request) const
    {
        const std::filesystem::path input = m_scratch.path() / "request";
        std::ofstream{input} << request << "\n";
        const std::string command
            = "env -i LC_ALL=" + locale + " TZ=UTC " + m_program.string() + " <" + input.string();
        const std::unique_ptr<FILE, int (*)(FILE*)> output{popen(command.c_str(), "r"), pclose};
        std::string text;
        std::array<char, 4096> bytes{};
        while (const std::size_t count = std::fread(bytes.data(), 1, bytes.size(), output.get()))
            text.append(bytes.data(), count);
        return text;
    }

    DisplayList placeholder(
        const std::string& locale, const std::string& kind, const std::string& family) const
    {
        const JSON::Document document{answer(locale,
            R"({"jsonrpc":"2.0","id":1,"method":"widgets.placeholder","params":{"kind":"org.skyvane.widgets.)"
                + kind + R"(","family":")" + family + "\"}}")};
        const View view = fromArchive(document.root()["result"]["entry"]["view"].value());
        return WidgetContainer::layout(view, WidgetContainer::named(family).value(), test::EvenMeasurer{});
    }

    std::vector<std::string> placeholderTexts(
        const std::string& locale, const std::string& kind, const std::string& family) const
    {
        return test::textsOf(placeholder(locale, kind, family));
    }

private:
    test::ScratchFolder m_scratch;
    std::filesystem::path m_program{m_scratch.path() / "libexec/skyvane/skyvane-widgets"};
};

constexpr const char* listRequest = R"({"jsonrpc":"2.0","id":1,"method":"widgets.list"})";

TEST(Languages, textsAndNumbersFollowTheUsersLocale)
{
    const InstalledExtension extension;
    EXPECT_THAT(extension.placeholderTexts("de_DE.UTF-8", "nearest", "small"),
        testing::AllOf(
            Contains("NÄCHSTES"), Contains("3.7 mi · 12.500 ft"), Contains(HasSubstr("5 in Reichweite · "))));
    EXPECT_THAT(extension.placeholderTexts("fr_FR.UTF-8", "radar", "medium"), Contains("5 AÉRONEFS · 25 NM"));
    EXPECT_THAT(extension.placeholderTexts("es_MX.UTF-8", "nearest", "small"), Contains("MÁS CERCANO"));
    EXPECT_THAT(extension.placeholderTexts("en_GB.UTF-8", "nearest", "small"), Contains("NEAREST"));
    EXPECT_THAT(extension.placeholderTexts("C", "nearest", "small"), Contains("3.7 mi · 12,500 ft"));
}

TEST(Languages, timesHaveTwentyFourHoursWhereTheLocaleDoes)
{
    const InstalledExtension extension;
    EXPECT_THAT(extension.placeholderTexts("de_DE.UTF-8", "radar", "small"),
        Contains(testing::ContainsRegex("^[0-2][0-9]:[0-5][0-9]$")));
    EXPECT_THAT(extension.placeholderTexts("en_US.UTF-8", "radar", "small"),
        Contains(testing::ContainsRegex("^[0-9]+:[0-9]+ [AP]M$")));
}

TEST(Languages, namesAndDescriptionsAreTranslated)
{
    const InstalledExtension extension;
    EXPECT_THAT(extension.answer("de_DE.UTF-8", listRequest), HasSubstr("Nächstes Flugzeug"));
    EXPECT_THAT(extension.answer("is_IS.UTF-8", listRequest), HasSubstr("Nearest Aircraft"));
}

/// How often texts of a widget end in "…".
std::ptrdiff_t cuts(const DisplayList& list)
{
    return std::ranges::count_if(
        test::textsOf(list), [](const std::string& text) { return text.ends_with("…"); });
}

std::vector<SkyEntry> skies()
{
    SkyEntry withoutHome = test::skyOf(0);
    withoutHome.home.reset();
    return {sampleEntry(), test::skyOf(0), test::skyOf(700), withoutHome};
}

/// Each widget against itself in English.
TEST(Languages, nothingIsCutAndNoLineBreaksThatDoesNotInEnglish)
{
    for (const SkyEntry& sky : skies()) {
        const std::vector<test::LaidOut> english = test::laidOut(sky);
        for (const std::string& language : test::languages()) {
            const test::InLanguage there{language};
            const Pinned<Locale> locale{{.numbers = language, .times = language, .timeZone = "UTC"}};
            const std::vector<test::LaidOut> laidOut = test::laidOut(sky);
            ASSERT_EQ(laidOut.size(), english.size());
            for (std::size_t widget = 0; widget < laidOut.size(); ++widget) {
                const auto& [title, list] = laidOut[widget];
                const DisplayList& original = english[widget].list;
                const std::string texts = testing::PrintToString(test::textsOf(list));
                const auto where
                    = std::string{language}.append(", ").append(title).append(", ").append(texts);
                EXPECT_THAT(test::layoutProblems(list, test::EvenMeasurer{}), IsEmpty()) << where;
                EXPECT_LE(cuts(list), cuts(original)) << where;
                if (sky.home) // Without one the widget is a sentence, which may wrap.
                    EXPECT_EQ(list.items.size(), original.items.size()) << where;
            }
        }
    }
}

TEST(Languages, fromRightToLeftTheScopeIsTheSameAndTheTextsStandAtTheOtherSide)
{
    const SkyEntry sky = sampleEntry();
    const DisplayList english = test::laidOut(sky).at(2).list;
    const test::InLanguage arabic{"ar"};
    const DisplayList mirrored = test::laidOut(sky).at(2).list;
    const double otherSide
        = std::get<Ellipse>(mirrored.items.at(0)).center.x - std::get<Ellipse>(english.items.at(0)).center.x;
    EXPECT_GT(otherSide, 100);
    ASSERT_EQ(mirrored.items.size(), english.items.size());
    std::size_t rings = 0;
    for (std::size_t item = 0; item < english.items.size(); ++item) {
        if (const auto* ring = std::get_if<Ellipse>(&english.items[item])) {
            const auto& other = std::get<Ellipse>(mirrored.items[item]);
            EXPECT_NEAR(other.center.x, ring->center.x + otherSide, 1e-9);
            EXPECT_EQ(other.center.y, ring->center.y);
            EXPECT_EQ(other.diameter, ring->diameter);
            ++rings;
        }
    }
    EXPECT_EQ(rings, 4U);
}

TEST(Languages, aMissingCatalogueFallsBackToEnglish)
{
    const InstalledExtension extension;
    std::filesystem::remove(extension.germanCatalogue());
    EXPECT_THAT(extension.placeholderTexts("de_DE.UTF-8", "nearest", "small"), Contains("NEAREST"));
}

TEST(Languages, aBrokenCatalogueFallsBackToEnglish)
{
    const InstalledExtension extension;
    const std::string whole = Files::read(extension.germanCatalogue(), 1000000).value();
    const std::string beheaded = std::string(whole.size(), 'x');
    for (const std::string& bytes :
        {std::string{}, beheaded, whole.substr(0, 20), std::string{"\xde\x12\x04\x95"}}) {
        std::ofstream{extension.germanCatalogue()} << bytes;
        EXPECT_THAT(extension.placeholderTexts("de_DE.UTF-8", "nearest", "small"), Contains("NEAREST"))
            << bytes.size();
    }
}

} // namespace
} // namespace skyvane
