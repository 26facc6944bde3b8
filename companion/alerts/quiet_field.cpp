#include "companion/alerts/quiet_field.h"

#include "desk/text.h"
#include "platform/text/locale.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QSignalBlocker>
#include <QTimeEdit>

namespace skyvane {

namespace {

QTimeEdit* timeEdit(const QString& name)
{
    auto* edit = new QTimeEdit;
    const QLocale locale{toQString(Locale::current().times)};
    edit->setLocale(locale);
    edit->setDisplayFormat(locale.timeFormat(QLocale::ShortFormat));
    edit->setWrapping(true);
    edit->setAccessibleName(name);
    return edit;
}

} // namespace

QuietField::QuietField(QWidget* parent)
    : QWidget(parent)
    , m_box(new QCheckBox{localizedText("&Quiet from")})
    , m_from(timeEdit(localizedText("Quiet from")))
    , m_until(timeEdit(localizedText("Quiet until")))
{
    auto* row = new QHBoxLayout{this};
    row->setContentsMargins({});
    row->addWidget(m_box);
    row->addWidget(m_from);
    row->addWidget(new QLabel{localizedText("until")});
    row->addWidget(m_until);
    row->addStretch();
    connect(m_box, &QCheckBox::clicked, this, &QuietField::tell);
    for (const QTimeEdit* edit : {m_from, m_until})
        connect(edit, &QTimeEdit::timeChanged, this, &QuietField::tell);
}

void QuietField::show(bool isQuiet, const QuietHours& hours)
{
    const QSignalBlocker silentFrom{m_from};
    const QSignalBlocker silentUntil{m_until};
    m_box->setChecked(isQuiet);
    m_from->setTime(hours.from);
    m_until->setTime(hours.until);
    m_from->setEnabled(isQuiet);
    m_until->setEnabled(isQuiet);
}

void QuietField::tell()
{
    emit chosen(m_box->isChecked(), {.from = m_from->time(), .until = m_until->time()});
}

} // namespace skyvane
