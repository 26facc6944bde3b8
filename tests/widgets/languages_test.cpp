#include "platform/files/files.h"
#include "platform/json/value.h"
#include "tests/support/scratch_folder.h"
#include "tests/ui/layout/even_measurer.h"
#include "tests/widgets/layout_check.h"
#include "ui/archive/archive.h"
#include "ui/layout/widget_container.h"
#include "widgets/skyvane_widget_bundle.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace skyvane {
namespace {

using testing::Contains;
using testing::Each;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

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

/// Last components of the kinds, each with every family that it supports.
std::vector<std::pair<std::string, std::string>> everyWidget()
{
    std::vector<std::pair<std::string, std::string>> all;
    for (const Widget& widget : SkyvaneWidgetBundle{}.body()) {
        for (const WidgetFamily family : widget.supportedFamilies)
            all.emplace_back(widget.kind.substr(widget.kind.rfind('.') + 1), WidgetContainer::name(family));
    }
    return all;
}

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

TEST(Languages, theLayoutHoldsInEveryLanguage)
{
    const InstalledExtension extension;
    for (const char* locale : {"de_DE.UTF-8", "es_ES.UTF-8", "fr_FR.UTF-8"}) {
        for (const auto& [kind, family] : everyWidget()) {
            const DisplayList list = extension.placeholder(locale, kind, family);
            EXPECT_THAT(test::layoutProblems(list, test::EvenMeasurer{}), IsEmpty())
                << locale << ", " << kind;
            EXPECT_THAT(test::textsOf(list), Each(Not(HasSubstr("…")))) << locale << ", " << kind;
        }
    }
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
