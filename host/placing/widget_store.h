#pragma once

#include "host/placing/host_file.h"

namespace skyvane {

/// The widgets that stand on the desktop, written to their file at every change.
class WidgetStore {
public:
    /// Reads what an earlier session left in the file.
    explicit WidgetStore(const std::filesystem::path& file);

    /// Whether no earlier session left anything that can be understood.
    bool isFirstStart() const { return m_isFirstStart; }

    const std::vector<PlacedWidget>& all() const { return m_widgets; }
    /// Null where there is none of this id.
    const PlacedWidget* find(int widget) const;

    /// Adds a widget and returns it, with an id of its own.
    PlacedWidget add(const WidgetTarget& target, const Placement& placement);
    /// Returns whether there was a widget of this id.
    bool remove(int widget);

    /// These change nothing when there is no widget of this id.
    void resize(int widget, WidgetFamily family);
    void move(int widget, const Placement& placement);

private:
    PlacedWidget* findMutable(int widget);

    HostFile m_file;
    std::vector<PlacedWidget> m_widgets;
    bool m_isFirstStart;
};

} // namespace skyvane
