#include "protocol/answer.h"

#include "tests/protocol/complaint.h"

#include <gtest/gtest.h>

#include <string>

namespace skyvane::Protocol {

namespace {

std::string envelopeComplaint(const std::string& text)
{
    const JSON::Document document{text};
    return test::complaint([&] { resultOf(document.root(), 4); });
}

} // namespace

TEST(Answer, isThatToItsRequest)
{
    EXPECT_EQ(envelopeComplaint(R"({"jsonrpc":"2.0","id":4,"result":{}})"), "none");
    EXPECT_EQ(envelopeComplaint(R"({"jsonrpc":"2.0","id":5,"result":{}})"), "id: is that of another request");
    EXPECT_EQ(envelopeComplaint(R"({"jsonrpc":"1.0","id":4,"result":{}})"), "jsonrpc: expected \"2.0\"");
    EXPECT_EQ(envelopeComplaint(R"({"jsonrpc":"2.0","id":4})"), "result: is missing");
}

TEST(Answer, thatIsAnErrorIsARefusalWhoeverItIsFor)
{
    EXPECT_EQ(
        envelopeComplaint(R"({"jsonrpc":"2.0","id":null,"error":{"code":1,"message":"no"}})"), "refused: no");
    EXPECT_EQ(
        envelopeComplaint(R"({"jsonrpc":"2.0","id":4,"error":{"code":1}})"), "error.message: is missing");
}

TEST(Answer, saysWhichRequestItAnswers)
{
    const JSON::Document document{std::string_view{R"({"id":7})"}};
    EXPECT_EQ(answeredID(document.root()), 7);
}

} // namespace skyvane::Protocol
