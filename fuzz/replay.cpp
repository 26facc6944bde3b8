#include "fuzz/fuzzer.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

std::vector<std::filesystem::path> filesIn(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator{folder}) {
        if (entry.is_regular_file())
            files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::string contentOf(const std::filesystem::path& file)
{
    std::ifstream stream{file, std::ios::binary};
    return {std::istreambuf_iterator<char>{stream}, {}};
}

} // namespace

/// Gives the fuzzer every file of the folders. Names each one first: the last name is the one that stopped
/// it.
int main(int argumentCount, char** arguments)
{
    std::size_t count = 0;
    for (int index = 1; index < argumentCount; ++index) {
        for (const auto& file : filesIn(arguments[index])) {
            std::printf("%s\n", file.c_str());
            std::fflush(stdout);
            const std::string content = contentOf(file);
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(content.data()), content.size());
            ++count;
        }
    }
    std::printf("%zu inputs\n", count);
    return count > 0 ? 0 : 1;
}
