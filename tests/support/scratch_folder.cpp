#include "tests/support/scratch_folder.h"

#include <cstdlib>
#include <stdexcept>
#include <string>

namespace skyvane::test {

ScratchFolder::ScratchFolder()
{
    std::string name = std::filesystem::temp_directory_path() / "skyvane-test-XXXXXX";
    if (mkdtemp(name.data()) == nullptr)
        throw std::runtime_error("no scratch folder at " + name);
    m_path = name;
}

ScratchFolder::~ScratchFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

} // namespace skyvane::test
