#include "host/desktop/widget_window.h"
#include "host/extension/schedule.h"
#include "host/session/desktop_way.h"
#include "platform/pinned.h"
#include "tests/host/extension/fake_extension.h"
#include "tests/session/wait_for.h"

#include <QImage>

#include <gtest/gtest.h>

#include <algorithm>
#include <malloc.h>

#if defined(__SANITIZE_ADDRESS__)
/// Of the sanitizer's run-time library; GCC ships no header for it.
// NOLINTNEXTLINE(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace skyvane {

namespace {

using namespace std::chrono_literals;

/// A time that no real timer reaches.
constexpr Date future{std::chrono::sys_days{std::chrono::year{2100} / 1 / 1}};

/// What this process has asked for and not given back.
std::size_t liveBytes()
{
#if defined(__SANITIZE_ADDRESS__)
    return __sanitizer_get_current_allocated_bytes();
#else
    return mallinfo2().uordblks;
#endif
}

std::ptrdiff_t entries(const std::filesystem::path& folder)
{
    const std::filesystem::directory_iterator list{folder};
    return std::distance(begin(list), end(list));
}

/// One widget, refreshed as fast as its extension answers, which ends now and then for want of questions.
class Endurance : public testing::Test {
protected:
    /// So many more refreshes, each painted, until the extension has ended.
    void refresh(int count)
    {
        for (int round = 1; round <= count; ++round) {
            const int wanted = shown + 1;
            schedule.refresh(1);
            ASSERT_TRUE(test::waitFor([&] { return shown >= wanted; }));
        }
        ASSERT_TRUE(test::waitFor([&] { return !isExtensionRunning(); }));
    }

    static bool isExtensionRunning()
    {
        std::ifstream children{"/proc/thread-self/children"};
        return children.peek() != std::ifstream::traits_type::eof();
    }

    Pinned<Date> now{future};
    test::FakeExtension extension{"counting"};
    FontMeasurer fonts;
    DesktopWay way;
    WidgetWindow window{WidgetFamily::small, fonts, way, {}};
    std::optional<ShownEntry> last;
    int shown = 0; ///< Different contents in a row.
    ExtensionProcess process{extension.program(), {.betweenTimelines = 0ms, .idle = 50ms, .grace = 20s}};
    Schedule schedule{process, [this](int, const ShownEntry& content) {
                          if (content == last)
                              return;
                          last = content;
                          window.showContent(content);
                          window.grab();
                          shown += content.isRefreshing ? 0 : 1;
                      }};
};

} // namespace

TEST_F(Endurance, aThousandRefreshesLeaveNothingBehind)
{
    constexpr std::size_t tolerance = 64UL * 1024;
    schedule.add(1, {.kind = "org.example.clock", .family = WidgetFamily::small});
    for (int batch = 0; batch < 2; ++batch)
        refresh(100);
    const auto descriptors = entries("/proc/self/fd");
    const std::size_t bytes = liveBytes();
    for (int batch = 0; batch < 8; ++batch)
        refresh(100);
    EXPECT_GE(shown, 1000);
    EXPECT_GE(extension.events("start").size(), 10U);
    EXPECT_EQ(entries("/proc/self/fd"), descriptors);
    EXPECT_LT(liveBytes(), bytes + tolerance);
}

} // namespace skyvane
