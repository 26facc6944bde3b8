#pragma once

#include "companion/settings/accents.h"

#include <QWidget>

#include <optional>
#include <string>
#include <vector>

class QButtonGroup;
class QPushButton;

namespace skyvane {

class SwatchButton;

/// The widgets' colour: one of those that are offered, or any.
class ColorField : public QWidget {
    Q_OBJECT
public:
    explicit ColorField(QWidget* parent = nullptr);

    /// Absent, and what is no colour, shows as the standard one.
    void showColor(const std::optional<std::string>& hex);

signals:
    void chosen(const std::optional<std::string>& hex);
    void tried(const std::string& hex); ///< In the dialog; `chosen` follows.

private:
    void askForOther();

    std::vector<Accent> m_accents;
    QButtonGroup* m_swatches; ///< One an accent, in their order, and `m_own`.
    SwatchButton* m_own; ///< Hidden unless the colour is none of the others.
    QPushButton* m_reset;
    std::optional<std::string> m_hex;
};

} // namespace skyvane
