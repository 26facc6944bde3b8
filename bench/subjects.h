#pragma once

#include "ui/layout/widget_container.h"
#include "widgets/skyvane_widget_bundle.h"

#include <string>
#include <vector>

namespace skyvane::bench {

/// A widget in one of its families.
struct Subject {
    Widget widget;
    WidgetFamily family;

    /// "radar small"
    std::string name() const
    {
        const std::string kind = widget.kind.substr(widget.kind.rfind('.') + 1);
        return kind + " " + std::string{WidgetContainer::name(family)};
    }
};

/// Every widget in every family that it supports.
const std::vector<Subject>& subjects();

WidgetContent contentOf(const Subject& subject, const SkyEntry& entry);

/// What painting it is measured against: a picture of its size, filled.
void fillEmptyPicture(const Subject& subject, double scale);

} // namespace skyvane::bench
