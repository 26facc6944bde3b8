#pragma once

#include <fstream>
#include <string>
#include <utility>
#include <vector>

namespace skyvane::test {

/// The lines of a list of tab-separated pairs that lies beside the tests.
inline std::vector<std::pair<std::string, std::string>> expectedRows(const std::string& fileName)
{
    std::vector<std::pair<std::string, std::string>> rows;
    std::ifstream file{SKYVANE_ENRICHMENT_FIXTURES "/" + fileName};
    for (std::string line; std::getline(file, line);) {
        const std::size_t tab = line.find('\t');
        rows.emplace_back(line.substr(0, tab), line.substr(tab + 1));
    }
    return rows;
}

} // namespace skyvane::test
