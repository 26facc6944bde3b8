#pragma once

#include <QHeaderView>

namespace skyvane {

/// The heads of the list's columns in the colours of the list itself, whatever they are at the moment, with
/// the arrow of the order in the margin.
class FlatHeader : public QHeaderView {
    Q_OBJECT
public:
    explicit FlatHeader(QWidget* parent = nullptr);

protected:
    void paintSection(QPainter* painter, const QRect& frame, int column) const override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace skyvane
