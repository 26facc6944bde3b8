#pragma once

#include <QAbstractButton>
#include <QImage>

namespace skyvane {

/// A photograph with rounded corners; a click, or the keyboard, opens what it leads to. Without one, a quiet
/// place for it.
class PhotoCard : public QAbstractButton {
    Q_OBJECT
public:
    explicit PhotoCard(QWidget* parent = nullptr);

    /// A null image: the place for one.
    void showImage(const QImage& image, bool leadsSomewhere);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage m_image;
};

} // namespace skyvane
