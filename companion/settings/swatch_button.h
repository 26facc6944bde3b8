#pragma once

#include <QAbstractButton>
#include <QColor>

namespace skyvane {

/// A round patch of colour that can be chosen.
class SwatchButton : public QAbstractButton {
    Q_OBJECT
public:
    SwatchButton(const QColor& color, const QString& name, QWidget* parent = nullptr);

    void setColor(const QColor& color);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_color;
};

} // namespace skyvane
