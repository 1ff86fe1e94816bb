#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <system_error>

namespace qor::test {

// A folder of its own for one test, taken away with all it holds.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::random_device number;
        do path = std::filesystem::temp_directory_path() / ("qor-test-" + std::to_string(number()));
        while (!std::filesystem::create_directory(path));
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }

    std::set<std::string> names() const {
        std::set<std::string> result;
        for (const auto& entry : std::filesystem::directory_iterator(path))
            result.insert(entry.path().filename().string());
        return result;
    }

    std::filesystem::path path;
};

inline std::string content_of(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

inline void put(const std::filesystem::path& file, std::string_view bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}

}  // namespace qor::test
