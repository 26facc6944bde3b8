#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace skyvane::test {

/// What the texts are translated into, as po/LINGUAS has it: "de", "pt_BR".
std::vector<std::string> languages();

/// po/, where the catalogues and the tables of their terms are written.
std::filesystem::path languagesFolder();

/// The "locale" tree of this build.
std::filesystem::path compiledCatalogues();

/// Texts in this language instead of English, until the end of the scope.
class InLanguage {
public:
    explicit InLanguage(const std::string& language);
    ~InLanguage();
    InLanguage(const InLanguage&) = delete;
    InLanguage& operator=(const InLanguage&) = delete;
};

} // namespace skyvane::test
