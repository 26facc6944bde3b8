#include "companion/alerts/watch_field.h"

#include "desk/text.h"
#include "protocol/limits.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace skyvane {

namespace {

constexpr int longestPattern = 64; ///< Characters; no name is longer.

} // namespace

WatchField::WatchField(QWidget* parent)
    : QWidget(parent)
    , m_list(new QListWidget)
    , m_text(new QLineEdit)
    , m_add(new QPushButton{localizedText("A&dd")})
    , m_remove(new QPushButton{localizedText("&Remove")})
{
    m_list->setAccessibleName(localizedText("Watch list"));
    m_list->setFixedHeight(m_list->fontMetrics().height() * 7);
    m_text->setMaxLength(longestPattern);
    m_text->setAccessibleName(localizedText("To add to the watch list"));
    m_text->setPlaceholderText(localizedText("BAW117, G-CIVW, B744, 4007F0 or RCH*"));
    layOut();
    setFocusPolicy(Qt::StrongFocus); // Else its label leads nowhere.
    setFocusProxy(m_text);

    m_list->installEventFilter(this);
    connect(m_text, &QLineEdit::returnPressed, this, &WatchField::add);
    connect(m_text, &QLineEdit::textChanged, this, &WatchField::showWhatCanBeDone);
    connect(m_add, &QPushButton::clicked, this, &WatchField::add);
    connect(m_remove, &QPushButton::clicked, this, &WatchField::remove);
    connect(m_list, &QListWidget::currentRowChanged, this, &WatchField::showWhatCanBeDone);
    showWhatCanBeDone();
}

/// The Delete key on the list.
bool WatchField::eventFilter(QObject* watched, QEvent* event)
{
    const bool isDelete
        = event->type() == QEvent::KeyPress && static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Delete;
    if (!isDelete)
        return QWidget::eventFilter(watched, event);
    remove();
    return true;
}

void WatchField::layOut()
{
    auto* adding = new QHBoxLayout;
    adding->addWidget(m_text, /*stretch=*/1);
    adding->addWidget(m_add);
    auto* listed = new QHBoxLayout;
    listed->addWidget(m_list, /*stretch=*/1);
    listed->addWidget(m_remove, 0, Qt::AlignTop);
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins({});
    column->addLayout(adding);
    column->addLayout(listed);
}

void WatchField::show(const std::vector<std::string>& patterns)
{
    if (patterns == m_patterns)
        return;
    m_patterns = patterns;
    const int row = m_list->currentRow();
    m_list->clear();
    for (const std::string& pattern : m_patterns)
        m_list->addItem(toQString(pattern));
    m_list->setCurrentRow(std::min(row, m_list->count() - 1));
    showWhatCanBeDone();
}

void WatchField::add()
{
    const std::string pattern = m_text->text().trimmed().toStdString();
    if (!m_add->isEnabled())
        return;
    m_text->clear();
    std::vector<std::string> patterns = m_patterns;
    if (std::ranges::find(patterns, pattern) == patterns.end())
        patterns.push_back(pattern);
    show(patterns);
    emit chosen(patterns);
}

void WatchField::remove()
{
    const int row = m_list->currentRow();
    if (row < 0)
        return;
    std::vector<std::string> patterns = m_patterns;
    patterns.erase(patterns.begin() + row);
    show(patterns);
    emit chosen(patterns);
}

void WatchField::showWhatCanBeDone()
{
    m_add->setEnabled(
        !m_text->text().trimmed().isEmpty() && m_patterns.size() < Protocol::Limits::mostPatterns);
    m_remove->setEnabled(m_list->currentRow() >= 0);
}

} // namespace skyvane
