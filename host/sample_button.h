#pragma once

#include "host/widget_entry.h"
#include "paint/font_measurer.h"
#include "ui/layout/widget_container.h"

#include <QAbstractButton>

namespace skyvane {

/// A widget of a family as a button with its sample's picture.
class SampleButton : public QAbstractButton {
public:
    SampleButton(ContainerFamily family, const FontMeasurer& fonts);

    void showSample(const WidgetEntry& entry);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    ContainerFamily m_family;
    const FontMeasurer& m_fonts;
    Color m_background;
    DisplayList m_list;
};

} // namespace skyvane
