#include "platform/json/decode.h"

#include "platform/json/value.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <string_view>
#include <utility>

namespace skyvane {

namespace {

struct Inner {
    std::string name;
    std::optional<std::int64_t> count{};

    bool operator==(const Inner&) const = default;
};

struct Outer {
    double ratio;
    std::vector<Inner> list;
    std::optional<Inner> single{};

    bool operator==(const Outer&) const = default;
};

} // namespace

template <>
struct JSON::Fields<Inner> {
    static constexpr auto list = std::tuple{field("name", &Inner::name), field("count", &Inner::count)};
};

template <>
struct JSON::Fields<Outer> {
    static constexpr auto list = std::tuple{
        field("ratio", &Outer::ratio), field("list", &Outer::list), field("single", &Outer::single)};
};

namespace {

std::string errorOf(std::string_view json)
{
    try {
        JSON::decodeText<Outer>(json);
    } catch (const JSON::DecodingError& error) {
        return error.what();
    }
    return "no error";
}

std::int64_t integerIn(const std::string& text)
{
    return JSON::decodeText<std::vector<std::int64_t>>("[" + text + "]").at(0);
}

double doubleIn(const std::string& text)
{
    return JSON::decodeText<std::vector<double>>("[" + text + "]").at(0);
}

TEST(JSONDecoding, readsNestedRecords)
{
    EXPECT_EQ(JSON::decodeText<Outer>(
                  R"({"single":{"name":"s","count":7},"ratio":1,"list":[{"name":"a"}],"more":[{}]})"),
        (Outer{.ratio = 1, .list = {{.name = "a"}}, .single = Inner{.name = "s", .count = 7}}));
}

TEST(JSONDecoding, anErrorNamesTheWholeKeyPath)
{
    EXPECT_EQ(errorOf(R"({"ratio":1,"list":[{"name":"a"},{"name":"b","count":1.5}]})"),
        "list[1].count: expected a whole number of 64 bits, found 1.5");
    EXPECT_EQ(errorOf(R"({"ratio":1,"list":[],"single":{}})"), "single.name: is missing");
    EXPECT_EQ(errorOf(R"({"ratio":1,"list":{}})"), "list: expected an array, found an object");
    EXPECT_EQ(errorOf(R"({"list":[]})"), "ratio: is missing");
    EXPECT_EQ(errorOf("7"), "expected an object, found 7");
}

TEST(JSONDecoding, anErrorShowsAtMostTheBeginningOfALongText)
{
    const std::string error = errorOf(R"({"ratio":")" + std::string(100000, 'x') + "\"}");
    EXPECT_LT(error.size(), 120U);
    const std::string whole = '"' + std::string(38, 'x') + '"';
    EXPECT_EQ(errorOf(R"({"ratio":)" + whole + "}"), "ratio: expected a number, found " + whole);
    EXPECT_EQ(errorOf(R"({"ratio":"ends-)" + std::string(34, 'x') + "\"}"),
        R"(ratio: expected a number, found "\"ends-)" + std::string(34, 'x') + '"');
}

TEST(JSONDecoding, nullIsAbsenceAlsoOfWhatIsRequired)
{
    EXPECT_EQ(
        JSON::decodeText<Outer>(R"({"ratio":1,"list":[],"single":null})"), (Outer{.ratio = 1, .list = {}}));
    EXPECT_EQ(errorOf(R"({"ratio":null,"list":[]})"), "ratio: is missing");
}

TEST(JSONDecoding, ofTwoEqualKeysTheFirstCounts)
{
    EXPECT_EQ(JSON::decodeText<Outer>(R"({"ratio":1,"ratio":"x","list":[],"single":null,"single":7})"),
        (Outer{.ratio = 1, .list = {}}));
}

TEST(JSONDecoding, passesOverAKeyThatDiffersFromAFieldsInItsMiddleOnly)
{
    const Outer outer{.ratio = 1, .list = {}};
    EXPECT_EQ(JSON::decodeText<Outer>(R"({"ra--o":"x","ratio":1,"l--t":7,"list":[]})"), outer);
}

