#include "companion/settings/radius_field.h"

#include "companion/look/type_scale.h"
#include "core/feed/search_radius.h"
#include "core/model/aircraft.h"
#include "desk/text.h"
#include "platform/text/locale.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QSlider>

#include <cmath>

namespace skyvane {

namespace {

/// "25", "12.5": with the decimal mark of the user.
QString numberText(double radiusNM)
{
    QLocale locale{toQString(Locale::current().numbers)};
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(radiusNM, 'g', 6);
}

/// As the widgets write distances; empty where that says nothing new.
QString otherUnitText(double radiusNM, const std::string& unit)
{
    if (unit == "nm")
        return {};
    const Aircraft there{.hex = {}, .distanceNM = radiusNM};
    return toQString(there.distanceText(unit, /*compact=*/false).value_or(""));
}

int sliderPlace(double radiusNM)
{
    return static_cast<int>(std::lround(SearchRadius::bounded(radiusNM)));
}

} // namespace

RadiusField::RadiusField(QLabel& note, QWidget* parent)
    : QWidget(parent)
    , m_slider(new QSlider{Qt::Horizontal})
    , m_number(new MarkedLineEdit{note})
    , m_inOtherUnit(new QLabel)
{
    m_slider->setRange(sliderPlace(SearchRadius::smallest), sliderPlace(SearchRadius::largest));
    m_slider->setPageStep(10);
    m_slider->setAccessibleName(localizedText("Radius"));
    m_number->setAlignment(Qt::AlignRight);
    m_number->setFixedWidth(m_number->fontMetrics().averageCharWidth() * 12);
    m_number->setAccessibleName(localizedText("Radius in nautical miles"));
    m_inOtherUnit->setMinimumWidth(m_inOtherUnit->fontMetrics().averageCharWidth() * 10);
    TypeScale::makeQuiet(*m_inOtherUnit);
    setFocusPolicy(Qt::StrongFocus); // Else its label leads nowhere.
    setFocusProxy(m_slider);
    auto* row = new QHBoxLayout{this};
    row->setContentsMargins({});
    row->addWidget(m_slider, 1);
    row->addSpacing(8);
    row->addWidget(m_number);
    row->addWidget(new QLabel{localizedText("NM")});
    row->addSpacing(8);
    row->addWidget(m_inOtherUnit);

    connect(m_slider, &QSlider::valueChanged, this, [this](int value) { emit slid(value); });
    connect(m_slider, &QSlider::sliderReleased, this, &RadiusField::finished);
    connect(m_number, &QLineEdit::textEdited, this, &RadiusField::readNumber);
    connect(m_number, &QLineEdit::editingFinished, this, &RadiusField::finished);
}

std::optional<double> RadiusField::read(const QString& text)
{
    const QLocale locale{toQString(Locale::current().numbers)};
    bool isNumber = false;
    double radiusNM = locale.toDouble(text.trimmed(), &isNumber);
    if (!isNumber)
        radiusNM = QLocale::c().toDouble(text.trimmed(), &isNumber);
    const bool isRadius = isNumber && radiusNM >= SearchRadius::smallest && radiusNM <= SearchRadius::largest;
    return isRadius ? std::optional{radiusNM} : std::nullopt;
}

void RadiusField::showRadius(double radiusNM, const std::string& unit)
{
    m_inOtherUnit->setText(otherUnitText(radiusNM, unit));
    if (radiusNM == m_radiusNM)
        return;
    m_radiusNM = radiusNM;
    const QSignalBlocker silently{m_slider};
    m_slider->setValue(sliderPlace(radiusNM));
    if (m_isReading)
        return;
    m_number->setText(numberText(radiusNM));
    m_number->setProblem({});
}

void RadiusField::readNumber()
{
    const auto radiusNM = read(m_number->text());
    m_number->setProblem(radiusNM
            ? QString{}
            : localizedText("The radius is a number from %1 to %2 nautical miles.",
                {std::lround(SearchRadius::smallest), std::lround(SearchRadius::largest)}));
    const QScopedValueRollback isReading{m_isReading, true};
    emit typed(radiusNM);
}

} // namespace skyvane
