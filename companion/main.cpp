#include "companion/app/command_line.h"
#include "companion/app/run_companion.h"
#include "desk/activation.h"
#include "desk/bus/names.h"
#include "desk/display.h"
#include "desk/journal.h"
#include "paint/to_qt.h"
#include "platform/files/programs.h"
#include "platform/text/localized.h"

#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QPixmapCache>
#include <QThreadPool>
#include <QTimer>
#include <QTranslator>

#include <chrono>
#include <iostream>

namespace {

int print(const skyvane::Printed& printed)
{
    (printed.isError ? std::cerr : std::cout) << printed.text;
    return printed.isError ? 2 : 0;
}

} // namespace

int main(int argc, char* argv[])
{
    const auto read = skyvane::readCommandLine({argv + (argc > 0 ? 1 : 0), argv + argc});
    if (const auto* printed = std::get_if<skyvane::Printed>(&read))
        return print(*printed);
    skyvane::keepJournalPrintable();
    const QString token = skyvane::Activation::tokenOfStart();
    skyvane::useCatalogues(skyvane::Programs::catalogues(skyvane::Programs::ownFolder().parent_path()));
    int programNameOnly = 1;
    const auto application = skyvane::Display{"skyvane"}.open<QApplication>(programNameOnly, argv);
    // The toolkit paints on this pool. Its threads wait for more only while something moves: half a minute,
    // as it is, and they would wake up to end while the companion rests.
    QThreadPool::globalInstance()->setExpiryTimeout(100);
    // Its cache of pictures has a timer that would wake the program up, too, half a minute after it painted.
    QPixmapCache::setCacheLimit(0);
    QApplication::setApplicationName(QStringLiteral("skyvane"));
    QApplication::setApplicationDisplayName(QStringLiteral("Skyvane"));
    QApplication::setDesktopFileName(skyvane::BusName::companion());
    // Looking up an icon reads every theme's folders, which takes as long as making the window; it can come
    // after it.
    QTimer::singleShot(std::chrono::milliseconds{300},
        [] { QApplication::setWindowIcon(QIcon::fromTheme(skyvane::BusName::companion())); });
    QApplication::setLayoutDirection(skyvane::toQt(skyvane::textDirection()));
    QTranslator words;
    if (words.load(QLocale{}, QStringLiteral("qtbase"), QStringLiteral("_"),
            QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&words);
    return skyvane::runCompanion(
        skyvane::CompanionSetup::standard(), std::get<skyvane::CommandLine>(read), token);
}
