#include "core/feed/sources.h"

#include "platform/files/files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace skyvane {

using testing::HasSubstr;

TEST(Sources, areNamedToTheUserWhoIsAskedToTrustThem)
{
    const std::filesystem::path root{SKYVANE_SOURCES};
    const std::string readme = Files::read(root / "README.md", 1 << 20).value();
    const std::string manual = Files::read(root / "packaging/man/skyvane-widgets.1.in", 1 << 20).value();
    for (const ADSB::Source& source : ADSB::sources()) {
        EXPECT_THAT(readme, HasSubstr("https://" + source.website));
        EXPECT_THAT(readme, HasSubstr(source.name));
        EXPECT_THAT(manual, HasSubstr(source.name));
    }
}

TEST(Sources, areAskedAtTheHostThatMessagesName)
{
    const HomeLocation home{.latitude = 51.5, .longitude = -0.12, .label = "Home"};
    for (const ADSB::Source& source : ADSB::sources())
        EXPECT_THAT(source.url(home, 25), testing::StartsWith("https://" + source.name + "/"));
}

} // namespace skyvane