TEST(JSONDecoding, readsAStringWithSpareCapacityAsOneWithout)
{
    std::string roomy = R"({"ratio":1,"list":[{"name":"a"}]})";
    std::string tight = roomy;
    tight.shrink_to_fit();
    roomy.reserve(roomy.size() + 1000);
    roomy.append("]]]").resize(tight.size()); // What stands behind the text does not count.
    EXPECT_EQ(JSON::decodeText<Outer>(roomy), JSON::decodeText<Outer>(tight));
}

TEST(JSONDecoding, aTextThatIsGivenAwayIsReadAlikeAndQuotedInErrors)
{
    std::string text = R"({"ratio":1,"list":[{"name":"a text too long for a string's own room"}]})";
    text.reserve(text.size() + 1000);
    const Outer outer = JSON::decodeText<Outer>(std::string{text});
    EXPECT_EQ(JSON::decodeText<Outer>(std::move(text)), outer);

    std::string wrong = R"({"ratio":"none","list":[]})";
    try {
        JSON::decodeText<Outer>(std::move(wrong));
        FAIL() << "decoded";
    } catch (const JSON::DecodingError& error) {
        EXPECT_STREQ(error.what(), R"(ratio: expected a number, found "none")");
    }
}

TEST(JSONDecoding, escapedKeysAreTheKeysTheySpell)
{
    EXPECT_EQ(JSON::decodeText<Outer>(R"({"\u0072atio":2,"list":[]})").ratio, 2);
}

TEST(JSONDecoding, aTruthIsTrueOrFalseAndNothingElse)
{
    const auto truthIn = [](std::string_view text) {
        const JSON::Document document{text};
        return JSON::boolean(document.root());
    };
    EXPECT_TRUE(truthIn("true"));
    EXPECT_FALSE(truthIn("false"));
    for (const char* text : {"1", "0", "\"true\"", "null", "[]", "{}"})
        EXPECT_THROW(truthIn(text), JSON::DecodingError) << text;
}

