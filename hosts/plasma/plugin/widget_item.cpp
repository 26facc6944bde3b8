#include "hosts/plasma/plugin/widget_item.h"

#include "desk/spoken_parts.h"
#include "desk/text.h"
#include "host/desktop/first_widgets.h"
#include "host/desktop/shown_state.h"
#include "paint/painter.h"
#include "paint/widget_card.h"
#include "ui/layout/widget_container.h"

#include <KWaylandExtras>
#include <KWindowSystem>

#include <QPainter>
#include <QQuickWindow>
#include <QSGSimpleTextureNode>

#include <utility>

namespace skyvane {

namespace {

Size sizeOf(const QQuickItem& item)
{
    return {.width = item.width(), .height = item.height()};
}

QVariantMap mapOf(const SpokenPart& part)
{
    return {
        {QStringLiteral("text"), toQString(part.text)},
        {QStringLiteral("frame"), QRectF{part.frame.x, part.frame.y, part.frame.width, part.frame.height}},
        {QStringLiteral("link"), part.link ? static_cast<int>(*part.link) : -1},
    };
}

} // namespace

WidgetItem::WidgetItem(QQuickItem* parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    setActiveFocusOnTab(true);
}

WidgetItem::~WidgetItem()
{
    if (m_applet)
        m_applets->remove(*m_applet);
}

void WidgetItem::setKind(const QString& kind)
{
    m_kind = kind.toStdString();
    emit changed();
}

QString WidgetItem::name() const
{
    const WidgetInfo* info = m_applets->find(m_kind);
    return info != nullptr ? toQString(info->displayName) : QString{};
}

QSizeF WidgetItem::naturalSize() const
{
    return QSizeF{WidgetCard::sizeOf(firstFamily(m_kind))};
}

QString WidgetItem::refreshText()
{
    return localizedText("Refresh");
}

QString WidgetItem::settingsText()
{
    return localizedText("Settings…");
}

void WidgetItem::componentComplete()
{
    QQuickItem::componentComplete();
    geometryChange({{}, size()}, {});
}

void WidgetItem::geometryChange(const QRectF& next, const QRectF& before)
{
    QQuickItem::geometryChange(next, before);
    if (next.size() == before.size() || next.isEmpty() || !isComponentComplete())
        return;
    if (m_applet)
        m_applets->resize(*m_applet, sizeOf(*this));
    else
        m_applet
            = m_applets->add(m_kind, sizeOf(*this), [this](const ShownEntry* content) { show(content); });
    layOut();
}

/// Another screen, another scale; another window, another scene graph.
void WidgetItem::itemChange(ItemChange change, const ItemChangeData& data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange)
        polish();
}

void WidgetItem::show(const ShownEntry* content)
{
    m_isOff = content == nullptr;
    m_content = content != nullptr ? std::optional{*content} : std::nullopt;
    m_notice = content != nullptr ? stateOf(*content) : QString{};
    layOut();
    emit changed();
}

void WidgetItem::layOut()
{
    m_list = m_content ? WidgetContainer::layout(m_content->entry.view, sizeOf(*this), m_applets->fonts())
                       : DisplayList{.size = sizeOf(*this)};
    QVariantList parts;
    for (const SpokenPart& part : spokenParts(m_list))
        parts += mapOf(part);
    if (std::exchange(m_parts, parts) != parts)
        emit partsChanged();
    polish();
}

/// In this thread, as fonts want it; the scene graph gets the picture.
void WidgetItem::updatePolish()
{
    if (window() == nullptr || size().isEmpty())
        return;
    const double scale = window()->effectiveDevicePixelRatio();
    m_image = QImage{(size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied};
    m_image.setDevicePixelRatio(scale);
    m_image.fill(Qt::transparent);
    if (!m_isOff) {
        QPainter painter{&m_image};
        WidgetCard::paintBackground(
            m_list.size, m_content ? m_content->entry.background : WidgetCard::emptyBackground, painter);
        skyvane::paint(m_list, painter, m_applets->fonts());
        if (m_content)
            WidgetCard::paintMark(markOf(*m_content), width(), painter);
    }
    update();
}

QSGNode* WidgetItem::updatePaintNode(QSGNode* before, UpdatePaintNodeData*)
{
    auto* node = static_cast<QSGSimpleTextureNode*>(before);
    if (m_image.isNull())
        return node;
    if (node == nullptr)
        node = new QSGSimpleTextureNode;
    node->setOwnsTexture(true);
    node->setTexture(window()->createTextureFromImage(m_image));
    node->setRect(boundingRect());
    return node;
}

void WidgetItem::press(int part)
{
    if (!m_content)
        return;
    const int link = m_parts.value(part).toMap().value(QStringLiteral("link"), -1).toInt();
    const std::optional<URL> url
        = link >= 0 ? std::optional{m_list.links[static_cast<std::size_t>(link)].url} : m_content->entry.url;
    if (url && url->scheme() == "skyvane")
        withToken([applets = m_applets, url = *url](const QString& token) { applets->open(url, token); });
}

void WidgetItem::refresh()
{
    if (m_applet)
        m_applets->refresh(*m_applet);
}

void WidgetItem::openSettings()
{
    withToken([applets = m_applets](const QString& token) { applets->openSettings(token); });
}

/// Wayland's compositor is asked for an activation token and gives it later.
void WidgetItem::withToken(std::function<void(const QString& activationToken)> use)
{
    if (!KWindowSystem::isPlatformWayland() || window() == nullptr)
        return use({});
    const quint32 serial = KWaylandExtras::lastInputSerial(window());
    auto* extras = KWaylandExtras::self();
    connect(
        extras, &KWaylandExtras::xdgActivationTokenArrived, this,
        [use = std::move(use)](int, const QString& token) { use(token); }, Qt::SingleShotConnection);
    KWaylandExtras::requestXdgActivationToken(window(), serial, QStringLiteral("org.skyvane.Companion"));
}

} // namespace skyvane
