#include "companion/settings/home_scope.h"

#include "core/radar/radar_view.h"
#include "platform/text/localized.h"
#include "ui/tree/build.h"

namespace skyvane {

namespace {

constexpr Font captionFont{.size = TextStyle::caption, .weight = FontWeight::semibold};

} // namespace

View HomeScope::body() const
{
    const SkyEntry entry = draft.asChosen(SkyEntry::around(draft.toConfig()));
    const ScopePalette palette = entry.palette();
    const std::string caption = entry.home ? entry.home->label : localized("No home yet");
    return VStack{.spacing = 8}({
        RadarView{.entry = entry}.body(),
        text(caption)
            .font(captionFont)
            .foreground(entry.home ? palette.phosphor : palette.dim())
            .lineLimit(1)
            .minimumScale(0.8),
    });
}

} // namespace skyvane
