#pragma once

#include "companion/feed/lookups.h"

#include <QUrl>
#include <QWidget>

#include <functional>

class QLabel;

namespace skyvane {

class PhotoCard;

/// A photograph, whose it is below it, and a click away from its page.
class PhotoPanel : public QWidget {
    Q_OBJECT
public:
    /// `open` gets pages on the web, over HTTPS only.
    explicit PhotoPanel(std::function<void(const QUrl&)> open, QWidget* parent = nullptr);

    /// The place for one, while it is looked for.
    void showPlace();
    /// Hides without one.
    void showPhotograph(const std::optional<Photograph>& photograph);

    QString credit() const;

private:
    std::function<void(const QUrl&)> m_open;
    QUrl m_page; ///< Empty: none to be opened.
    PhotoCard* m_card;
    QLabel* m_credit;
};

} // namespace skyvane
