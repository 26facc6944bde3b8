#pragma once

#include "companion/look/measures.h"

#include <QObject>

#include <filesystem>

namespace skyvane {

/// What the user chose for the companion alone, kept in its own file.
class Preferences : public QObject {
    Q_OBJECT
public:
    explicit Preferences(const std::filesystem::path& file, QObject* parent = nullptr);

    Measures measures() const { return m_measures; }
    void choose(Measures measures);

    /// Whether a map lies under the scope.
    bool isMapShown() const { return m_isMapShown; }
    void showMap(bool isShown);

signals:
    void changed();

private:
    void write(const QString& key, const QVariant& value);

    QString m_file;
    Measures m_measures = Measures::aviation;
    bool m_isMapShown = true;
};

} // namespace skyvane
