#pragma once

#include <QWidget>

#include <optional>
#include <string>

class QButtonGroup;
class QPushButton;

namespace skyvane {

class SwatchButton;

/// The widgets' colour: the standard one, one of eight, or any.
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

    QButtonGroup* m_swatches;
    SwatchButton* m_own; ///< Hidden unless the colour is none of the others.
    QPushButton* m_reset;
    std::optional<std::string> m_hex;
};

} // namespace skyvane
