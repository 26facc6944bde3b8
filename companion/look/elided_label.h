#pragma once

#include <QLabel>

namespace skyvane {

/// One line of plain text that ends in "…" where it has no room; then the whole is in the tool tip. A screen
/// reader says all of it.
class ElidedLabel : public QLabel {
    Q_OBJECT
public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    void showText(const QString& text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void elide();

    QString m_whole;
};

} // namespace skyvane
