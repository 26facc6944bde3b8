#include "companion/look/credits.h"

#include "companion/look/link_label.h"
#include "companion/look/type_scale.h"
#include "core/enrichment/photo_api.h"
#include "core/enrichment/route_api.h"
#include "core/feed/sources.h"
#include "desk/text.h"

#include <algorithm>

namespace skyvane::Credits {

namespace {

QString siteName(std::string_view website)
{
    return toQString(website).remove(QStringLiteral("www."));
}

QString linkTo(std::string_view website)
{
    return QStringLiteral(R"(<a href="https://%1">%2</a>)").arg(toQString(website), siteName(website));
}

} // namespace

QString aircraft(const std::vector<Remark>& remarks)
{
    QStringList links;
    for (const ADSB::Source& source : ADSB::sources()) {
        const auto remark = std::ranges::find(remarks, source.name, &Remark::source);
        links += linkTo(source.website);
        if (remark != remarks.end())
            links.back() += QStringLiteral(" (%1)").arg(remark->text.toHtmlEscaped());
    }
    return links.join(QStringLiteral(" · "));
}

QString routes()
{
    return linkTo(RouteAPI::website);
}

QString photos()
{
    return linkTo(PhotoAPI::website);
}

QString places()
{
    return linkTo("www.naturalearthdata.com") + QStringLiteral(" · ") + linkTo("www.geonames.org")
        + QStringLiteral(" (CC BY 4.0) · ") + linkTo("ourairports.com");
}

QString photoService()
{
    return siteName(PhotoAPI::website);
}

QString text(const QString& sources)
{
    return localizedText("Data: %1", {sources.toStdString()});
}

QLabel* makeLabel(const QString& sources)
{
    auto* label = new LinkLabel{text(sources)};
    label->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    label->setFont(TypeScale::small(label->font()));
    TypeScale::makeQuiet(*label);
    return label;
}

} // namespace skyvane::Credits
