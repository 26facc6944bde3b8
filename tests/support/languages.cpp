#include "tests/support/languages.h"

#include "platform/text/localized.h"

#include <cstdlib>
#include <fstream>

namespace skyvane::test {

std::vector<std::string> languages()
{
    std::ifstream list{languagesFolder() / "LINGUAS"};
    std::vector<std::string> all;
    for (std::string language; std::getline(list, language);)
        all.push_back(language);
    return all;
}

std::filesystem::path languagesFolder()
{
    return SKYVANE_LANGUAGES;
}

std::filesystem::path compiledCatalogues()
{
    return SKYVANE_CATALOGUES;
}

InLanguage::InLanguage(const std::string& language)
{
    setenv("LC_ALL", (language + ".UTF-8").c_str(), /*overwrite=*/1);
    useCatalogues(compiledCatalogues());
}

InLanguage::~InLanguage()
{
    unsetenv("LC_ALL");
    useCatalogues(compiledCatalogues());
}

} // namespace skyvane::test
