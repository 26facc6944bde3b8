#include "tests/support/comma_locale.h"

#include <clocale>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <string>

namespace skyvane::test {

CommaLocale::CommaLocale()
{
    const std::string folder = m_folder.path().string();
    std::ofstream{folder + "/source"}
        << "LC_NUMERIC\ndecimal_point \",\"\nthousands_sep \".\"\ngrouping 3;3\nEND LC_NUMERIC\n";
    // It warns that all other categories are missing, and makes them up.
    const std::string command = "localedef --no-archive --force -i " + folder + "/source " + folder
        + "/comma 2>" + folder + "/said";
    [[maybe_unused]] const int warnings = std::system(command.c_str());
    setenv("LOCPATH", folder.c_str(), /*overwrite=*/1);
    if (std::setlocale(LC_ALL, "comma") == nullptr)
        throw std::runtime_error("no locale could be made: " + command);
}

CommaLocale::~CommaLocale()
{
    std::setlocale(LC_ALL, "C");
    unsetenv("LOCPATH");
}

} // namespace skyvane::test
