#pragma once

#include "host/extension/schedule.h"
#include "platform/pinned.h"
#include "tests/host/extension/fake_extension.h"
#include "tests/session/journal.h"
#include "tests/session/wait_for.h"

#include <gmock/gmock.h>

#include <chrono>
#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace skyvane {

using namespace std::chrono_literals;

inline const WidgetTarget clock{.kind = "org.example.clock", .family = WidgetFamily::small};
inline const WidgetTarget mediumClock{.kind = "org.example.clock", .family = WidgetFamily::medium};
inline const WidgetTarget moon{.kind = "org.example.moon", .family = WidgetFamily::large};

inline constexpr ExtensionPace quick{
    .betweenTimelines = 250ms, .idle = 10s, .firstBackOff = 50ms, .longestBackOff = 50ms};

/// Of two questions, as the extension sees it, which may have heard the first late.
inline constexpr auto apart = quick.betweenTimelines / 2;

/// A time that no real timer reaches, so that only the test moves the clock.
inline constexpr Date future{std::chrono::sys_days{std::chrono::year{2100} / 1 / 1}};

/// A schedule with an extension that answers as its name says, and what it shows of each widget.
class ScheduleTest : public testing::Test {
protected:
    explicit ScheduleTest(const std::string& behaviour = "good") : extension(behaviour) { }

    /// Asked so often, and every answer taken: the extension answers in order.
    bool waitForTimelines(std::size_t count)
    {
        if (!test::waitFor([&] { return questions().size() == count; }))
            return false;
        process.ask(Protocol::ListCall{}, [this, wanted = ++asked](const auto&) { answered = wanted; });
        return test::waitFor([&] { return answered == asked; });
    }

    std::vector<test::FakeExtension::Event> questions() const
    {
        return extension.events("widgets.timelines");
    }
    /// Nothing more is asked than so many questions.
    bool staysAt(std::size_t count) const
    {
        return !test::waitFor([&] { return questions().size() != count; }, 300ms);
    }

    test::Journal journal;
    Pinned<Date> now{future};
    test::FakeExtension extension;
    ExtensionProcess process{extension.program(), quick};
    int asked = 0;
    int answered = 0;
    std::map<int, std::vector<ShownEntry>> shown;
    Schedule schedule{process, [this](int widget, const ShownEntry& content) {
                          auto& list = shown[widget];
                          if (list.empty() || list.back() != content)
                              list.push_back(content);
                      }};
};

} // namespace skyvane
