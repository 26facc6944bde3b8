#include "desk/look/appearance.h"

#include "desk/bus/names.h"
#include "desk/look/contrast.h"
#include "desk/look/outlined_style.h"

#include <QApplication>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QStyle>
#include <QToolTip>

namespace skyvane {

namespace {

constexpr unsigned prefersDark = 1;
constexpr unsigned prefersContrast = 1;

QString portalInterface()
{
    return QStringLiteral("org.freedesktop.portal.Settings");
}

QString appearanceName()
{
    return QStringLiteral("org.freedesktop.appearance");
}

QString schemeKey()
{
    return QStringLiteral("color-scheme");
}

QString contrastKey()
{
    return QStringLiteral("contrast");
}

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightnessF() < palette.color(QPalette::WindowText).lightnessF();
}

/// Quiet text that can still be read, as can what is selected, and links that do not shout.
QPalette calmed(QPalette palette)
{
    if (palette.color(QPalette::Link) == Qt::blue)
        palette.setColor(QPalette::Link, QColor{0x1a, 0x5f, 0xb4});
    if (palette.color(QPalette::LinkVisited) == Qt::magenta)
        palette.setColor(QPalette::LinkVisited, QColor{0x81, 0x3d, 0x9c});
    constexpr double enoughForText = 4.5;
    for (const auto group : {QPalette::Active, QPalette::Inactive})
        palette.setColor(group, QPalette::Highlight,
            setApart(palette.color(group, QPalette::Highlight),
                palette.color(group, QPalette::HighlightedText), enoughForText));
    QColor quiet = palette.color(QPalette::Text);
    quiet.setAlphaF(0.66F);
    palette.setColor(QPalette::PlaceholderText, quiet);
    return palette;
}

/// Black on white, or white on black, with no quiet text.
QPalette inHighContrast(QPalette palette)
{
    constexpr double enough = 7;
    const QColor background = isDark(palette) ? Qt::black : Qt::white;
    const QColor text = isDark(palette) ? Qt::white : Qt::black;
    for (const auto role :
        {QPalette::Window, QPalette::Base, QPalette::AlternateBase, QPalette::Button, QPalette::ToolTipBase})
        palette.setColor(role, background);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText,
             QPalette::PlaceholderText, QPalette::Mid})
        palette.setColor(role, text);
    for (const auto role : {QPalette::Link, QPalette::LinkVisited})
        palette.setColor(role, setApart(palette.color(role), background, enough));
    palette.setColor(QPalette::Highlight,
        setApart(palette.color(QPalette::Highlight), palette.color(QPalette::HighlightedText), enough));
    return palette;
}

void show(const QPalette& palette)
{
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette); // Its own, which follows no other.
}

} // namespace

Appearance::Appearance(QDBusConnection bus) : m_own(calmed(QApplication::palette()))
{
    if (QApplication::style()->name() == QStringLiteral("fusion"))
        QApplication::setStyle(new OutlinedStyle);
    show(m_own);
    bus.connect(BusName::portal(), BusName::portalPath(), portalInterface(), QStringLiteral("SettingChanged"),
        this, SLOT(settingChanged(QDBusMessage)));
    for (const QString& key : {schemeKey(), contrastKey()})
        ask(bus, key);
}

void Appearance::ask(QDBusConnection bus, const QString& key)
{
    auto message = QDBusMessage::createMethodCall(
        BusName::portal(), BusName::portalPath(), portalInterface(), QStringLiteral("Read"));
    message << appearanceName() << key;
    auto* answer = new QDBusPendingCallWatcher{bus.asyncCall(message), this};
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, key, answer] {
        const QDBusPendingReply<QDBusVariant> value = *answer;
        if (value.isValid()) {
            follow(key, value.value().variant());
            showChosen(/*isChange=*/false);
        }
        answer->deleteLater();
    });
}

QPalette Appearance::darkPalette()
{
    const QColor text{0xe6, 0xe8, 0xeb};
    const QColor faded{0x80, 0x84, 0x8a};
    QPalette palette{QColor{0x2a, 0x2d, 0x32}, QColor{0x1b, 0x1d, 0x21}};
    palette.setColor(QPalette::Base, QColor{0x15, 0x17, 0x1a});
    palette.setColor(QPalette::AlternateBase, QColor{0x24, 0x27, 0x2c});
    palette.setColor(QPalette::Light, QColor{0x4a, 0x4e, 0x55});
    palette.setColor(QPalette::Midlight, QColor{0x3a, 0x3e, 0x44});
    palette.setColor(QPalette::Mid, QColor{0x3f, 0x43, 0x4a});
    palette.setColor(QPalette::Dark, QColor{0x12, 0x14, 0x17});
    palette.setColor(QPalette::Shadow, Qt::black);
    palette.setColor(QPalette::ToolTipBase, QColor{0x24, 0x27, 0x2c});
    for (const auto role :
        {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, text);
    palette.setColor(QPalette::Highlight, QColor{0x2f, 0x6f, 0xb4});
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor{0x7a, 0xb4, 0xf2});
    palette.setColor(QPalette::LinkVisited, QColor{0xb9, 0xa1, 0xee});
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faded);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor{0x44, 0x48, 0x4e});
    return calmed(palette);
}

QPalette Appearance::lightPalette()
{
    return calmed(QPalette{QColor{0xef, 0xef, 0xef}});
}

void Appearance::settingChanged(const QDBusMessage& signal)
{
    const QVariantList arguments = signal.arguments();
    if (arguments.value(0) != appearanceName())
        return;
    follow(arguments.value(1).toString(), arguments.value(2));
    showChosen(/*isChange=*/true);
}

void Appearance::follow(const QString& key, const QVariant& value)
{
    const QVariant inner = value.canConvert<QDBusVariant>() ? value.value<QDBusVariant>().variant() : value;
    if (key == schemeKey())
        m_wantsDark = inner.toUInt() == prefersDark;
    else if (key == contrastKey())
        m_wantsContrast = inner.toUInt() == prefersContrast;
}

/// A theme that was dark from the start stays dark until the user chooses anew.
void Appearance::showChosen(bool isChange)
{
    const bool isThemesStyle = qobject_cast<OutlinedStyle*>(QApplication::style()) == nullptr;
    const bool isDarkByTheme = isDark(m_own) && (isThemesStyle || !isChange);
    QPalette chosen = m_own;
    if (m_wantsDark && !isDark(m_own))
        chosen = darkPalette();
    else if (!m_wantsDark && isDark(m_own) && !isDarkByTheme)
        chosen = lightPalette();
    if (m_wantsContrast)
        chosen = inHighContrast(chosen);
    if (chosen == QApplication::palette())
        return;
    if (m_wantsDark && isThemesStyle && !isDark(m_own))
        QApplication::setStyle(new OutlinedStyle);
    show(chosen);
}

} // namespace skyvane
