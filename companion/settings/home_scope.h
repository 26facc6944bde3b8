#pragma once

#include "companion/settings/settings_draft.h"
#include "ui/tree/view.h"

namespace skyvane {

/// The scope around the chosen home, with nobody in the sky yet.
struct HomeScope {
    const SettingsDraft& draft; ///< Only looked at, for as long as the view.

    View body() const;
};

} // namespace skyvane
