#include "companion/look/sources.h"

#include "companion/look/link_label.h"
#include "companion/look/type_scale.h"
#include "desk/text.h"

namespace skyvane {

namespace {

QString pageOf(Source source)
{
    switch (source) {
    case Source::firstAggregator:
        return QStringLiteral("adsb.lol");
    case Source::secondAggregator:
        return QStringLiteral("adsb.fi");
    case Source::routeDatabase:
        return QStringLiteral("www.adsbdb.com");
    case Source::photoService:
        return QStringLiteral("www.planespotters.net");
    }
    return {};
}

} // namespace

QString linkTo(Source source)
{
    const QString page = pageOf(source);
    return QStringLiteral(R"(<a href="https://%1">%2</a>)")
        .arg(page, QString{page}.remove(QStringLiteral("www.")));
}

QWidget* makeSourcesLabel(const std::vector<Source>& sources)
{
    QStringList links;
    for (const Source source : sources)
        links += linkTo(source);
    auto* label = new LinkLabel{localizedText("Data: %1").arg(links.join(QStringLiteral(" · ")))};
    label->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    label->setFont(TypeScale::small(label->font()));
    TypeScale::makeQuiet(*label);
    return label;
}

} // namespace skyvane