TEST(JSONDecoding, wholeNumbersMayBeWrittenInAnyWay)
{
    EXPECT_EQ(integerIn("1500.0"), 1500);
    EXPECT_EQ(integerIn("1.5e3"), 1500);
    EXPECT_EQ(integerIn("-0.0"), 0);
    EXPECT_EQ(integerIn("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(integerIn("-9223372036854775808"), std::numeric_limits<std::int64_t>::min());
}

TEST(JSONDecoding, aWholeNumberWithAnExponentIsExactWhereverItStands)
{
    for (std::size_t blanks = 0; blanks < 9; ++blanks) {
        const std::string before(blanks, ' ');
        EXPECT_EQ(integerIn(before + "123456789012345e3"), 123456789012345000) << blanks;
        EXPECT_EQ(integerIn(before + "-98765432109876.5E4"), -987654321098765000) << blanks;
        EXPECT_THROW(integerIn(before + "123456789012345e5"), JSON::DecodingError) << blanks;
        EXPECT_EQ(doubleIn(before + "123456789012345e3"), 123456789012345000.0) << blanks;
    }
}

TEST(JSONDecoding, wholeNumbersBeyond64BitsAreNoIntegersButDoubles)
{
    for (const char* text : {"9223372036854775808", "-9223372036854775809", "18446744073709551615",
             "18446744073709551616", "100000000000000000000", "-9223372036854775808.5", "1e19", "1500.5"})
        EXPECT_THROW(integerIn(text), JSON::DecodingError) << text;
    EXPECT_EQ(doubleIn("9223372036854775808"), 9223372036854775808.0);
    EXPECT_EQ(doubleIn("-9223372036854775809"), -9223372036854775808.0);
    EXPECT_EQ(doubleIn("18446744073709551616"), 18446744073709551616.0);
    EXPECT_EQ(doubleIn("-99999999999999999999"), -1e20);
    EXPECT_EQ(doubleIn("1" + std::string(300, '0')), 1e300);
}

TEST(JSONDecoding, aNumberThatOnlyADoubleMakesWholeIsNone)
{
    for (const char* text : {"1500.00000000000000000000000000000001", "9007199254740993.5", "-1e-400",
             "0.99999999999999999999", "9223372036854775807.5", "1E-400"})
        EXPECT_THROW(integerIn(text), JSON::DecodingError) << text;
    EXPECT_EQ(doubleIn("1500.00000000000000000000000000000001"), 1500);
    EXPECT_EQ(doubleIn("0.99999999999999999999"), 1);
    EXPECT_EQ(doubleIn("1e-400"), 0);
}

TEST(JSONDecoding, aWholeNumberIsReadToItsLastDigit)
{
    EXPECT_EQ(integerIn("9007199254740993.0"), 9007199254740993);
    EXPECT_EQ(integerIn("922337203685477580700e-2"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(integerIn("-9.223372036854775808e18"), std::numeric_limits<std::int64_t>::min());
    const std::string zeros(1000, '0');
    EXPECT_EQ(integerIn("7." + zeros), 7);
    EXPECT_EQ(integerIn("7" + zeros + "e-1000"), 7);
    EXPECT_EQ(integerIn("0e999999999999999999999"), 0);
    EXPECT_EQ(doubleIn("0." + zeros + "7e1001"), 7);
}

TEST(JSONDecoding, aZeroKeepsItsSign)
{
    for (const char* text : {"-0", "-0.0", "-0e5", "-1e-400"})
        EXPECT_TRUE(std::signbit(doubleIn(text)) && doubleIn(text) == 0) << text;
    EXPECT_FALSE(std::signbit(doubleIn("0")));
    EXPECT_EQ(integerIn("-0"), 0);
}

TEST(JSONDecoding, aNumberBeyondEveryDoubleIsAnErrorWhereItIsRead)
{
    for (const char* text : {"1e999", "-1e999", "1e99999999999999999999", "1.7976931348623159e308"})
        EXPECT_THROW(doubleIn(text), JSON::DecodingError) << text;
    EXPECT_EQ(errorOf(R"({"ratio":1e999,"list":[]})"), "ratio: expected a number, found 1e999");
    EXPECT_EQ(
        errorOf(R"({"ratio":1,"list":[{"name":1e999}]})"), "list[0].name: expected a string, found 1e999");
}

TEST(JSONDecoding, halfASurrogatePairIsAnErrorWhereItIsRead)
{
    for (const char* text : {R"("\ud800")", R"("a\udc00b")", R"("\udfff")", R"("\udbff\ue000")",
             R"("\ud83d\ud83d\ude00")", R"("\ud800\n")"}) {
        EXPECT_NE(errorOf(std::string{R"({"ratio":1,"list":[{"name":)"} + text + "}]}"), "no error") << text;
        EXPECT_NE(errorOf(std::string{R"({"list":[],"ratio":)"} + text + "}"), "no error") << text;
    }
    EXPECT_EQ(JSON::decodeText<std::vector<std::string>>(R"(["\ud83d\ude00","\\ud800"])"),
        (std::vector<std::string>{"\U0001F600", "\\ud800"}));
}

TEST(JSONDecoding, besideWhatNobodyReadsSurrogatePairsAreWhole)
{
    const std::string beside = R"({"x":[1e999,"\ud800"],"ratio":1,"list":[{"name":)";
    for (const auto& [text, name] : {std::pair{R"("\ud800\udc00")", "\U00010000"},
             std::pair{R"("\udbff\udfff")", "\U0010FFFF"}, std::pair{R"("\ud7ff\ue000")", "\ud7ff\ue000"}})
        EXPECT_EQ(JSON::decodeText<Outer>(beside + text + "}]}").list.at(0).name, name) << text;
}

TEST(JSONDecoding, whatNobodyReadsIsNoError)
{
    const Outer outer{.ratio = 1, .list = {}};
    for (const char* text : {"18446744073709551616", "-9223372036854775809", "99999999999999999999", "1e999",
             "-1e999", "-0", "1e-400", R"("\ud800")", R"("\udc00\ud800 \" ")", R"("\udfff")", R"("a\udc00b")",
             R"("\udbff\ue000")", R"([{"\ud800":[1e999]}])"})
        EXPECT_EQ(JSON::decodeText<Outer>(
                      std::string{R"({"x":)"} + text + R"(,"ratio":1,"list":[],"y":)" + text + "}"),
            outer)
            << text;
}

TEST(JSONDecoding, whatIsReadBesideStaysAsItIs)
{
    const std::string integers = "[9223372036854775807,-9223372036854775808,1,-0,1500.0]";
    EXPECT_EQ(JSON::decodeText<std::vector<std::int64_t>>(integers),
        (std::vector<std::int64_t>{
            std::numeric_limits<std::int64_t>::max(), std::numeric_limits<std::int64_t>::min(), 1, 0, 1500}));
    EXPECT_EQ(JSON::decodeText<std::vector<std::string>>(R"(["\u0001AB#1","-0 1e999","\\"])"),
        (std::vector<std::string>{"\x01"
                                  "AB#1",
            "-0 1e999", "\\"}));
}

TEST(JSONDecoding, aByteOrderMarkInFrontIsSkipped)
{
    const std::string text = "\xEF\xBB\xBF{\"ratio\":1,\"list\":[]}";
    EXPECT_EQ(JSON::decodeText<Outer>(text), (Outer{.ratio = 1, .list = {}}));
    std::string roomy = text;
    roomy.reserve(1000);
    EXPECT_EQ(JSON::decodeText<Outer>(roomy), (Outer{.ratio = 1, .list = {}}));
    EXPECT_EQ(errorOf("\xEF\xBB\xBF" + text).substr(0, 10), "not JSON: ");
    EXPECT_EQ(errorOf(text + "\xEF\xBB\xBF").substr(0, 10), "not JSON: ");
    EXPECT_EQ(errorOf("\xEF\xBB\xBF").substr(0, 10), "not JSON: ");
}

TEST(JSONDecoding, longDigitsInsideStringsAndFractionsStayAsTheyAre)
{
    const std::string json
        = R"({"ratio":1.12345678901234567890123e-10,"list":[{"name":"99999999999999999999\"1"}],)"
          R"("single":{"name":"x"},"unread":99999999999999999999})";
    const Outer outer = JSON::decodeText<Outer>(json);
    EXPECT_DOUBLE_EQ(outer.ratio, 1.12345678901234567890123e-10);
    EXPECT_EQ(outer.list[0].name, "99999999999999999999\"1");
}

TEST(JSONDecoding, refusesWhatIsNotStrictJSON)
{
    for (const char* text :
        {"", " ", "{", "{}x", "{} {}", "{'a':1}", "[1,]", "[01]", "[.5]", "nul", "\"\x01\"", "\"\xc0\xaf\"",
            "[-01]", "[-01,1e999]", "[00,1e999]", "[1e999x]", "[x1e999]", "[1.e999]", "[1e999.]", "[1e999e1]",
            "[+1e999]", "[--1e999]", "[1e+,1e999]", R"("\ud800)", R"("\ud800\")", R"(["\q\ud800"])",
            "[\"\\ud800\x01\"]", "[\"\\ud800\xff\"]", R"(["\ud800)", R"(["\u12",1e999])"})
        EXPECT_EQ(errorOf(text).substr(0, 10), "not JSON: ") << text;
}

TEST(JSONDecoding, refusesNestingBeyondTheLimit)
{
    const std::string deep(100000, '[');
    EXPECT_EQ(errorOf(deep).substr(0, 10), "not JSON: ");
}

TEST(JSONDecoding, refusesATextLongerThan8MiB)
{
    const std::string blanks(JSON::largestText, ' ');
    EXPECT_EQ(JSON::decodeText<std::vector<double>>("[1]" + blanks.substr(3)), std::vector{1.0});
    EXPECT_EQ(errorOf("[1]" + blanks.substr(2)), "longer than 8 MiB");
}

TEST(JSONDecoding, refusesAListOfMoreThan50000Elements)
{
    std::string list = "[1";
    for (std::size_t count = 1; count < JSON::mostElements; ++count)
        list += ",1";
    EXPECT_EQ(JSON::decodeText<std::vector<double>>(list + "]").size(), JSON::mostElements);
    EXPECT_EQ(errorOf(R"({"list":)" + list + ",1]}"), "list: has more than 50,000 elements");
}

TEST(JSONFieldTable, knowsTheOnlyPlaceWhereAKeyCanBe)
{
    constexpr JSON::FieldTable<4> table{{"lat", "lon", "alt_baro", "alt_geom"}};
    EXPECT_EQ(table.onlyIndexFor("lat"), 0U);
    EXPECT_EQ(table.onlyIndexFor("lon"), 1U);
    EXPECT_EQ(table.onlyIndexFor("alt_geom"), 3U);
    EXPECT_EQ(table.onlyIndexFor(""), 4U);
    EXPECT_EQ(table.onlyIndexFor("dst"), 4U);
}

} // namespace
} // namespace skyvane
