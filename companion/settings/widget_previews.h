#pragma once

#include "companion/settings/settings_draft.h"
#include "desk/display_list_view.h"
#include "widgets/skyvane_widget_bundle.h"

#include <QWidget>

#include <optional>
#include <vector>

class QLabel;

namespace skyvane {

/// Every widget in the smallest family that it supports, as it comes out with what is chosen, drawn from the
/// user's own sky, or else from the built-in sample; words below them say when their texts are hard to read.
class WidgetPreviews : public QWidget {
    Q_OBJECT
public:
    explicit WidgetPreviews(const FontMeasurer& fonts, QWidget* parent = nullptr);

    void showDraft(const SettingsDraft& draft);
    /// The user's own sky, which counts while it is that of the chosen home and somebody flies in it.
    void showSky(const SkyEntry& own);

private:
    void showWidgets();
    SkyEntry shownSky() const;
    void showLegibility(bool isEasy);

    struct Preview {
        Widget widget;
        DisplayListView* view;
    };

    SettingsDraft m_draft;
    std::optional<SkyEntry> m_own;
    std::vector<Preview> m_previews;
    QLabel* m_legibility;
};

} // namespace skyvane
