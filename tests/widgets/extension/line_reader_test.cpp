#include "widgets/extension/line_reader.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <array>
#include <future>
#include <string>
#include <string_view>
#include <vector>

namespace skyvane::Extension {

namespace {

using Line = LineReader::Line;

class LineReaderTest : public testing::Test {
protected:
    ~LineReaderTest() override
    {
        close(ends[0]);
        endInput();
        close(interrupt);
    }

    void write(std::string_view text)
    {
        EXPECT_EQ(::write(ends[1], text.data(), text.size()), static_cast<ssize_t>(text.size()));
    }

    void endInput()
    {
        if (ends[1] >= 0)
            close(ends[1]);
        ends[1] = -1;
    }

    /// Every line of this input.
    std::vector<Line> lines(const std::string& input)
    {
        auto writing = std::async(std::launch::async, [&] {
            write(input);
            endInput();
        });
        std::vector<Line> all;
        while (auto line = reader.next())
            all.push_back(*std::move(line));
        return all;
    }

    static std::array<int, 2> makePipe()
    {
        std::array<int, 2> made;
        EXPECT_EQ(pipe2(made.data(), O_CLOEXEC), 0);
        return made;
    }

    std::array<int, 2> ends = makePipe();
    int interrupt = eventfd(0, EFD_CLOEXEC);
    LineReader reader{ends[0], interrupt};
};

} // namespace

TEST_F(LineReaderTest, linesEndAtLineBreaksOrWithTheInput)
{
    EXPECT_EQ(lines("one\n\ntwo\r\nthree"), (std::vector<Line>{{"one"}, {""}, {"two\r"}, {"three"}}));
}

TEST_F(LineReaderTest, noInputIsNoLine)
{
    EXPECT_TRUE(lines("").empty());
}

TEST_F(LineReaderTest, aLineBreakAtTheEndBeginsNoLine)
{
    EXPECT_EQ(lines("one\n"), std::vector<Line>{{"one"}});
}

TEST_F(LineReaderTest, zeroBytesAreTextLikeAnyOther)
{
    EXPECT_EQ(lines(std::string("a\0b\n", 4)), std::vector<Line>{{std::string("a\0b", 3)}});
}

TEST_F(LineReaderTest, aLineOf64KiBIsNotTooLong)
{
    const std::string longest(LineReader::longestLine, 'x');
    EXPECT_EQ(lines(longest + "\nnext\n" + longest), (std::vector<Line>{{longest}, {"next"}, {longest}}));
}

TEST_F(LineReaderTest, oneByteMoreIsTooLongAndTheRestOfThatLineIsPassedOver)
{
    const std::string tooLong(LineReader::longestLine + 1, 'x');
    EXPECT_EQ(lines(tooLong + "\nnext\n"), (std::vector<Line>{{"", true}, {"next"}}));
}

TEST_F(LineReaderTest, aLineThatNeverEndsIsReportedOnce)
{
    EXPECT_EQ(lines(std::string(1'000'000, 'x')), (std::vector<Line>{{"", true}}));
}

TEST_F(LineReaderTest, everyLineThatIsTooLongIsReported)
{
    const std::string tooLong(200'000, 'x');
    EXPECT_EQ(lines(tooLong + "\n" + tooLong + "\n\nnext"),
        (std::vector<Line>{{"", true}, {"", true}, {""}, {"next"}}));
}

TEST_F(LineReaderTest, aLineThatIsTooLongIsReportedBeforeItEnds)
{
    auto line = std::async(std::launch::async, [&] { return reader.next(); });
    for (int times = 0; times < 17; ++times)
        write(std::string(4096, 'x'));
    EXPECT_EQ(line.get(), (Line{"", true}));
}

TEST_F(LineReaderTest, aLineComesAsSoonAsItIsThere)
{
    write("one\nt");
    EXPECT_EQ(reader.next(), Line{"one"});
    write("wo\n");
    EXPECT_EQ(reader.next(), Line{"two"});
}

TEST_F(LineReaderTest, theInterruptEndsTheWait)
{
    auto line = std::async(std::launch::async, [&] { return reader.next(); });
    eventfd_write(interrupt, 1);
    EXPECT_FALSE(line.get());
}

} // namespace skyvane::Extension
