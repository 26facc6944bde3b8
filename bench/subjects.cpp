#include "bench/subjects.h"

#include <QImage>

#include <algorithm>

namespace skyvane::bench {

const std::vector<Subject>& subjects()
{
    static const std::vector<Subject> list{
        {"nearest", WidgetFamily::small},
        {"radar", WidgetFamily::small},
        {"radar", WidgetFamily::medium},
        {"skyboard", WidgetFamily::large},
    };
    return list;
}

WidgetContent contentOf(const Subject& subject, const SkyEntry& entry)
{
    const auto widgets = SkyvaneWidgetBundle{}.body();
    return std::ranges::find(widgets, "org.skyvane.widgets." + subject.kind, &Widget::kind)
        ->content(entry, subject.family);
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
