#pragma once

#include <QAbstractButton>
#include <QImage>

namespace skyvane {

/// A photograph with rounded corners; a click, or the keyboard, opens what it leads to. Without a photograph
/// it is an empty frame.
class PhotoCard : public QAbstractButton {
    Q_OBJECT
public:
    explicit PhotoCard(QWidget* parent = nullptr);

    /// A null image shows the empty frame.
    void showImage(const QImage& image, bool leadsSomewhere);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage m_image;
};

} // namespace skyvane
