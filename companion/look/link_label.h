#pragma once

#include <QLabel>

namespace skyvane {

/// Rich text whose links lead to the web, in the link colour of the moment: the toolkit's own label keeps the
/// one that it was made in.
class LinkLabel : public QLabel {
    Q_OBJECT
public:
    explicit LinkLabel(const QString& richText, QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;
};

} // namespace skyvane
