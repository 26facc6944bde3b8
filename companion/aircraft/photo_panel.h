#pragma once

#include "companion/feed/lookups.h"

#include <QUrl>
#include <QWidget>

#include <functional>

class QLabel;

namespace skyvane {

class PhotoCard;

/// A photograph with its credit below; a click opens its page on the web.
class PhotoPanel : public QWidget {
    Q_OBJECT
public:
    /// `open` gets pages on the web, over HTTPS only.
    explicit PhotoPanel(std::function<void(const QUrl&)> open, QWidget* parent = nullptr);

    /// Shows the empty frame, while the photograph is looked for.
    void showPlace();
    /// Hides the panel when there is no photograph.
    void showPhotograph(const std::optional<Photograph>& photograph);

    QString credit() const;

private:
    std::function<void(const QUrl&)> m_open;
    QUrl m_page; ///< Of the photograph; empty when it has none that may be opened.
    PhotoCard* m_card;
    QLabel* m_credit;
};

} // namespace skyvane
