#include "widgets/extension/output.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <future>
#include <memory>
#include <string>
#include <vector>

namespace skyvane::Extension {

namespace {

using namespace std::chrono_literals;
using std::chrono::steady_clock;

class OutputTest : public testing::Test {
protected:
    OutputTest()
    {
        std::signal(SIGPIPE, SIG_IGN);
        EXPECT_EQ(pipe2(outputEnds.data(), O_CLOEXEC), 0);
        EXPECT_EQ(pipe2(inputEnds.data(), O_CLOEXEC), 0);
    }
    ~OutputTest() override
    {
        for (int& descriptor : outputEnds)
            closeOnce(descriptor);
        for (int& descriptor : inputEnds)
            closeOnce(descriptor);
    }

    static void closeOnce(int& descriptor)
    {
        if (descriptor >= 0)
            close(descriptor);
        descriptor = -1;
    }

    std::string read(std::size_t size)
    {
        std::string text(size, '\0');
        for (std::size_t at = 0; at < size;) {
            const ssize_t count = ::read(outputEnds[0], text.data() + at, size - at);
            if (count <= 0)
                return text.substr(0, at);
            at += static_cast<std::size_t>(count);
        }
        return text;
    }

    static bool waitUntilLost(const Output& output, std::chrono::milliseconds within = 10s)
    {
        pollfd event{.fd = output.lost(), .events = POLLIN, .revents = 0};
        return poll(&event, 1, static_cast<int>(within.count())) > 0;
    }

    std::array<int, 2> outputEnds;
    std::array<int, 2> inputEnds;
};

} // namespace

TEST_F(OutputTest, answersOfManyThreadsStayWhole)
{
    constexpr std::size_t length = 100'000;
    Output output{outputEnds[1], inputEnds[0]};
    std::vector<std::future<void>> writers;
    for (const char letter : {'a', 'b', 'c', 'd'})
        writers.push_back(
            std::async(std::launch::async, [&, letter] { output.write(std::string(length, letter)); }));
    std::string letters;
    for (std::size_t count = 0; count < writers.size(); ++count) {
        const std::string answer = read(length);
        EXPECT_EQ(answer, std::string(length, answer.front()));
        letters += answer.front();
    }
    std::ranges::sort(letters);
    EXPECT_EQ(letters, "abcd");
    EXPECT_FALSE(output.isLost());
}

TEST_F(OutputTest, isLostWhenItsReaderIsGone)
{
    Output output{outputEnds[1], inputEnds[0]};
    closeOnce(outputEnds[0]);
    EXPECT_FALSE(output.isLost());
    output.write("x");
    EXPECT_TRUE(waitUntilLost(output));
    output.write("x");
    EXPECT_TRUE(output.isLost());
}

TEST_F(OutputTest, isLostWhenItsReaderGoesInTheMiddle)
{
    Output output{outputEnds[1], inputEnds[0]};
    output.write(std::string(1'000'000, 'x'));
    EXPECT_EQ(read(10'000).size(), 10'000U);
    closeOnce(outputEnds[0]);
    EXPECT_TRUE(waitUntilLost(output));
}

TEST_F(OutputTest, waitsForASlowReaderWhileThereIsInputAndHoldsUpNobody)
{
    Output output{outputEnds[1], inputEnds[0]};
    const auto start = steady_clock::now();
    for (const char letter : {'a', 'b', 'c'})
        output.write(std::string(200'000, letter));
    EXPECT_LT(steady_clock::now() - start, 500ms);
    EXPECT_FALSE(waitUntilLost(output, 700ms));
    for (const char letter : {'a', 'b', 'c'})
        EXPECT_EQ(read(200'000), std::string(200'000, letter));
    EXPECT_FALSE(output.isLost());
}

TEST_F(OutputTest, holdsNoMoreThanSomeMegabytes)
{
    Output output{outputEnds[1], inputEnds[0]};
    constexpr std::size_t mebibyte = std::size_t{1} << 20;
    auto writing = std::async(std::launch::async, [&] {
        for (int count = 0; count < 12; ++count)
            output.write(std::string(mebibyte, 'x'));
    });
    EXPECT_EQ(writing.wait_for(300ms), std::future_status::timeout);
    EXPECT_EQ(read(12 * mebibyte).size(), 12 * mebibyte);
    writing.get();
}

TEST_F(OutputTest, waitsHalfASecondFromTheEndOfTheInputOn)
{
    Output output{outputEnds[1], inputEnds[0]};
    output.write(std::string(200'000, 'x'));
    EXPECT_FALSE(waitUntilLost(output, 20ms));
    const auto start = steady_clock::now();
    closeOnce(inputEnds[1]);
    EXPECT_TRUE(waitUntilLost(output));
    EXPECT_GE(steady_clock::now() - start, 490ms);
    EXPECT_LT(steady_clock::now() - start, 800ms);
}

TEST_F(OutputTest, itsEndWaitsHalfASecondForASlowReader)
{
    auto output = std::make_unique<Output>(outputEnds[1], inputEnds[0]);
    output->write("first");
    output->write(std::string(200'000, 'x'));
    const auto start = steady_clock::now();
    output.reset();
    EXPECT_GE(steady_clock::now() - start, 490ms);
    EXPECT_LT(steady_clock::now() - start, 800ms);
    EXPECT_EQ(read(5), "first");
}

TEST_F(OutputTest, itsEndHandsOverWhatIsWritten)
{
    auto reading = std::async(std::launch::async, [this] { return read(1'000'000); });
    auto output = std::make_unique<Output>(outputEnds[1], inputEnds[0]);
    output->write(std::string(1'000'000, 'x'));
    output.reset();
    EXPECT_EQ(reading.get(), std::string(1'000'000, 'x'));
}

} // namespace skyvane::Extension
