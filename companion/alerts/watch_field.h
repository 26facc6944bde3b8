#pragma once

#include <QWidget>

#include <string>
#include <vector>

class QLineEdit;
class QListWidget;
class QPushButton;

namespace skyvane {

/// The watch list: patterns one below the other, a field that adds one, a button that removes the chosen one.
class WatchField : public QWidget {
    Q_OBJECT
public:
    explicit WatchField(QWidget* parent = nullptr);

    void show(const std::vector<std::string>& patterns);

signals:
    void chosen(const std::vector<std::string>& patterns);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void layOut();
    void add();
    void remove();
    void showWhatCanBeDone();

    std::vector<std::string> m_patterns;
    QListWidget* m_list;
    QLineEdit* m_text;
    QPushButton* m_add;
    QPushButton* m_remove;
};

} // namespace skyvane
