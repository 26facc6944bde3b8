#include "companion/feed/answer_memory.h"

#include <gtest/gtest.h>

#include <thread>

namespace skyvane {

using namespace std::chrono_literals;

TEST(AnswerMemory, keepsAnAnswerAndThatThereIsNone)
{
    AnswerMemory<int> memory{{.answer = 1h}};
    EXPECT_EQ(memory.find("a"), nullptr);
    EXPECT_EQ(memory.keep("a", 1), 1);
    EXPECT_EQ(memory.keep("b", std::nullopt), std::nullopt);
    ASSERT_NE(memory.find("a"), nullptr);
    EXPECT_EQ(*memory.find("a"), 1);
    ASSERT_NE(memory.find("b"), nullptr);
    EXPECT_EQ(*memory.find("b"), std::nullopt);
}

TEST(AnswerMemory, forgetsEachInItsTime)
{
    AnswerMemory<int> memory{{.answer = 80ms, .absence = 20ms}};
    memory.keep("answer", 1);
    memory.keep("none", std::nullopt);
    std::this_thread::sleep_for(30ms);
    EXPECT_EQ(memory.find("none"), nullptr);
    std::this_thread::sleep_for(60ms);
    EXPECT_EQ(memory.find("answer"), nullptr);
}

TEST(AnswerMemory, whatWasLongestOfNoUseGoesFirst)
{
    AnswerMemory<int> memory{{.answer = 1h, .most = 3}};
    memory.keep("a", 1);
    memory.keep("b", 2);
    memory.keep("c", 3);
    EXPECT_NE(memory.find("a"), nullptr);
    memory.keep("d", 4);
    EXPECT_EQ(memory.find("b"), nullptr);
    for (const char* kept : {"a", "c", "d"})
        EXPECT_NE(memory.find(kept), nullptr) << kept;
    memory.keep("d", 5);
    EXPECT_EQ(*memory.find("d"), 5) << "another answer for the same needs no room";
    EXPECT_NE(memory.find("c"), nullptr);
}

} // namespace skyvane
