#include "companion/aircraft/photo_panel.h"

#include "companion/aircraft/photo_card.h"
#include "companion/look/credits.h"
#include "companion/look/type_scale.h"
#include "desk/text.h"

#include <QLabel>
#include <QVBoxLayout>

namespace skyvane {

namespace {

QUrl pageOf(const PlanePhoto& photo)
{
    if (!photo.pageURL || photo.pageURL->scheme() != "https")
        return {};
    return QUrl{toQString(photo.pageURL->text()), QUrl::StrictMode};
}

QString creditOf(const PlanePhoto& photo)
{
    const std::string service = Credits::photoService().toStdString();
    if (!photo.photographer || photo.photographer->empty())
        return localizedText("Photo: %1", {service});
    return localizedText("Photo: %1", {"© " + *photo.photographer + " · " + service});
}

} // namespace

PhotoPanel::PhotoPanel(std::function<void(const QUrl&)> open, QWidget* parent)
    : QWidget(parent), m_open(std::move(open)), m_card(new PhotoCard), m_credit(new QLabel)
{
    m_credit->setTextFormat(Qt::PlainText);
    m_credit->setWordWrap(true);
    m_credit->setFont(TypeScale::small(font()));
    TypeScale::makeQuiet(*m_credit);
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);
    column->addWidget(m_card);
    column->addWidget(m_credit);
    connect(m_card, &PhotoCard::clicked, this, [this] {
        if (!m_page.isEmpty())
            m_open(m_page);
    });
}

void PhotoPanel::showPlace()
{
    m_page.clear();
    m_card->showImage({}, /*leadsSomewhere=*/false);
    m_card->setAccessibleName({});
    m_card->setToolTip({});
    m_credit->setText(localizedText("Looking for a photo…"));
    show();
}

void PhotoPanel::showPhotograph(const std::optional<Photograph>& photograph)
{
    setVisible(photograph.has_value());
    if (!photograph)
        return;
    m_page = pageOf(photograph->photo);
    m_card->showImage(photograph->image, !m_page.isEmpty());
    m_credit->setText(creditOf(photograph->photo));
    m_card->setAccessibleName(m_credit->text());
    m_card->setToolTip(m_page.toString(QUrl::FullyEncoded));
}

QString PhotoPanel::credit() const
{
    return m_credit->text();
}

} // namespace skyvane
