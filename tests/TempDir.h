#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>

namespace quillet {

// A fresh folder for one test, removed with everything in it afterwards.
class TempDir {
public:
    TempDir()
    {
        std::random_device seed;
        m_path = std::filesystem::temp_directory_path() / ("quillet-test-" + std::to_string(seed()));
        std::filesystem::create_directories(m_path);
    }
    ~TempDir()
    {
        std::error_code ec;
        std::filesystem::permissions(m_path, std::filesystem::perms::owner_all, ec);
        std::filesystem::remove_all(m_path, ec);
    }
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::filesystem::path& path() const { return m_path; }

    // Writes a file below the folder, making its folders; bytes are written as given.
    std::filesystem::path write(const std::string& relative, std::string_view bytes) const
    {
        const auto file = m_path / relative;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << bytes;
        return file;
    }

    std::string read(const std::string& relative) const { return readFile(m_path / relative); }

    static std::string readFile(const std::filesystem::path& file)
    {
        std::ifstream in(file, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }

private:
    std::filesystem::path m_path;
};

} // namespace quillet
