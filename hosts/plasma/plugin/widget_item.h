#pragma once

#include "hosts/plasma/applets.h"
#include "ui/layout/display_list.h"

#include <QImage>
#include <QQuickItem>
#include <QVariantList>

#include <memory>
#include <optional>

namespace skyvane {

/// A widget as an item of Qt Quick: its picture, and its links and rows of text for the pointer, the keyboard
/// and a screen reader. Where it is laid out decides its size, and that its family.
class WidgetItem : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(QString kind READ kind WRITE setKind)
    Q_PROPERTY(QString name READ name NOTIFY changed)
    Q_PROPERTY(
        QString notice READ notice NOTIFY changed) ///< What is not as usual, in a sentence; else empty.
    Q_PROPERTY(QVariantList parts READ parts NOTIFY
            partsChanged) ///< Each with text, frame and link: which one, or -1.
    Q_PROPERTY(QSizeF naturalSize READ naturalSize NOTIFY changed) ///< Of a new one.
    Q_PROPERTY(QString refreshText READ refreshText CONSTANT)
    Q_PROPERTY(QString settingsText READ settingsText CONSTANT)

public:
    explicit WidgetItem(QQuickItem* parent = nullptr);
    ~WidgetItem() override;
    WidgetItem(const WidgetItem&) = delete;
    WidgetItem& operator=(const WidgetItem&) = delete;

    QString kind() const { return QString::fromStdString(m_kind); }
    void setKind(const QString& kind);
    QString name() const;
    const QString& notice() const { return m_notice; }
    const QVariantList& parts() const { return m_parts; }
    QSizeF naturalSize() const;
    static QString refreshText();
    static QString settingsText();

    /// Does what a click does: on that part, or beside all links when there is none of this number.
    Q_INVOKABLE void press(int part);
    Q_INVOKABLE void refresh();
    Q_INVOKABLE void openSettings();

signals:
    void changed();
    void partsChanged();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF& next, const QRectF& before) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void updatePolish() override;
    QSGNode* updatePaintNode(QSGNode* before, UpdatePaintNodeData* data) override;

private:
    void show(const ShownEntry* content);
    void layOut();
    void withToken(std::function<void(const QString& activationToken)> use);

    std::shared_ptr<Applets> m_applets = Applets::shared();
    std::string m_kind;
    std::optional<int> m_applet; ///< Absent before the item has a kind and a size.
    std::optional<ShownEntry> m_content; ///< Absent before the first, and while the widgets are turned off.
    bool m_isOff = false;
    QString m_notice;
    DisplayList m_list{};
    QVariantList m_parts;
    QImage m_image; ///< In the screen's pixels.
};

} // namespace skyvane
