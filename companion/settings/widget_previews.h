#pragma once

#include "companion/settings/settings_draft.h"
#include "desk/display_list_view.h"

#include <QWidget>

namespace skyvane {

/// The three widgets as they come out with what is chosen, drawn from the built-in sample.
class WidgetPreviews : public QWidget {
    Q_OBJECT
public:
    explicit WidgetPreviews(const FontMeasurer& fonts, QWidget* parent = nullptr);

    void showDraft(const SettingsDraft& draft);

private:
    DisplayListView* m_nearest;
    DisplayListView* m_radar;
    DisplayListView* m_board;
};

} // namespace skyvane
