#include "companion/aircraft/route_panel.h"

#include "companion/look/credits.h"
#include "companion/look/type_scale.h"
#include "desk/text.h"

#include <QHBoxLayout>
#include <QLabel>

namespace skyvane {

namespace {

QString citiesOf(const FlightRoute& route)
{
    const auto both = route.citySummary();
    return both && !route.originCity->empty() && !route.destinationCity->empty() ? toQString(*both)
                                                                                 : QString{};
}

} // namespace

RoutePanel::RoutePanel(QWidget* parent) : QWidget(parent), m_airports(new QLabel), m_cities(new QLabel)
{
    for (QLabel* label : {m_airports, m_cities}) {
        label->setTextFormat(Qt::PlainText);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setWordWrap(true);
    }
    m_airports->setFont(TypeScale::title(font()));
    auto* last = new QHBoxLayout;
    last->setSpacing(12);
    last->addWidget(m_cities, /*stretch=*/1);
    last->addWidget(Credits::makeLabel(Credits::routes()));
    auto* caption = new QLabel{localizedText("Usual route")};
    caption->setFont(TypeScale::small(font()));
    TypeScale::makeQuiet(*caption);
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins(0, 20, 0, 0);
    column->setSpacing(2);
    column->addWidget(caption);
    column->addWidget(m_airports);
    column->addLayout(last);
    hide();
}

void RoutePanel::showRoute(const std::optional<FlightRoute>& route)
{
    const bool leadsElsewhere = route && route->originCode != route->destinationCode;
    m_airports->setText(route ? toQString(route->summary()) : QString{});
    m_cities->setText(route ? citiesOf(*route) : QString{});
    setVisible(leadsElsewhere);
}

QString RoutePanel::airports() const
{
    return m_airports->text();
}

QString RoutePanel::cities() const
{
    return m_cities->text();
}

} // namespace skyvane
