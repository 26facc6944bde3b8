#pragma once

#include "host/extension/process.h"
#include "paint/font_measurer.h"

#include <QWidget>

class QVBoxLayout;

namespace skyvane {

class DesktopWay;

/// Every widget in every family, painted from its sample. A click adds it, and so does a drag out of here.
class Gallery : public QWidget {
public:
    /// Told which widget to add, and the frame where it was dropped, absent for a click.
    using Add = std::function<void(const WidgetTarget&, const std::optional<QRect>& frame)>;

    Gallery(ExtensionProcess& extension, const FontMeasurer& fonts, const DesktopWay& way, Add add);

    void showWidgets(const std::vector<WidgetInfo>& widgets);

private:
    QWidget* row(const WidgetInfo& widget);

    ExtensionProcess& m_extension;
    const FontMeasurer& m_fonts;
    const DesktopWay& m_way;
    Add m_add;
    QVBoxLayout* m_rows;
    QWidget* m_content;
};

} // namespace skyvane
