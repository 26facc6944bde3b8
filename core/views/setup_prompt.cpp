#include "core/views/setup_prompt.h"

#include "platform/text/localized.h"
#include "ui/tree/build.h"

namespace skyvane {

View SetupPrompt::body() const
{
    return VStack{.spacing = 6}({
        symbol("house").font({.size = TextStyle::title3}).foreground(palette.dim()),
        text(localized("Open Skyvane to set your home location"))
            .font({.size = TextStyle::caption2})
            .foreground(palette.dim())
            .align(HorizontalAlignment::center),
    });
}

} // namespace skyvane
