#pragma once

#include "companion/alerts/alert_store.h"

#include <QWidget>

#include <functional>

class QCheckBox;
class QLabel;
class QSpinBox;
class QVBoxLayout;

namespace skyvane {

class QuietField;
class WatchField;

/// "Tell me when…": what the user wants to be told of by a notification, and when not. Every choice is kept
/// at once.
class AlertsPage : public QWidget {
    Q_OBJECT
public:
    /// `showSample` shows a notification as it would come.
    AlertsPage(AlertStore& store, std::function<void()> showSample, QWidget* parent = nullptr);

private:
    void layOut(const std::function<void()>& showSample);
    QWidget* overheadRow();
    void connectFields();
    void choose(const std::function<void(AlertChoices&)>& change);
    void showChoices();
    void showState(const QString& state);

    AlertStore& m_store;
    QCheckBox* m_emergency;
    QCheckBox* m_military;
    QCheckBox* m_overhead;
    QSpinBox* m_elevation;
    WatchField* m_watch;
    QuietField* m_quiet;
    QLabel* m_state; ///< Says whether the last choice was saved.
};

} // namespace skyvane
