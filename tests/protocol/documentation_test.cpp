#include "protocol/calls.h"
#include "protocol/error_code.h"
#include "protocol/limits.h"
#include "ui/layout/widget_container.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <string>

/// docs/protocol.md, which strangers write hosts from, says what the tables of the code say.
namespace skyvane::Protocol {

namespace {

using testing::HasSubstr;
using Names = std::vector<std::string>;

const std::string& paper()
{
    static const std::string text = [] {
        std::ifstream file{SKYVANE_PROTOCOL_PAPER};
        return std::string{std::istreambuf_iterator<char>{file}, {}};
    }();
    return text;
}

/// What the first group of the pattern matches, wherever it does.
std::set<std::string> everyMatch(const std::string& pattern)
{
    const std::regex regex{pattern};
    std::set<std::string> found;
    for (std::sregex_iterator match{paper().begin(), paper().end(), regex}, end; match != end; ++match)
        found.insert((*match)[1]);
    return found;
}

/// The paper from behind the first place that holds this; empty when there is none.
std::string_view behind(std::string_view text)
{
    const std::size_t found = paper().find(text);
    EXPECT_NE(found, std::string::npos) << text;
    return found == std::string::npos ? std::string_view{}
                                      : std::string_view{paper()}.substr(found + text.size());
}

/// The members of the object that the text begins with, as the paper writes one: {"kind":text, "x":["a"|"b"],
/// …}.
Names membersIn(std::string_view object)
{
    Names names;
    int depth = 0;
    char before = ' ';
    for (std::size_t at = 0; at < object.size(); ++at) {
        const char character = object[at];
        if (character == '"') {
            const std::size_t end = object.find('"', at + 1);
            if (depth == 1 && (before == '{' || before == ','))
                names.emplace_back(object.substr(at + 1, end - at - 1));
            at = end;
        }
        depth += character == '{' || character == '[' ? 1 : 0;
        depth -= character == '}' || character == ']' ? 1 : 0;
        if (depth == 0)
            break;
        if (character != ' ')
            before = character;
    }
    return names;
}

std::string_view fromBrace(std::string_view text)
{
    return text.substr(std::min(text.find('{'), text.size()));
}

template <class Record>
Names membersOf();

template <class Member>
Names namesOf(const Member& member)
{
    return {std::string{member.name}};
}
template <class Record, class T>
Names namesOf(const EmbeddedMember<Record, T>&)
{
    return membersOf<T>();
}

template <class Record>
Names membersOf()
{
    Names names;
    const auto add = [&](const Names& more) { names.insert(names.end(), more.begin(), more.end()); };
    if constexpr (requires { Members<Record>::constant; })
        add(namesOf(Members<Record>::constant));
    std::apply([&](const auto&... member) { (add(namesOf(member)), ...); }, Members<Record>::list);
    return names;
}

struct CallMembers {
    Names params;
    Names result;
};

template <class... Call>
std::map<std::string, CallMembers> callsOf(std::type_identity<std::variant<Call...>>)
{
    return {{std::string{Call::name},
        {.params = membersOf<typename Call::Params>(), .result = membersOf<typename Call::Result>()}}...};
}

std::map<std::string, CallMembers> calls()
{
    return callsOf(std::type_identity<AnyCall>{});
}

/// Names with those that the paper adds where it speaks of optional members of the same object.
Names withOptional(Names names, std::string_view call, const std::string& where)
{
    const std::regex member{
        "Optional `\"([a-z]+)\":[A-Za-z]+` in the same params.*the answer has `\"([a-z]+)\""};
    const std::string paragraph{call.substr(0, call.find("\n\n"))};
    if (std::smatch match; std::regex_search(paragraph, match, member))
        names.push_back(match[where == "params" ? 1 : 2]);
    return names;
}

std::string number(double value)
{
    return std::to_string(std::lround(value));
}

} // namespace

TEST(Documentation, namesEveryCallAndNoOther)
{
    std::set<std::string> names;
    for (const auto& [name, members] : calls())
        names.insert(name);
    EXPECT_EQ(everyMatch("`(widgets\\.[A-Za-z]*)`"), names);
    EXPECT_EQ(everyMatch("notification `([A-Za-z.]*)`"), std::set{std::string{cancelNotification}});
}

TEST(Documentation, givesEachCallItsParametersAndItsResult)
{
    for (const auto& [name, members] : calls()) {
        const std::string_view call = behind("\n`" + name + "`");
        const std::size_t arrow = call.find("→");
        const std::string_view params = call.substr(0, arrow);
        const std::string_view result = call.substr(arrow, call.find("\n`widgets.", arrow) - arrow);
        EXPECT_EQ(withOptional(membersIn(fromBrace(params)), result, "params"), members.params) << name;
        EXPECT_EQ(withOptional(membersIn(fromBrace(result)), result, "result"), members.result) << name;
    }
}

TEST(Documentation, givesEachRecordItsMembers)
{
    EXPECT_EQ(membersIn(behind("    Widget = ")), membersOf<WidgetInfo>());
    EXPECT_EQ(membersIn(behind("    Entry = ")), membersOf<WidgetEntry>());
    EXPECT_EQ(membersIn(behind("    Rules = ")), membersOf<AlertRules>());
    EXPECT_EQ(membersIn(behind("\"overhead\":")), membersOf<OverheadRule>());
    EXPECT_EQ(membersIn(behind("    Alert = ")), membersOf<Alert>());
}

TEST(Documentation, namesEveryFamily)
{
    Names names;
    for (const WidgetFamily family : WidgetContainer::families)
        names.emplace_back(WidgetContainer::name(family));
    EXPECT_THAT(
        paper(), HasSubstr(R"("families":[")" + names[0] + R"("|")" + names[1] + R"("|")" + names[2] + '"'));
}

TEST(Documentation, namesEveryErrorCodeAndNoOther)
{
    std::set<std::string> codes;
    for (const ErrorCode code : allErrorCodes)
        codes.insert(std::to_string(-static_cast<int>(code)));
    EXPECT_EQ(everyMatch("−(3[0-9]{4})"), codes);
}

TEST(Documentation, statesEveryLimit)
{
    EXPECT_EQ(everyMatch("version ([0-9]+)\n"), std::set{std::to_string(Limits::version)});
    EXPECT_EQ(everyMatch("([0-9]+ KiB)"),
        (std::set{Limits::inKiB(Limits::longestRequest), Limits::inKiB(Limits::longestTimeline)}));
    EXPECT_EQ(everyMatch("more than ([0-9]+) requests"), std::set{std::to_string(Limits::mostRequests)});
    EXPECT_EQ(
        everyMatch("stalls past ([0-9]+) seconds"), std::set{std::to_string(Limits::timeToAnswer.count())});
    EXPECT_THAT(paper(), HasSubstr("exits 0 within a second"));
    EXPECT_EQ(Limits::timeToEnd, std::chrono::seconds{1});
    EXPECT_EQ(everyMatch("\\(1 to ([0-9]+)\\)"), std::set{std::to_string(Limits::mostWidgets)});
    EXPECT_EQ(everyMatch("at most ([0-9]+) patterns"), std::set{std::to_string(Limits::mostPatterns)});
    EXPECT_THAT(paper(), HasSubstr("requests that ask the feed at least five seconds"));
    EXPECT_EQ(Limits::betweenTimelines, std::chrono::seconds{5});
}

TEST(Documentation, statesEverySize)
{
    std::string sizes;
    for (const WidgetFamily family : WidgetContainer::families) {
        const Size size = WidgetContainer::size(family);
        sizes.append(sizes.empty() ? "" : ", ").append(WidgetContainer::name(family));
        sizes += ' ' + number(size.width) + " × " + number(size.height);
    }
    EXPECT_THAT(paper(),
        HasSubstr("Sizes: " + sizes + " points, a content margin of " + number(WidgetContainer::contentMargin)
            + " points"));
}

} // namespace skyvane::Protocol
