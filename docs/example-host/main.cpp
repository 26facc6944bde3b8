// A desktop host in one file: every widget on offer in a plain window, kept fresh until it is closed.
//     example-host                     shows them
//     example-host --pictures FOLDER   writes what each shows first, the sample, as KIND-FAMILY.png, and ends
#include <skyvane/core/config/shared_state.h>
#include <skyvane/host/extension/schedule.h>
#include <skyvane/paint/painter.h>
#include <skyvane/paint/to_qt.h>
#include <skyvane/paint/widget_card.h>
#include <skyvane/ui/layout/widget_container.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QDesktopServices>
#include <QFileSystemWatcher>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QUrl>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

using namespace skyvane;

/// A widget in a window of its own.
class WidgetWindow : public QWidget {
public:
    WidgetWindow(const WidgetInfo& info, WidgetFamily family, const FontMeasurer& fonts)
        : m_name(info.shortName() + "-" + std::string{WidgetContainer::name(family)}), m_fonts(fonts)
    {
        setWindowTitle(toQString(info.displayName));
        setFixedSize(WidgetCard::sizeOf(family));
    }

    std::function<void()> closed; ///< Called when the user has had enough of it.

    void showContent(const ShownEntry& content)
    {
        m_content = content;
        m_list = WidgetContainer::layout(content.entry.view, {1.0 * width(), 1.0 * height()}, m_fonts);
        update();
    }

    /// Whether it worked.
    bool writePicture(const QString& folder)
    {
        QImage image{size(), QImage::Format_ARGB32_Premultiplied};
        render(&image);
        return image.save(folder + "/" + toQString(m_name) + ".png");
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter{this};
        painter.fillRect(rect(), toQt(m_content ? m_content->entry.background : WidgetCard::emptyBackground));
        paint(m_list, painter, m_fonts);
        if (m_content && m_content->isStale)
            WidgetCard::paintMark(WidgetCard::Mark::stale, width(), painter);
    }

    /// Opens what was clicked: a link, or beside every link the widget's own.
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        std::optional<URL> target = m_content ? m_content->entry.url : std::nullopt;
        for (const auto& [frame, url] : m_list.links) {
            if (QRectF{frame.x, frame.y, frame.width, frame.height}.contains(event->position()))
                target = url;
        }
        if (target)
            QDesktopServices::openUrl(QUrl{toQString(target->text())});
    }

    void closeEvent(QCloseEvent*) override { closed(); }

private:
    std::string m_name;
    const FontMeasurer& m_fonts;
    std::optional<ShownEntry> m_content;
    DisplayList m_list{};
};

int main(int argc, char* argv[])
{
    QApplication application{argc, argv};
    QCommandLineParser words;
    words.addHelpOption();
    words.addOption({"extension", "The widget extension's program.", "PROGRAM", EXTENSION_PROGRAM});
    words.addOption({"pictures", "Write pictures of the sample into this folder, and end.", "FOLDER"});
    words.process(application);

    const FontMeasurer fonts;
    std::vector<std::unique_ptr<WidgetWindow>> windows;
    ExtensionProcess extension{{.path = words.value("extension").toStdString()}};

    std::set<int> pictures; // Of which windows; what each shows first is its placeholder.
    const auto show = [&](int widget, const ShownEntry& content) {
        WidgetWindow& window = *windows.at(static_cast<std::size_t>(widget));
        window.showContent(content);
        if (!words.isSet("pictures") || !content.entry.isSample)
            return;
        if (!window.writePicture(words.value("pictures")))
            QCoreApplication::exit(1);
        else if (pictures.insert(widget); pictures.size() == windows.size())
            QCoreApplication::quit();
    };
    Schedule schedule{extension, show};

    const auto offer = [&](const std::optional<Protocol::WidgetList>& list) {
        if (!list)
            return QCoreApplication::exit(1); // The log says why.
        for (const WidgetInfo& info : list->widgets) {
            for (const WidgetFamily family : info.families) {
                const int widget = static_cast<int>(windows.size());
                auto& window = *windows.emplace_back(std::make_unique<WidgetWindow>(info, family, fonts));
                window.closed = [&schedule, widget] { schedule.remove(widget); };
                window.setVisible(!words.isSet("pictures"));
                schedule.add(widget, {.kind = info.kind, .family = family});
            }
        }
    };
    extension.ask(Protocol::ListCall{}, offer);

    // A changed configuration counts at once; its file is replaced, which its folder sees more than once.
    QTimer settled;
    settled.setSingleShot(true);
    settled.callOnTimeout([&] { schedule.refreshAll(); });
    QFileSystemWatcher folder{{toQString(SharedState::directory().string())}};
    QObject::connect(&folder, &QFileSystemWatcher::directoryChanged, &settled, [&] { settled.start(200); });
    return QCoreApplication::exec();
}
