#include "platform/json/object.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace skyvane::JSON {

namespace {

using testing::ElementsAre;

const Document& document()
{
    static const Document parsed{std::string_view{
        R"({"name":"radar","name":3,"none":null,"numbers":[1,2.5],"mixed":[1,"x"],"inner":{"deep":true}})"}};
    return parsed;
}

Object whole(Null null = Null::absence)
{
    return Object{document().root(), null};
}

struct Complaint {
    std::string what;
    std::string sentence;

    bool operator==(const Complaint&) const = default;
};

template <class Action>
Complaint complaint(Action&& action)
{
    try {
        action();
        return {};
    } catch (const DecodingError& error) {
        return {.what = error.what(), .sentence = error.sentence()};
    }
}

} // namespace

TEST(Object, theFirstOfTwoEqualKeysCounts)
{
    EXPECT_EQ(whole().required("name", text), "radar");
}

TEST(Object, whatIsMissingIsNamedOrAbsent)
{
    EXPECT_EQ(complaint([] { whole().required("size", text); }),
        (Complaint{"size: is missing", "size is missing"}));
    EXPECT_EQ(whole().optional("size", text), std::nullopt);
    EXPECT_FALSE(whole().find("size"));
}

TEST(Object, nullIsAbsenceOrAValueAsTheReaderLikes)
{
    EXPECT_EQ(whole().optional("none", text), std::nullopt);
    EXPECT_EQ(complaint([] { whole().required("none", text); }).sentence, "none is missing");
    EXPECT_EQ(complaint([] { whole(Null::value).optional("none", text); }),
        (Complaint{"none: expected a string, found null", "none is not a string"}));
    EXPECT_TRUE(whole(Null::value).find("none")->is_null());
}

TEST(Object, whatIsMistypedIsNamedWithItsPlace)
{
    EXPECT_EQ(complaint([] { whole().optional("numbers", text); }).sentence, "numbers is not a string");
    EXPECT_EQ(complaint([] { whole().required("inner", members).required("deep", number); }),
        (Complaint{"deep: expected a number, found true", "deep is not a number"}));
    EXPECT_EQ(complaint([] { Object{document().root()["numbers"].value()}; }).what,
        "expected an object, found an array");
}

TEST(Object, aListIsReadElementByElement)
{
    EXPECT_THAT(whole().required("numbers", listOf(number)), ElementsAre(1, 2.5));
    EXPECT_EQ(complaint([] { whole().required("mixed", listOf(number)); }),
        (Complaint{"mixed[1]: expected a number, found \"x\"", "mixed[1] is not a number"}));
    EXPECT_EQ(complaint([] { whole().required("name", listOf(number)); }).sentence, "name is not an array");
}

TEST(Object, aListIsOnlySoLong)
{
    std::string list = "[0";
    for (std::size_t count = 1; count < mostElements; ++count)
        list += ",0";
    const Document longest{list + "]"};
    EXPECT_EQ(listOf(number)(longest.root()).size(), mostElements);
    const Document tooLong{list + ",0]"};
    EXPECT_EQ(complaint([&] { listOf(number)(tooLong.root()); }).what, "has more than 50,000 elements");
}

TEST(Object, anUnknownWordIsASentenceOfItsPlace)
{
    const auto refuse = [](Value) -> int { throw DecodingError::unknownWord("huge"); };
    EXPECT_EQ(complaint([&] { whole().required("name", refuse); }),
        (Complaint{"name: unknown word \"huge\"", "unknown name \"huge\""}));
}

} // namespace skyvane::JSON
