#include "bench/subjects.h"

#include <QImage>

namespace skyvane::bench {

const std::vector<Subject>& subjects()
{
    static const std::vector<Subject> list = [] {
        std::vector<Subject> all;
        for (const Widget& widget : SkyvaneWidgetBundle{}.body()) {
            for (const WidgetFamily family : widget.supportedFamilies)
                all.push_back({.widget = widget, .family = family});
        }
        return all;
    }();
    return list;
}

WidgetContent contentOf(const Subject& subject, const SkyEntry& entry)
{
    return subject.widget.content(entry, subject.family);
}

void fillEmptyPicture(const Subject& subject, double scale)
{
    const Size size = WidgetContainer::size(subject.family);
    QImage image(static_cast<int>(size.width * scale), static_cast<int>(size.height * scale),
        QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    asm volatile("" : : "r"(image.constBits()) : "memory");
}

} // namespace skyvane::bench
