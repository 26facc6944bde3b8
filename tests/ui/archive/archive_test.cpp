#include "ui/archive/archive.h"

#include "ui/tree/build.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <limits>
#include <string>
#include <vector>

namespace skyvane {
namespace {

constexpr Color red{1, 0, 0, 0.5};
constexpr Stroke thin{.color = red, .width = 0.5};
constexpr double unbounded = std::numeric_limits<double>::infinity();

View read(const std::string& json)
{
    const JSON::Document document{json};
    return fromArchive(document.root());
}

std::string errorOf(const std::string& json)
{
    try {
        read(json);
    } catch (const JSON::DecodingError& error) {
        return error.what();
    }
    return "no error";
}

struct Case {
    const char* situation;
    View view;
    const char* json;
};

std::vector<Case> cases()
{
    const View a = text("a").font({.size = 8}).foreground(red);
    const std::string aJSON = R"({"type":"text","text":"a","font":{"size":8},"color":[1,0,0,0.5]})";
    return {
        {"a text with every member",
            text("\"é\n")
                .font({.size = 7.25, .weight = FontWeight::semibold, .design = FontDesign::monospaced})
                .foreground(red)
                .tracking(1.5)
                .lineLimit(2)
                .minimumScale(0.6)
                .align(HorizontalAlignment::center),
            R"({"type":"text","text":"\"é\n","font":{"size":7.25,"weight":"semibold","design":"monospaced"},)"
            R"("color":[1,0,0,0.5],"tracking":1.5,"lineLimit":2,"minimumScale":0.6,"align":"center"})"},
        {"a text with defaults", a, R"({"type":"text","text":"a","font":{"size":8},"color":[1,0,0,0.5]})"},
        {"a symbol in a text style",
            symbol("house")
                .font({.size = TextStyle::title3, .weight = FontWeight::bold})
                .foreground(red)
                .rotated(-45),
            R"({"type":"symbol","name":"house","font":{"style":"title3","weight":"bold"},"color":[1,0,0,0.5],"rotation":-45})"},
        {"a symbol with defaults", symbol("house").font({.size = 8}).foreground(red),
            R"({"type":"symbol","name":"house","font":{"size":8},"color":[1,0,0,0.5]})"},
        {"a stack side by side",
            HStack{.spacing = 5, .align = VerticalAlignment::top}({a, spacer(), spacer(4)}),
            R"({"type":"hstack","spacing":5,"align":"top","children":[{"type":"text","text":"a","font":{"size":8},)"
            R"("color":[1,0,0,0.5]},{"type":"spacer"},{"type":"spacer","minLength":4}]})"},
        {"an empty stack one below the other", VStack{.align = HorizontalAlignment::trailing}({}),
            R"({"type":"vstack","align":"trailing","children":[]})"},
        {"a frame",
            Frame{.maxWidth = unbounded, .maxHeight = 12.5, .align = Alignment::bottomLeading}(spacer()),
            R"({"type":"frame","maxWidth":"infinity","maxHeight":12.5,"align":"bottomLeading","child":{"type":"spacer"}})"},
        {"an overlay",
            overlay(
                spacer(), {layer(Alignment::topTrailing, spacer(1)), layer(Alignment::center, spacer(2))}),
            R"({"type":"overlay","child":{"type":"spacer"},"layers":[{"align":"topTrailing","child":)"
            R"({"type":"spacer","minLength":1}},{"align":"center","child":{"type":"spacer","minLength":2}}]})"},
        {"a canvas with every item",
            canvas(1.5,
                {
                    CanvasCircle{.center = {0.5, 0.25}, .diameter = FractionOfWidth{1}, .paint = thin},
                    CanvasCircle{.center = {0, 1}, .diameter = Points{5}, .paint = red},
                    CanvasLine{.from = {0, 0.5}, .to = {1, 0.5}, .stroke = thin},
                    CanvasSymbol{.center = {0.1, 0.2},
                        .name = "airplane",
                        .font = {.size = 7},
                        .color = red,
                        .rotation = 30,
                        .id = "~a"},
                    UnknownCanvasItem{.type = "sparkle"},
                }),
            R"({"type":"canvas","aspectRatio":1.5,"items":[)"
            R"({"type":"circle","center":[0.5,0.25],"diameter":1,"stroke":{"color":[1,0,0,0.5],"width":0.5}},)"
            R"({"type":"circle","center":[0,1],"points":5,"fill":[1,0,0,0.5]},)"
            R"({"type":"line","from":[0,0.5],"to":[1,0.5],"stroke":{"color":[1,0,0,0.5],"width":0.5}},)"
            R"({"type":"symbol","center":[0.1,0.2],"name":"airplane","font":{"size":7},"color":[1,0,0,0.5],"rotation":30,"id":"~a"},)"
            R"({"type":"sparkle"}]})"},
        {"a link for one aircraft",
            identified("a1", link(URL::parse("skyvane://aircraft/a1").value(), spacer())),
            R"({"type":"link","url":"skyvane://aircraft/a1","child":{"type":"spacer"},"id":"a1"})"},
        {"a node of a later version", View{.node = UnknownView{.type = "hologram"}},
            R"({"type":"hologram"})"},
    };
}

TEST(Archive, aTextIsReadAsItMayBeShown)
{
    const auto textNode = [](const std::string& string) {
        return read(R"({"type":"text","text":")" + string + R"(","font":{"size":8},"color":[1,0,0,0.5]})");
    };
    const View shown = text("UAL [31m\none").font({.size = 8}).foreground(red);
    EXPECT_EQ(textNode(R"(\u202eUAL\u001b[31m\u2028one)"), shown);
    const auto longest = textNode(std::string(200'000, 'x'));
    EXPECT_EQ(std::get<Text>(longest.node).string, shownText(std::string(200'000, 'x')));
}

TEST(Archive, everyNodeHasTheDocumentedForm)
{
    for (const Case& one : cases())
        EXPECT_EQ(toArchive(one.view).dump(), one.json) << one.situation;
}

TEST(Archive, everyNodeComesBackEqual)
{
    for (const Case& one : cases())
        EXPECT_EQ(read(one.json), one.view) << one.situation;
}

TEST(Archive, numbersComeBackToTheLastBit)
{
    const View view = canvas(
        1.0 / 3, {CanvasCircle{.center = {0.1 + 0.2, 1e-300}, .diameter = Points{1e15 + 0.5}, .paint = red}});
    EXPECT_EQ(read(toArchive(view).dump()), view);
}

TEST(Archive, membersThatAreNullOrUnknownDoNotMatter)
{
    EXPECT_EQ(read(R"({"type":"spacer","minLength":null,"id":null,"glow":7})"), spacer());
}

TEST(Archive, anErrorNamesThePlace)
{
    EXPECT_EQ(
        errorOf(
            R"({"type":"vstack","children":[{"type":"spacer"},{"type":"frame","child":{"type":"text"}}]})"),
        "children[1].child.text: is missing");
    EXPECT_EQ(
        errorOf(R"({"type":"link","url":"not a url","child":{"type":"spacer"}})"), "url: expected a URL");
    EXPECT_EQ(errorOf(R"({"type":"hstack","align":"left","children":[]})"), "align: unknown word \"left\"");
    EXPECT_EQ(
        errorOf(R"({"type":"canvas","aspectRatio":0,"items":[]})"), "aspectRatio: expected a number above 0");
    EXPECT_EQ(errorOf(R"({"type":"symbol","name":"house","font":{"size":8},"color":[1,0,0]})"),
        "color: expected 4 numbers, found 3");
    EXPECT_EQ(errorOf(R"({"type":"symbol","name":"house","font":{"size":8},"color":[1,0,0,1,0]})"),
        "color: expected 4 numbers, found 5");
    EXPECT_EQ(errorOf(R"({"text":"a"})"), "type: is missing");
    EXPECT_EQ(errorOf("[]"), "expected an object, found an array");
}

TEST(Archive, aLengthMayBeAnyNumberAboveZero)
{
    EXPECT_EQ(read(R"({"type":"canvas","aspectRatio":1e-9,"items":[]})"), canvas(1e-9, {}));
    EXPECT_EQ(errorOf(R"({"type":"canvas","aspectRatio":-1,"items":[]})"),
        "aspectRatio: expected a number above 0");
}

TEST(Archive, aLineLimitIsAWholeNumberFromOneOn)
{
    const auto limited = [](const std::string& limit) {
        return R"({"type":"text","text":"a","font":{"size":8},"color":[1,0,0,0.5],"lineLimit":)" + limit
            + "}";
    };
    for (const char* limit : {"1", "2147483647"})
        EXPECT_EQ(errorOf(limited(limit)), "no error") << limit;
    for (const char* limit : {"0", "-1", "2147483648"})
        EXPECT_EQ(errorOf(limited(limit)), "lineLimit: expected a whole number above 0") << limit;
}

TEST(Archive, refusesATreeDeeperThan64Nodes)
{
    const auto nested = [](int frames) {
        std::string json;
        for (int index = 0; index < frames; ++index)
            json += R"({"type":"frame","child":)";
        return json + R"({"type":"spacer"})" + std::string(static_cast<std::size_t>(frames), '}');
    };
    const auto stacked = [](int stacks) {
        std::string json;
        for (int index = 0; index < stacks; ++index)
            json += R"({"type":"vstack","children":[)";
        json += R"({"type":"spacer"})";
        for (int index = 0; index < stacks; ++index)
            json += "]}";
        return json;
    };
    EXPECT_EQ(errorOf(stacked(63)), "no error");
    EXPECT_NE(errorOf(stacked(64)).find("nested deeper than 64 nodes"), std::string::npos);
    EXPECT_EQ(errorOf(nested(63)), "no error");
    EXPECT_NE(errorOf(nested(64)).find("nested deeper than 64 nodes"), std::string::npos);
}

} // namespace
} // namespace skyvane
