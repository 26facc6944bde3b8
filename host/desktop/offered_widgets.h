#pragma once

#include "host/extension/process.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace skyvane {

/// The widgets that the extension offers, as far as it has said.
class OfferedWidgets {
public:
    explicit OfferedWidgets(ExtensionProcess& extension) : m_extension(extension) { }

    /// Asks the extension. `learned` is called when it has answered, or failed to.
    void learn(std::function<void()> learned);

    /// Empty until it has answered.
    const std::vector<WidgetInfo>& all() const { return m_widgets; }

    /// By the kind, or by its last component alone; null for one that is not offered.
    const WidgetInfo* find(const std::string& kind) const;

    /// The same with the whole kind. Absent where the widget is not offered in this family.
    std::optional<WidgetTarget> target(const WidgetTarget& asked) const;

private:
    ExtensionProcess& m_extension;
    std::vector<WidgetInfo> m_widgets;
};

} // namespace skyvane
