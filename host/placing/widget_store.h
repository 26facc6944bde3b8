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

    const std::vector<PlacedWidget>& all() const { return m_arrangement.widgets; }
    /// Null where there is none of this id.
    const PlacedWidget* find(int widget) const;

    /// Whether the last change is in the file: what stands there is what the next session begins with.
    bool isSaved() const { return m_isSaved; }

    /// Adds a widget and returns it, with an id of its own.
    PlacedWidget add(const WidgetTarget& target, const Placement& placement);
    /// Returns the widget, absent when there was none of this id.
    std::optional<PlacedWidget> remove(int widget);
    /// Puts a removed widget back and returns it, with an id of its own should another have taken it.
    PlacedWidget putBack(PlacedWidget widget);

    bool isLocked() const { return m_arrangement.isLocked; }
    void setLocked(bool isLocked);

    /// These change nothing when there is no widget of this id.
    void resize(int widget, WidgetFamily family);
    void move(int widget, const Placement& placement);

private:
    PlacedWidget* findMutable(int widget);
    int freeId() const;
    void save() { m_isSaved = m_file.write(m_arrangement); }

    HostFile m_file;
    Arrangement m_arrangement;
    bool m_isFirstStart;
    bool m_isSaved = true;
};

} // namespace skyvane
