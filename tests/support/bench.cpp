#include "tests/support/bench.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace lx {

namespace fs = std::filesystem;

namespace {

Path freshFolder() {
    static unsigned number = 0;
    const Path base = systemFiles().temporaryFolder() + "lxtest-" +
                      std::to_string(processNumber()) + "-" + std::to_string(++number);
    fs::remove_all(base);
    return base + std::string(separator);
}

}  // namespace

Bench::Bench() : m_before(systemFiles().temporaryFolder()), m_folder(freshFolder()) {
    for (const Path& folder :
         {dataFolder(), libraryFolder(), catalogueFolder(), temporaryFolder()}) {
        fs::create_directories(folder);
    }
    setTemporaryFolder(temporaryFolder());
    m_host.data = dataFolder();
    m_host.library = libraryFolder();
    m_host.catalogue = catalogueFolder();
    m_platform = makeTestPlatform();
    m_driver = makeTestDriver(*m_platform);
    m_user = std::make_unique<Session>(*m_driver);
}

Bench::~Bench() {
    m_user.reset();
    m_driver.reset();
    m_platform.reset();
    setTemporaryFolder(m_before);
    std::error_code ignored;
    fs::remove_all(m_folder, ignored);
}

void Bench::write(const Path& path, std::string_view bytes) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) throw std::runtime_error("cannot write " + path);
}

std::optional<Bytes> Bench::read(const Path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) return std::nullopt;
    return Bytes(std::istreambuf_iterator<char>(file), {});
}

}  // namespace lx
