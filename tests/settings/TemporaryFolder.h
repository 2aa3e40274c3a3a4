#pragma once

#include "settings/Rewrite.h"
#include "settings/SettingsFile.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace Ledgrove {

inline std::optional<std::string> ReadBytes(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    if (!stream)
        return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(stream), {});
}

inline void WriteBytes(const std::filesystem::path& path, std::string_view bytes) {
    std::ofstream stream(path, std::ios::binary | std::ios::trunc);
    stream << bytes;
}

/// A test with its own temporary program folder.
class SettingsTest : public testing::Test {
protected:
    SettingsTest()
        : m_folder(MakeFolder())
        , m_file(m_folder) {}
    ~SettingsTest() override {
        std::error_code ignored;
        std::filesystem::remove_all(m_folder, ignored);
    }

    const std::filesystem::path& Folder() const { return m_folder; }
    const SettingsFile& File() const { return m_file; }

    void Given(std::string_view bytes) const { WriteBytes(m_file.Path(), bytes); }
    /// The settings file's bytes, or "(missing)".
    std::string Bytes() const { return ReadBytes(m_file.Path()).value_or("(missing)"); }
    /// Applies the writer to the file, as one save.
    template <typename Writer>
    std::optional<SettingsFault> Save(Writer writer) const {
        const auto lines = m_file.ReadLines();
        if (!lines)
            return lines.Fault();
        SettingsDraft draft(m_file, *lines);
        if (auto fault = writer(draft))
            return fault;
        return draft.Save();
    }
    bool Exists(const std::filesystem::path& path) const {
        return std::filesystem::exists(std::filesystem::symlink_status(path));
    }

private:
    static std::filesystem::path MakeFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "ledgrove-settings-XXXXXX").string();
        return mkdtemp(name.data()) == nullptr ? std::filesystem::path() : std::filesystem::path(name);
    }

    std::filesystem::path m_folder;
    SettingsFile m_file;
};

} // namespace Ledgrove
