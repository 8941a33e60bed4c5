#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <fstream>
#include <sstream>
#include <string>

namespace corvane::structure {
namespace {

std::ifstream open(const char* file) {
    return std::ifstream(std::string(CORVANE_SOURCE_FOLDER "/") + file);
}

/// The version is given in CMakeLists.txt and generated into everything that CMake sees. These two
/// are read by others, and have to follow.
TEST(Version, IsTheSameWhereACopyIsNeeded) {
    auto manifest = open("vcpkg.json");
    EXPECT_EQ(nlohmann::json::parse(manifest).at("version"), CORVANE_VERSION);

    std::stringstream changes;
    changes << open("CHANGELOG.md").rdbuf();
    EXPECT_THAT(changes.str(), testing::HasSubstr("## [" CORVANE_VERSION "]"));
}

} // namespace
} // namespace corvane::structure
