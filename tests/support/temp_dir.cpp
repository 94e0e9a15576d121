#include "tests/support/temp_dir.h"

#include "platform/folders.h"

#include <atomic>
#include <chrono>
#include <fstream>
#include <iterator>
#include <random>
#include <system_error>

namespace wordhawk::test {

TempDir::TempDir() {
    static std::atomic<unsigned> counter{0};
    std::random_device device;
    folder_ = TemporaryFolder() /
              ("wordhawk-test-" + std::to_string(device()) + "-" + std::to_string(++counter));
    std::filesystem::create_directories(folder_);
}

TempDir::~TempDir() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

void WriteBytes(const Path& path, std::string_view bytes) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string ReadBytes(const Path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

std::size_t CountEntries(const Path& folder) {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder), {}));
}

}  // namespace wordhawk::test
